#pragma once

#include "kprC_Procedures.h"
#include "kprC_StepRules.h"

/// The numbers and tables of loads.
namespace kloC_Rules {
using enum kprC_StepTest;
using kprC_Procedure::Flow;

constexpr std::uint32_t known = kprC_Statuses({0, 1, 2, 3, 4, 5, 6, 7, 8});

inline constexpr kprC_StepCheck deactivateChecks[] = {
    {stepIsMember,      31},
    // A step that builds the load in holds no state of its own, yet it is not one where there is nothing to deactivate.
    {sourceNotBuiltIn,   8},
    {sourceHoldsValues, kprC_NothingToDo},
    {sourceActive,       9},
    {sourceResumed,     74},
};

inline constexpr kprC_StepCheck resetChecks[] = {
    {sourceNotCreateStep, 15},
    {sourceResettable,    67},
    {sourceResumed,       75},
};

// Unlike with boundary conditions, all that is asked of the source comes before the destination.
inline constexpr auto moveChecks = kprC_Joined(
    std::to_array<kprC_StepCheck>({
        {sourceActive,        13},
        {sourceNotPropagated, 14},
        {sourceGeneral,       24},
        {sourceResumed,       73},
        {sourceNotOf,         82, Flow},
        {destinationNotOf,    82, Flow},
    }),
    kprC_NoMoveInto(25, 26),
    std::to_array<kprC_StepCheck>({
        {destinationValid,    33},
        {destinationResumed,  72},
    }));

inline constexpr kprC_StepRules all = {
    .active = {kprC_Statuses({1, 2, 3, 8}), known},
    .propagated = {kprC_Statuses({2}), known},
    .modified = {kprC_Statuses({1, 3, 4}), known},
    .illegalMove = {kprC_Statuses({1, 3, 4}), known},
    .builtIn = {kprC_Statuses({8}), known},
    .computed = {0, known},
    .editable = kprC_Statuses({1, 2, 3}),
    .unknownStatus = 47,
    .deactivate = deactivateChecks,
    .reset = resetChecks,
    .replaceCreateStep = 15,
    .moveOntoEdited = 23,
    .moveAcrossEdited = 22,
    .move = moveChecks,
    .copySuppressedObject = 79,
    .copyToSuppressedStep = 80,
    .copyInvalidType = 59,
    .updateInvalidType = 34,
    .loadCase = {52, 53, 54, kprC_NoTest},
    .deactivation = kprC_DeactivationBy(kprC_Deactivation::inBaseState),
    .propagatorErrors = {31, 7, 8, 61, 62, 63},
    .beforePerturbation = STATUS_NONE,
};
}  // namespace kloC_Rules
