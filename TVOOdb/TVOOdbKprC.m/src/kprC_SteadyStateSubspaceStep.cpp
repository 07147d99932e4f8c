#include "kprC_SteadyStateSubspaceStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_SteadyStateSubspaceStep::Attributes() {
  using Self = kprC_SteadyStateSubspaceStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SteadyStateSubspaceStep", 1045)
                                .Attribute("frequencyRange", &Self::frequencyRange)
                                .Attribute("scale", &Self::scale)
                                .Attribute("factorization", &Self::factorization)
                                .Attribute("projection", &Self::projection)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("maxDampingChange", &Self::maxDampingChange)
                                .Attribute("maxStiffnessChange", &Self::maxStiffnessChange)
                                .Attribute("subdivideUsingEigenfrequencies", &Self::subdivideUsingEigenfrequencies)
                                .Attribute("frictionDamping", &Self::frictionDamping)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SteadyStateSubspaceStep::AssertValid() const {
  AssertFrequencies(45);
  kprC_Assert(maxDampingChange > 0.0, 162);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
}
