#include "kprC_StepState.h"

#include <vector>


namespace {

/// The attributes of a class that propagate, and the others.
struct Members {
  std::vector<cls_Attribute const*> propagating;
  std::vector<cls_Attribute const*> plain;
  std::size_t ofFamily = 0;  ///< how many of the propagating ones the family's own level has; they come first
};

Members const& MembersOf(kprC_StepState const& state) {
  static std::vector<std::unique_ptr<Members const>> known;
  cls_AttributeTable const& table = state.DynAttributes();
  auto const index = static_cast<std::size_t>(table.Index());
  if (index >= known.size()) {
    known.resize(index + 1);
  }
  if (known[index] == nullptr) {
    auto members = std::make_unique<Members>();
    cls_AttributeTable const* root = &table;
    while (root->Base() != nullptr) {
      root = root->Base();
    }
    for (cls_Attribute const* attribute : table.All()) {
      bool const propagates = dynamic_cast<mdl_PropAttrBase const*>(attribute->Embedded(state)) != nullptr;
      (propagates ? members->propagating : members->plain).push_back(attribute);
      if (propagates && members->propagating.size() + members->plain.size() <= root->Own().size()) {
        ++members->ofFamily;
      }
    }
    known[index] = std::move(members);
  }
  return *known[index];
}

mdl_PropAttrBase& Propagating(cls_Attribute const* attribute, kprC_StepState& state) {
  return static_cast<mdl_PropAttrBase&>(*attribute->Embedded(state));
}

mdl_PropAttrBase const& Propagating(cls_Attribute const* attribute, kprC_StepState const& state) {
  return static_cast<mdl_PropAttrBase const&>(*attribute->Embedded(state));
}

}  // namespace

void kprC_StepState::Modify(kprC_StepState const& other) {
  deactivate = other.deactivate;
  nex_canDynamicCastRef(DynTypeId(), other.DynTypeId(), __FILE__, __LINE__);
  Members const& members = MembersOf(*this);
  for (std::size_t i = deactivate ? members.ofFamily : 0; i < members.propagating.size(); ++i) {
    Propagating(members.propagating[i], *this).Modify(Propagating(members.propagating[i], other));
  }
}

void kprC_StepState::Propagate() {
  for (cls_Attribute const* attribute : MembersOf(*this).propagating) {
    Propagating(attribute, *this).Propagate();
  }
}

void kprC_StepState::Zero() {
  for (cls_Attribute const* attribute : MembersOf(*this).propagating) {
    Propagating(attribute, *this).Zero();
  }
}

bool kprC_StepState::IsModified() const {
  for (cls_Attribute const* attribute : MembersOf(*this).propagating) {
    if (Propagating(attribute, *this).IsModified()) {
      return true;
    }
  }
  return false;
}

bool kprC_StepState::IsConditionModified() const {
  for (cls_Attribute const* attribute : MembersOf(*this).propagating) {
    if (Propagating(attribute, *this).IsConditionModified()) {
      return true;
    }
  }
  return false;
}

bool kprC_StepState::UseAmplitude(unsigned int) const { return false; }
bool kprC_StepState::UseComplex(unsigned int) const { return false; }
bool kprC_StepState::UseMagnitude(unsigned int) const { return true; }
void kprC_StepState::ChangeProcedureType(unsigned int) {}

bool kprC_StepState::IsPropagationOf(kprC_StepState const& before) const {
  if (&DynAttributes() != &before.DynAttributes()) {
    return false;
  }
  Members const& members = MembersOf(*this);
  for (cls_Attribute const* attribute : members.propagating) {
    if (!Propagating(attribute, *this).IsPropagationOf(Propagating(attribute, before))) {
      return false;
    }
  }
  for (cls_Attribute const* attribute : members.plain) {
    if (!attribute->Equal(*this, before)) {
      return false;
    }
  }
  return true;
}

void kprC_AmplitudeState::ChangeProcedureType(unsigned int procedure) {
  if (!UseAmplitude(procedure)) {
    amplitude = mdl_PropAttr<cow_String>();
  }
}
