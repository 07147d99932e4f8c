// A program of a user: it knows the installed headers and nothing else. Status 0 if the library did what it says.

#include <iostream>

#include "TVOOdbAttrEO.h"
#include "kbcC.h"
#include "kprC.h"

namespace {

using Conditions = kprC_PropagatingContainer<kbcC_BC>;
using Refusal = nex_CmdException<cow_String, 1>;

/// A bracket that is pulled by 0.5 in its second step and held so in the third one.
bool Pull() {
  ddr_Model model;
  auto& steps = static_cast<kprC_StepContainer&>(model.GetExtension("steps").GetValue());
  auto& conditions = static_cast<Conditions&>(model.GetExtension("bcs").GetValue());

  kprC_StaticStep step;
  step.initialInc = step.maxInc = 0.1;
  steps.SetInitialStep("Initial", kprC_InitialStep());
  steps.InsertAfter("Initial", "Pull", step, false);
  steps.InsertAfter("Pull", "Hold", step, false);
  conditions.UpdateSteps(steps.StepList(), "", false);

  kbcC_DisplacementBC condition;
  kbcC_DisplacementBCState state;
  condition.region = rgnC_Region("lug");
  state.u1 = 0.5;
  condition.Insert("Pull", state);
  conditions.Insert("BC-1", condition);

  kbcC_BC const& pulled = conditions.ConstGet("BC-1");
  for (cow_String const& name : steps.Keys()) {
    std::cout << name << ' ' << pulled.Status(name) << '\n';
  }
  bool const followed = pulled.Status("Initial") == STATUS_NONE && pulled.Status("Pull") == STATUS_CREATED &&
                        pulled.Status("Hold") == STATUS_PROPAGATED;

  // The refusal crosses the border of the library as its own type.
  try {
    static_cast<void>(pulled.Status("Release"));
  } catch (Refusal const& refusal) {
    std::cout << "refused: " << refusal.what() << '\n';
    return followed && refusal.Message() == "Release";
  }
  return false;
}

}  // namespace

int main() {
  int depth = 0;
  TVOOdbAttrEO_initialize(depth);
  bool const held = Pull();
  TVOOdbAttrEO_finalize(depth);
  return held && depth == 0 ? 0 : 1;
}
