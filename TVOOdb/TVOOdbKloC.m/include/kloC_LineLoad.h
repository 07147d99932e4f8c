#pragma once

#include "kloC_Vector.h"

/// Its components in one step, in force per length.
class TVO_API kloC_LineLoadState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_LineLoadState)

 public:
  kloC_LineLoadState() = default;
  mdl_PropAttrBase* EditMark() override { return &c1; }
  KPRC_NAMED_CMD(pythonTypeName, "LineLoadState")

  bool useC1 = false;
  bool useC3 = false;
};

/// A force per length along beams.
class TVO_API kloC_LineLoad final : public kprC_StateAccess<kloC_Vector, kloC_LineLoadState> {
  CLS_PERSISTENT(kloC, kloC_LineLoad)

 public:
  /// Which directions the components have: the model's or the beam's. Stored by name.
  enum class SystemEnm { GLOBAL = 0, LOCAL = 1 };

  kloC_LineLoad() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  /// The kind has had a distribution of its own for longer than all vectors have one; either may be set.
  std::optional<kloC_DistributionEnm> Distribution() const override {
    return distType != kloC_DistributionEnm::UNIFORM ? distType : distribution;
  }

  KPRC_NAMED_CMD(constructorCmd, "LineLoad")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)
  KPRC_CMD(system)

  SystemEnm system = SystemEnm::GLOBAL;
  kloC_DistributionEnm distType = kloC_DistributionEnm::UNIFORM;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_LineLoad::SystemEnm>[] = {{"GLOBAL", 0}, {"LOCAL", 1}, {nullptr, 0}};
