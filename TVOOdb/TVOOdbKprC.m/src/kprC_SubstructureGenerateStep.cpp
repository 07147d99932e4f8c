#include "kprC_SubstructureGenerateStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_SubstructureGenerateStep::Attributes() {
  using Self = kprC_SubstructureGenerateStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SubstructureGenerateStep", 1858)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("retainedDofsList", &Self::retainedDofsList)
                                .Attribute("eliminatedDofsList", &Self::eliminatedDofsList)
                                .Attribute("retainedEigenmodes", &Self::retainedEigenmodes)
                                .Attribute("globalDamping", &Self::globalDamping)
                                .Attribute("viscDamping", &Self::viscDamping)
                                .Attribute("strDamping", &Self::strDamping)
                                .Attribute("alphaDampingRatio", &Self::alphaDampingRatio)
                                .Attribute("betaDampingRatio", &Self::betaDampingRatio)
                                .Attribute("structuralDampingRatio", &Self::structuralDampingRatio)
                                .Attribute("substructureIdentifier", &Self::substructureIdentifier)
                                .Attribute("recoveryRegion", &Self::recoveryRegion)
                                .Attribute("genGravityLoadVectors", &Self::genGravityLoadVectors)
                                .Attribute("genFreqDepProps", &Self::genFreqDepProps)
                                .Attribute("frequencyDepProps", &Self::frequencyDepProps)
                                .Attribute("genReducedMassMatrix", &Self::genReducedMassMatrix)
                                .Attribute("genStrDampingMatrix", &Self::genStrDampingMatrix)
                                .Attribute("genViscDampingMatrix", &Self::genViscDampingMatrix)
                                .Attribute("retainedEigenmodesEnm", &Self::retainedEigenmodesEnm)
                                .Attribute("frequencyRange", &Self::frequencyRange)
                                .Attribute("modeRange", &Self::modeRange)
                                .Attribute("recoveryMatrix", &Self::recoveryMatrix)
                                .Attribute("flexibleBody", &Self::flexibleBody)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SubstructureGenerateStep::AssertValid() const {
  kprC_Assert(substructureIdentifier >= 1 && substructureIdentifier <= 9999, 308);
}
