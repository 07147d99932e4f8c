#pragma once

#include "kloC_Load.h"
#include "kprC_Components.h"

// What the loads share that have a magnitude or components. A state lists them in `Components()`. A load that may have
// complex values, too, holds these itself, the same in all steps, and lists them in `ComplexComponents()`.

/// A load whose magnitude is that of its states, which are of class S.
template <class S>
class kloC_ValueLoad : public kprC_ComponentAccess<kloC_Load, S> {
 protected:
  bool HasMagnitude(kloC_LoadState const& state, int procedure) const override {
    S const& values = kprC_CheckedCast<S>(state, __FILE__, __LINE__);
    for (std::size_t i = 0; i < S::Components().size(); ++i) {
      if (!IsZero(values, i, procedure)) {
        return true;
      }
    }
    return false;
  }

  /// Whether what is in force for a component in a step of that procedure is zero.
  bool IsZero(S const& values, std::size_t i, int procedure) const {
    omi_complex const* const complex = this->ComplexIn(values, i, static_cast<unsigned int>(procedure));
    return complex != nullptr ? complex->IsZero() : (values.*S::Components()[i]).ConstGet() == 0.0;
  }
};

/// The same with complex values, which class L lists; they are in force if wanted, where the procedure works with them.
template <class L, class S>
class kloC_ComplexLoad : public kloC_ValueLoad<S> {
 public:
  KPRC_CMD(useComplex)

  bool useComplex = false;

 protected:
  omi_complex const* ComplexIn(S const& state, std::size_t i, unsigned int procedure) const override {
    bool const inForce = useComplex && state.UseComplex(procedure);
    return inForce ? &(static_cast<L const&>(*this).*L::ComplexComponents()[i]) : nullptr;
  }
};

/// Declares the one magnitude of a state.
#define KLOC_MAGNITUDE(State)                                                   \
  mdl_PropAttr<double> magnitude;                                               \
  static constexpr std::array<mdl_PropAttr<double> State::*, 1> Components() {  \
    return {&State::magnitude};                                                 \
  }

/// Declares the getters and scripting names of a load's one magnitude.
#define KLOC_MAGNITUDE_ACCESS()     \
  KPRC_COMPONENT_GETTERS(Mag, 0)    \
  KPRC_VALUE_CMD(magnitude)

/// Declares the complex magnitude of a load.
#define KLOC_COMPLEX_MAGNITUDE(Load)                                            \
  omi_complex complexMag;                                                       \
  static constexpr std::array<omi_complex Load::*, 1> ComplexComponents() {     \
    return {&Load::complexMag};                                                 \
  }

/// Declares the scripting names of the three components of a vector, such as c1Cmd(), and of their states.
#define KLOC_VECTOR_NAMES(script1, script2, script3)                            \
  KPRC_NAMED_CMD(c1Cmd, #script1)                                               \
  KPRC_NAMED_CMD(c2Cmd, #script2)                                               \
  KPRC_NAMED_CMD(c3Cmd, #script3)                                               \
  KPRC_NAMED_CMD(c1StateCmd, #script1 "State")                                  \
  KPRC_NAMED_CMD(c2StateCmd, #script2 "State")                                  \
  KPRC_NAMED_CMD(c3StateCmd, #script3 "State")
