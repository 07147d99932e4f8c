#include "kprC_StepState.h"

#include <vector>

#include "kprC_Procedures.h"

/// The attributes of a class: where the propagating ones stand in its objects, and the others.
///
/// All objects of one class have their members at the same places, so the places are found once, on the first object.
struct kprC_StepState::Members {
  std::vector<std::ptrdiff_t> propagating;
  std::vector<cls_Attribute const*> plain;       ///< those that do not know how they came to be in a step
  std::vector<cls_Attribute const*> identities;  ///< those that are not propagating and carry identities
  std::vector<std::ptrdiff_t> innerIdentities;   ///< propagating ones whose values carry identities of their own
  std::size_t ofFamily = 0;  ///< how many of the propagating ones the family's own level has; they come first
};

std::unique_ptr<kprC_StepState::Members const> kprC_StepState::FindMembers(kprC_StepState const& state) {
  auto members = std::make_unique<Members>();
  cls_AttributeTable const* root = &state.DynAttributes();
  while (root->Base() != nullptr) {
    root = root->Base();
  }
  std::size_t place = 0;
  for (cls_Attribute const* attribute : state.DynAttributes().All()) {
    bool const isOfFamily = place++ < root->Own().size();
    if (auto const* const given = dynamic_cast<mdl_PropAttrBase const*>(attribute->Embedded(state))) {
      members->propagating.push_back(reinterpret_cast<char const*>(given) - reinterpret_cast<char const*>(&state));
      if (given->ValueHasIdentity()) {
        members->innerIdentities.push_back(members->propagating.back());
      }
      members->ofFamily += isOfFamily ? 1 : 0;
    } else {
      if (attribute->HasIdentity()) {
        members->identities.push_back(attribute);
      }
      // The deactivation goes a way of its own.
      if (attribute->declared.field.name != "deactivate") {
        members->plain.push_back(attribute);
      }
    }
  }
  return members;
}

kprC_StepState::Members const& kprC_StepState::KnownMembers() const {
  // By the index of the class's attribute table.
  static std::vector<std::unique_ptr<Members const>> known;
  auto const index = static_cast<std::size_t>(DynAttributes().Index());
  if (index >= known.size()) {
    known.resize(index + 1);
  }
  if (known[index] == nullptr) {
    known[index] = FindMembers(*this);
  }
  members_ = known[index].get();
  return *members_;
}

inline kprC_StepState::Members const& kprC_StepState::OwnMembers() const {
  return members_ != nullptr ? *members_ : KnownMembers();
}

inline mdl_PropAttrBase& kprC_StepState::At(kprC_StepState& state, std::ptrdiff_t place) {
  return *reinterpret_cast<mdl_PropAttrBase*>(reinterpret_cast<char*>(&state) + place);
}
inline mdl_PropAttrBase const& kprC_StepState::At(kprC_StepState const& state, std::ptrdiff_t place) {
  return *reinterpret_cast<mdl_PropAttrBase const*>(reinterpret_cast<char const*>(&state) + place);
}

void kprC_StepState::NewUid() {
  Members const& members = OwnMembers();
  cls_Uid::Block uids(1 + members.propagating.size());
  uid_ = uids.Next();
  for (std::ptrdiff_t const place : members.propagating) {
    At(*this, place).SetOwnUid(uids.Next());
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
  for (cls_Attribute const* attribute : members.plain) {
    attribute->Assign(*this, other);
  }
}

void kprC_StepState::MarkEditOf(kprC_StepState const& present) {
  mdl_PropAttrBase* const mark = EditMark();
  if (mark == nullptr || IsModified()) {
    return;
  }
  for (cls_Attribute const* attribute : OwnMembers().plain) {
    if (!attribute->Equal(*this, present)) {
      mark->ForceState(SET);
    }
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
  Members const& members = OwnMembers();
  if (&members != &before.OwnMembers()) {
    return false;  // another class
  }
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
