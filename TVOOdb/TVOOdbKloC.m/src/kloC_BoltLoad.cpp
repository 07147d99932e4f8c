#include "kloC_BoltLoad.h"

cls_AttributeTable const& kloC_BoltLoadState::Attributes() {
  static auto const table = cls_Describe<kloC_BoltLoadState, kloC_ScalarState>("kloC_BoltLoadState", 203)
                                .Attribute(0, "boltMethod", &kloC_BoltLoadState::boltMethod);
  return table;
}

cls_AttributeTable const& kloC_BoltLoad::Attributes() {
  static auto const table = cls_Describe<kloC_BoltLoad, kloC_Scalar>("kloC_BoltLoad", 2600)
                                .Attribute(1, "dtmReference", &kloC_BoltLoad::dtmReference)
                                .Attribute(2, "preTenSecPartLevel", &kloC_BoltLoad::preTenSecPartLevel)
                                .Attribute(3, "follower", &kloC_BoltLoad::follower)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BoltLoadState>();
  return table;
}

void kloC_BoltLoad::Deactivate(cow_String const&) { kloC_Refuse(35); }

void kloC_BoltLoad::Move(cow_String const& from, cow_String const& to) {
  kloC_Assert(from == to || from != CreateStepName(), 36);
  kloC_Scalar::Move(from, to);
}

void kloC_BoltLoad::AssertKind() const {
  Quad const& creating = *CreatingQuad();
  if (creating.HasStep()) {
    kloC_Assert(states.Length() > 1 && &creating == &states[1] && !creating.Step().Perturbation(), 37);
  }
  auto const& state = kprC_CheckedCast<kloC_BoltLoadState>(creating.state.ConstGet(), __FILE__, __LINE__);
  kloC_Assert(state.boltMethod.ConstGet() != kloC_BoltLoadMethodEnm::FIX_LENGTH, 38);
}

void kloC_BoltLoad::AssertValidPlace(bool isSolid, bool isDisjoint) const {
  kloC_Assert(!isSolid || !dtmReference.IsNullRef(), 39);
  kloC_Assert(!isDisjoint, 55);
}
