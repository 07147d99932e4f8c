#include "kprC_SubspaceDynamicsStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_SubspaceDynamicsStep::Attributes() {
  using Self = kprC_SubspaceDynamicsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SubspaceDynamicsStep", 831)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("vectors", &Self::vectors)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("incSize", &Self::incSize)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("amplitude", &Self::amplitude)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SubspaceDynamicsStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  kprC_Assert(vectors > 0, 47);
  kprC_Assert(timePeriod > 0.0, 77);
  kprC_Assert(incSize > 0.0, 6);
}
