#pragma once

#include "kbcC_Components.h"

/// A base motion in one step; the amplitude gives its course.
class TVO_API kbcC_BaseMotionBCState : public kbcC_BCState {
  CLS_ABSTRACT(kbcC, kbcC_BaseMotionBCState)

 public:
  /// Whether a step of that procedure takes a named amplitude.
  static bool AllowAmplitude(int procedure);
};

/// A motion of the model's base as a whole in one direction, which drives a modal step.
class TVO_API kbcC_BaseMotionBC : public kbcC_BC {
  CLS_ABSTRACT(kbcC, kbcC_BaseMotionBC)

 public:
  /// The direction of the motion: a translation or a rotation.
  enum BaseMotionDofEnm { U1 = 0, U2 = 1, U3 = 2, UR1 = 3, UR2 = 4, UR3 = 5 };

  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;
  /// Whether a step of that procedure takes correlations.
  static bool AllowCorrelation(int procedure);
  /// Refuses what a step of that procedure does not take and what it lacks, `state` being what the motion holds there:
  /// 96 to 101.
  void ProcedureAssertValid(int procedure, kbcC_BaseMotionBCState const& state) const;

  KPRC_CMD(dof)
  KPRC_CMD(secondaryBase)
  KPRC_CMD(amplitudeScaleFactor)
  KPRC_CMD(useComplex)
  KPRC_CMD(correlation)
  KPRC_CMD(centerOfRotation)

  cow_String secondaryBase;  ///< name of the base that the frequency step defines; empty for the primary base
  BaseMotionDofEnm dof = U1;
  double amplitudeScaleFactor = 1.0;
  bool useComplex = false;
  cls_xp1DArrayListString correlation;                         ///< names of correlation PSD definitions
  cls_xp1DArrayListDouble centerOfRotation = {0.0, 0.0, 0.0};  ///< coordinates, in units of length

 protected:
  /// Refuses a distribution by a discrete field.
  void AssertDefinition() const override;
  /// Refuses what the procedures of the steps do not take.
  void AssertKind() const override;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_BaseMotionBC::BaseMotionDofEnm>[] = {
    {"U1", 0}, {"U2", 1}, {"U3", 2}, {"UR1", 3}, {"UR2", 4}, {"UR3", 5}, {nullptr, 0}};
