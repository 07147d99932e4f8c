#pragma once

#include "kprC_Procedures.h"

// The perturbation procedures in which a kind may stand though no menu offers it there.

namespace kbcC_PerturbationSteps {
using namespace kprC_Procedure;

inline constexpr kprC_ProcedureSet ofComponents{ModalDynamics, RandomResponse, SteadyStateModal, SubspaceDynamics,
                                                ComplexFrequency};
inline constexpr kprC_ProcedureSet ofAcceleration{Buckle,           Frequency,
                                                  ModalDynamics,    RandomResponse,
                                                  ResponseSpectrum, StaticLinearPerturbation,
                                                  SteadyStateDirect, SteadyStateModal,
                                                  ComplexFrequency};
inline constexpr kprC_ProcedureSet ofBaseMotion{ModalDynamics, RandomResponse, SteadyStateModal, SteadyStateSubspace};
inline constexpr kprC_ProcedureSet ofSymmetry{ModalDynamics, RandomResponse, SteadyStateModal, ComplexFrequency};
}  // namespace kbcC_PerturbationSteps

inline bool kbcC_MayStandIn(kprC_ProcedureSet const& procedures, int procedure, bool flag) {
  return flag && procedures.Contains(static_cast<unsigned int>(procedure));
}
