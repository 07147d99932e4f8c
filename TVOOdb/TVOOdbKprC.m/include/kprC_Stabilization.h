#pragma once

#include "cls_Codec.h"
#include "kprC_Step.h"

/// Damping that keeps a step stable: the part of a step that says how much there is.
class TVO_API kprC_Stabilization {
 public:
  enum StabilizationEnm { NONE = 0, DISSIPATED_ENERGY_FRACTION = 1, DAMPING_FACTOR = 2 };

  StabilizationEnm StabilizationMethod() const { return stabilizationMethod; }
  double StabilizationMagnitude() const { return stabilizationMagnitude; }

  KPRC_CMD(stabilization)
  KPRC_CMD(stabilizationMethod)
  KPRC_CMD(stabilizationMagnitude)
  KPRC_CMD(continueDampingFactors)
  KPRC_CMD(adaptiveDampingRatio)

  StabilizationEnm stabilizationMethod = NONE;
  double stabilizationMagnitude = cls_NotGiven<double>;  ///< the fraction or the factor, as the method says
  bool continueDampingFactors = false;                   ///< starts with the factors at the end of the step before
  double adaptiveDampingRatio = cls_NotGiven<double>;    ///< energy of stabilization to strain energy at most

 protected:
  ~kprC_Stabilization() = default;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Stabilization::StabilizationEnm>[] = {
    {"NONE", 0}, {"DISSIPATED_ENERGY_FRACTION", 1}, {"DAMPING_FACTOR", 2}, {nullptr, 0}};
