#include "kprC_ModalDynamicsStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_ModalDynamicsStep::Attributes() {
  using Self = kprC_ModalDynamicsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ModalDynamicsStep", 831)
                                .Attribute("compositeDamping", &Self::compositeDamping)
                                .Attribute("continueAnalysis", &Self::continueAnalysis)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("incSize", &Self::incSize)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("directDamping", &Self::directDamping)
                                .Attribute("rayleighDamping", &Self::rayleighDamping)
                                .Attribute("directDampingByFrequency", &Self::directDampingByFrequency)
                                .Attribute("rayleighDampingByFrequency", &Self::rayleighDampingByFrequency)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_ModalDynamicsStep::AssertValid() const {
  kprC_Assert(incSize > 0.0, 6);
  kprC_Assert(timePeriod > 0.0, 77);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
  kprC_Assert(amplitude != RAMP, 314);
}
