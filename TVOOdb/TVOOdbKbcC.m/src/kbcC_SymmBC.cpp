#include "kbcC_SymmBC.h"

#include "cls_Describe.h"
#include "kbcC_perturbationSteps.h"

namespace {

using namespace kprC_Procedure;

constexpr kprC_ProcedureSet anyhow{Buckle,
                                   CoupledTempDisplacement,
                                   ExplicitDynamics,
                                   Frequency,
                                   Geostatic,
                                   ImplicitDynamics,
                                   ResponseSpectrum,
                                   Soils,
                                   Static,
                                   StaticRiks,
                                   StaticLinearPerturbation,
                                   SteadyStateDirect,
                                   Visco,
                                   TempDisplacementDynamics,
                                   SubstructureGenerate};

}  // namespace

cls_AttributeTable const& kbcC_SymmBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_SymmBCState, kbcC_BCState>("kbcC_SymmBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_SymmBC::Attributes() {
  static auto const table =
      cls_Describe<kbcC_SymmBC, kbcC_BC>("kbcC_SymmBC", 203).Constructor(constructorCmd()).VariesBy<kbcC_SymmBCState>();
  return table;
}

bool kbcC_SymmBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return procedure == 0 || anyhow.Contains(static_cast<unsigned int>(procedure)) ||
         kbcC_MayStandIn(kbcC_PerturbationSteps::ofSymmetry, procedure, flag);
}
