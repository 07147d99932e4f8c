#include "kprC_Restart.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_Restart::Attributes() {
  static auto const table =
      cls_Describe<kprC_Restart>("kprC_Restart", 302).Attribute("overlay", &kprC_Restart::overlay);
  return table;
}
