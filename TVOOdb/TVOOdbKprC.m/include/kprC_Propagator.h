#pragma once

#include <optional>
#include <vector>

#include "kprC_PropagatingState.h"
#include "kprC_Procedures.h"
#include "kprC_StepDependent.h"

/// Walks the quads of an object from the first step on and derives every step's status and effective state from what the
/// user stored in the quads.
///
/// The members are the walk's running values; a family's differences are hooks. A family's class runs the walk at the end
/// of its constructor. Quads whose result is what they held already are left as they are, identity and sharing included.
template <class Family>
class TVO_API kprC_Propagator {
 public:
  using Owner = typename Family::Object;
  using State = typename Family::State;
  using Quad = kprC_PropagatingState<State>;
  using Quads = cls_xoList<Quad>;
  using StateHolder = typename Quad::StateHolder;

  virtual ~kprC_Propagator() = default;

  /// Whether any quad is to be other than it was given.
  bool Changed() const noexcept { return !changes_.empty(); }
  /// Makes the quads that the walk was given what they are to be. They stay as they are until then, so a walk that is
  /// refused has changed nothing.
  void ApplyTo(Quads& quads);

  /// Raises the family's refusal for one of the walk's faults.
  virtual void ErrorHandler(kprC_PropErrorEnum error) const;
  virtual bool CheckValidStep(int procedure) const;
  virtual mdl_PropagationStatusEnm GetInvalidStatus(int procedure) const;
  /// For a frequency step that creates a perturbation object: prepares the modal base. Others answer false.
  virtual bool CheckFrequency(int procedure);

 protected:
  /// `quads` must live as long as the walk.
  kprC_Propagator(Owner const& owner, Quads const& quads) : owner_(owner), input_(quads) {}

  /// The walk; refused if no quad holds a state.
  void Run();

  // Hooks, in the order in which the walk comes to them.
  virtual bool IsPerturbationObject(Quad const& creating) const { return creating.HasStep() && creating.Step().Perturbation(); }
  virtual void EnterStep(Quad const& quad);
  virtual void Perturb(int procedure);
  virtual void Propagate(Quad const& next);
  virtual void Modify(Quad const& quad);
  virtual void Deactivate(int procedure);
  virtual void DeactivateBaseState(int procedure);
  /// The status to record for the running one.
  virtual mdl_PropagationStatusEnm RecordedStatus(mdl_PropagationStatusEnm status) const { return status; }

  void PropagateGenAnalysisObject();
  void PropagatePerturbationObject(int creatingIndex);
  bool HoldsPassedDeactivation(Quad const& quad);
  void DeactivateForGood();

  /// All that a suppressed step must not change for the steps behind it.
  struct Running {
    mdl_PropagationStatusEnm status = STATUS_NONE;
    StateHolder state;
    mdl_PropagationStatusEnm baseStatus = STATUS_NONE;
    StateHolder baseState;
    bool perturbed = false;
    bool frequencyDeactivated = false;
  };

  /// Drops the running state, or the base's.
  void DropState() { running_.state = nullptr; }
  void SaveBase();
  void RestoreBase();
  /// Notes what the quad `old` at `index` is to be, if it is not that already.
  void Record(Quad const& old, int index, mdl_PropagationStatusEnm status);

  /// What the walk asks of each step that depends on its procedure alone; steps in a row mostly share one.
  struct StepKind {
    kprC_Step const* step = nullptr;  ///< the last one asked
    int procedure = -1;
    bool perturbs = false;
    bool valid = false;
  };
  StepKind const& KindOf(Quad const& quad);

  struct Change {
    int index;
    mdl_PropagationStatusEnm status;
    StateHolder state;
  };

  Owner const& owner_;
  Quads const& input_;
  std::vector<Change> changes_;
  bool created_ = false;
  StepKind kind_;
  bool differs_ = false;  ///< the running state is known to differ from what the quad holds
  Running running_;
};
