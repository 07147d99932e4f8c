#pragma once

#include "kprC_CoupledStructuralStep.h"

/// "Coupled thermal-electrochemical-structural pore pressure": displacements, temperatures, electric
/// potentials and ion concentrations of a battery and the pressure of the fluid in its pores solved for together.
class TVO_API kprC_CoupledThermalElectrochemStructPorepressureStep final : public kprC_CoupledStructuralStep,
                                                                           public kprC_CreepIntegration {
  CLS_PERSISTENT(kprC, kprC_CoupledThermalElectrochemStructPorepressureStep)

 public:
  kprC_CoupledThermalElectrochemStructPorepressureStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }

  KPRC_NAMED_CMD(constructorCmd, "CoupledThermalElectrochemStructPorepressureStep")
  KPRC_CMD(poreptol)
  KPRC_CMD(advection)
  KPRC_CMD(ambientIonConcentration)
  KPRC_CMD(solutionTechnique)

  double poreptol = cls_NotGiven<double>;                 ///< largest change of pore pressure in an increment
  bool advection = false;                                 ///< whether the fluid carries heat and ions along
  double ambientIonConcentration = cls_NotGiven<double>;  ///< where fluid flows in
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
};
