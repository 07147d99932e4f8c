#include <gtest/gtest.h>

#include "kprC_LabelsBitMap.h"
#include "kprC_ProcedureTypeLabelMap.h"
#include "kprC_Procedures.h"
#include "kprC_typeUtils.h"

namespace {

// The initial step, a suppressed step, a retired procedure, the abstract step, types of other modules or of none.
constexpr unsigned int noProcedures[] = {0, 1, 0x23c0005, 0x23c0001, 0x2980065, 0x23cffff, 0xffffffff};

TEST(ProcedureTablesTest, MasksAndLabelsFollowOneOrder) {
  auto const& masks = kprC_LabelsBitMap::Instance();
  auto const& labels = kprC_ProcedureTypeLabelMap::Instance();
  auto const ids = masks.Ids();
  ASSERT_EQ(ids.Length(), 34);
  EXPECT_EQ(ids.First(), 0x23c0065U);
  EXPECT_EQ(ids.Last(), 0x23c007aU);
  for (int i = 0; i < ids.Length(); ++i) EXPECT_EQ(masks.Value(ids[i]), std::uint64_t{1} << i) << i;
  for (unsigned int const id : noProcedures) EXPECT_EQ(masks.Value(id), 0U) << id;
  EXPECT_EQ(labels.Keys(), ids);
  EXPECT_EQ(labels.LabelKey("Static, Riks"), 0x23c0074U);
  EXPECT_EQ(atr_DisplayText(labels.Label(0x23c006a)), "Frequency");
}

TEST(ProcedureTablesTest, QuestionsAgreeWithTheAnswersOfTheClasses) {
  int perturbations = 0;
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
    kprC_StepAnswers const answers = kprC_StepAnswersOf(row.id);
    perturbations += row.perturbation ? 1 : 0;
    EXPECT_EQ(kprC_IsExplicit(row.id), answers.isExplicit) << row.label;
    EXPECT_LE(kprC_LoadCaseIsAllowed(row.id), answers.allowLoadCases) << row.label;
    EXPECT_LE(kprC_ModesIsAllowed(row.id), row.perturbation) << row.label;
    EXPECT_EQ(kprC_TimeIntervalIsAllowed(row.id),
              kprC_NumberIntervalIsAllowed(row.id) && row.id != kprC_Procedure::Anneal)
        << row.label;
    // Only the explicit procedures ask for the flag.
    EXPECT_LE(kprC_TimePointIsAllowed(row.id, true) != kprC_TimePointIsAllowed(row.id, false), answers.isExplicit);
    EXPECT_EQ(kprC_TimeMarksIsAllowed(row.id, true) != kprC_TimeMarksIsAllowed(row.id, false), answers.isExplicit);
  }
  EXPECT_EQ(perturbations, 13);
  EXPECT_FALSE(kprC_TimePointIsAllowed(kprC_Procedure::Anneal, true));
  for (unsigned int const id : noProcedures) {
    EXPECT_FALSE(kprC_IsExplicit(id) || kprC_IsFlow(id) || kprC_NumberIntervalIsAllowed(id) ||
                 kprC_TimePointIsAllowed(id, true) || kprC_TimeMarksIsAllowed(id, true))
        << id;
  }
}

}  // namespace
