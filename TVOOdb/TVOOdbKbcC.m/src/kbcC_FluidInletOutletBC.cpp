#include "kbcC_FluidInletOutletBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_FluidInletOutletBCState::Attributes() {
  using S = kbcC_FluidInletOutletBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_FluidInletOutletBCState", 1528)
                                .Attribute("dissipationRate", &S::dissipationRate)
                                .Attribute("dissipationRateAmp", &S::dissipationRateAmp)
                                .Attribute("eddyViscosity", &S::eddyViscosity)
                                .Attribute("eddyViscosityAmp", &S::eddyViscosityAmp)
                                .Attribute("kineticEnergy", &S::kineticEnergy)
                                .Attribute("kineticEnergyAmp", &S::kineticEnergyAmp)
                                .Attribute("pressure", &S::pressure)
                                .Attribute("pressureAmp", &S::pressureAmp)
                                .Attribute("temperature", &S::temperature)
                                .Attribute("temperatureAmp", &S::temperatureAmp)
                                .Attribute("vx", &S::vx)
                                .Attribute("vxAmp", &S::vxAmp)
                                .Attribute("vy", &S::vy)
                                .Attribute("vyAmp", &S::vyAmp)
                                .Attribute("vz", &S::vz)
                                .Attribute("vzAmp", &S::vzAmp)
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
