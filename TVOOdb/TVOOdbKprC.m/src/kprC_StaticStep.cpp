#include "kprC_StaticStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_StaticStep::Attributes() {
  using Self = kprC_StaticStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_StaticStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("adiabatic", &Self::adiabatic)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
                                .Attribute("stabilizationMethod", &Self::stabilizationMethod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("noStop", &Self::noStop)
                                .Attribute("fullyPlastic", &Self::fullyPlastic)
                                .Attribute("useLongTermSolution", &Self::useLongTermSolution)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("continueDampingFactors", &Self::continueDampingFactors)
                                .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_StaticStep::AssertValid() const {
  kprC_AssertSolverTakes(*this, stabilizationMethod != NONE);
  AssertIncrements({.minIncFirst = true});
  kprC_AssertQuasiNewton(*this, reformKernel);
  kprC_AssertDamping(*this);
}
