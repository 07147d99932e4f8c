#include "kprC_ImplicitDynamicsStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_ImplicitDynamicsStep::Attributes() {
  using Self = kprC_ImplicitDynamicsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ImplicitDynamicsStep", 1446)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("adiabatic", &Self::adiabatic)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("haftol", &Self::haftol)
                                .Attribute("nohaf", &Self::nohaf)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("alpha", &Self::alpha)
                                .Attribute("noStop", &Self::noStop)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("applicationType", &Self::applicationType)
                                .Attribute("hafTolMethod", &Self::hafTolMethod)
                                .Attribute("isDefaultMaxInc", &Self::isDefaultMaxInc)
                                .Attribute("halfIncScaleFactor", &Self::halfIncScaleFactor)
                                .Attribute("initialCondition", &Self::initialCondition)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_ImplicitDynamicsStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements({.maxIncOfSolver = isDefaultMaxInc});
  if (timeIncrementationMethod == AUTOMATIC && !nohaf && hafTolMethod == HafTolMethodEnum::VALUE) {
    kprC_Assert(kprC_IsGivenPositive(haftol), 41);
  }
  kprC_Assert(alpha == cls_NotGiven<double> || (alpha >= -0.5 && alpha <= 0.0), 94);
  kprC_AssertQuasiNewton(*this, reformKernel);
}
