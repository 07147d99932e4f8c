#include "kbcC_IonConcentrationBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_IonConcentrationBCState::Attributes() {
  using S = kbcC_IonConcentrationBCState;
  static auto const table =
      kbcC_WithComplexMagnitude(cls_Describe<S, kbcC_DistributedBCState>("kbcC_IonConcentrationBCState", 2506));
  return table;
}

cls_AttributeTable const& kbcC_IonConcentrationBC::Attributes() {
  using BC = kbcC_IonConcentrationBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_IonConcentrationBC", 2506)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_IonConcentrationBCState>();
  return table;
}
