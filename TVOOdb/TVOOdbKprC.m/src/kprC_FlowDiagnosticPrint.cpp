#include "kprC_FlowDiagnosticPrint.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_FlowDiagnosticPrint::Attributes() {
  static auto const table =
      cls_Describe<kprC_FlowDiagnosticPrint, kprC_DiagnosticPrint>("kprC_FlowDiagnosticPrint", 1401);
  return table;
}
