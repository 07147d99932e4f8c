#include "kprC_ComplexFrequencyStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_ComplexFrequencyStep::Attributes() {
  using Self = kprC_ComplexFrequencyStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ComplexFrequencyStep", 881)
                                .Attribute("numEigen", &Self::numEigen)
                                .Attribute("shift", &Self::shift)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("frictionDamping", &Self::frictionDamping)
                                .Attribute("minEigen", &Self::minEigen)
                                .Attribute("maxEigen", &Self::maxEigen)
                                .Attribute("propertyEvaluationFrequency", &Self::propertyEvaluationFrequency)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_ComplexFrequencyStep::AssertValid() const {
  kprC_Assert(maxEigen > 0.0, 1);
  kprC_Assert(numEigen > 0, 2);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
}
