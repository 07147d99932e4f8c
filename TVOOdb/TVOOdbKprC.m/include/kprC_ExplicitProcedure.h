#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_MassScaling.h"

/// What the steps have in common that integrate the equations of motion explicitly. No class of the database, as
/// kprC_IncrementalStep.
///
/// A new step is valid. Times are in the model's unit of time.
class TVO_API kprC_ExplicitProcedure : public kprC_AnalysisStep {
 public:
  /// Automatic increments follow the stable increment of the whole model or of its worst element (EBE).
  enum TimeIncrementationMethodEnm {
    AUTOMATIC_GLOBAL = 0,
    FIXED_USER_DEFINED_INC = 1,
    AUTOMATIC_EBE = 2,
    FIXED_EBE = 3
  };

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 145, 77, 6, 76, 12, 13 and 14. The mass scaling is asked by itself.
  void AssertValid() const override;

  KPRC_CMD(timeIncrementationMethod)
  KPRC_CMD(userDefinedInc)
  KPRC_CMD(maxIncrement)
  KPRC_CMD(scaleFactor)
  KPRC_CMD(linearBulkViscosity)
  KPRC_CMD(quadBulkViscosity)
  KPRC_CMD(massScaling)
  KPRC_CMD(improvedDtMethod)

  NlgeomEnm nlgeom = OFF;
  TimeIncrementationMethodEnm timeIncrementationMethod = AUTOMATIC_GLOBAL;
  double timePeriod = 1.0;
  double userDefinedInc = cls_NotGiven<double>;  ///< of use with FIXED_USER_DEFINED_INC alone
  double maxIncrement = cls_NotGiven<double>;    ///< of use with automatic increments alone; not given: no limit
  double scaleFactor = 1.0;                      ///< of the stable increment; usually all of it is used
  // Enough to damp the ringing behind a shock and little enough to leave the rest alone.
  double linearBulkViscosity = 0.06;
  double quadBulkViscosity = 1.2;
  cls_xoList<kprC_MassScaling> massScaling;  ///< empty for none
  bool improvedDtMethod = true;              ///< takes the full geometry of an element for its stable increment; usual

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ExplicitProcedure::TimeIncrementationMethodEnm>[] = {
    {"AUTOMATIC_GLOBAL", 0}, {"FIXED_USER_DEFINED_INC", 1}, {"AUTOMATIC_EBE", 2}, {"FIXED_EBE", 3}, {nullptr, 0}};
