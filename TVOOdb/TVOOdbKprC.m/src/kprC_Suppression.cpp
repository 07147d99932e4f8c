#include "kprC_Suppression.h"

#include "kprC_assert.h"

namespace {

// The state after each operation. A user cannot resume what a step suppresses.
struct Transitions {
  kprC_SuppressionEnm suppressByStep;
  kprC_SuppressionEnm suppressAndKeep;
  kprC_SuppressionEnm suppress;
  kprC_SuppressionEnm resumeByStep;
  bool userResumes;
};

// clang-format off
constexpr Transitions transitions[] = {
    // by step          user, to keep         user                  resumed by step       user resumes
    {SUPPRESSED_STEP,   SUPPRESSED_ATTRIBUTE, SUPPRESSED_ATTRIBUTE, RESUMED,              true},   // RESUMED
    {SUPPRESSED_BOTH,   SUPPRESSED_ATTRIBUTE, SUPPRESSED_ATTRIBUTE, SUPPRESSED_ATTRIBUTE, true},   // SUPPRESSED_ATTRIBUTE
    {SUPPRESSED_STEP,   SUPPRESSED_ATTRIBUTE, SUPPRESSED_BOTH,      RESUMED,              false},  // SUPPRESSED_STEP
    {SUPPRESSED_BOTH,   SUPPRESSED_ATTRIBUTE, SUPPRESSED_BOTH,      SUPPRESSED_ATTRIBUTE, false},  // SUPPRESSED_BOTH
};
// clang-format on

}  // namespace

void kprC_SuppressPropagatingAttribute(bool byStep, kprC_SuppressionEnm& state, bool keep) {
  Transitions const& from = transitions[state];
  state = byStep ? from.suppressByStep : keep ? from.suppressAndKeep : from.suppress;
}

void kprC_ResumePropagatingAttribute(bool byStep, kprC_SuppressionEnm& state) {
  Transitions const& from = transitions[state];
  kprC_Assert(byStep || from.userResumes, 259);
  state = byStep ? from.resumeByStep : RESUMED;
}
