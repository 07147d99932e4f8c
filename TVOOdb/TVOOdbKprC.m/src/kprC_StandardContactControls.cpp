#include "kprC_StandardContactControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_StandardContactControls::Attributes() {
  static auto const table =
      cls_Describe<kprC_StandardContactControls, kprC_ContactControls>("kprC_StandardContactControls", 302);
  return table;
}
