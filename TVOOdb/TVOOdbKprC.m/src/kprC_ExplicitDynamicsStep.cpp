#include "kprC_ExplicitDynamicsStep.h"

cls_AttributeTable const& kprC_ExplicitDynamicsStep::Attributes() {
  using Self = kprC_ExplicitDynamicsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ExplicitDynamicsStep", 1906)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("adiabatic", &Self::adiabatic)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("userDefinedInc", &Self::userDefinedInc)
                                .Attribute("maxIncrement", &Self::maxIncrement)
                                .Attribute("scaleFactor", &Self::scaleFactor)
                                .Attribute("linearBulkViscosity", &Self::linearBulkViscosity)
                                .Attribute("quadBulkViscosity", &Self::quadBulkViscosity)
                                .Attribute("massScaling", &Self::massScaling)
                                .Attribute("improvedDtMethod", &Self::improvedDtMethod)
                                .Constructor(constructorCmd());
  return table;
}
