#include "kprC_ContactControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_ContactControls::Attributes() {
  static auto const table = cls_Describe<kprC_ContactControls>("kprC_ContactControls", 302);
  return table;
}
