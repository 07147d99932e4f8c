#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_IonConcentrationFluxState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_IonConcentrationFluxState)

 public:
  kloC_IonConcentrationFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "IonConcentrationFluxState")
};

/// A flow of ions at points.
class TVO_API kloC_IonConcentrationFlux final : public kprC_StateAccess<kloC_Scalar, kloC_IonConcentrationFluxState> {
  CLS_PERSISTENT(kloC, kloC_IonConcentrationFlux)

 public:
  kloC_IonConcentrationFlux() = default;
  CategoryEnm Category() const override { return ELECTROCHEMICAL; }

  KPRC_NAMED_CMD(constructorCmd, "IonConcentrationFlux")
  KPRC_CMD(dof)

  int dof = 33;  ///< degree of freedom of the ion concentration

 protected:
  /// Refuses a degree of freedom that is not that of the ion concentration: 83.
  void AssertKind() const override;
};
