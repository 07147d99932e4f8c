#include "kprC_TempDisplacementDynamicsStep.h"

cls_AttributeTable const& kprC_TempDisplacementDynamicsStep::Attributes() {
  using Self = kprC_TempDisplacementDynamicsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_TempDisplacementDynamicsStep", 1906)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
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
