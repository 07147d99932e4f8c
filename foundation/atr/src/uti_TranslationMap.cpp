#include "uti_TranslationMap.h"

void uti_TranslationMap::Insert(unsigned int key, atr_String const& label, char const* word, TVOBasStringMode mode) {
  if (!IsMember(key)) order_.Append(key);
  rows_.Insert(key, Row{mode == 0 ? label : label.LocaleToUTF8(), word});
}

void uti_TranslationMap::Insert(unsigned int key, char const* label, char const* word, TVOBasStringMode mode) {
  Insert(key, atr_translate(label, mode).Result(), word);
}

atr_String uti_TranslationMap::Label(unsigned int key, TVOBasStringMode mode) const {
  atr_String const& label = ConstGet(key);
  return mode == 0 ? label : label.UTF8ToLocale();
}

cow_List<cow_String> uti_TranslationMap::LabelStrings(TVOBasStringMode mode) const {
  cow_List<cow_String> labels;
  for (unsigned int const key : order_) labels.Append(Label(key, mode));
  return labels;
}

unsigned int uti_TranslationMap::LabelKey(atr_String const& label, TVOBasStringMode mode) const {
  for (unsigned int const key : order_) {
    if (Label(key, mode) == label) return key;
  }
  return 0;
}
