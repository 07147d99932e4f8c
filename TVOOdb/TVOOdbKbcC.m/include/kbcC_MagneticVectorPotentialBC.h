#pragma once

#include "kbcC_Components.h"

/// A prescribed magnetic vector potential in one step.
class TVO_API kbcC_MagneticVectorPotentialBCState final
    : public kbcC_ComponentState<kbcC_MagneticVectorPotentialBCState, kbcC_BCState> {
  CLS_PERSISTENT(kbcC, kbcC_MagneticVectorPotentialBCState)
  using S = kbcC_MagneticVectorPotentialBCState;

 public:
  kbcC_MagneticVectorPotentialBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "MagneticVectorPotentialBCState")

  mdl_PropAttr<double> component1, component2, component3;
  omi_complex cComponent1, cComponent2, cComponent3;
  static constexpr std::array<mdl_PropAttr<double> S::*, 3> Components() {
    return {&S::component1, &S::component2, &S::component3};
  }
  static constexpr std::array<omi_complex S::*, 3> ComplexComponents() {
    return {&S::cComponent1, &S::cComponent2, &S::cComponent3};
  }
};

/// Prescribes the magnetic vector potential on a surface: uniform, or by a user subroutine.
class TVO_API kbcC_MagneticVectorPotentialBC final
    : public kbcC_ComponentBC<kbcC_BC, kbcC_MagneticVectorPotentialBCState> {
  CLS_PERSISTENT(kbcC, kbcC_MagneticVectorPotentialBC)

 public:
  kbcC_MagneticVectorPotentialBC() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  KPRC_NAMED_CMD(constructorCmd, "MagneticVectorPotentialBC")
  KPRC_COMPONENT_GETTERS(Component1, 0)
  KPRC_COMPONENT_GETTERS(Component2, 1)
  KPRC_COMPONENT_GETTERS(Component3, 2)
  KPRC_VALUE_CMD(component1) KPRC_VALUE_CMD(component2) KPRC_VALUE_CMD(component3)
  KPRC_CMD(fixed)

  bool fixed = false;  ///< held at what it is; for the solver

 protected:
  /// Refuses a distribution by a field: 90.
  void AssertDefinition() const override;
};
