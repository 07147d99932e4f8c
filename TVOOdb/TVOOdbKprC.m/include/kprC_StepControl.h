#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"
#include "omu_EnumCodec.h"

class kprC_StepContainer;

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
  /// Refuses to edit a suppressed control with number 315.
  void AssertEditable() const;
  /// Refuses a sensor that is none of the active ones of the history output with number 318.
  void AssertSensorsAreAmong(cow_List<cow_String> const& activeSensors) const;
  /// Refuses a name that a control of any of the steps has already with number 316.
  static void AssertNameIsNew(kprC_StepContainer const& steps, cow_String const& name);

  ActionEnum action = END_STEP;             ///< not CONTINUE, which needs a refinement
  DTRefinementEnum dtRefinement = AUTO;     ///< whether the increment shrinks as a sensor comes near its threshold
  double tolerance = cls_NotGiven<double>;  ///< fraction by which a threshold may be missed; not given: the solver's
  cls_xp1DArrayListString sensorNames;      ///< of the history output
  cls_xoList<kprC_StepControlSensorThresholdCriteria> sensorThresholdCriteriaValues;
  cls_xp1DArrayListDouble sensorThresholdValues;  ///< in the unit of the sensor, as the last two lists
  cls_xp1DArrayListDouble timeIncrementValues;    ///< the refined increment, in the model's unit of time
  cls_xp1DArrayListDouble sensorStartValues;      ///< where the refinement begins
  cls_xp1DArrayListDouble sensorEndValues;        ///< where it ends
  bool suppress = false;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepControl::ActionEnum>[] = {
    {"CONTINUE", 0}, {"END_ANALYSIS", 1}, {"END_STEP", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StepControl::DTRefinementEnum>[] = {
    {"AUTO", 0}, {"NO", 1}, {"YES", 2}, {nullptr, 0}};
