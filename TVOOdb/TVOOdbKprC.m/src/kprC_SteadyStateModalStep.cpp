#include "kprC_SteadyStateModalStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_SteadyStateModalStep::Attributes() {
  using Self = kprC_SteadyStateModalStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SteadyStateModalStep", 831)
                                .Attribute("frequencyRange", &Self::frequencyRange)
                                .Attribute("scale", &Self::scale)
                                .Attribute("compositeDamping", &Self::compositeDamping)
                                .Attribute("directDamping", &Self::directDamping)
                                .Attribute("rayleighDamping", &Self::rayleighDamping)
                                .Attribute("structuralDamping", &Self::structuralDamping)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("subdivideUsingEigenfrequencies", &Self::subdivideUsingEigenfrequencies)
                                .Attribute("directDampingByFrequency", &Self::directDampingByFrequency)
                                .Attribute("rayleighDampingByFrequency", &Self::rayleighDampingByFrequency)
                                .Attribute("structuralDampingByFrequency", &Self::structuralDampingByFrequency)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SteadyStateModalStep::AssertValid() const {
  AssertFrequencies(45);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
}
