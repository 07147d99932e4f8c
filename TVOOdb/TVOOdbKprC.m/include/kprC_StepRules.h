#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "kprC_Procedures.h"
#include "mdl_PropagationEnums.h"

// How one step-dependent family differs from another, as data. The machine that reads it is kprC_StepDependent and
// kprC_Propagator.

/// A number that stands for "this family has no such test".
inline constexpr int kprC_NoTest = -1;
/// The number of a row that refuses nothing: where its test does not hold, the edit is over and nothing changes.
inline constexpr int kprC_NothingToDo = -2;

/// A set of statuses.
constexpr std::uint32_t kprC_Statuses(std::initializer_list<int> statuses) {
  std::uint32_t mask = 0;
  for (int const status : statuses) {
    mask |= 1u << status;
  }
  return mask;
}

/// A question about a status: those that answer yes, and those that can be asked at all.
struct kprC_StatusPredicate {
  std::uint32_t yes = 0;
  std::uint32_t known = 0;
};

/// What is tested before an edit. "Source" is the step that an edit changes or moves from, "destination" the one it moves to.
enum class kprC_StepTest : std::uint8_t {
  stepIsMember,            ///< the object knows the source step
  sourceHoldsValues,       ///< the source holds a state that does not deactivate
  objectResumed,           ///< the object is not suppressed
  sourceNotCreateStep,
  sourceResettable,        ///< the status is none of 0, 3, 5, 6, 7, 10, 13
  sourceActive,
  sourceNotPropagated,
  sourceNotBuiltIn,
  sourceGeneral,           ///< the source is no perturbation step
  sourceNotOf,             ///< the source is not of the row's procedure
  sourceResumed,           ///< the source step is not suppressed
  destinationGeneral,
  destinationNotOf,
  destinationValid,        ///< the type may stand in the destination
  destinationResumed,
  family,                  ///< a test of the family's own: the hook AssertMove
};

/// One test and the number of its refusal. The order of a family's tests is part of what callers rely on.
struct kprC_StepCheck {
  kprC_StepTest test;
  int error;
  unsigned int procedure = 0;
};

/// The rows of several tables, one after the other.
template <class Row, std::size_t... sizes>
constexpr auto kprC_Joined(std::array<Row, sizes> const&... tables) {
  std::array<Row, (sizes + ...)> joined{};
  auto next = joined.begin();
  ((next = std::copy(tables.begin(), tables.end(), next)), ...);
  return joined;
}

/// Into what nothing moves: perturbations, and five procedures whose numbers follow that of the first.
constexpr std::array<kprC_StepCheck, 6> kprC_NoMoveInto(int perturbation, int anneal) {
  using enum kprC_StepTest;
  using namespace kprC_Procedure;
  return {{
      {destinationGeneral, perturbation},
      {destinationNotOf, anneal, Anneal},
      {destinationNotOf, anneal + 1, ModalDynamics},
      {destinationNotOf, anneal + 2, RandomResponse},
      {destinationNotOf, anneal + 3, ResponseSpectrum},
      {destinationNotOf, anneal + 4, SteadyStateModal},
  }};
}

/// What the propagator does when a step deactivates an object of a status.
enum class kprC_Deactivation : std::uint8_t {
  unknown,         ///< no status of the family
  already,         ///< refused: it is deactivated or was never there
  deactivate,      ///< the status becomes STATUS_DEACTIVATED
  nothing,
  deactivateBase,  ///< the status becomes STATUS_BASE_DEACTIVATED
  inBaseState,     ///< refused: it stands in the base state
};

/// What it does by running status; `inPerturbation` is for what stands in a perturbation step.
constexpr std::array<kprC_Deactivation, 16> kprC_DeactivationBy(kprC_Deactivation inPerturbation) {
  using enum kprC_Deactivation;
  return {
      already,         // 0  none
      deactivate,      // 1  created
      deactivate,      // 2  propagated
      deactivate,      // 3  modified
      nothing,         // 4  deactivated
      nothing,         // 5  inactive
      already,         // 6  type invalid
      already,         // 7  instance invalid
      inPerturbation,  // 8  built in
      inPerturbation,  // 9  base propagated
      inPerturbation,  // 10 base modified
      already,         // 11 base deactivated
      inBaseState,     // 12 base built in
      deactivate,      // 13 computed
      already,         // 14 computed propagated
      nothing,         // 15 computed deactivated
  };
}

/// Faults that a walk over the steps can meet.
enum kprC_PropErrorEnum {
  PROP_NO_STATE = 0,
  PROP_ALREADY_DEACTIVATED = 1,
  PROP_IN_BASE_STATE = 2,
  PROP_UNKNOWN_STATUS = 3,
  PROP_INVALID_MODIFY = 4,
};

/// Numbers, sets and tables of one family.
struct kprC_StepRules {
  kprC_StatusPredicate active;
  kprC_StatusPredicate propagated;
  kprC_StatusPredicate modified;
  kprC_StatusPredicate illegalMove;
  kprC_StatusPredicate builtIn;
  kprC_StatusPredicate computed;
  std::uint32_t editable;      ///< statuses of a step in which the object can be edited
  int unknownStatus;           ///< a status outside a predicate's domain

  std::span<kprC_StepCheck const> deactivate;  ///< stepIsMember before all that look at the step
  std::span<kprC_StepCheck const> reset;
  int replaceCreateStep;
  int moveOntoEdited;          ///< the destination is created, modified or deactivated itself
  int moveAcrossEdited;        ///< so is a step between
  std::span<kprC_StepCheck const> move;
  int copySuppressedObject;
  int copyToSuppressedStep;
  int copyInvalidType;
  int updateInvalidType;       ///< the type may not be created in its step's procedure
  std::array<int, 4> loadCase; ///< not active here, wrong type, not yet supported, procedure without load cases

  std::array<kprC_Deactivation, 16> deactivation;  ///< by running status
  std::array<int, 6> propagatorErrors;             ///< by kprC_PropErrorEnum; the last for any other flag
  mdl_PropagationStatusEnm beforePerturbation;     ///< of steps before the one that creates a perturbation object
};
