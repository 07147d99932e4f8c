#include "kprC_HeatTransferStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_HeatTransferStep::Attributes() {
  using Self = kprC_HeatTransferStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_HeatTransferStep", 851)
                                .Attribute("response", &Self::response)
                                .Attribute("end", &Self::end)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("deltmx", &Self::deltmx)
                                .Attribute("mxdem", &Self::mxdem)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_HeatTransferStep::AssertValid() const {
  kprC_AssertSolverTakes(*this);
  AssertIncrements();
  kprC_Assert(mxdem > 0.0, 11);
  kprC_AssertQuasiNewton(*this, reformKernel);
}
