#pragma once

#include <string>
#include <string_view>

#include "cls_Persistent.h"
#include "cow_String.h"
#include "typ_FoundationTypes.h"

/// Which regions of an object are asked for: those kept for the object alone (picked, of an instance), the named ones, or all.
enum rgnC_RegionType { RGN_INSTANCE = 0, RGN_NAMED = 1, RGN_ALL = 2 };

/// A region of the model: the name of a set or surface and what kind of place it is. A value; compared by content.
class TVO_API rgnC_Region : public cls_Persistent {
  CLS_PERSISTENT(rgnC, rgnC_Region)

 public:
  rgnC_Region() = default;
  explicit rgnC_Region(cow_String regionName, int instanceWord = 0, int kindBits = 0)
      : name(std::move(regionName)), instance(instanceWord), kind(kindBits) {}

  bool IsEmpty() const noexcept { return name.IsEmpty(); }
  /// Whether a question for that type of region is meant for this one. Other types are meant for none.
  bool IsOfType(rgnC_RegionType type) const noexcept {
    return type == RGN_ALL || (type == RGN_NAMED && instance == 0) || (type == RGN_INSTANCE && instance != 0);
  }
  bool operator==(rgnC_Region const& other) const noexcept {
    return name == other.name && instance == other.instance && kind == other.kind;
  }

  std::string Text() const { return std::string(name.View()); }
  void SetText(std::string_view text) { *this = rgnC_Region(cow_String(text)); }

  cow_String name;
  int instance = 0;  ///< not zero for a region that was picked for one object and goes when nothing refers to it
  int kind = 0;      ///< bits of the kind of place: 8, 16 and 32 set a domain of output
};
