#include "kprC_InactiveControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_InactiveControls::Attributes() {
  static auto const table = cls_Describe<kprC_InactiveControls, kprC_Controls>("kprC_InactiveControls", 302);
  return table;
}
