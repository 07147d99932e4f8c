#include "kprC_ExplicitDiagnosticPrint.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_ExplicitDiagnosticPrint::Attributes() {
  using Self = kprC_ExplicitDiagnosticPrint;
  static auto const table = cls_Describe<Self, kprC_DiagnosticPrint>("kprC_ExplicitDiagnosticPrint", 302)
                                .Attribute("allke", &Self::allke)
                                .Attribute("criticalElement", &Self::criticalElement)
                                .Attribute("etotal", &Self::etotal)
                                .Attribute("dmass", &Self::dmass);
  return table;
}
