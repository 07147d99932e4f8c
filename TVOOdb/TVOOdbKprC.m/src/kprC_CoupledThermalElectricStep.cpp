#include "kprC_CoupledThermalElectricStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_CoupledThermalElectricStep::Attributes() {
  using Self = kprC_CoupledThermalElectricStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_CoupledThermalElectricStep", 831)
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
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_CoupledThermalElectricStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements();
  kprC_Assert(mxdem > 0.0, 11);
}
