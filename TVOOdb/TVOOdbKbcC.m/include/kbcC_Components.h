#pragma once

#include <array>

#include "kbcC_BC.h"
#include "kprC_Components.h"

// What the conditions share that prescribe components: six (three translations, three rotations), three of a vector, or
// the one magnitude of a field. A state lists its components in `Components()`, translations before rotations; one that
// has complex values, too, lists these in `ComplexComponents()`.

/// Refuses a distribution by a discrete field, in those words.
TVO_API void kbcC_AssertNoDiscreteField(kbcC_BC const& condition, char const* refusal);

/// A state of components; S is the class that lists them.
template <class S, class Base>
class kbcC_ComponentState : public Base {
 public:
  void Zero() override {
    Base::Zero();
    ForEachComplex([this](auto const component) { (Own().*component).Zero(); });
  }
  bool IsModified() const override {
    bool modified = Base::IsModified();
    ForEachComplex([&](auto const component) { modified = modified || !(Self().*component).IsZero(); });
    return modified;
  }
  /// How a component stands in a step of that procedure. A complex value counts where the procedure works with these.
  mdl_PropAttributeStateEnm StateOf(std::size_t i, unsigned int procedure) const {
    if constexpr (requires { S::ComplexComponents(); }) {
      if (this->UseComplex(procedure) && !(Self().*S::ComplexComponents()[i]).IsZero()) {
        return SET;
      }
    }
    return (Self().*S::Components()[i]).State();
  }
  /// Whether a value is in force.
  bool HasValue(std::size_t i, unsigned int procedure) const {
    auto const state = StateOf(i, procedure);
    return state == SET || state == PROPAGATED;
  }
  /// A procedure without magnitudes takes the values away, one without complex values the imaginary parts.
  void ChangeProcedureType(unsigned int procedure) override {
    Base::ChangeProcedureType(procedure);
    if (!this->UseMagnitude(procedure)) {
      for (auto const component : S::Components()) {
        Own().*component = UNSET;
      }
    }
    ForEachComplex([&](auto const component) {
      omi_complex& value = Own().*component;
      if (!this->UseMagnitude(procedure)) {
        value.Zero();
      } else if (!this->UseComplex(procedure)) {
        value = omi_complex(value.ConvertedReal(), 0.0);
      }
    });
  }

 private:
  S const& Self() const { return static_cast<S const&>(*this); }
  S& Own() { return static_cast<S&>(*this); }
  template <class Act>
  static void ForEachComplex([[maybe_unused]] Act act) {
    if constexpr (requires { S::ComplexComponents(); }) {
      for (auto const component : S::ComplexComponents()) {
        act(component);
      }
    }
  }
};

/// Refuses a component that is not zero, with that number.
template <class S>
void kbcC_AssertZero(S const& state, int error) {
  for (auto const component : S::Components()) {
    kbcC_Assert((state.*component).ConstGet() == 0.0, error);
  }
}

/// Refuses values in any step of a condition that holds what it finds: 16.
template <class S>
void kbcC_AssertHeld(kbcC_BC::Quads const& quads) {
  for (kbcC_BC::Quad const& quad : quads) {
    if (quad.state.HasValue() && !quad.IsStepSuppressed()) {
      kbcC_AssertZero(kprC_CheckedCast<S>(quad.state.ConstGet(), __FILE__, __LINE__), 16);
    }
  }
}

/// Refuses values in the initial step: 6.
template <class S>
void kbcC_AssertZeroInitially(kbcC_BC::Quads const& quads) {
  kbcC_BC::Quad const& initial = quads.First();
  if (initial.state.HasValue()) {
    kbcC_AssertZero(kprC_CheckedCast<S>(initial.state.ConstGet(), __FILE__, __LINE__), 6);
  }
}

/// Declares a state's six real components and their keys.
#define KBCC_REAL_COMPONENTS(Class, c1, c2, c3, r1, r2, r3)                        \
  mdl_PropAttr<double> c1, c2, c3, r1, r2, r3;                                     \
  static constexpr std::array<mdl_PropAttr<double> Class::*, 6> Components() {     \
    return {&Class::c1, &Class::c2, &Class::c3, &Class::r1, &Class::r2, &Class::r3}; \
  }                                                                                \
  static constexpr std::array<char const*, 6> ComponentKeys() { return {#c1, #c2, #c3, #r1, #r2, #r3}; }

// Access to the values of a step.
template <class Base, class S>
using kbcC_StateAccess = kprC_StateAccess<Base, S>;
template <class Base, class S>
using kbcC_ComponentBC = kprC_ComponentAccess<Base, S>;

/// The getters of all six components, and the scripting names of the components and their states.
#define KBCC_SIX_COMPONENTS(c1, C1, c2, C2, c3, C3, r1, R1, r2, R2, r3, R3) \
  KPRC_COMPONENT_GETTERS(C1, 0)                                             \
  KPRC_COMPONENT_GETTERS(C2, 1)                                             \
  KPRC_COMPONENT_GETTERS(C3, 2)                                             \
  KPRC_COMPONENT_GETTERS(R1, 3)                                             \
  KPRC_COMPONENT_GETTERS(R2, 4)                                             \
  KPRC_COMPONENT_GETTERS(R3, 5)                                             \
  KPRC_VALUE_CMD(c1) KPRC_VALUE_CMD(c2) KPRC_VALUE_CMD(c3)                  \
  KPRC_VALUE_CMD(r1) KPRC_VALUE_CMD(r2) KPRC_VALUE_CMD(r3)

/// The values of a prescribed displacement: real components, and complex ones for the procedures that use these. Which
/// form is in force depends on the step's procedure.
template <class Base>
class kbcC_DisplacementValues : public kbcC_ComponentState<kbcC_DisplacementValues<Base>, Base> {
  using Values = kbcC_DisplacementValues;
  using ComponentValues = kbcC_ComponentState<Values, Base>;

 public:
  KBCC_REAL_COMPONENTS(Values, u1, u2, u3, ur1, ur2, ur3)
  static constexpr std::array<omi_complex Values::*, 6> ComplexComponents() {
    return {&Values::cU1, &Values::cU2, &Values::cU3, &Values::cUR1, &Values::cUR2, &Values::cUR3};
  }

  void Zero() override {
    ComponentValues::Zero();
    buckleCase = kbcC_BucklingCaseEnm::NOT_APPLICABLE;
  }
  bool IsModified() const override {
    // Callers rely on just this list: cU3 and cUR2 take no part. So the class between, which asks all, is left out.
    bool const complex =
        !cU1.IsZero() || !cU2.IsZero() || !cU1.IsZero() || !cUR1.IsZero() || !cU1.IsZero() || !cUR3.IsZero();
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return Base::IsModified() || complex || buckleCase != kbcC_BucklingCaseEnm::NOT_APPLICABLE;
  }

  omi_complex cU1, cU2, cU3, cUR1, cUR2, cUR3;
  kbcC_BucklingCaseEnm buckleCase = kbcC_BucklingCaseEnm::NOT_APPLICABLE;
};

/// A displacement that may be held at what it is ("fixed"), an answer for all steps.
template <class Base, class S>
class kbcC_HeldDisplacement : public kbcC_ComponentBC<Base, S> {
 public:
  bool AllowedInFlow() const override { return !fixed && Base::AllowedInFlow(); }

  bool fixed = false;

 protected:
  void AssertKind() const override {
    Base::AssertKind();
    if (fixed) {
      kbcC_AssertHeld<S>(this->states);
    }
    kbcC_AssertZeroInitially<S>(this->states);
  }
};
