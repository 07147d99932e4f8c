#include "kprC_StaticStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_StaticStep::Attributes() {
  using Self = kprC_StaticStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_StaticStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("adiabatic", &Self::adiabatic)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
                                .Attribute("stabilizationMethod", &Self::stabilizationMethod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("noStop", &Self::noStop)
                                .Attribute("fullyPlastic", &Self::fullyPlastic)
                                .Attribute("useLongTermSolution", &Self::useLongTermSolution)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("continueDampingFactors", &Self::continueDampingFactors)
                                .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_StaticStep::AssertValid() const {
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT ||
                  (solutionTechnique == FULL_NEWTON && stabilizationMethod == NONE),
              275);
  kprC_Assert(timePeriod > 0.0, 77);
  kprC_Assert(initialInc > 0.0, 74);
  kprC_Assert(timePeriod >= initialInc, 78);
  kprC_Assert(maxNumInc > 0, 5);
  if (timeIncrementationMethod == AUTOMATIC) {
    kprC_Assert(minInc > 0.0, 75);
    kprC_Assert(maxInc >= minInc, 82);
    kprC_Assert(initialInc >= minInc, 83);
    kprC_Assert(maxInc >= initialInc, 81);
    kprC_Assert(maxInc > 0.0, 76);
    kprC_Assert(timePeriod >= maxInc, 80);
  }
  if (solutionTechnique == QUASI_NEWTON) {
    kprC_Assert(matrixStorage != MatrixStorageEnm::UNSYMMETRIC, 276);
    kprC_Assert(reformKernel >= 0, 274);
  }
  kprC_Assert(adaptiveDampingRatio >= 0.0, 253);
  kprC_Assert(!continueDampingFactors || adaptiveDampingRatio != cls_NotGiven<double>, 254);
}
