#include <gtest/gtest.h>

#include "nex_Exception.h"

TEST(ExceptionTest, IsCaughtByClassNumberAndByBase) {
  using Refusal = nex_CmdException<cow_String, 1>;
  Refusal refusal("Not here.");
  EXPECT_EQ(refusal.Line(), 0);
  TVOBasException& asBase = refusal;
  EXPECT_THROW(asBase.Throw("a.cpp", 7), Refusal);
  EXPECT_THROW(asBase.Throw("a.cpp", 7), nex_CmdExceptionBase);

  auto const raiseAndSort = [](TVOBasException& error) {
    cow_String sort;
    try {
      error.Throw("b.cpp", 12);
    } catch (nex_CmdException<atr_String, 2> const&) {
      sort = "command 2";
    } catch (nex_PrimExceptionBase const&) {
      sort = "fault";
    } catch (TVOBasException const&) {
      sort = "other";
    }
    return sort;
  };
  nex_CmdException<cow_String, 9> nine("x");
  nex_CmdException<atr_String, 2> two(atr_raw("x"));
  nex_PrimException<atr_String, 1> fault(atr_raw("x"));
  EXPECT_EQ(raiseAndSort(nine), "other");
  EXPECT_EQ(raiseAndSort(two), "command 2");
  EXPECT_EQ(raiseAndSort(fault), "fault");
}

TEST(ExceptionTest, CarriesMessageAndPosition) {
  try {
    nex_AssertText("\"All states are empty\" == 0", "TVOOdb/a.cpp", 31);
  } catch (nex_PrimException<cow_String, 3> const& error) {
    nex_PrimException<cow_String, 3> const kept = error;
    EXPECT_STREQ(kept.what(), "\"All states are empty\" == 0");
    EXPECT_EQ(kept.Message(), kept.what());
    EXPECT_STREQ(kept.File(), "TVOOdb/a.cpp");
    EXPECT_EQ(kept.Line(), 31);
  }
}
