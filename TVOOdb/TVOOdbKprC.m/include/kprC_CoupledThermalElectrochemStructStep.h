#pragma once

#include "kprC_CoupledStructuralStep.h"

/// "Coupled thermal-electrochemical-structural": displacements, temperatures, electric potentials and ion
/// concentrations of a battery solved for together.
class TVO_API kprC_CoupledThermalElectrochemStructStep final : public kprC_CoupledStructuralStep,
                                                               public kprC_CreepIntegration {
  CLS_PERSISTENT(kprC, kprC_CoupledThermalElectrochemStructStep)

 public:
  kprC_CoupledThermalElectrochemStructStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }

  KPRC_NAMED_CMD(constructorCmd, "CoupledThermalElectrochemStructStep")
  KPRC_CMD(solutionTechnique)

  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
};
