#include "kprC_StaticRiksStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_StaticRiksStep::Attributes() {
  using Self = kprC_StaticRiksStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_StaticRiksStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("adiabatic", &Self::adiabatic)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialArcInc", &Self::initialArcInc)
                                .Attribute("totalArcLength", &Self::totalArcLength)
                                .Attribute("minArcInc", &Self::minArcInc)
                                .Attribute("maxArcInc", &Self::maxArcInc)
                                .Attribute("maxLPF", &Self::maxLPF)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("noStop", &Self::noStop)
                                .Attribute("fullyPlastic", &Self::fullyPlastic)
                                .Attribute("monitorNodeOn", &Self::monitorNodeOn)
                                .Attribute("region", &Self::region)
                                .Attribute("monitorDof", &Self::monitorDof)
                                .Attribute("monitorDisplacement", &Self::monitorDisplacement)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("useLongTermSolution", &Self::useLongTermSolution)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_StaticRiksStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  kprC_Assert(totalArcLength > 0.0, 67);
  kprC_Assert(initialArcInc > 0.0, 64);
  kprC_Assert(totalArcLength >= initialArcInc, 68);
  if (timeIncrementationMethod == AUTOMATIC) {
    kprC_Assert(minArcInc >= 0.0, 65);
    kprC_Assert(maxArcInc >= 0.0, 66);
  }
  kprC_Assert(maxLPF > 0.0, 30);
  if (monitorNodeOn) {
    kprC_Assert(!region.IsEmpty(), 31);
    kprC_Assert(monitorDof > 0, 32);
  }
}
