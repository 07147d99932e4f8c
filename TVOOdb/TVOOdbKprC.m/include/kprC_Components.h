#pragma once

#include <array>

#include "kprC_StepDependent.h"

// Access to the values of a step, for all families. A state lists its propagating values in `Components()`; one that has
// complex values, too, lists these in `ComplexComponents()`.

/// Takes and gives the values of a step as the object's own class of states; a state of another class is refused.
template <class Base, class S>
class kprC_StateAccess : public Base {
 public:
  S const& ConstGetState(cow_String const& step) const override {
    return kprC_CheckedCast<S>(Base::ConstGetState(step), __FILE__, __LINE__);
  }
  bool Insert(cow_String const& step, typename Base::State const& state) override {
    return Base::Insert(step, kprC_CheckedCast<S>(state, __FILE__, __LINE__));
  }
};

/// Access to the values of a step by component, for an object whose states are of class S.
template <class Base, class S>
class kprC_ComponentAccess : public kprC_StateAccess<Base, S> {
 public:
  using ComponentState = omu_PrimEnum<mdl_PropAttributeStateEnm, 1>;

 protected:
  /// What the imaginary part is where a step has none.
  static constexpr double noImaginaryPart = -1.7976931348623157e308;

  /// The complex value in force for a component in a step of that procedure, null where the real one is.
  virtual omi_complex const* ComplexIn([[maybe_unused]] S const& state, [[maybe_unused]] std::size_t i,
                                       [[maybe_unused]] unsigned int procedure) const {
    if constexpr (requires { S::ComplexComponents(); }) {
      if (state.UseComplex(procedure)) {
        return &(state.*S::ComplexComponents()[i]);
      }
    }
    return nullptr;
  }

  ComponentState GetState(cow_String const& step, std::size_t i) const {
    S const& state = this->ConstGetState(step);
    omi_complex const* const complex = ComplexIn(state, i, Procedure(step));
    return complex != nullptr && !complex->IsZero() ? SET : (state.*S::Components()[i]).State();
  }
  double GetReal(cow_String const& step, std::size_t i) const {
    S const& state = this->ConstGetState(step);
    omi_complex const* const complex = ComplexIn(state, i, Procedure(step));
    return complex != nullptr ? complex->ConvertedReal() : (state.*S::Components()[i]).ConstGet();
  }
  double GetImag(cow_String const& step, std::size_t i) const {
    omi_complex const* const complex = ComplexIn(this->ConstGetState(step), i, Procedure(step));
    return complex != nullptr ? complex->ConvertedImag() : noImaginaryPart;
  }

 private:
  unsigned int Procedure(cow_String const& step) const {
    return static_cast<unsigned int>(this->ConstGetStateQuad(step).Procedure());
  }
};

/// Declares Get<Name>State, Get<Name>Real and Get<Name>Imag for a component.
#define KPRC_COMPONENT_GETTERS(Name, index)                                                                  \
  auto Get##Name##State(cow_String const& stepName) const { return this->GetState(stepName, index); }        \
  double Get##Name##Real(cow_String const& stepName) const { return this->GetReal(stepName, index); }        \
  double Get##Name##Imag(cow_String const& stepName) const { return this->GetImag(stepName, index); }
