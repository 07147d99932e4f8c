#include "kbcC_EulerianMotionBC.h"

#include <limits>

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_EulerianMotionBCState::Attributes() {
  using S = kbcC_EulerianMotionBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_EulerianMotionBCState", 1382)
                                .Attribute(3, "ctrPosition1", &S::ctrPosition1)
                                .Attribute(4, "ctrPosition2", &S::ctrPosition2)
                                .Attribute(5, "ctrPosition3", &S::ctrPosition3)
                                .Attribute(6, "posPosition1", &S::posPosition1)
                                .Attribute(7, "posPosition2", &S::posPosition2)
                                .Attribute(8, "posPosition3", &S::posPosition3)
                                .Attribute(9, "negPosition1", &S::negPosition1)
                                .Attribute(10, "negPosition2", &S::negPosition2)
                                .Attribute(11, "negPosition3", &S::negPosition3)
                                .Attribute(12, "expansionRatio1", &S::expansionRatio1)
                                .Attribute(13, "expansionRatio2", &S::expansionRatio2)
                                .Attribute(14, "expansionRatio3", &S::expansionRatio3)
                                .Attribute(15, "contractionRatio1", &S::contractionRatio1)
                                .Attribute(16, "contractionRatio2", &S::contractionRatio2)
                                .Attribute(17, "contractionRatio3", &S::contractionRatio3)
                                .Attribute(18, "aspectRatioLimit", &S::aspectRatioLimit)
                                .Attribute(19, "displacementTolerance", &S::displacementTolerance)
                                .Attribute(20, "volumeThreshold", &S::volumeThreshold)
                                .Attribute(21, "bufferSize", &S::bufferSize);
  return table;
}

cls_AttributeTable const& kbcC_EulerianMotionBC::Attributes() {
  using BC = kbcC_EulerianMotionBC;
  static auto const table = cls_Describe<BC, kbcC_BC>("kbcC_EulerianMotionBC", 1382)
                                .Attribute(0, "instanceName", &BC::instanceName)
                                .Attribute(1, "materialName", &BC::materialName)
                                .Attribute(2, "followRegion", &BC::followRegion)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_EulerianMotionBCState>();
  return table;
}

void kbcC_EulerianMotionBCState::AssertValid() const {
  using S = kbcC_EulerianMotionBCState;
  constexpr double noLimit = std::numeric_limits<double>::infinity();
  struct Range {
    mdl_PropAttr<double> S::*value;
    double least, most;
    int error;
  };
  static constexpr Range ranges[] = {
      {&S::expansionRatio1, 1.0, noLimit, 70},  {&S::expansionRatio2, 1.0, noLimit, 70},
      {&S::expansionRatio3, 1.0, noLimit, 70},  {&S::contractionRatio1, 0.0, 1.0, 71},
      {&S::contractionRatio2, 0.0, 1.0, 71},    {&S::contractionRatio3, 0.0, 1.0, 71},
      {&S::aspectRatioLimit, 1.0, noLimit, 72}, {&S::displacementTolerance, 0.0, noLimit, 73},
      {&S::volumeThreshold, 0.0, 1.0, 74},      {&S::bufferSize, 0.0, noLimit, 75},
  };
  for (Range const& range : ranges) {
    // Inherited numbers passed where they were given, and are zero in a perturbation.
    mdl_PropAttr<double> const& number = this->*range.value;
    kbcC_Assert(number != SET || (number.ConstGet() >= range.least && number.ConstGet() <= range.most), range.error);
  }
}
