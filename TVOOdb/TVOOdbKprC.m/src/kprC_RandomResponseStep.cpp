#include "kprC_RandomResponseStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_RandomResponseStep::Attributes() {
  using Self = kprC_RandomResponseStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_RandomResponseStep", 1385)
                                .Attribute("freq", &Self::freq)
                                .Attribute("scale", &Self::scale)
                                .Attribute("compositeDamping", &Self::compositeDamping)
                                .Attribute("directDamping", &Self::directDamping)
                                .Attribute("rayleighDamping", &Self::rayleighDamping)
                                .Attribute("structuralDamping", &Self::structuralDamping)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("directDampingByFrequency", &Self::directDampingByFrequency)
                                .Attribute("rayleighDampingByFrequency", &Self::rayleighDampingByFrequency)
                                .Attribute("structuralDampingByFrequency", &Self::structuralDampingByFrequency)
                                .Attribute("selectedEigenmodes", &Self::selectedEigenmodes)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_RandomResponseStep::AssertValid() const { kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145); }
