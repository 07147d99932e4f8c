#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"
#include "omu_EnumCodec.h"

/// Which value of a quantity is held against the threshold that ends the repetition.
class TVO_API kprC_StepCyclingControlThresholdCriteria : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_StepCyclingControlThresholdCriteria)

 public:
  enum DefinitionEnum { NONE = 0, MAX = 1, MIN = 2, ABS_MAX = 3, ABS_MIN = 4 };

  kprC_StepCyclingControlThresholdCriteria() = default;

  DefinitionEnum definition = NONE;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepCyclingControlThresholdCriteria::DefinitionEnum>[] = {
    {"NONE", 0}, {"MAX", 1}, {"MIN", 2}, {"ABS_MAX", 3}, {"ABS_MIN", 4}, {nullptr, 0}};

/// When the repetition of steps ends: sensors pass their thresholds, or nodes have worn far enough. The lists run in
/// parallel, one place for each sensor or node.
class TVO_API kprC_StepCyclingControl : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_StepCyclingControl)

 public:
  enum ActionEnum { END_CYCLING = 0 };
  enum CriterionEnum { SENSOR_BASED = 0, WEAR_BASED = 1 };

  kprC_StepCyclingControl() = default;

  ActionEnum action = END_CYCLING;
  CriterionEnum criterion = SENSOR_BASED;
  cls_xp1DArrayListString sensorNames;             ///< of use with SENSOR_BASED alone, as the next
  cls_xp1DArrayListDouble sensorThresholdValues;   ///< in the unit of the sensor
  cls_xp1DArrayListString nodeNames;               ///< of use with WEAR_BASED alone, as the next two
  cls_xp1DArrayListDouble wearThresholdDistances;  ///< in the model's unit of length, as the next
  cls_xp1DArrayListDouble wearMaxTargetDistances;
  cls_xoList<kprC_StepCyclingControlThresholdCriteria> thresholdCriteriaValues;  ///< of either criterion
  bool suppress = false;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepCyclingControl::ActionEnum>[] = {{"END_CYCLING", 0}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepCyclingControl::CriterionEnum>[] = {
    {"SENSOR_BASED", 0}, {"WEAR_BASED", 1}, {nullptr, 0}};
