#include "kloC_Distributed.h"

cls_AttributeTable const& kloC_DistributedState::Attributes() {
  static auto const table = cls_Describe<kloC_DistributedState, kloC_LoadState>("kloC_DistributedState", 203)
                                .Attribute(0, "magnitude", &kloC_DistributedState::magnitude);
  return table;
}

cls_AttributeTable const& kloC_Distributed::Attributes() {
  static auto const table = cls_Describe<kloC_Distributed, kloC_Load>("kloC_Distributed", 203)
                                .Attribute(1, "distType", &kloC_Distributed::distType);
  return table;
}
