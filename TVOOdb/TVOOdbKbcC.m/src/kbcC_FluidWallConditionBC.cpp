#include "kbcC_FluidWallConditionBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_FluidWallConditionBCState::Attributes() {
  using S = kbcC_FluidWallConditionBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_FluidWallConditionBCState", 1528)
                                .Attribute("dissipationRate", &S::dissipationRate)
                                .Attribute("dissipationRateAmp", &S::dissipationRateAmp)
                                .Attribute("eddyViscosity", &S::eddyViscosity)
                                .Attribute("eddyViscosityAmp", &S::eddyViscosityAmp)
                                .Attribute("heatFlux", &S::heatFlux)
                                .Attribute("heatFluxAmp", &S::heatFluxAmp)
                                .Attribute("kineticEnergy", &S::kineticEnergy)
                                .Attribute("kineticEnergyAmp", &S::kineticEnergyAmp)
                                .Attribute("temperature", &S::temperature)
                                .Attribute("temperatureAmp", &S::temperatureAmp)
                                .Attribute("vx", &S::vx)
                                .Attribute("vxAmp", &S::vxAmp)
                                .Attribute("vy", &S::vy)
                                .Attribute("vyAmp", &S::vyAmp)
                                .Attribute("vz", &S::vz)
                                .Attribute("vzAmp", &S::vzAmp)
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
