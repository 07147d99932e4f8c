#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_ModalDampings.h"
#include "kprC_ResponseSpectrumComponent.h"

/// "Response spectrum": bounds of the response to a shaking of the supports, from its spectra and the modes that a
/// frequency step found.
class TVO_API kprC_ResponseSpectrumStep final : public kprC_AnalysisStep, public kprC_ModalDampings {
  CLS_PERSISTENT(kprC, kprC_ResponseSpectrumStep)

 public:
  /// How the directions of the shaking are added up.
  enum CompEnm {
    SINGLE_DIRECTION = 0,
    MULTIPLE_DIRECTION_ABSOLUTE_SUM = 1,
    MULTIPLE_DIRECTION_SRSS_SUM = 2,
    MULTIPLE_DIRECTION_THIRTY_PERCENT_RULE = 3,
    MULTIPLE_DIRECTION_FORTY_PERCENT_RULE = 4,
  };
  /// How the modes are added up.
  enum SummationEnm { ABS = 0, CQC = 1, NRL = 2, SRSS = 3, TENP = 4, DSC = 5, GRP = 6 };

  kprC_ResponseSpectrumStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 38, 165, 302 and 145. Otherwise the dampings and components are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ResponseSpectrumStep")
  KPRC_CMD(comp)
  KPRC_CMD(summation)
  KPRC_CMD(components)

  CompEnm comp = SINGLE_DIRECTION;
  SummationEnm summation = ABS;
  cls_xoList<kprC_ResponseSpectrumComponent> components;  ///< one for each direction, at most three
  double timePeriod = 1.0;

 private:
  /// Whether some dampings are given by modes and some by frequency.
  bool MixesModesAndFrequencies() const;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ResponseSpectrumStep::CompEnm>[] = {
    {"SINGLE_DIRECTION", 0},
    {"MULTIPLE_DIRECTION_ABSOLUTE_SUM", 1},
    {"MULTIPLE_DIRECTION_SRSS_SUM", 2},
    {"MULTIPLE_DIRECTION_THIRTY_PERCENT_RULE", 3},
    {"MULTIPLE_DIRECTION_FORTY_PERCENT_RULE", 4},
    {nullptr, 0},
};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ResponseSpectrumStep::SummationEnm>[] = {
    {"ABS", 0}, {"CQC", 1}, {"NRL", 2}, {"SRSS", 3}, {"TENP", 4}, {"DSC", 5}, {"GRP", 6}, {nullptr, 0}};
