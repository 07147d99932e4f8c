// Memory runs out at every allocation of an edit, of a save and of a load in turn, be it one of the foundation's or one
// of the standard library's.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <new>

#include "../RandomEdits.h"
#include "../StepPlan.h"
#include "mem_Allocation.h"

namespace {

auto* const environment = testing::AddGlobalTestEnvironment(new LibraryEnvironment);

/// Allocations until one fails; negative for never.
long standardAllocationsLeft = -1;

}  // namespace

void* operator new(std::size_t size) {
  if (standardAllocationsLeft >= 0 && standardAllocationsLeft-- == 0) throw std::bad_alloc();
  if (void* const block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
  bool const fails = standardAllocationsLeft >= 0 && standardAllocationsLeft-- == 0;
  return fails ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace {

void FailStandardAllocation(long count) { standardAllocationsLeft = count - 1; }
void FailFoundationAllocation(long count) { mem_SetAllocationLimit(static_cast<int>(count)); }

class AllocationFaultsTest : public testing::Test {
 protected:
  AllocationFaultsTest() {
    for (char const* line : {"step S StaticStep after=Initial initialInc=0.1 minInc=0.01 maxInc=1",
                             "step F FrequencyStep after=S numEigen=5", "step M ModalDynamicsStep after=F incSize=0.1",
                             "step T StaticStep after=M initialInc=0.1 minInc=0.01 maxInc=1",
                             "create DisplacementBC a createStepName=Initial u1=0",
                             "create DisplacementBC b createStepName=S u2=1 amplitude=x",
                             "create DisplacementBC m createStepName=S u3=1",
                             "setInStep boundaryConditions b stepName=T u2=3",
                             "create AccelerationBaseMotionBC c createStepName=M amplitude=q"}) {
      Run(model_, line);
    }
  }

  static std::vector<std::uint8_t> Bytes(EditedModel const& model) { return dbc_EncodeObject(model.Model()); }

  void Run(EditedModel& model, std::string const& line) { Execute({model, out_}, ScriptLine(line)); }

  /// Fails the first allocation of `act`, then the second, and so on until it succeeds. How often it failed.
  static int FailEach(void (*failAt)(long), std::function<void()> const& act, std::function<void()> const& check) {
    act();
    for (int failures = 0;; ++failures) {
      bool done = false;
      failAt(failures + 1);
      try {
        act();
        done = true;
      } catch (std::exception const&) {
      }
      failAt(0);
      check();
      if (done || ::testing::Test::HasFailure()) return failures;
    }
  }

  std::ostringstream printed_;
  RowPrinter const out_{printed_, true};
  EditedModel model_;
};

// What fails is an exception. The copy taken before is unchanged, and the half-edited model can be read and let go.
TEST_F(AllocationFaultsTest, AnEditFailsWholeAtAnyAllocation) {
  auto const bytes = Bytes(model_);
  for (auto* const failAt : {&FailStandardAllocation, &FailFoundationAllocation}) {
    for (char const* line :
         {"create VelocityBC d createStepName=T v1=1", "setInStep boundaryConditions b stepName=T u2=7",
          "deactivate boundaryConditions b stepName=T", "move boundaryConditions m fromStepName=S toStepName=T",
          "copy boundaryConditions b to=e stepName=T", "suppress steps S", "remove steps S", "rename steps S to=X",
          "step N StaticStep after=S initialInc=0.1 minInc=0.01 maxInc=1",
          "replace T StaticStep initialInc=0.2 minInc=0.01 maxInc=1", "remove boundaryConditions b"}) {
      EditedModel edited;
      int const failures = FailEach(
          failAt,
          [&] {
            edited = model_;
            Run(edited, line);
          },
          [&] {
            EXPECT_EQ(Bytes(model_), bytes) << line;
            edited.Repositories();
            for (kprC_StepRepository const* repository : edited.Repositories()) {
              for (cow_String const& key : repository->Keys()) repository->ConstGetObject(key).History();
            }
          });
      EXPECT_GT(failures, 0) << line;
      EXPECT_EQ(ModelInvariants(edited).Broken(), "") << line;
    }
  }
}

TEST_F(AllocationFaultsTest, ASaveThatFailsLeavesTheFileAndTheModel) {
  auto const bytes = Bytes(model_);
  std::string const path = (std::filesystem::temp_directory_path() / "allocation_faults.model").string();
  EditedModel const old;
  old.Save(cow_String(path));
  for (auto* const failAt : {&FailStandardAllocation, &FailFoundationAllocation}) {
    int const failures = FailEach(
        failAt, [&] { model_.Save(cow_String(path)); },
        [&] {
          EditedModel read;
          read.Open(cow_String(path));
          auto const found = Bytes(read);
          EXPECT_TRUE(found == bytes || found == Bytes(old));
        });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(Bytes(model_), bytes);
    old.Save(cow_String(path));
  }
  std::filesystem::remove(path);
}

TEST_F(AllocationFaultsTest, ALoadThatFailsGivesNoModel) {
  auto const bytes = Bytes(model_);
  for (auto* const failAt : {&FailStandardAllocation, &FailFoundationAllocation}) {
    std::unique_ptr<cls_Persistent> read;
    int const failures = FailEach(
        failAt, [&] { read = dbc_DecodeObject(bytes, "model"); }, [] {});
    EXPECT_GT(failures, 100);
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(cls_EqualValues(*read, model_.Model()));
  }
}

}  // namespace
