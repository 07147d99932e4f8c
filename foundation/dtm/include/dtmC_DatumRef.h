#pragma once

#include <string>
#include <string_view>

#include "cls_Persistent.h"
#include "cow_String.h"
#include "typ_FoundationTypes.h"

/// A reference to a datum coordinate system by name; null stands for the global system. A value; compared by content.
class TVO_API dtmC_DatumRef : public cls_Persistent {
  CLS_PERSISTENT(dtmC, dtmC_DatumRef)

 public:
  dtmC_DatumRef() = default;
  explicit dtmC_DatumRef(cow_String datumName) : name(std::move(datumName)) {}

  bool IsNullRef() const noexcept { return name.IsEmpty(); }
  bool operator==(dtmC_DatumRef const& other) const noexcept { return name == other.name; }

  std::string Text() const { return std::string(name.View()); }
  void SetText(std::string_view text) { name = cow_String(text); }

  cow_String name;
};
