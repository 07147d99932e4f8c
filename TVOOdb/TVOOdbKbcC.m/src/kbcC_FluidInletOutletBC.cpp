#include "kbcC_FluidInletOutletBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_FluidInletOutletBCState::Attributes() {
  using S = kbcC_FluidInletOutletBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_FluidInletOutletBCState", 1528)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(dissipationRate)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(eddyViscosity)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(kineticEnergy)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(pressure)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(temperature)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vx)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vy)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vz)
                                .Attribute("momentumType", &S::momentumType)
                                .Attribute("energyEquationType", &S::energyEquationType)
                                .Attribute("turbulenceType", &S::turbulenceType);
  return table;
}

cls_AttributeTable const& kbcC_FluidInletOutletBC::Attributes() {
  static auto const table = cls_Describe<kbcC_FluidInletOutletBC, kbcC_BC>("kbcC_FluidInletOutletBC", 1408)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_FluidInletOutletBCState>();
  return table;
}

auto kbcC_FluidInletOutletBC::RefusalTexts() const -> Texts {
  return {"Fluid inlet/outlet boundary condition cannot be modified.\nCFD models are no longer supported.",
          "Discrete Fields are not supported as Fluid inlet/outlet BC distributions."};
}
