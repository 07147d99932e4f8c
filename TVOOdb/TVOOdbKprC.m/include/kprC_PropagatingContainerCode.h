#pragma once

// The repository's code, for the one source of a family that instantiates it.

#include "kprC_PropagatingContainer.h"
#include "kprC_StepList.h"
#include "nex_Exception.h"
#include "omi_gettimecounter.h"
#include "omu_Histories.h"
#include "thr_Singletons.h"

/// Notes a change of one object of a repository, such as ("Modify", key).
TVO_API void kprC_NoteChange(char const* what, cow_String const& key);
/// The same under the path of the last command, if there is one: the command, ".", and the key.
TVO_API void kprC_NoteChangeOfCommand(char const* what, cow_String const& key);

template <class T>
char const* kprC_PropagatingContainer<T>::RepositoryName() const {
  return T::FamilyRules::RepositoryName();
}

template <class T>
cow_List<kprC_OfferedMenu> kprC_PropagatingContainer<T>::OfferedTypes(int procedure) const {
  return T::FamilyRules::OfferedTypes(procedure);
}

template <class T>
int kprC_PropagatingContainer<T>::UnsuppressedSize() const {
  int count = 0;
  for (auto const& entry : map) {
    count += entry.value.ConstGet().suppressionState == RESUMED ? 1 : 0;
  }
  return count;
}

template <class T>
cow_List<cow_String> kprC_PropagatingContainer<T>::Keys() const {
  cow_List<cow_String> keys(map.Size());
  for (auto const& entry : map) {
    keys.Append(entry.key);
  }
  return keys;
}

template <class T>
T const& kprC_PropagatingContainer<T>::ConstGet(cow_String const& key) const {
  Holder const* const holder = map.Find(key);
  if (holder == nullptr) {
    nex_CmdException<cow_String, 1>(key).Throw(__FILE__, __LINE__);
  }
  return holder->ConstGet();
}

template <class T>
T& kprC_PropagatingContainer<T>::Get(cow_String const& key) {
  ConstGet(key);
  kprC_NoteChange("Modify", key);
  UpdateTimeStamp(key);
  T& object = map.Get(key).Get();
  object.Unsettle();
  return object;
}

template <class T>
bool kprC_PropagatingContainer<T>::Put(cow_String const& key, Holder const& object) {
  bool const replaces = map.IsMember(key);
  bool const taken = map.Insert(key, object);
  if (taken) {
    if (replaces) {
      kprC_NoteChange("Remove", key);
    }
    omu_ChangeHistory& history = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    history.addChange(omu_PrimTuple{omu_Prim(cow_String("Insert")), omu_Prim(key), omu_Prim(-99)});
    UpdateTimeStamp(key);
  }
  return taken;
}

template <class T>
bool kprC_PropagatingContainer<T>::Insert(cow_String const& key, T const& object) {
  Holder copy(object);
  T& own = copy.Get();
  own.Unsettle();
  own.Initialize(procedures);
  own.AssertValid();
  return Put(key, copy);
}

template <class T>
bool kprC_PropagatingContainer<T>::ForcedInsert(cow_String const& key, T const& object) {
  Holder copy(object);
  copy.Get().Unsettle();
  copy.Get().ForcedInitialize(procedures);
  return Put(key, copy);
}

template <class T>
bool kprC_PropagatingContainer<T>::Remove(cow_String const& key) {
  bool const removed = map.Remove(key);
  if (removed) {
    kprC_NoteChange("Remove", key);
    UpdateTimeStamp(key);
  }
  return removed;
}

template <class T>
void kprC_PropagatingContainer<T>::ClearSteps() {
  map.Clear();
  procedures.Clear();
}

template <class T>
kprC_RegionUse kprC_PropagatingContainer<T>::RegionUse() const {
  kprC_RegionUse use;
  for (auto const& entry : map) {
    use.Add(entry.value.ConstGet().Regions(RGN_INSTANCE));
  }
  return use;
}

template <class T>
void kprC_PropagatingContainer<T>::ClearStep(cow_String const& stepName) {
  kprC_RegionUse use = RegionUse();
  for (cow_String const& key : Keys()) {
    T& object = map.Get(key).Get();
    try {
      object.ReplaceStep(stepName);
      continue;
    } catch (std::exception const&) {
      // An object's way of saying that this is the step that created it, or a step that it does not know.
    }
    if (object.CreateStepName() != stepName) {
      object.RemoveStep(stepName);
      continue;
    }
    kprC_NoteChange("Remove", key);
    UpdateTimeStamp(key);
    cls_xoList<rgnC_Region> const regions = object.Regions(RGN_INSTANCE);
    map.Remove(key);
    danglingRegions = use.Drop(regions);
  }
}

// ---- changes of the step list

template <class T>
int kprC_PropagatingContainer<T>::FirstDifference(kprC_StepList const& newList) const {
  int index = 0;
  auto old = procedures.begin();
  for (kprC_StepNameProcedurePair const& step : newList) {
    if (index == procedures.Length() || old->stepName != step.stepName) {
      break;
    }
    ++old;
    ++index;
  }
  return index;
}

template <class T>
void kprC_PropagatingContainer<T>::NoteUpdate(cow_String const& key) {
  kprC_NoteChangeOfCommand("Modify", key);
  UpdateTimeStamp(key);
}

template <class T>
void kprC_PropagatingContainer<T>::UpdateSteps(kprC_StepList const& newList, cow_String const& changedStep,
                                               bool suppress) {
  invalidKeys_.Clear();
  int const growth = newList.Length() - procedures.Length();
  if (growth != 0) {
    thr_ThreadSingleton<omu_ChangeHistory>::Instance().addChange(omu_PrimTuple{omu_Prim(cow_String("RedoSummary"))});
    if (growth > 0) {
      InsertStep(newList);
    } else {
      RemoveStep(newList);
    }
  } else {
    bool renamed = false;
    auto old = procedures.begin();
    for (kprC_StepNameProcedurePair const& step : newList) {
      if (old->stepName != step.stepName) {
        RenameStep(newList);
        renamed = true;
        break;
      }
      if (old->procedure.HasValue() && step.procedure.HasValue() &&
          old->procedure.ConstGet().DynTypeId() != step.procedure.ConstGet().DynTypeId()) {
        ReplaceStep(newList);
        break;
      }
      ++old;
    }
    if (!renamed && !changedStep.IsEmpty()) {
      SuppressResumeStep(newList, changedStep, suppress);
    }
  }
  for (cow_String const& key : Keys()) {
    map.Get(key).Get().Initialize(newList);
    if (growth == 0) {
      NoteUpdate(key);
    }
  }
}

template <class T>
void kprC_PropagatingContainer<T>::InsertStep(kprC_StepList const& newList) {
  int const index = FirstDifference(newList);
  kprC_StepNameProcedurePair const& step = newList[index];
  for (cow_String const& key : Keys()) {
    map.Get(key).Get().InsertStep(index, step);
    NoteUpdate(key);
  }
  procedures = newList;
}

template <class T>
void kprC_PropagatingContainer<T>::RemoveStep(kprC_StepList const& newList) {
  cow_String const removed = procedures[FirstDifference(newList)].stepName;
  kprC_RegionUse use = RegionUse();
  for (cow_String const& key : Keys()) {
    if (map.ConstGet(key).ConstGet().CreateStepName() == removed) {
      cls_xoList<rgnC_Region> const regions = map.ConstGet(key).ConstGet().Regions(RGN_INSTANCE);
      map.Remove(key);
      danglingRegions.Concatenate(use.Drop(regions));
      kprC_NoteChange("Remove", key);
      UpdateTimeStamp(key);
    } else {
      map.Get(key).Get().RemoveStep(removed);
      NoteUpdate(key);
    }
  }
  procedures = newList;
}

template <class T>
void kprC_PropagatingContainer<T>::RenameStep(kprC_StepList const& newList) {
  int const index = FirstDifference(newList);
  if (index == newList.Length() && index == procedures.Length()) {
    return;
  }
  cow_String const oldName = procedures[index].stepName;
  cow_String const newName = newList[index].stepName;
  for (cow_String const& key : Keys()) {
    map.Get(key).Get().RenameStep(oldName, newName);
  }
  procedures = newList;
}

/// The initial step has no procedure of its own: what it admits follows from the rest of the sequence.
template <class T>
bool kprC_PropagatingContainer<T>::FitsInitialStep(T const& object, kprC_StepList const& newList) const {
  return object.ValidInStep(0, false, kprC_AnalysisProduct(newList) == UNDEFINED_ANALYSIS,
                            static_cast<int>(kprC_FirstGeneralAnalysisType(newList)));
}

template <class T>
bool kprC_PropagatingContainer<T>::FitsStep(T const& object, kprC_StepHolder const& procedure) {
  if (procedure.IsNull()) {
    return object.ValidInStep(0, false, true, 0);
  }
  auto const id = static_cast<int>(procedure.ConstGet().DynTypeId());
  return object.ValidInStep(procedure.ConstGet(), false, id == 0, id);
}

template <class T>
void kprC_PropagatingContainer<T>::SuppressInvalid(cow_String const& key, bool byStep, bool keep) {
  map.Get(key).Get().Suppress(byStep, keep);
  invalidKeys_.Append(key);
  // The object stays and goes on referring to its regions: none of them dangles.
  danglingRegions.Clear();
}

template <class T>
void kprC_PropagatingContainer<T>::ReplaceStep(kprC_StepList const& newList) {
  int index = 0;
  auto const replaced = [&] {
    kprC_StepHolder const& before = procedures[index].procedure;
    kprC_StepHolder const& after = newList[index].procedure;
    return before.HasValue() && after.HasValue() && before.ConstGet().DynTypeId() != after.ConstGet().DynTypeId();
  };
  while (index < procedures.Length() && !replaced()) {
    ++index;
  }
  if (index == procedures.Length()) {
    return;
  }
  cow_String const& name = procedures[index].stepName;
  for (cow_String const& key : Keys()) {
    T const& object = map.ConstGet(key).ConstGet();
    if (object.suppressionState == SUPPRESSED_ATTRIBUTE) {
      continue;
    }
    if (object.suppressionState != RESUMED) {
      // What a step suppressed outlives the step that is replaced.
      SuppressInvalid(key, false, true);
    } else {
      cow_String const created = object.CreateStepName();
      bool const fits = created == kprC_Step::initialCmd() ? FitsInitialStep(object, newList)
                        : created == name                  ? FitsStep(object, newList[index].procedure)
                                                           : true;
      if (fits) {
        continue;
      }
      SuppressInvalid(key, false, false);
    }
    NoteUpdate(key);
  }
  procedures = newList;
}

template <class T>
void kprC_PropagatingContainer<T>::SuppressResumeStep(kprC_StepList const& newList, cow_String const& stepName,
                                                      bool suppress) {
  int index = 0;
  while (index < procedures.Length() && procedures[index].stepName != stepName) {
    ++index;
  }
  for (cow_String const& key : Keys()) {
    T const& object = map.ConstGet(key).ConstGet();
    cow_String const created = object.CreateStepName();
    if (created == stepName) {
      if (suppress) {
        SuppressInvalid(key, true, false);
      } else {
        bool const fits = FitsStep(object, newList[index].procedure);
        map.Get(key).Get().Resume(true);
        if (!fits) {
          SuppressInvalid(key, false, false);
        }
      }
    } else if (created == kprC_Step::initialCmd() && !FitsInitialStep(object, newList)) {
      SuppressInvalid(key, false, false);
    } else {
      continue;
    }
    NoteUpdate(key);
  }
  procedures = newList;
}

// ---- regions, time stamp, copies

template <class T>
cls_xoList<rgnC_Region> kprC_PropagatingContainer<T>::DanglingRegions() {
  cls_xoList<rgnC_Region> regions = danglingRegions;
  danglingRegions = cls_xoList<rgnC_Region>();
  return regions;
}

template <class T>
cls_xoList<rgnC_Region> kprC_PropagatingContainer<T>::DanglingRegions(cls_xoList<rgnC_Region> const& regions) const {
  return RegionUse().Unused(regions);
}

template <class T>
void kprC_PropagatingContainer<T>::UpdateTimeStamp(cow_String const& key) {
  timeStamp_ = omi_gettimecounter();
  if (!key.IsEmpty() && (deltaList_.IsEmpty() || deltaList_.Last() != key)) {
    deltaList_.Append(key);
  }
}

template <class T>
kprC_PropagatingContainer<T>* kprC_PropagatingContainer<T>::DeepCopy() const {
  // One context for the whole copy: its objects share the copied steps, as the originals share theirs.
  cls_DeepCopyContext context;
  auto copy = std::make_unique<kprC_PropagatingContainer>(*this);
  Attributes().Unshare(*copy, context);
  return copy.release();
}
