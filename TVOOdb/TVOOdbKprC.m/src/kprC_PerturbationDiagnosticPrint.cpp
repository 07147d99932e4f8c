#include "kprC_PerturbationDiagnosticPrint.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_outputTiming.h"

cls_AttributeTable const& kprC_PerturbationDiagnosticPrint::Attributes() {
  using Self = kprC_PerturbationDiagnosticPrint;
  static auto const table = cls_Describe<Self, kprC_DiagnosticPrint>("kprC_PerturbationDiagnosticPrint", 302)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("solve", &Self::solve);
  return table;
}

void kprC_PerturbationDiagnosticPrint::AssertValid() const { kprC_AssertFrequency(frequency); }
