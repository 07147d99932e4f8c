#include "kloC_InertiaRelief.h"

#include <array>

cls_AttributeTable const& kloC_InertiaReliefState::Attributes() {
  static auto const table =
      cls_Describe<kloC_InertiaReliefState, kloC_LoadState>("kloC_InertiaReliefState", 203)
          .Attribute(0, "fixed", &kloC_InertiaReliefState::fixed)
          .Attribute(1, "u1", &kloC_InertiaReliefState::u1)
          .Attribute(2, "u2", &kloC_InertiaReliefState::u2)
          .Attribute(3, "u3", &kloC_InertiaReliefState::u3)
          .Attribute(4, "ur1", &kloC_InertiaReliefState::ur1)
          .Attribute(5, "ur2", &kloC_InertiaReliefState::ur2)
          .Attribute(6, "ur3", &kloC_InertiaReliefState::ur3)
          .Attribute(7, "referencePoint", &kloC_InertiaReliefState::referencePoint)
          .Attribute(8, "isReferencePointDefined", &kloC_InertiaReliefState::isReferencePointDefined);
  return table;
}

cls_AttributeTable const& kloC_InertiaRelief::Attributes() {
  static auto const table = cls_Describe<kloC_InertiaRelief, kloC_Load>("kloC_InertiaRelief", 203)
                                .Attribute(9, "localCsys", &kloC_InertiaRelief::localCsys)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_InertiaReliefState>();
  return table;
}

namespace {

using Directions = std::array<bool, 6>;

struct SpaceRow {
  kloC_SpaceEnm space;
  Directions has;  ///< u1, u2, u3, ur1, ur2, ur3
  int refusal;     ///< of directions that the space has not got
};
constexpr SpaceRow spaces[] = {
    {kloC_SpaceEnm::THREE_D, {true, true, true, true, true, true}, kprC_NoTest},
    {kloC_SpaceEnm::TWO_D_PLANAR, {true, true, false, false, false, true}, 48},
    {kloC_SpaceEnm::AXISYMMETRIC, {false, true, false, false, false, false}, 49},
};

void AssertDirections(kloC_InertiaRelief::Quads const& quads, SpaceRow const& space, bool isLocal) {
  for (kloC_InertiaRelief::Quad const& quad : quads) {
    if (quad.state.IsNull() || quad.IsStepSuppressed()) {
      continue;
    }
    auto const& state = kprC_CheckedCast<kloC_InertiaReliefState>(quad.state.ConstGet(), __FILE__, __LINE__);
    bool all = true;
    for (std::size_t i = 0; i < space.has.size(); ++i) {
      bool const isFree = (state.*kloC_InertiaReliefState::Directions()[i]).ConstGet();
      kloC_Assert(space.has[i] || !isFree, space.refusal);
      all = all && isFree == space.has[i];
    }
    kloC_Assert(!all || !isLocal, 50);
  }
}

}  // namespace

void kloC_InertiaRelief::AssertKind() const {
  AssertDirections(states, spaces[0], !localCsys.IsNullRef());
  auto const& created = kprC_CheckedCast<kloC_InertiaReliefState>(CreatingQuad()->state.ConstGet(), __FILE__, __LINE__);
  kloC_Assert(!created.fixed.ConstGet(), 51);
}

void kloC_InertiaRelief::AssertInSpace(kloC_SpaceEnm space) const {
  for (SpaceRow const& row : spaces) {
    if (row.space == space) {
      AssertDirections(states, row, !localCsys.IsNullRef());
    }
  }
}
