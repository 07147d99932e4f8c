#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_Stabilization.h"
#include "kprC_assert.h"

// What several general procedures ask alike of their parameters, beside the increments.

/// Whether a value that a procedure cannot do without is there. One that is not given is the largest number, so a
/// comparison alone says "positive or not given".
inline bool kprC_IsGivenPositive(double value) { return value > 0.0 && value != cls_NotGiven<double>; }

/// Number 145.
inline void kprC_AssertDirectSolver(kprC_AnalysisStep const& step) {
  kprC_Assert(step.matrixSolver == kprC_Step::MatrixSolverEnm::DIRECT, 145);
}

/// Number 275: only the direct solver can do more than plain Newton iterations.
inline void kprC_AssertSolverTakes(kprC_AnalysisStep const& step, bool stabilized = false) {
  kprC_Assert(step.matrixSolver == kprC_Step::MatrixSolverEnm::DIRECT ||
                  (step.SolutionTechnique() == kprC_Step::FULL_NEWTON && !stabilized),
              275);
}

/// Number 276.
inline void kprC_AssertQuasiNewtonStorage(kprC_AnalysisStep const& step) {
  kprC_Assert(step.SolutionTechnique() != kprC_Step::QUASI_NEWTON ||
                  step.matrixStorage != kprC_Step::MatrixStorageEnm::UNSYMMETRIC,
              276);
}

/// Numbers 276 and 274.
inline void kprC_AssertQuasiNewton(kprC_AnalysisStep const& step, int reformKernel) {
  kprC_AssertQuasiNewtonStorage(step);
  kprC_Assert(step.SolutionTechnique() != kprC_Step::QUASI_NEWTON || reformKernel >= 0, 274);
}

/// Number 253.
inline void kprC_AssertDampingRatio(kprC_Stabilization const& step) {
  kprC_Assert(step.adaptiveDampingRatio >= 0.0, 253);
}

/// Numbers 253 and 254.
inline void kprC_AssertDamping(kprC_Stabilization const& step) {
  kprC_AssertDampingRatio(step);
  kprC_Assert(!step.continueDampingFactors || step.adaptiveDampingRatio != cls_NotGiven<double>, 254);
}
