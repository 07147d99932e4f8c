#include "kloC_Moment.h"

cls_AttributeTable const& kloC_MomentState::Attributes() {
  static auto const table = cls_Describe<kloC_MomentState, kloC_VectorState>("kloC_MomentState", 203);
  return table;
}

cls_AttributeTable const& kloC_Moment::Attributes() {
  static auto const table = cls_Describe<kloC_Moment, kloC_Vector>("kloC_Moment", 203)
                                .Attribute(0, "follower", &kloC_Moment::follower)
                                .Attribute(1, "csys", &kloC_Moment::csys)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_MomentState>();
  return table;
}
