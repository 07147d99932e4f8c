#pragma once

#include <cstddef>
#include <cstdint>

#include "TVOExport.h"

/// The persistent identity of an object. It takes no part in equality of objects.
///
/// A number is made of the process's origin (24 random bits) and a running count (40 bits), so that objects made
/// in different processes do not meet in one database. Copying an object copies its identity; NewUid() gives the
/// copy one of its own.
class TVO_API cls_Uid {
 public:
  cls_Uid() noexcept : value_(AllocateUid()) {}
  cls_Uid(cls_Uid const&) noexcept = default;
  cls_Uid& operator=(cls_Uid const&) noexcept = default;

  /// Takes an identity that nothing had before.
  void NewUid() noexcept { value_ = AllocateUid(); }

  std::uint64_t Value() const noexcept { return value_; }
  bool operator==(cls_Uid const&) const noexcept = default;

  /// The next free number of this process.
  static std::uint64_t AllocateUid() noexcept { return ++last_; }

  /// Identities for the parts of one object, taken at once.
  class Block {
   public:
    explicit Block(std::size_t count) noexcept : next_(last_ + 1) { last_ += count; }
    /// @pre not called more often than `count` times
    cls_Uid Next() noexcept { return cls_Uid(next_++); }

   private:
    std::uint64_t next_;
  };

  /// An identity read from a database. Numbers of this process's origin are not given out again.
  static cls_Uid Stored(std::uint64_t value) noexcept {
    NoteStored(value);
    return cls_Uid(value);
  }
  static void NoteStored(std::uint64_t value) noexcept {
    if (value > last_ && (value >> originShift) == (last_ >> originShift)) {
      last_ = value;
    }
  }

 private:
  static constexpr int originShift = 40;
  explicit cls_Uid(std::uint64_t value) noexcept : value_(value) {}

  static std::uint64_t last_;
  std::uint64_t value_;
};
