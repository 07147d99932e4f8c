#pragma once

#include "kprC_StepRepository.h"

/// The repository of one step-dependent family of a model: its objects by key, and its copy of the model's steps.
///
/// Copies share everything until one side edits.
template <class T>
class TVO_API kprC_PropagatingContainer final : public kprC_StepRepository {
  CLS_PERSISTENT_TEMPLATE(kprC_PropagatingContainer)

 public:
  using Holder = cow_COW<T, cow_Virtual<T>>;

  kprC_PropagatingContainer() { UpdateTimeStamp(cow_String()); }
  /// As read from the row alone; the flag is of use to other kinds of repository.
  kprC_PropagatingContainer(cls_ReadVisitor const& reader, bool) : kprC_PropagatingContainer(reader) {}

  char const* RepositoryName() const override;
  cow_List<kprC_OfferedMenu> OfferedTypes(int procedure) const override;
  int Size() const override { return map.Size(); }
  bool IsMember(cow_String const& key) const override { return map.IsMember(key); }
  int UnsuppressedSize() const override;
  cow_List<cow_String> Keys() const override;
  kprC_StepList const& Procedures() const noexcept override { return procedures; }

  T const& ConstGet(cow_String const& key) const;
  /// Notes ("Modify", key) and gives the object for writing.
  T& Get(cow_String const& key);
  kprC_StepObject const& ConstGetObject(cow_String const& key) const override { return ConstGet(key); }
  kprC_StepObject& GetObject(cow_String const& key) override { return Get(key); }

  /// Whether the map took the object. A refused object leaves the repository as it was.
  bool Insert(cow_String const& key, T const& object);
  bool InsertObject(cow_String const& key, kprC_StepObject const& object) override {
    return Insert(key, kprC_CheckedCast<T>(object, __FILE__, __LINE__));
  }
  bool Holds(unsigned int typeId) const override { return nex_canDynamicCastPtr(T::TypeId(), typeId); }
  /// As Insert without validation, for reading and conversion, where an object must go in as it is.
  bool ForcedInsert(cow_String const& key, T const& object);
  /// Whether the key was there. The object's regions are not examined.
  bool Remove(cow_String const& key) override;
  /// Empties the map; the steps stay.
  void Clear() { map.Clear(); }
  /// Empties the map and the list of steps.
  void ClearSteps();
  /// Drops what objects hold for a step; objects created in it go.
  void ClearStep(cow_String const& stepName);

  void UpdateSteps(kprC_StepList const& newList, cow_String const& changedStep, bool suppress) override;
  // The cases of UpdateSteps.
  void InsertStep(kprC_StepList const& newList);
  void RemoveStep(kprC_StepList const& newList);
  void RenameStep(kprC_StepList const& newList);
  void ReplaceStep(kprC_StepList const& newList);
  void SuppressResumeStep(kprC_StepList const& newList, cow_String const& stepName, bool suppress);

  cls_xoList<rgnC_Region> DanglingRegions() override;
  /// Those of `regions`, in their order, that no object refers to.
  cls_xoList<rgnC_Region> DanglingRegions(cls_xoList<rgnC_Region> const& regions) const;
  cow_List<cow_String> const& InvalidKeys() const override { return invalidKeys_; }
  cow_List<cow_String> const& DeltaList() const override { return deltaList_; }
  void ResetDeltaList() override { deltaList_.Clear(); }
  /// Notes that something changed now; a key that is not the last noted one joins the delta list.
  void UpdateTimeStamp(cow_String const& key);
  /// Value of the process's time counter at the last change, in seconds.
  double GetTimeStamp() const noexcept { return timeStamp_; }

  kprC_PropagatingContainer* DeepCopy() const override;
  void NewUid() override { uid_.NewUid(); }

 private:
  /// First index at which the names of old and new list differ.
  int FirstDifference(kprC_StepList const& newList) const;
  bool Put(cow_String const& key, Holder const& object);
  void NoteUpdate(cow_String const& key);
  bool FitsInitialStep(T const& object, kprC_StepList const& newList) const;
  static bool FitsStep(T const& object, kprC_StepHolder const& procedure);
  void SuppressInvalid(cow_String const& key, bool byStep, bool keep);
  kprC_RegionUse RegionUse() const;

  kprC_StepList procedures;
  cls_xcBtree<cow_String, Holder, T> map;
  cls_xoList<rgnC_Region> danglingRegions;
  double timeStamp_ = 0.0;
  cow_List<cow_String> deltaList_;
  cow_List<cow_String> invalidKeys_;
};

template <class T>
cls_AttributeTable const& kprC_PropagatingContainer<T>::Attributes() {
  using Self = kprC_PropagatingContainer<T>;
  static auto const table = cls_Describe<Self, mdl_Repository>(cls_InstanceOf<Self>::name, 510)
                                .Attribute("map", &Self::map)
                                .Attribute("procedures", &Self::procedures)
                                .Attribute("danglingRegions", &Self::danglingRegions);
  return table;
}

/// Walks the keys that the repository had when the walk began, over a shared copy of it.
template <class T>
class kprC_PropagatingContainerIT {
 public:
  explicit kprC_PropagatingContainerIT(kprC_PropagatingContainer<T> const& container)
      : container_(container), keys_(container.Keys()) {}

  void First() { index_ = 0; }
  void Next() { ++index_; }
  bool IsDone() const { return index_ >= keys_.Length(); }
  cow_String const& CurrentKey() const { return keys_[index_]; }
  T const& CurrentValue() const { return container_.ConstGet(CurrentKey()); }

 private:
  kprC_PropagatingContainer<T> const container_;
  cow_List<cow_String> const keys_;
  int index_ = 0;
};
