#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"
#include "omu_EnumCodec.h"

/// Which value of a sensor is held against its threshold.
class TVO_API kprC_StepControlSensorThresholdCriteria : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_StepControlSensorThresholdCriteria)

 public:
  enum DefinitionEnum { NONE = 0, MAX = 1, MIN = 2, ABS_MAX = 3, ABS_MIN = 4 };

  kprC_StepControlSensorThresholdCriteria() = default;

  DefinitionEnum definition = NONE;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepControlSensorThresholdCriteria::DefinitionEnum>[] = {
    {"NONE", 0}, {"MAX", 1}, {"MIN", 2}, {"ABS_MAX", 3}, {"ABS_MIN", 4}, {nullptr, 0}};

/// What becomes of a step when sensors pass their thresholds. The lists run in parallel, one place for each sensor.
class TVO_API kprC_StepControl : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_StepControl)

 public:
  enum ActionEnum { CONTINUE = 0, END_ANALYSIS = 1, END_STEP = 2 };
  enum DTRefinementEnum { AUTO = 0, NO = 1, YES = 2 };

  kprC_StepControl() = default;
  /// Refuses to go on without a refinement of the time increment with number 317.
  void AssertValid() const;

  ActionEnum action = END_STEP;
  DTRefinementEnum dtRefinement = AUTO;
  double tolerance = cls_NotGiven<double>;
  cls_xp1DArrayListString sensorNames;
  cls_xoList<kprC_StepControlSensorThresholdCriteria> sensorThresholdCriteriaValues;
  cls_xp1DArrayListDouble sensorThresholdValues;
  cls_xp1DArrayListDouble timeIncrementValues;
  cls_xp1DArrayListDouble sensorStartValues;
  cls_xp1DArrayListDouble sensorEndValues;
  bool suppress = false;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepControl::ActionEnum>[] = {
    {"CONTINUE", 0}, {"END_ANALYSIS", 1}, {"END_STEP", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepControl::DTRefinementEnum>[] = {
    {"AUTO", 0}, {"NO", 1}, {"YES", 2}, {nullptr, 0}};
