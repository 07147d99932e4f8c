#include "kbcC_ConnectorBC.h"

#include "kbcC_perturbationSteps.h"

namespace {

struct Availability {
  char const* name;
  bool kbcC_ConnectorBCState::*available;
};

constexpr auto availabilities = [] {
  using S = kbcC_ConnectorBCState;
  return std::to_array<Availability>({{S::corm1Cmd(), &S::corm1},
                                      {S::corm2Cmd(), &S::corm2},
                                      {S::corm3Cmd(), &S::corm3},
                                      {S::corm4Cmd(), &S::corm4},
                                      {S::corm5Cmd(), &S::corm5},
                                      {S::corm6Cmd(), &S::corm6}});
}();

}  // namespace

cls_AttributeTable const& kbcC_ConnectorBCState::Attributes() {
  static auto const table = [] {
    cls_Describe<kbcC_ConnectorBCState, kbcC_BCState> description("kbcC_ConnectorBCState", 203);
    for (Availability const& row : availabilities) {
      description.Attribute(row.name, row.available);
    }
    return description;
  }();
  return table;
}

cls_AttributeTable const& kbcC_ConnectorBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnectorBC, kbcC_BC>("kbcC_ConnectorBC", 1631)
                                .Attribute(6, "fastenerName", &kbcC_ConnectorBC::fastenerName)
                                .Attribute(7, "fastenerSetName", &kbcC_ConnectorBC::fastenerSetName);
  return table;
}

cow_String kbcC_ConnectorBCState::UnavailableComponents(unsigned int procedure) const {
  std::string names;
  for (std::size_t i = 0; i < std::size(availabilities); ++i) {
    if (!(this->*availabilities[i].available) && Specifies(i, procedure)) {
      names += names.empty() ? "" : ", ";
      names += availabilities[i].name;
    }
  }
  return cow_String(names);
}

bool kbcC_ConnectorBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag);
}

void kbcC_ConnectorBC::AssertKind() const {
  bool const ofFastener = !fastenerName.IsEmpty() && !fastenerSetName.IsEmpty();
  kbcC_Assert(!region.IsEmpty() || ofFastener, 88);
  kbcC_Assert(region.IsEmpty() || (fastenerName.IsEmpty() && fastenerSetName.IsEmpty()), 89);
  for (Quad const& quad : states) {
    if (quad.state.HasValue() && !quad.IsStepSuppressed()) {
      auto const& state = kprC_CheckedCast<kbcC_ConnectorBCState>(quad.state.ConstGet(), __FILE__, __LINE__);
      cow_String const missing = state.UnavailableComponents(static_cast<unsigned int>(quad.Procedure()));
      kbcC_AssertContent(missing.IsEmpty(), 0, missing);
    }
  }
}
