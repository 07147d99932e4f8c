#include "kprC_StepState.h"

#include <vector>

#include "kprC_Procedures.h"

/// The attributes of a class: where the propagating ones stand in its objects, and the others.
///
/// All objects of one class have their members at the same places, so the places are found once, on the first object.
struct kprC_StepState::Members {
  std::vector<std::ptrdiff_t> propagating;
  std::vector<cls_Attribute const*> plain;
  std::vector<cls_Attribute const*> identities;   ///< those of the plain ones that carry identities
  std::vector<std::ptrdiff_t> innerIdentities;    ///< propagating ones whose values carry identities of their own
  std::size_t ofFamily = 0;  ///< how many of the propagating ones the family's own level has; they come first
};

std::unique_ptr<kprC_StepState::Members const> kprC_StepState::FindMembers(kprC_StepState const& state) {
  auto members = std::make_unique<Members>();
  cls_AttributeTable const* root = &state.DynAttributes();
  while (root->Base() != nullptr) {
    root = root->Base();
  }
  for (cls_Attribute const* attribute : state.DynAttributes().All()) {
    auto const* const embedded = dynamic_cast<mdl_PropAttrBase const*>(attribute->Embedded(state));
    if (embedded == nullptr) {
      members->plain.push_back(attribute);
      if (attribute->HasIdentity()) {
        members->identities.push_back(attribute);
      }
      continue;
    }
    members->propagating.push_back(reinterpret_cast<char const*>(embedded) - reinterpret_cast<char const*>(&state));
    if (embedded->ValueHasIdentity()) {
      members->innerIdentities.push_back(members->propagating.back());
    }
    if (members->propagating.size() + members->plain.size() <= root->Own().size()) {
      ++members->ofFamily;
    }
  }
  return members;
}

kprC_StepState::Members const& kprC_StepState::OwnMembers() const {
  // By the index of the class's attribute table.
  static std::vector<std::unique_ptr<Members const>> known;
  if (members_ == nullptr) {
    auto const index = static_cast<std::size_t>(DynAttributes().Index());
    if (index >= known.size()) {
      known.resize(index + 1);
    }
    if (known[index] == nullptr) {
      known[index] = FindMembers(*this);
    }
    members_ = known[index].get();
  }
  return *members_;
}

mdl_PropAttrBase& kprC_StepState::At(kprC_StepState& state, std::ptrdiff_t place) {
  return *reinterpret_cast<mdl_PropAttrBase*>(reinterpret_cast<char*>(&state) + place);
}
mdl_PropAttrBase const& kprC_StepState::At(kprC_StepState const& state, std::ptrdiff_t place) {
  return *reinterpret_cast<mdl_PropAttrBase const*>(reinterpret_cast<char const*>(&state) + place);
}

void kprC_StepState::NewUid() {
  Members const& members = OwnMembers();
  uid_.NewUid();
  for (std::ptrdiff_t const place : members.propagating) {
    At(*this, place).NewOwnUid();
  }
  for (std::ptrdiff_t const place : members.innerIdentities) {
    At(*this, place).NewUid();
  }
  for (cls_Attribute const* attribute : members.identities) {
    attribute->NewUid(*this);
  }
}

void kprC_StepState::Modify(kprC_StepState const& other) {
  deactivate = other.deactivate;
  nex_canDynamicCastRef(DynTypeId(), other.DynTypeId(), __FILE__, __LINE__);
  Members const& members = OwnMembers();
  for (std::size_t i = deactivate ? members.ofFamily : 0; i < members.propagating.size(); ++i) {
    At(*this, members.propagating[i]).Modify(At(other, members.propagating[i]));
  }
}

void kprC_StepState::Propagate() {
  for (std::ptrdiff_t const place : OwnMembers().propagating) {
    At(*this, place).Propagate();
  }
}

void kprC_StepState::Zero() {
  for (std::ptrdiff_t const place : OwnMembers().propagating) {
    At(*this, place).Zero();
  }
}

bool kprC_StepState::IsModified() const {
  for (std::ptrdiff_t const place : OwnMembers().propagating) {
    if (At(*this, place).IsModified()) {
      return true;
    }
  }
  return false;
}

bool kprC_StepState::IsConditionModified() const {
  for (std::ptrdiff_t const place : OwnMembers().propagating) {
    if (At(*this, place).IsConditionModified()) {
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
  Members const& members = OwnMembers();
  for (std::ptrdiff_t const place : members.propagating) {
    if (!At(*this, place).IsPropagationOf(At(before, place))) {
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

bool kprC_AmplitudeState::UseAmplitude(unsigned int procedure) const {
  using namespace kprC_Procedure;
  constexpr kprC_ProcedureSet outsideTime{Buckle, Frequency, StaticRiks, StaticLinearPerturbation, SubstructureGenerate,
                                          ComplexFrequency};
  return !outsideTime.Contains(procedure);
}

void kprC_AmplitudeState::ChangeProcedureType(unsigned int procedure) {
  if (!UseAmplitude(procedure)) {
    amplitude = mdl_PropAttr<cow_String>();
  }
}
