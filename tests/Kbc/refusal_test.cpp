#include <gtest/gtest.h>

#include "kbcC_assert.h"
#include "nex_Exception.h"

namespace {

template <class Refusal, class Act>
std::string TextOf(Act act) {
  try {
    act();
  } catch (Refusal const& refusal) {
    EXPECT_STREQ(refusal.File(), "TVOOdb/TVOOdbKbcC.m/src/kbcC_assert.cpp");
    return refusal.what();
  } catch (std::exception const&) {
    return "another exception";
  }
  return "no exception";
}

using Command = nex_CmdException<cow_String, 1>;
using Fault = nex_PrimException<atr_String, 1>;

}  // namespace

TEST(KbcRefusalTest, TellsRefusedCommandsFromFaults) {
  EXPECT_EQ(TextOf<Command>([] { kbcC_Assert(false, 5); }), "Boundary condition by that name already exists.");
  EXPECT_EQ(TextOf<Command>([] { kbcC_Assert(false, kbcC_ErrorEnm{52}); }), "Invalid value for the global step.");
  EXPECT_EQ(TextOf<Fault>([] { kbcC_Assert(false, 9); }), "Boundary condition is not active in this step.");
  EXPECT_EQ(TextOf<Fault>([] { kbcC_Assert(false, 107); }),
            "A fixed boundary condition cannot moved to the first analysis step.");
  for (int const unknown : {-1, 108, 1 << 30}) {
    EXPECT_EQ(TextOf<Fault>([&] { kbcC_Assert(false, unknown); }), "") << unknown;
  }
  kbcC_Assert(true, 5);
}

TEST(KbcRefusalTest, NamesTheContent) {
  EXPECT_EQ(TextOf<Fault>([] { kbcC_AssertContent(false, 0, "U1, %s"); }),
            "Unavailable connector components have been specified (CORM: U1, %s).");
  EXPECT_EQ(TextOf<Fault>([] { kbcC_AssertContent(false, 1, "U1"); }), "");
  kbcC_AssertContent(true, 0, "U1");
}
