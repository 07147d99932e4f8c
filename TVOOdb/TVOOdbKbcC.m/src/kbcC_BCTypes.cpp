#include "kbcC_BCTypes.h"

#include "kbcC_typesByStep.h"

namespace {

cow_List<cow_String> Menu(std::span<kprC_TypesByStepRow const> rows, int procedure, int product, TVOBasStringMode mode) {
  return kprC_OfferedLabels(rows, kbcC_BCTypeLabelMap::Instance(), procedure, product, mode);
}

}  // namespace

kbcC_BCTypeLabelMap::kbcC_BCTypeLabelMap() {
  for (kprC_TypeLabelRow const& row : kbcC_TypeLabels) Insert(row.type, row.label, row.label);
}

cow_List<cow_String> kbcC_getMechanicalBCTypesforStep(int procedure, int product, TVOBasStringMode mode) {
  return Menu(kbcC_MechanicalMenu, procedure, product, mode);
}

cow_List<cow_String> kbcC_getFluidBCTypesforStep(int procedure, int product, TVOBasStringMode mode) {
  return Menu(kbcC_FluidMenu, procedure, product, mode);
}

cow_List<cow_String> kbcC_getElectricalBCTypesforStep(int procedure, int product, TVOBasStringMode mode) {
  return Menu(kbcC_ElectricalMenu, procedure, product, mode);
}

cow_List<cow_String> kbcC_getOtherBCTypesforStep(int procedure, int product, TVOBasStringMode mode) {
  return Menu(kbcC_OtherMenu, procedure, product, mode);
}

bool kbcC_isOfferedBCTypeforStep(int bcType, int procedure, int product) noexcept {
  return kbcC_Offers.IsOffered(static_cast<unsigned int>(bcType), static_cast<unsigned int>(procedure), product);
}

bool kbcC_isValidBCTypeforStep(int bcType, int procedure, int product) {
  return kprC_IsOfferedByLabel(kbcC_Offers, kbcC_BCTypeLabelMap::Instance(), bcType, procedure, product);
}

bool kbcC_isValidBCTypeforStep(int bcType, int procedure) { return kbcC_isValidBCTypeforStep(bcType, procedure, 0); }
