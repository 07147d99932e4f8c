#include "kprC_StepList.h"

namespace {

kprC_Step const* FirstAnalysisStep(kprC_StepList const& steps) {
  for (int i = 1; i < steps.Length(); ++i) {
    if (steps[i].IsActive()) return steps[i].procedure.GetPtr();
  }
  return nullptr;
}

}  // namespace

kprC_AnalysisProductEnm kprC_AnalysisProduct(kprC_StepList const& steps) {
  kprC_Step const* const first = FirstAnalysisStep(steps);
  if (first == nullptr) return UNDEFINED_ANALYSIS;
  if (first->Explicit()) return EXPLICIT_ANALYSIS;
  return first->Flow() ? CFD_ANALYSIS : STANDARD_ANALYSIS;
}

unsigned int kprC_FirstGeneralAnalysisType(kprC_StepList const& steps) {
  kprC_Step const* const first = FirstAnalysisStep(steps);
  return first == nullptr ? 0 : first->DynTypeId();
}
