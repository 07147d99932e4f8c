#include "kloC_LoadTypes.h"

#include "kloC_Load.h"
#include "kloC_typesByStep.h"

namespace {

// The menus do not depend on the product; that of the tests is any.
constexpr int anyProduct = 0;

}  // namespace

kloC_LoadTypeLabelMap::kloC_LoadTypeLabelMap() {
  for (kprC_TypeLabelRow const& row : kloC_TypeLabels) Insert(row.type, row.label, row.label);
}

#define KLOC_MENU(Kind, rows)                                                                                      \
  cow_List<cow_String> kloC_get##Kind##LoadTypesforStep(int procedure, TVOBasStringMode mode) {                    \
    return kprC_OfferedLabels(rows, kloC_LoadTypeLabelMap::Instance(), procedure, anyProduct, mode);               \
  }
KLOC_MENU(Mechanical, kloC_Menus::mechanical)
KLOC_MENU(Thermal, kloC_Menus::thermal)
KLOC_MENU(Fluid, kloC_Menus::fluid)
KLOC_MENU(Electrical, kloC_Menus::electrical)
KLOC_MENU(ElectroChemical, kloC_Menus::electrochemical)
KLOC_MENU(MassDiffusion, kloC_Menus::massDiffusion)
KLOC_MENU(Acoustic, kloC_Menus::acoustic)
KLOC_MENU(Other, kloC_Menus::other)

cow_List<kprC_OfferedMenu> kloC_Family::OfferedTypes(int procedure) {
  return kprC_OfferedMenus(kloC_MenuTable, kloC_LoadTypeLabelMap::Instance(), procedure, anyProduct);
}

bool kloC_isOfferedLoadTypeforStep(int loadType, int procedure) noexcept {
  return kloC_Offers.IsOffered(static_cast<unsigned int>(loadType), static_cast<unsigned int>(procedure), anyProduct);
}

bool kloC_isValidLoadTypeforStep(int loadType, int procedure) {
  return kprC_IsOfferedByLabel(kloC_Offers, kloC_LoadTypeLabelMap::Instance(), loadType, procedure, anyProduct);
}
