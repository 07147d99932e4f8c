#pragma once

#include "kprC_CoupledStructuralStep.h"

/// "Coupled thermal-electrical-structural": displacements, temperatures and electric potentials solved for together.
class TVO_API kprC_ElecThermalStructuralStep final : public kprC_CoupledStructuralStep, public kprC_CreepIntegration {
  CLS_PERSISTENT(kprC, kprC_ElecThermalStructuralStep)

 public:
  kprC_ElecThermalStructuralStep() = default;

  KPRC_NAMED_CMD(constructorCmd, "ElecThermalStructuralStep")
};
