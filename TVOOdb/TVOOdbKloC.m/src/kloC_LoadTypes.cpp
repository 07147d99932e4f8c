#include "kloC_LoadTypes.h"

#include "kloC_typesByStep.h"

namespace {

// The menus do not depend on the product; that of the tests is any.
constexpr int anyProduct = 0;

cow_List<cow_String> Menu(std::span<kprC_TypesByStepRow const> rows, int procedure, TVOBasStringMode mode) {
  return kprC_OfferedLabels(rows, kloC_LoadTypeLabelMap::Instance(), procedure, anyProduct, mode);
}

}  // namespace

kloC_LoadTypeLabelMap::kloC_LoadTypeLabelMap() {
  for (kprC_TypeLabelRow const& row : kloC_TypeLabels) Insert(row.type, row.label, row.label);
}

cow_List<cow_String> kloC_getMechanicalLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_MechanicalMenu, procedure, mode);
}

cow_List<cow_String> kloC_getThermalLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_ThermalMenu, procedure, mode);
}

cow_List<cow_String> kloC_getFluidLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_FluidMenu, procedure, mode);
}

cow_List<cow_String> kloC_getElectricalLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_ElectricalMenu, procedure, mode);
}

cow_List<cow_String> kloC_getElectroChemicalLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_ElectrochemicalMenu, procedure, mode);
}

cow_List<cow_String> kloC_getMassDiffusionLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_MassDiffusionMenu, procedure, mode);
}

cow_List<cow_String> kloC_getAcousticLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_AcousticMenu, procedure, mode);
}

cow_List<cow_String> kloC_getOtherLoadTypesforStep(int procedure, TVOBasStringMode mode) {
  return Menu(kloC_OtherMenu, procedure, mode);
}

bool kloC_isOfferedLoadTypeforStep(int loadType, int procedure) noexcept {
  return kloC_Offers.IsOffered(static_cast<unsigned int>(loadType), static_cast<unsigned int>(procedure), anyProduct);
}

bool kloC_isValidLoadTypeforStep(int loadType, int procedure) {
  return kprC_IsOfferedByLabel(kloC_Offers, kloC_LoadTypeLabelMap::Instance(), loadType, procedure, anyProduct);
}
