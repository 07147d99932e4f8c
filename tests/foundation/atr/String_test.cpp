#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <unordered_set>

#include "atr_String.h"
#include "uti_TranslationMap.h"

namespace {

char const* ToGerman(char const* text) {
  std::string_view const asked = text;
  if (asked == "%s has %d steps.") return "%2$d Schritte in %1$s.";
  if (asked == "Load") return "Last";
  return text;
}

class TranslationTest : public testing::Test {
 protected:
  void SetUp() override { TVOBasI18n::SetTranslator(&ToGerman); }
  void TearDown() override { TVOBasI18n::SetTranslator(nullptr); }
};

}  // namespace

TEST(StringTest, SharesCharactersUntilItIsChanged) {
  cow_String a = "Step-1";
  cow_String b = a;
  EXPECT_EQ(a.CStr(), b.CStr());
  b += "-Copy";
  b += b;
  EXPECT_EQ(a, "Step-1");
  EXPECT_EQ(b, "Step-1-CopyStep-1-Copy");
  cow_String c = std::move(b);
  EXPECT_TRUE(b.IsEmpty());  // NOLINT(bugprone-use-after-move): what is left is what is asked
  c = static_cast<cow_String const&>(c);
  EXPECT_EQ(c.Length(), 22);
  c = a;
  EXPECT_EQ(c.CStr(), a.CStr());
  EXPECT_EQ(cow_String(atr_String(a)).CStr(), a.CStr());
}

TEST(StringTest, ComparesAndFindsByBytesUpToItsFirstZero) {
  EXPECT_EQ(cow_String("ab\0cd", 5), "ab");
  EXPECT_EQ(cow_String("ab\0cd", 5).Length(), 2);
  EXPECT_LT(cow_String("Step-10"), cow_String("Step-2"));
  EXPECT_LT(cow_String("z"), "\xC3\xA9");  // unsigned bytes
  EXPECT_LT(cow_String(), "a");
  EXPECT_EQ(cow_String(), cow_String(static_cast<char const*>(nullptr)));
  EXPECT_NE(cow_String("Step"), cow_String("step"));
  EXPECT_STREQ(cow_String("").CStr(), "");
  std::unordered_set<cow_String> const names{"U1", "U2", "U1"};
  EXPECT_EQ(names.size(), 2u);
  EXPECT_TRUE(names.contains(cow_String("U") + "2"));
  EXPECT_EQ(cow_String("abcabc").Find("bc", 2), 4);
  EXPECT_EQ(cow_String("abcabc").Find("bc", 7), -1);
}

TEST(SubstitutionTest, FillsPlacesOfEveryForm) {
  struct Case {
    char const* form;
    char const* filled;
  };
  // The values are "a%s" for place 1 and 7 for place 2.
  for (auto const& [form, filled] : {
           Case{"%s and %d", "a%s and 7"},
           Case{"%2$d and %1$s", "7 and a%s"},
           Case{"%1$s, %1$s", "a%s, a%s"},
           Case{"100%% of %s, 5% of %u", "100% of a%s, 5% of 7"},
           Case{"%s %d %s", "a%%s 7 %3$s"},  // still a form: the value stays quoted
           Case{"%q %0$s %", "%q %0$s %"},
       }) {
    atr_translate text(form, 0);
    atr_SubstituteFormat(text, 1, "first", 0);
    atr_SubstituteFormat(text, 2, 7, 0);
    atr_SubstituteFormat(text, 1, cow_String("a%s"), 0);
    EXPECT_EQ(text.Result(0), filled) << form;
  }
  EXPECT_EQ(atr_translate("50%% of %s").Result(), "50%% of %s");
}

TEST(SubstitutionTest, FillsAFinishedTextInAnyOrder) {
  atr_String text = atr_raw("%s is in %s, 100%% in %s", 0);
  text.ReplaceNonTranslated(4, "nowhere");
  EXPECT_EQ(text, "%s is in %s, 100%% in %s");
  text.ReplaceNonTranslated(2, "50%s").ReplaceNonTranslated(1, "A").ReplaceNonTranslated(3, "C");
  EXPECT_EQ(text, "A is in 50%s, 100% in C");
}

TEST_F(TranslationTest, TranslatesAndRemembersTheRawTextWithItsValues) {
  atr_translate text("%s has %d steps.");
  atr_translate value("Load");
  atr_SubstituteFormat(text, 1, value.Result());
  atr_String result = text.Result();
  result.ReplaceNonTranslated(2, "3");
  EXPECT_EQ(result, "3 Schritte in Last.");
  EXPECT_STREQ(result.RawCStr(), "Load has 3 steps.");
  EXPECT_TRUE(result.IsTranslated());

  cow_String const shared = result;  // outlives the translated text, whose block it shares
  result = atr_raw("Load");
  EXPECT_EQ(shared, "3 Schritte in Last.");
  EXPECT_EQ(result, "Load");
  EXPECT_FALSE(result.IsTranslated());
}

TEST(LocaleTest, ReplacesWhatTheLocaleCannotHold) {
  cow_String const ascii = "Step-1";
  cow_String const mixed = "\xC3\xA9-\xE2\x82\xAC-\xF0\x9D\x84\x9E-\xC0\xAF\xED\xA0\x80.";  // the end is not UTF-8
  EXPECT_EQ(TVOBasI18n::ToLocale(ascii).CStr(), ascii.CStr());
  std::string const before = std::setlocale(LC_CTYPE, nullptr);
  ASSERT_NE(std::setlocale(LC_CTYPE, "C"), nullptr);
  EXPECT_EQ(TVOBasI18n::ToLocale(mixed), "?-?-?-?????.");
  if (std::setlocale(LC_CTYPE, "C.UTF-8") != nullptr) {
    EXPECT_EQ(TVOBasI18n::ToLocale(mixed), "\xC3\xA9-\xE2\x82\xAC-\xF0\x9D\x84\x9E-?????.");
    EXPECT_EQ(TVOBasI18n::ToUTF8(cow_String(mixed.CStr(), 12)), cow_String(mixed.CStr(), 12));
    EXPECT_EQ(TVOBasI18n::ToUTF8("\xE2\x82"), "??");
  }
  std::setlocale(LC_CTYPE, before.c_str());
}

TEST_F(TranslationTest, LabelMapKeepsOrderAndAnswersBothWays) {
  uti_TranslationMap labels;
  labels.Insert(9, "Load", "LOAD");
  labels.Insert(3, atr_raw("Frequency\\@PROCEDURE_FREQUENCY"), "FREQUENCY");
  labels.Insert(5, atr_raw("Old"), "FIVE");
  labels.Insert(5, atr_raw("Static"), "STATIC");
  ASSERT_EQ(labels.LabelStrings().Length(), 3);
  EXPECT_EQ(labels.LabelStrings()[0], "Last");
  EXPECT_EQ(labels.LabelStrings()[2], "Static");
  EXPECT_EQ(labels.LabelKey("Last"), 9u);
  EXPECT_EQ(labels.LabelKey(labels.Label(3, 1), 1), 3u);
  EXPECT_EQ(labels.LabelKey("Old"), 0u);
  EXPECT_EQ(labels.Word(5), "STATIC");
  EXPECT_EQ(atr_DisplayText(labels.ConstGet(3)), "Frequency");
  EXPECT_EQ(atr_DisplayText(labels.ConstGet(5)), "Static");
  EXPECT_FALSE(labels.IsMember(4));
  EXPECT_THROW(labels.ConstGet(4), cow_KeyError);
  EXPECT_THROW(labels.Label(4, 1), cow_KeyError);
}
