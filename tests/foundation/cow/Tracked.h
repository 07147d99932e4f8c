#pragma once

#include <set>
#include <stdexcept>

/// A number that knows which of its kind are alive and how often they were copied; copies can be made to fail.
/// Destroying or reading one that is not alive shows in `faults`.
class Tracked
{
 public:
  static inline int copies = 0;
  static inline int copiesUntilFailure = -1;
  static inline int faults = 0;
  static int Alive() { return static_cast<int>(alive_.size()); }

  Tracked(int value = 0) : value_(value) { alive_.insert(this); }
  Tracked(Tracked const& other) : value_(other.Copied()) { alive_.insert(this); }
  Tracked& operator=(Tracked const& other)
  {
    value_ = other.Copied();
    return *this;
  }
  ~Tracked()
  {
    if (alive_.erase(this) == 0) ++faults;
  }

  int Value() const
  {
    if (!alive_.count(this)) ++faults;
    return value_;
  }
  bool operator==(Tracked const& other) const { return Value() == other.Value(); }
  bool operator<(Tracked const& other) const { return Value() < other.Value(); }

 private:
  int Copied() const
  {
    if (copiesUntilFailure == 0) throw std::runtime_error("copy");
    if (copiesUntilFailure > 0) --copiesUntilFailure;
    ++copies;
    return Value();
  }

  static inline std::set<Tracked const*> alive_;
  int value_;
};

/// A Tracked that moves without copying and so cannot fail at it.
class TrackedMovable : public Tracked
{
 public:
  using Tracked::Tracked;
  TrackedMovable(TrackedMovable const&) = default;
  TrackedMovable(TrackedMovable&& other) noexcept : Tracked(other.Value()) {}
  TrackedMovable& operator=(TrackedMovable const&) = default;
};

/// Tries `change` with the first copy failing, then with the second, and so on until it goes through, and calls `check`
/// after each failure.
template <class Change, class Check>
void FailAtEveryCopy(Change change, Check check)
{
  for (int allowed = 0;; ++allowed) {
    Tracked::copiesUntilFailure = allowed;
    try {
      change();
      Tracked::copiesUntilFailure = -1;
      return;
    } catch (std::runtime_error const&) {
      Tracked::copiesUntilFailure = -1;
      check();
    }
  }
}
