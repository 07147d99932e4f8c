#include "kprC_ReducedBasisGenerateStep.h"

cls_AttributeTable const& kprC_ReducedBasisGenerateStep::Attributes() {
  using Self = kprC_ReducedBasisGenerateStep;
  static auto const table =
      cls_Describe<Self, kprC_AnalysisStep>("kprC_ReducedBasisGenerateStep", 2306).Constructor(constructorCmd());
  return table;
}
