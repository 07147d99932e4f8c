#pragma once

#include "kprC_Types.h"
#include "omu_EnumCodec.h"
#include "rgnC_Region.h"

/// One definition of how an explicit step adds mass so that it can take larger time increments.
///
/// A new definition is not valid: the caller gives `factor` or `dt`.
class TVO_API kprC_MassScaling : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_MassScaling)

 public:
  enum MassScalingObjectiveEnm { SEMI_AUTOMATIC = 0, AUTOMATIC = 1, REINITIALIZE = 2, DISABLE_THROUGHOUT_STEP = 3 };
  enum MassScalingOccursEnm { AT_BEGINNING = 0, THROUGHOUT_STEP = 1 };
  enum MassScalingTypeEnm { UNIFORM = 0, BELOW_MIN = 1, SET_EQUAL_DT = 2, ROLLING = 3 };
  enum MassScalingDirectionEnm { GLOBAL_X = 0, GLOBAL_Y = 1, GLOBAL_Z = 2, GLOBAL_NONE = 3 };
  /// The word that stands for an empty region.
  enum MassScalingModelEnm { MODEL = 0 };
  /// Where a step takes its definitions from.
  enum MassScalingPreviousStepEnm { PREVIOUS_STEP = 0, ARRAY = 1 };

  kprC_MassScaling() = default;
  /// Numbers 58 to 63, by the objective and by when it occurs.
  void AssertValid() const;

  MassScalingObjectiveEnm objective = SEMI_AUTOMATIC;
  MassScalingOccursEnm occurs = AT_BEGINNING;
  double factor = 0.0;  ///< by which the mass is multiplied; 0: none
  double dt = 0.0;      ///< the time increment to reach; 0: none
  MassScalingTypeEnm type = UNIFORM;
  int frequency = 0;                                ///< increments between two calculations; 0: not by increments
  int numberInterval = 0;                           ///< calculations in the step at even times; 0: not by intervals
  double feedRate = 0.0;                            ///< of rolling: velocity of the product, length per time
  double extrudedLength = 0.0;                      ///< of rolling: average of the elements in its direction
  int crossSection = 0;                             ///< of rolling: nodes in the cross-section of the product
  MassScalingDirectionEnm direction = GLOBAL_NONE;  ///< of rolling
  rgnC_Region region;                               ///< empty: the whole model
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingObjectiveEnm>[] = {
    {"SEMI_AUTOMATIC", 0}, {"AUTOMATIC", 1}, {"REINITIALIZE", 2}, {"DISABLE_THROUGHOUT_STEP", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingOccursEnm>[] = {
    {"AT_BEGINNING", 0}, {"THROUGHOUT_STEP", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingTypeEnm>[] = {
    {"UNIFORM", 0}, {"BELOW_MIN", 1}, {"SET_EQUAL_DT", 2}, {"ROLLING", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingDirectionEnm>[] = {
    {"GLOBAL_X", 0}, {"GLOBAL_Y", 1}, {"GLOBAL_Z", 2}, {"GLOBAL_NONE", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingModelEnm>[] = {{"MODEL", 0}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_MassScaling::MassScalingPreviousStepEnm>[] = {
    {"PREVIOUS_STEP", 0}, {"ARRAY", 1}, {nullptr, 0}};
