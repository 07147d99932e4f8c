#pragma once

#include "atr_String.h"
#include "cow_List.h"
#include "cow_Map.h"

/// Base of the label maps: from a key, as a rule a type identifier, to the label that a user sees and a scripting word.
///
/// Labels are given in UTF-8 as stored when the string mode is 0, and in the encoding of the locale otherwise. A label
/// keeps its translators' key; atr_DisplayText cuts it off.
class TVO_API uti_TranslationMap {
 public:
  /// Adds a label, as it is; `mode` tells how it is given. A key that is there gets the new label at its old place.
  void Insert(unsigned int key, atr_String const& label, char const* word, TVOBasStringMode mode = 0);
  /// The same with the translation of `label`.
  void Insert(unsigned int key, char const* label, char const* word, TVOBasStringMode mode = 0);

  int Size() const noexcept { return order_.Length(); }
  bool IsMember(unsigned int key) const { return rows_.Find(key) != nullptr; }
  /// The label as stored. An absent key raises cow_KeyError, here and below.
  atr_String const& ConstGet(unsigned int key) const { return rows_.ConstGet(key).label; }
  atr_String Label(unsigned int key, TVOBasStringMode mode = 0) const;
  cow_String const& Word(unsigned int key) const { return rows_.ConstGet(key).word; }

  /// All keys and all labels, in the order of insertion.
  cow_List<unsigned int> const& Keys() const noexcept { return order_; }
  cow_List<cow_String> LabelStrings(TVOBasStringMode mode = 0) const;
  /// The first key with this label, as Label gives it for the same mode; 0 if there is none. Linear in the size.
  unsigned int LabelKey(atr_String const& label, TVOBasStringMode mode = 0) const;

 private:
  struct Row {
    atr_String label;
    cow_String word;
  };
  cow_Map<unsigned int, Row> rows_;
  cow_List<unsigned int> order_;
};
