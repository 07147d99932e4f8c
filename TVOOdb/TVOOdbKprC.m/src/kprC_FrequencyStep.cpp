#include "kprC_FrequencyStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_FrequencyStep::Attributes() {
  using Self = kprC_FrequencyStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_FrequencyStep", 1346)
                                .Attribute("residualModes", &Self::residualModes)
                                .Attribute("numEigen", &Self::numEigen)
                                .Attribute("maxEigen", &Self::maxEigen)
                                .Attribute("shift", &Self::shift)
                                .Attribute("vectors", &Self::vectors)
                                .Attribute("maxIterations", &Self::maxIterations)
                                .Attribute("eigensolver", &Self::eigensolver)
                                .Attribute("minEigen", &Self::minEigen)
                                .Attribute("blockSize", &Self::blockSize)
                                .Attribute("maxBlocks", &Self::maxBlocks)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("normalization", &Self::normalization)
                                .Attribute("propertyEvaluationFrequency", &Self::propertyEvaluationFrequency)
                                .Attribute("acousticCoupling", &Self::acousticCoupling)
                                .Attribute("limitSavedEigenvectorRegion", &Self::limitSavedEigenvectorRegion)
                                .Attribute("residualModeRegion", &Self::residualModeRegion)
                                .Attribute("residualModeDof", &Self::residualModeDof)
                                .Attribute("substructureCutoffMultiplier", &Self::substructureCutoffMultiplier)
                                .Attribute("firstCutoffMultiplier", &Self::firstCutoffMultiplier)
                                .Attribute("secondCutoffMultiplier", &Self::secondCutoffMultiplier)
                                .Attribute("projectDamping", &Self::projectDamping)
                                .Attribute("acousticRangeFactor", &Self::acousticRangeFactor)
                                .Attribute("simLinearDynamics", &Self::simLinearDynamics)
                                .Constructor(constructorCmd());
  return table;
}

kprC_FrequencyStep::kprC_FrequencyStep() { matrixStorage = MatrixStorageEnm::SYMMETRIC; }

void kprC_FrequencyStep::AssertValid() const {
  kprC_Assert(maxEigen > 0.0, 1);
  kprC_Assert(numEigen > 0, 2);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT && matrixStorage != MatrixStorageEnm::UNSYMMETRIC, 145);
  kprC_Assert(propertyEvaluationFrequency >= 0.0, 95);
  kprC_Assert(secondCutoffMultiplier > 1.0, 241);
  kprC_Assert(substructureCutoffMultiplier >= firstCutoffMultiplier, 242);
  kprC_Assert(firstCutoffMultiplier >= secondCutoffMultiplier, 243);
  AssertResidualModes();
  AssertEigensolver();
}

void kprC_FrequencyStep::AssertResidualModes() const {
  kprC_Assert(residualModeRegion.Length() == residualModeDof.Length(), 244);
  for (int i = 0; i < residualModeRegion.Length(); ++i) {
    kprC_Assert(!residualModeRegion[i].IsEmpty(), 247);
    kprC_Assert(residualModeDof[i] > 0, 248);
  }
}

void kprC_FrequencyStep::AssertEigensolver() const {
  bool const maxEigenGiven = maxEigen != cls_NotGiven<double>;
  bool const all = numEigen == allEigenvalues;
  switch (eigensolver) {
    case AMS:
      kprC_Assert(acousticRangeFactor > 0.0, 252);
      kprC_Assert(normalization == MASS, 245);
      kprC_Assert(maxEigenGiven, 161);
      return;
    case SUBSPACE:
      kprC_Assert(!all, 159);
      kprC_Assert(vectors > 0, 3);
      kprC_Assert(maxIterations > 0, 4);
      return;
    case LANCZOS:
      if (simLinearDynamics) {
        kprC_Assert(normalization == MASS, 245);
      } else {
        kprC_Assert(acousticCoupling != AC_PROJECTION, 251);
      }
      kprC_Assert(maxEigenGiven || !all, 160);
      kprC_Assert(blockSize > 0, 87);
      kprC_Assert(maxBlocks > 0, 88);
      return;
  }
  kprC_Refuse(89);
}
