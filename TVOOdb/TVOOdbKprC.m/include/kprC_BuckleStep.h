#pragma once

#include "kprC_AnalysisStep.h"

/// "Buckle": the loads at which the structure buckles, as factors of the loads of the step, and its shapes then.
///
/// A new step is not valid: the caller chooses `numEigen` and, for the subspace solver, `vectors`.
class TVO_API kprC_BuckleStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_BuckleStep)

 public:
  kprC_BuckleStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 1, 2, 145 and, by the eigensolver, 3, 87 or 89.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "BuckleStep")
  KPRC_CMD(numEigen)
  KPRC_CMD(maxEigen)
  KPRC_CMD(vectors)
  KPRC_CMD(maxIterations)
  KPRC_CMD(eigensolver)
  KPRC_CMD(minEigen)
  KPRC_CMD(blockSize)
  KPRC_CMD(maxBlocks)

  int numEigen = 0;
  double maxEigen = cls_NotGiven<double>;  ///< factors of the loads, as minEigen
  int vectors = 0;                         ///< of the subspace, as maxIterations
  int maxIterations = 30;                  ///< as of the frequency step
  EigensolverEnm eigensolver = SUBSPACE;
  double minEigen = cls_NotGiven<double>;
  int blockSize = cls_NotGiven<int>;  ///< of the Lanczos method, as maxBlocks
  int maxBlocks = cls_NotGiven<int>;
  double timePeriod = 1.0;
};
