#pragma once

#include "mdl_PropagatingAttribute.h"
#include "nex_DynamicCast.h"

/// What one object holds for one step: base of the states of all step-dependent families.
///
/// The operations over all propagating attributes follow from the class's table of attributes, so a state that holds
/// nothing else needs no code for them. A state with other members lays its own over these operations, calling them first.
class TVO_API kprC_StepState : public cls_Persistent {
 public:
  kprC_StepState* Copy() const override = 0;
  void NewUid() override;

  /// Refuses values that no step may hold.
  virtual void AssertValid() const {}
  /// Lays an edit over this state. `other` must be of this state's class. Members that do not know how they came to be in
  /// a step are taken over whole; of an edit that deactivates, the family's own attributes are left out.
  virtual void Modify(kprC_StepState const& other);
  /// What was given becomes inherited, what was released becomes not given.
  virtual void Propagate();
  /// Clears all values; the attributes' states stay.
  virtual void Zero();
  /// Whether this state holds something that the user did in its step.
  virtual bool IsModified() const;
  virtual bool IsConditionModified() const;
  /// What counts as given where an edit changes nothing but members that do not know how they came to be in a step, so
  /// that it is told from what is inherited. Null for a state in which such a change alone is no edit.
  virtual mdl_PropAttrBase* EditMark() { return nullptr; }
  /// Marks this state as an edit of `present`, a state of the same class, if it differs in such members alone.
  void MarkEditOf(kprC_StepState const& present);

  /// Whether a step of that procedure (0: the initial step) knows amplitudes, complex values, magnitudes.
  virtual bool UseAmplitude(unsigned int procedure) const;
  virtual bool UseComplex(unsigned int procedure) const;
  virtual bool UseMagnitude(unsigned int procedure) const;
  /// Drops what a step of that procedure does not know.
  virtual void ChangeProcedureType(unsigned int procedure);

  /// Whether this state is what Propagate() would make of `before`. It saves the copy where nothing changes.
  bool IsPropagationOf(kprC_StepState const& before) const;

  bool deactivate = false;

 private:
  struct Members;
  static std::unique_ptr<Members const> FindMembers(kprC_StepState const& state);
  Members const& OwnMembers() const;
  Members const& KnownMembers() const;
  static mdl_PropAttrBase& At(kprC_StepState& state, std::ptrdiff_t place);
  static mdl_PropAttrBase const& At(kprC_StepState const& state, std::ptrdiff_t place);

  /// Where the class has its propagating attributes: found once per class, and inherited by copies.
  mutable Members const* members_ = nullptr;
};

/// A state whose family has a named amplitude in each step.
class TVO_API kprC_AmplitudeState : public kprC_StepState {
 public:
  kprC_AmplitudeState* Copy() const override = 0;
  /// False for the procedures outside time; the initial step is not told apart.
  bool UseAmplitude(unsigned int procedure) const override;
  /// Takes the amplitude away where the procedure knows none.
  void ChangeProcedureType(unsigned int procedure) override;

  mdl_PropAttr<cow_String> amplitude;
};

/// Refuses an object whose class does not derive from T's.
template <class T>
T const& kprC_CheckedCast(cls_Persistent const& object, char const* file, int line) {
  nex_canDynamicCastRef(T::TypeId(), object.DynTypeId(), file, line);
  return static_cast<T const&>(object);
}
