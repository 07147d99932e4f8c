#include "../RandomEdits.h"

#include <random>
#include <set>

#include "../StepPlan.h"

namespace {

auto* const environment = testing::AddGlobalTestEnvironment(new LibraryEnvironment);

// A model lives through thousands of edits, good ones and bad ones, and stays sound after each.
TEST(RandomEditsTest, EveryInvariantHoldsAfterEveryEdit) {
  int refused = 0, objects = 0;
  std::set<int> statuses;
  constexpr int scripts = 60, lines = 150;
  for (unsigned seed = 0; seed < scripts; ++seed) {
    std::mt19937 random(seed);
    RandomEdits edits([&random](unsigned bound) { return static_cast<unsigned>(random() % bound); });
    LivingModel model;
    for (int i = 0; i < lines; ++i) {
      std::string const broken = model.Run(edits.Next(model.Model()));
      ASSERT_EQ(broken, "") << "seed " << seed;
      for (kprC_StepRepository const* repository : model.Model().Repositories()) {
        for (cow_String const& key : repository->Keys()) {
          for (int const status : repository->ConstGetObject(key).History()) statuses.insert(status);
        }
      }
    }
    refused += model.Refused();
    for (kprC_StepRepository const* repository : model.Model().Repositories()) objects += repository->Size();
  }
  // The scripts do get somewhere.
  EXPECT_LT(refused, scripts * lines * 9 / 10);
  EXPECT_GT(objects, scripts / 4);
  // Of thirteen; which numbers a script is made of depends on the order in which the compiler evaluates.
  EXPECT_GE(statuses.size(), 11u);
}

}  // namespace
