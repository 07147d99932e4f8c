#include "kbcC_FluidWallConditionBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_FluidWallConditionBCState::Attributes() {
  using S = kbcC_FluidWallConditionBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_FluidWallConditionBCState", 1528)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(dissipationRate)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(eddyViscosity)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(heatFlux)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(kineticEnergy)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(temperature)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vx)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vy)
                                KBCC_DESCRIBE_WITH_AMPLITUDE(vz)
                                .Attribute("wallConditionType", &S::wallConditionType)
                                .Attribute("thermalEnergyType", &S::thermalEnergyType)
                                .Attribute("turbulenceType", &S::turbulenceType);
  return table;
}

cls_AttributeTable const& kbcC_FluidWallConditionBC::Attributes() {
  static auto const table = cls_Describe<kbcC_FluidWallConditionBC, kbcC_BC>("kbcC_FluidWallConditionBC", 1417)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_FluidWallConditionBCState>();
  return table;
}

auto kbcC_FluidWallConditionBC::RefusalTexts() const -> Texts {
  return {"Fluid wall boundary condition cannot be modified.\nCFD models are no longer supported.",
          "Discrete Fields are not supported as Fluid wall condition BC distributions."};
}
