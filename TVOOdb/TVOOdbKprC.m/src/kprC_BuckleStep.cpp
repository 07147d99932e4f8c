#include "kprC_BuckleStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_BuckleStep::Attributes() {
  using Self = kprC_BuckleStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_BuckleStep", 831)
                                .Attribute("numEigen", &Self::numEigen)
                                .Attribute("maxEigen", &Self::maxEigen)
                                .Attribute("vectors", &Self::vectors)
                                .Attribute("maxIterations", &Self::maxIterations)
                                .Attribute("eigensolver", &Self::eigensolver)
                                .Attribute("minEigen", &Self::minEigen)
                                .Attribute("blockSize", &Self::blockSize)
                                .Attribute("maxBlocks", &Self::maxBlocks)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_BuckleStep::AssertValid() const {
  kprC_Assert(maxEigen > 0.0, 1);
  kprC_Assert(numEigen > 0, 2);
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
  switch (eigensolver) {
    case SUBSPACE: return kprC_Assert(vectors > 0, 3);
    case LANCZOS: return kprC_Assert(blockSize > 0, 87);
    case AMS: break;
  }
  kprC_Refuse(89);
}
