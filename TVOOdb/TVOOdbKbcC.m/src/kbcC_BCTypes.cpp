#include "kbcC_BCTypes.h"

#include "kbcC_BC.h"
#include "kbcC_typesByStep.h"
#include "kprC_StepList.h"

kbcC_BCTypeLabelMap::kbcC_BCTypeLabelMap() {
  for (kprC_TypeLabelRow const& row : kbcC_TypeLabels) Insert(row.type, row.label, row.label);
}

#define KBCC_MENU(Kind, rows)                                                                                      \
  cow_List<cow_String> kbcC_get##Kind##BCTypesforStep(int procedure, int product, TVOBasStringMode mode) {         \
    return kprC_OfferedLabels(rows, kbcC_BCTypeLabelMap::Instance(), procedure, product, mode);                    \
  }
KBCC_MENU(Mechanical, kbcC_Menus::mechanical)
KBCC_MENU(Fluid, kbcC_Menus::fluid)
KBCC_MENU(Electrical, kbcC_Menus::electrical)
KBCC_MENU(Other, kbcC_Menus::other)

cow_List<kprC_OfferedMenu> kbcC_Family::OfferedTypes(int procedure) {
  return kprC_OfferedMenus(kbcC_MenuTable, kbcC_BCTypeLabelMap::Instance(), procedure, STANDARD_ANALYSIS);
}

bool kbcC_isOfferedBCTypeforStep(int bcType, int procedure, int product) noexcept {
  return kbcC_Offers.IsOffered(static_cast<unsigned int>(bcType), static_cast<unsigned int>(procedure), product);
}

bool kbcC_isValidBCTypeforStep(int bcType, int procedure, int product) {
  return kprC_IsOfferedByLabel(kbcC_Offers, kbcC_BCTypeLabelMap::Instance(), bcType, procedure, product);
}

bool kbcC_isValidBCTypeforStep(int bcType, int procedure) { return kbcC_isValidBCTypeforStep(bcType, procedure, 0); }
