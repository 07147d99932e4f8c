#include "kprC_ExplicitMonitor.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_ExplicitMonitor::Attributes() {
  static auto const table = cls_Describe<kprC_ExplicitMonitor, kprC_Monitor>("kprC_ExplicitMonitor", 302);
  return table;
}
