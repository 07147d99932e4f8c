#pragma once

#include "kprC_Procedures.h"
#include "kprC_StepRules.h"

/// The numbers and tables of boundary conditions.
namespace kbcC_Rules {
using enum kprC_StepTest;
using kprC_Procedure::Flow;

constexpr std::uint32_t known = kprC_Statuses({0, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12});

inline constexpr kprC_StepCheck deactivateChecks[] = {
    {stepIsMember,       3},
    // A step before creation or after deactivation holds no state: there is nothing to deactivate.
    {sourceHoldsValues, kprC_NothingToDo},
    {sourceActive,       9},
    {sourceResumed,     64},
};

inline constexpr kprC_StepCheck resetChecks[] = {
    {sourceNotCreateStep, 19},
    {sourceResettable,    58},
    {sourceResumed,       65},
};

inline constexpr auto moveChecks = kprC_Joined(
    std::to_array<kprC_StepCheck>({
        {sourceActive,        17},
        {sourceNotPropagated, 18},
        {sourceGeneral,       38},
        {sourceNotOf,        105, Flow},
        {destinationNotOf,   105, Flow},
    }),
    kprC_NoMoveInto(39, 29),
    std::to_array<kprC_StepCheck>({
        {destinationValid,    44},
        {destinationResumed,  62},
        {sourceResumed,       63},
        {family,             107},
    }));

inline constexpr kprC_StepRules all = {
    .active = {kprC_Statuses({1, 2, 3, 9, 10}), known},
    .propagated = {kprC_Statuses({2, 9}), known},
    .modified = {kprC_Statuses({1, 3, 4, 10, 11}), known},
    .illegalMove = {kprC_Statuses({1, 3, 4, 10}), known},
    .builtIn = {kprC_Statuses({12}), known},
    .computed = {0, known},
    .editable = kprC_Statuses({1, 2, 3, 9, 10}),
    .unknownStatus = 47,
    .deactivate = deactivateChecks,
    .reset = resetChecks,
    .replaceCreateStep = 19,
    .moveOntoEdited = 28,
    .moveAcrossEdited = 27,
    .move = moveChecks,
    .copySuppressedObject = 78,
    .copyToSuppressedStep = 79,
    .copyInvalidType = 53,
    .updateInvalidType = 45,
    .loadCase = {48, 49, 50, 51},
    .deactivation = kprC_DeactivationBy(kprC_Deactivation::deactivateBase),
    .propagatorErrors = {3, 10, 11, 55, 56, 57},
    .beforePerturbation = STATUS_NONE,
};
}  // namespace kbcC_Rules
