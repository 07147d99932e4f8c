#pragma once

#include <set>
#include <stdexcept>

/// A number that knows which of its kind are alive and how often they were copied, and whose copies can be made to fail.
/// Destroying or reading one that is not alive shows in `faults`.
class Tracked
{
 public:
  static inline int copies = 0;
  static inline int copiesUntilFailure = -1;
  static inline int faults = 0;
  static int Alive() { return static_cast<int>(alive_.size()); }

  Tracked(int value = 0) : value_(value) { alive_.insert(this); }
  Tracked(Tracked const& other) : value_(other.Value())
  {
    if (copiesUntilFailure == 0) throw std::runtime_error("copy");
    if (copiesUntilFailure > 0) --copiesUntilFailure;
    ++copies;
    alive_.insert(this);
  }
  Tracked& operator=(Tracked const& other)
  {
    if (copiesUntilFailure == 0) throw std::runtime_error("copy");
    if (copiesUntilFailure > 0) --copiesUntilFailure;
    ++copies;
    value_ = other.Value();
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
  static inline std::set<Tracked const*> alive_;
  int value_;
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
