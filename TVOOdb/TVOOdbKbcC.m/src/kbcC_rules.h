#pragma once

#include "kprC_Procedures.h"
#include "kprC_StepRules.h"

// The numbers and tables of boundary conditions.

using Test = kprC_StepTest;

constexpr std::uint32_t kbcC_known = kprC_Statuses({0, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12});

inline constexpr kprC_StepCheck kbcC_deactivateChecks[] = {
    {Test::stepIsMember,       3},
    // A step before creation or after deactivation holds no state: there is nothing to deactivate.
    {Test::sourceHoldsValues, kprC_NothingToDo},
    {Test::sourceActive,       9},
    {Test::sourceResumed,     64},
};

inline constexpr kprC_StepCheck kbcC_resetChecks[] = {
    {Test::sourceNotCreateStep, 19},
    {Test::sourceResettable,    58},
    {Test::sourceResumed,       65},
};

inline constexpr kprC_StepCheck kbcC_moveChecks[] = {
    {Test::sourceActive,        17},
    {Test::sourceNotPropagated, 18},
    {Test::sourceGeneral,       38},
    {Test::sourceNotOf,        105, kprC_Procedure::Flow},
    {Test::destinationNotOf,   105, kprC_Procedure::Flow},
    {Test::destinationGeneral,  39},
    {Test::destinationNotOf,    29, kprC_Procedure::Anneal},
    {Test::destinationNotOf,    30, kprC_Procedure::ModalDynamics},
    {Test::destinationNotOf,    31, kprC_Procedure::RandomResponse},
    {Test::destinationNotOf,    32, kprC_Procedure::ResponseSpectrum},
    {Test::destinationNotOf,    33, kprC_Procedure::SteadyStateModal},
    {Test::destinationValid,    44},
    {Test::destinationResumed,  62},
    {Test::sourceResumed,       63},
    {Test::family,             107},
};

inline constexpr auto kbcC_deactivation = [] {
  using enum kprC_Deactivation;
  return std::array{
      already,         // 0  none
      deactivate,      // 1  created
      deactivate,      // 2  propagated
      deactivate,      // 3  modified
      nothing,         // 4  deactivated
      nothing,         // 5  inactive
      already,         // 6  type invalid
      already,         // 7  instance invalid
      deactivateBase,  // 8  built in
      deactivateBase,  // 9  base propagated
      deactivateBase,  // 10 base modified
      already,         // 11 base deactivated
      inBaseState,     // 12 base built in
      deactivate,      // 13 computed
      already,         // 14 computed propagated
      nothing,         // 15 computed deactivated
  };
}();

inline constexpr kprC_StepRules kbcC_rules = {
    .active = {kprC_Statuses({1, 2, 3, 9, 10}), kbcC_known},
    .propagated = {kprC_Statuses({2, 9}), kbcC_known},
    .modified = {kprC_Statuses({1, 3, 4, 10, 11}), kbcC_known},
    .illegalMove = {kprC_Statuses({1, 3, 4, 10}), kbcC_known},
    .builtIn = {kprC_Statuses({12}), kbcC_known},
    .computed = {0, kbcC_known},
    .editable = kprC_Statuses({1, 2, 3, 9, 10}),
    .unknownStatus = 47,
    .deactivate = kbcC_deactivateChecks,
    .reset = kbcC_resetChecks,
    .replaceCreateStep = 19,
    .moveOntoEdited = 28,
    .moveAcrossEdited = 27,
    .move = kbcC_moveChecks,
    .copySuppressedObject = 78,
    .copyToSuppressedStep = 79,
    .copyInvalidType = 53,
    .updateInvalidType = 45,
    .loadCase = {48, 49, 50, 51},
    .deactivation = kbcC_deactivation,
    .propagatorErrors = {3, 10, 11, 55, 56, 57},
    .beforePerturbation = STATUS_NONE,
};
