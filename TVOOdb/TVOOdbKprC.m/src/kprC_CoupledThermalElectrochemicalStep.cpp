#include "kprC_CoupledThermalElectrochemicalStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_CoupledThermalElectrochemicalStep::Attributes() {
  using Self = kprC_CoupledThermalElectrochemicalStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_CoupledThermalElectrochemicalStep", 2507)
                                .Attribute("response", &Self::response)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("deltmx", &Self::deltmx)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_CoupledThermalElectrochemicalStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements();
}
