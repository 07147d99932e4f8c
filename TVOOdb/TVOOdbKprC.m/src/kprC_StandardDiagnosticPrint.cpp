#include "kprC_StandardDiagnosticPrint.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_outputTiming.h"

cls_AttributeTable const& kprC_StandardDiagnosticPrint::Attributes() {
  using Self = kprC_StandardDiagnosticPrint;
  static auto const table = cls_Describe<Self, kprC_DiagnosticPrint>("kprC_StandardDiagnosticPrint", 506)
                                .Attribute("contact", &Self::contact)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("modelChange", &Self::modelChange)
                                .Attribute("adaptiveMesh", &Self::adaptiveMesh)
                                .Attribute("plasticity", &Self::plasticity)
                                .Attribute("residual", &Self::residual)
                                .Attribute("solve", &Self::solve);
  return table;
}

void kprC_StandardDiagnosticPrint::AssertValid() const { kprC_AssertFrequency(frequency); }
