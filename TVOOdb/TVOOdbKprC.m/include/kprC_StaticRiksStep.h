#pragma once

#include "kprC_AnalysisStep.h"
#include "rgnC_Region.h"

/// "Static, Riks": static equilibrium along the path of load and displacement, past buckling and collapse.
///
/// A new step is not valid: the caller chooses `initialArcInc`. Arc lengths are those of the path in the space of
/// displacements and load, both scaled by the step's load.
class TVO_API kprC_StaticRiksStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_StaticRiksStep)

 public:
  kprC_StaticRiksStep() = default;

  bool IsAdiabatic() const override { return adiabatic; }
  double TimePeriod() const override { return timePeriod; }
  /// Numbers 145, 67, 64, 68, 65, 66, 30, 31 and 32.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "StaticRiksStep")
  KPRC_CMD(adiabatic)
  KPRC_CMD(timeIncrementationMethod)
  KPRC_CMD(maxNumInc)
  KPRC_CMD(initialArcInc)
  KPRC_CMD(totalArcLength)
  KPRC_CMD(minArcInc)
  KPRC_CMD(maxArcInc)
  KPRC_CMD(maxLPF)
  KPRC_CMD(extrapolation)
  KPRC_CMD(noStop)
  KPRC_CMD(fullyPlastic)
  KPRC_CMD(monitorNodeOn)
  KPRC_CMD(region)
  KPRC_CMD(monitorDof)
  KPRC_CMD(monitorDisplacement)
  KPRC_CMD(useLongTermSolution)

  NlgeomEnm nlgeom = OFF;
  bool adiabatic = false;
  TimeIncrementationMethodEnm timeIncrementationMethod = AUTOMATIC;
  int maxNumInc = 100;
  double initialArcInc = 0.0;               ///< the increment itself, if all are to be the same
  double totalArcLength = 1.0;              ///< usual: of the order of the step's full load
  double minArcInc = cls_NotGiven<double>;  ///< of use with automatic increments alone, as maxArcInc
  double maxArcInc = cls_NotGiven<double>;
  double maxLPF = cls_NotGiven<double>;  ///< load proportionality factor at which the step ends
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  bool noStop = false;
  cow_String fullyPlastic;                            ///< name of the set whose yielding ends the step
  bool monitorNodeOn = false;                         ///< whether the displacement of a node may end the step
  rgnC_Region region;                                 ///< the monitored node
  int monitorDof = 0;                                 ///< of the monitored node, from 1
  double monitorDisplacement = cls_NotGiven<double>;  ///< at which the step ends
  double timePeriod = 1.0;
  bool useLongTermSolution = false;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};
