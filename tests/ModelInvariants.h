#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "EditedModel.h"
#include "cls_Registrar.h"
#include "cls_Table.h"
#include "cls_Visitors.h"
#include "dbc_ModelFile.h"
#include "kprC_StepContainer.h"
#include "kprC_StepRepository.h"
#include "mdl_PropagationEnums.h"

// What holds for a model after any sequence of edits.

/// Gathers what is broken, with where.
class ModelInvariants {
 public:
  explicit ModelInvariants(EditedModel const& model)
      : steps_(model.Steps().StepList()) {
    for (kprC_StepRepository const* repository : model.Repositories()) {
      StepListsAgree(*repository);
      for (cow_String const& key : repository->Keys()) {
        kprC_StepObject const& object = repository->ConstGetObject(key);
        StatusesFollowTheCreation(key, object);
        ASecondWalkChangesNothing(key, object);
        WhatTheUserSaidGivesTheSame(key, object);
      }
      SuppressedStepsLeaveNoTrace(*repository);
    }
    cls_Database database;
    cls_WriteSession session(database);
    model.Model().DBWrite(cls_WriteVisitor(session));
    database.Complete();
    IdentitiesAreUnique(database);
    bytes_ = dbc_EncodeDatabase(database, dbc_SchemaRevision);
    auto const read = dbc_DecodeObject(bytes_, "model");
    Expect(cls_EqualValues(*read, model.Model()), "another model after saving and opening", "");
  }

  std::string const& Broken() const { return broken_; }

  /// The model as it is saved: what an edit of another copy must not change.
  std::vector<std::uint8_t> const& Bytes() const { return bytes_; }

 private:
  void Expect(bool holds, char const* what, cow_String const& where) {
    if (!holds) broken_.append(what).append(": ").append(where.View()).append("\n");
  }

  void StepListsAgree(kprC_StepRepository const& repository) {
    kprC_StepList const& own = repository.Procedures();
    // An edit that keeps a step's type and name does not reach the list of a repository.
    auto const alike = [](kprC_StepHolder const& a, kprC_StepHolder const& b) {
      if (a.IsNull() || b.IsNull()) return a.IsNull() == b.IsNull();
      return a.ConstGet().DynTypeId() == b.ConstGet().DynTypeId() && a.ConstGet().suppress == b.ConstGet().suppress;
    };
    bool agree = own.Length() == steps_.Length();
    for (int i = 0; agree && i < own.Length(); ++i) {
      agree = own[i].stepName == steps_[i].stepName && alike(own[i].procedure, steps_[i].procedure);
    }
    Expect(agree, "steps differ from the model's", repository.RepositoryName());
  }

  void StatusesFollowTheCreation(cow_String const& key, kprC_StepObject const& object) {
    auto const names = object.StepNames();
    auto const statuses = object.History();
    bool agree = names.Length() == steps_.Length();
    for (int i = 0; agree && i < names.Length(); ++i) agree = names[i] == steps_[i].stepName;
    Expect(agree, "an object stands over other steps", key);
    if (!agree) return;
    int const creation = names.FindMember(object.CreateStepName());
    for (int i = 0; i < names.Length(); ++i) {
      bool const holds = object.StateIn(names[i]) != nullptr;
      bool const created = statuses[i] == STATUS_CREATED;
      Expect(i >= creation || !holds, "a state before the creation", key);
      Expect(created == (i == creation) || statuses[i] == STATUS_TYPE_INVALID, "a creation in the wrong step", key);
      Expect(holds || (statuses[i] != STATUS_PROPAGATED && statuses[i] != STATUS_MODIFIED), "an active step without a state", key);
    }
  }

  /// Objects with complex values or a buckle case are modified by their first walk and seen so by the second.
  static bool IsSettledByOneWalk(kprC_StepObject const& object) {
    for (cow_String const& step : object.StepNames()) {
      kprC_StepState const* const state = object.StateIn(step);
      if (state == nullptr) continue;
      for (cls_Attribute const* attribute : state->DynAttributes().All()) {
        std::string_view const name = attribute->declared.field.name.View();
        bool const complexPart = attribute->declared.type == cls_AttributeType::Double && attribute->Text(*state) != "0";
        if (name == "buckleCase" || complexPart) return false;
      }
    }
    return true;
  }

  void ASecondWalkChangesNothing(cow_String const& key, kprC_StepObject const& object) {
    if (!IsSettledByOneWalk(object)) return;
    std::unique_ptr<kprC_StepObject> const again(object.Copy());
    again->ForcedInitialize(steps_);
    for (auto const& step : steps_) SameIn(step.stepName, *again, object, "a second walk changes", key);
  }

  /// The object as it would be if it were made afresh, with nothing in a step but what was typed there.
  void WhatTheUserSaidGivesTheSame(cow_String const& key, kprC_StepObject const& object) {
    if (!IsSettledByOneWalk(object)) return;
    std::unique_ptr<kprC_StepObject> const rebuilt(object.Copy());
    for (auto const& step : steps_) {
      kprC_StepState const* const state = object.StateIn(step.stepName);
      bool const said = state != nullptr && (state->IsModified() || state->deactivate);
      if (!said && step.stepName != object.CreateStepName()) rebuilt->ReplaceStep(step.stepName);
    }
    rebuilt->ForcedInitialize(steps_);
    for (auto const& step : steps_) SameIn(step.stepName, *rebuilt, object, "made afresh from its edits, it has", key);
  }

  void SameIn(cow_String const& step, kprC_StepObject const& a, kprC_StepObject const& b, std::string const& what,
              cow_String const& key) {
    std::string const statuses = std::to_string(b.Status(step)) + " to " + std::to_string(a.Status(step));
    Expect(a.Status(step) == b.Status(step), (what + " a status in " + step.CStr() + ", " + statuses).c_str(), key);
    kprC_StepState const* const first = a.StateIn(step);
    kprC_StepState const* const second = b.StateIn(step);
    bool const same = first == nullptr || second == nullptr ? first == second : cls_EqualValues(*first, *second);
    Expect(same, (what + " a value").c_str(), key);
  }

  void SuppressedStepsLeaveNoTrace(kprC_StepRepository const& repository) {
    std::unique_ptr<kprC_StepRepository> const without(repository.Copy());
    kprC_StepList left = steps_;
    for (int i = left.Length() - 1; i >= 0; --i) {
      if (left[i].procedure.IsNull() || !left[i].procedure.ConstGet().suppress) continue;
      left.RemoveIndex(i);
      without->UpdateSteps(left, {}, false);
    }
    if (left.Length() == steps_.Length()) return;
    for (cow_String const& key : repository.Keys()) {
      kprC_StepObject const& object = repository.ConstGetObject(key);
      if (!IsSettledByOneWalk(object) || !without->IsMember(key)) continue;
      kprC_StepObject const& other = without->ConstGetObject(key);
      if (other.suppressionState != object.suppressionState) continue;
      for (auto const& step : left) SameIn(step.stepName, other, object, "a suppressed step shows in", key);
    }
  }

  /// The classes of objects, of their states, quads and plain values. A step that was edited may stand in a repository's list as it
  /// was before, with the same identity.
  static std::set<unsigned int> const& ClassesOfObjects() {
    static std::set<unsigned int> const classes = [] {
      std::set<unsigned int> found;
      for (auto const& [typeId, metadata] : cls_ClassRegistrar::Present().All()) {
        cls_AttributeTable const* const table = metadata->Attributes();
        std::string_view const name = metadata->Name().View();
        if (name.starts_with("kprC_PropagatingState") || name.starts_with("mdl_PropAttr<")) found.insert(typeId);
        if (table == nullptr || table->StepState() == nullptr) continue;
        found.insert({typeId, table->StepState()->TypeId()});
      }
      return found;
    }();
    return classes;
  }

  void IdentitiesAreUnique(cls_Database const& database) {
    for (auto const& table : database.tables) {
      if (!ClassesOfObjects().contains(table->typeId)) continue;
      auto uids = table->uids;
      std::sort(uids.begin(), uids.end());
      uids.erase(uids.begin(), std::upper_bound(uids.begin(), uids.end(), 0u));  // rows of base levels
      Expect(std::adjacent_find(uids.begin(), uids.end()) == uids.end(), "an identity twice", table->name);
    }
  }

  kprC_StepList const steps_;
  std::vector<std::uint8_t> bytes_;
  std::string broken_;
};
