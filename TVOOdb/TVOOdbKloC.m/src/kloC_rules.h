#pragma once

#include "kprC_Procedures.h"
#include "kprC_StepRules.h"

// The numbers and tables of loads.

using Test = kprC_StepTest;

constexpr std::uint32_t kloC_known = kprC_Statuses({0, 1, 2, 3, 4, 5, 6, 7, 8});

inline constexpr kprC_StepCheck kloC_deactivateChecks[] = {
    {Test::stepIsMember,      31},
    // A step that builds the load in holds no state of its own, yet it is not one where there is nothing to deactivate.
    {Test::sourceNotBuiltIn,   8},
    {Test::sourceHoldsValues, kprC_NothingToDo},
    {Test::sourceActive,       9},
    {Test::sourceResumed,     74},
};

inline constexpr kprC_StepCheck kloC_resetChecks[] = {
    {Test::sourceNotCreateStep, 15},
    {Test::sourceResettable,    67},
    {Test::sourceResumed,       75},
};

// Unlike with boundary conditions, all that is asked of the source comes before the destination.
inline constexpr kprC_StepCheck kloC_moveChecks[] = {
    {Test::sourceActive,        13},
    {Test::sourceNotPropagated, 14},
    {Test::sourceGeneral,       24},
    {Test::sourceResumed,       73},
    {Test::sourceNotOf,         82, kprC_Procedure::Flow},
    {Test::destinationNotOf,    82, kprC_Procedure::Flow},
    {Test::destinationGeneral,  25},
    {Test::destinationNotOf,    26, kprC_Procedure::Anneal},
    {Test::destinationNotOf,    27, kprC_Procedure::ModalDynamics},
    {Test::destinationNotOf,    28, kprC_Procedure::RandomResponse},
    {Test::destinationNotOf,    29, kprC_Procedure::ResponseSpectrum},
    {Test::destinationNotOf,    30, kprC_Procedure::SteadyStateModal},
    {Test::destinationValid,    33},
    {Test::destinationResumed,  72},
};

inline constexpr auto kloC_deactivation = [] {
  using enum kprC_Deactivation;
  return std::array{
      already,      // 0  none
      deactivate,   // 1  created
      deactivate,   // 2  propagated
      deactivate,   // 3  modified
      nothing,      // 4  deactivated
      nothing,      // 5  inactive
      already,      // 6  type invalid
      already,      // 7  instance invalid
      inBaseState,  // 8  built in
      inBaseState,  // 9  base propagated
      inBaseState,  // 10 base modified
      already,      // 11 base deactivated
      inBaseState,  // 12 base built in
      deactivate,   // 13 computed
      already,      // 14 computed propagated
      nothing,      // 15 computed deactivated
  };
}();

inline constexpr kprC_StepRules kloC_rules = {
    .active = {kprC_Statuses({1, 2, 3, 8}), kloC_known},
    .propagated = {kprC_Statuses({2}), kloC_known},
    .modified = {kprC_Statuses({1, 3, 4}), kloC_known},
    .illegalMove = {kprC_Statuses({1, 3, 4}), kloC_known},
    .builtIn = {kprC_Statuses({8}), kloC_known},
    .computed = {0, kloC_known},
    .editable = kprC_Statuses({1, 2, 3}),
    .unknownStatus = 47,
    .deactivate = kloC_deactivateChecks,
    .reset = kloC_resetChecks,
    .replaceCreateStep = 15,
    .moveOntoEdited = 23,
    .moveAcrossEdited = 22,
    .move = kloC_moveChecks,
    .copySuppressedObject = 79,
    .copyToSuppressedStep = 80,
    .copyInvalidType = 59,
    .updateInvalidType = 34,
    .loadCase = {52, 53, 54, kprC_NoTest},
    .deactivation = kloC_deactivation,
    .propagatorErrors = {31, 7, 8, 61, 62, 63},
    .beforePerturbation = STATUS_NONE,
};
