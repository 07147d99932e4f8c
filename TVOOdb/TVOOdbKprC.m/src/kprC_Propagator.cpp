#include "kprC_Propagator.h"

namespace {

constexpr kprC_ProcedureSet modalProcedures{kprC_Procedure::ModalDynamics,     kprC_Procedure::RandomResponse,
                                            kprC_Procedure::ResponseSpectrum,  kprC_Procedure::SteadyStateModal,
                                            kprC_Procedure::SubspaceDynamics,  kprC_Procedure::ComplexFrequency};

}  // namespace

bool kprC_ProcIsModal(int procedure) noexcept { return modalProcedures.Contains(static_cast<unsigned int>(procedure)); }
