#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed concentration of ions in one step.
class TVO_API kbcC_IonConcentrationBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_IonConcentrationBCState)

 public:
  kbcC_IonConcentrationBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "IonConcentrationBCState")
};

/// Prescribes the concentration of ions in the electrolyte of a region.
class TVO_API kbcC_IonConcentrationBC final : public kbcC_MagnitudeBC<kbcC_IonConcentrationBCState> {
  CLS_PERSISTENT(kbcC, kbcC_IonConcentrationBC)

 public:
  kbcC_IonConcentrationBC() = default;
  CategoryEnm Category() const override { return ELECTROCHEMICAL; }

  KPRC_NAMED_CMD(constructorCmd, "IonConcentrationBC")
};
