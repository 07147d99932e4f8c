#include "kprC_TypesByStep.h"

cow_List<cow_String> kprC_OfferedLabels(std::span<kprC_TypesByStepRow const> rows, uti_TranslationMap const& labels,
                                        int procedure, int product, TVOBasStringMode mode) {
  cow_List<cow_String> menu;
  auto const step = static_cast<unsigned int>(procedure);
  auto const row = std::find_if(rows.begin(), rows.end(), [step](auto const& each) { return each.Covers(step); });
  if (row == rows.end() || row->notFor.Contains(product)) return menu;
  for (kprC_OfferedType const& offered : row->types) {
    if (offered.except.Contains(step)) continue;
    cow_String const label(labels.Label(offered.type, mode));
    if (!label.IsEmpty()) menu.Append(label);
  }
  return menu;
}

cow_List<kprC_OfferedMenu> kprC_OfferedMenus(std::span<kprC_TypesMenu const> menus, uti_TranslationMap const& labels,
                                             int procedure, int product) {
  cow_List<kprC_OfferedMenu> offered;
  for (kprC_TypesMenu const& menu : menus) {
    offered.Append({menu.name, kprC_OfferedLabels(menu.rows, labels, procedure, product, 0)});
  }
  return offered;
}
