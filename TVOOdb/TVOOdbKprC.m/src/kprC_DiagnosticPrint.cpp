#include "kprC_DiagnosticPrint.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_DiagnosticPrint::Attributes() {
  static auto const table = cls_Describe<kprC_DiagnosticPrint>("kprC_DiagnosticPrint", 302);
  return table;
}
