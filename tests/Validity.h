#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "StepPlan.h"
#include "kprC_assert.h"

// What AssertValid of a class of steps or of their options refuses, as rows of edits and numbers.

/// One edit of a valid object and the number that refuses it; 0 if it passes.
template <class T>
struct ValidityRow {
  ValidityRow(int number, char const* attributes)
      : code(number), text(attributes), edit([attributes](T& object) { SetAttributes(object, attributes); }) {}
  ValidityRow(int number, std::function<void(T&)> change) : code(number), text("an edit"), edit(std::move(change)) {}

  int code;
  std::string text;
  std::function<void(T&)> edit;
};

inline std::string WordsOf(int code) {
  return Refusal([code] { kprC_Assert(false, kprC_ErrorEnm(code)); });
}

/// The text with one of its entries replaced, if it is a list of several, since those may be of a fixed length; else the
/// value alone.
inline std::string WithEntry(std::string const& text, std::string const& value, std::size_t seed) {
  std::vector<std::string> entries;
  std::istringstream words(text);
  for (std::string word; std::getline(words, word, ',');) entries.push_back(word);
  if (entries.size() < 2 || value.find(',') != std::string::npos) return value;
  entries[seed % entries.size()] = value;
  std::string joined;
  for (std::string const& entry : entries) joined += (joined.empty() ? "" : ",") + entry;
  return joined;
}

/// Each row is refused in the words of its number; the rows raise all listed numbers but those that an earlier test
/// hides; and no mix of edits raises another one.
template <class T>
void ExpectValidity(std::function<void(T&)> makeValid, std::set<int> const& listed,
                    std::vector<ValidityRow<T>> const& rows, std::set<int> const& hidden = {}) {
  char const* const name = T::Attributes().Name().CStr();
  T valid;
  makeValid(valid);
  EXPECT_EQ(Refusal([&] { valid.AssertValid(); }), "passes") << name;

  std::set<int> raised = hidden;
  for (auto const& row : rows) {
    T object = valid;
    row.edit(object);
    EXPECT_EQ(Refusal([&] { object.AssertValid(); }), row.code == 0 ? "passes" : WordsOf(row.code))
        << name << ", " << row.text << ", " << row.code;
    if (row.code != 0) raised.insert(row.code);
  }
  EXPECT_EQ(raised, listed) << name;

  std::set<std::string> allowed{"passes"};
  for (int const code : listed) allowed.insert(WordsOf(code));
  std::vector<std::string> values{"-1", "0", "0.5", "1", "3", "1e9", "(default)", "true", "false"};
  for (auto const& row : rows) {
    std::istringstream words(row.text);
    for (std::string word; words >> word;) values.push_back(word.substr(word.find('=') + 1));
  }
  std::mt19937 random(11);
  for (int i = 0; i < 500; ++i) {
    T object = valid;
    if (!rows.empty() && i % 2 == 0) rows[random() % rows.size()].edit(object);
    for (int edits = 0; edits < 4; ++edits) {
      auto const& all = T::Attributes().All();
      if (all.empty()) break;
      cls_Attribute const& attribute = *all[random() % all.size()];
      std::string const& value = values[random() % values.size()];
      try {
        attribute.SetText(object, WithEntry(attribute.Text(object), value, random()));
      } catch (std::exception const&) {  // no name of this enumeration
      }
    }
    std::string const refusal = Refusal([&] { object.AssertValid(); });
    EXPECT_TRUE(allowed.contains(refusal)) << name << " raises " << refusal;
  }
}

template <class T>
void ExpectValidity(char const* validAttributes, std::set<int> const& listed, std::vector<ValidityRow<T>> const& rows,
                    std::set<int> const& hidden = {}) {
  ExpectValidity<T>(std::function<void(T&)>([validAttributes](T& object) { SetAttributes(object, validAttributes); }),
                    listed, rows, hidden);
}
