#pragma once

#include <unordered_map>
#include <vector>

#include "kprC_StepObject.h"
#include "mdl_Extension.h"

/// A list that holds the region if it is of the type that is asked for.
TVO_API cls_xoList<rgnC_Region> kprC_RegionsOfType(rgnC_Region const& region, rgnC_RegionType type);

/// How many objects of a repository refer to each region.
class TVO_API kprC_RegionUse {
 public:
  void Add(cls_xoList<rgnC_Region> const& regions);
  /// Takes the references of one object away; those of its regions, in their order, that nothing refers to now.
  cls_xoList<rgnC_Region> Drop(cls_xoList<rgnC_Region> const& regions);
  /// Those of `regions`, in their order, that nothing refers to.
  cls_xoList<rgnC_Region> Unused(cls_xoList<rgnC_Region> const& regions) const;

 private:
  struct Count {
    rgnC_Region region;
    int uses;
  };
  Count* Find(rgnC_Region const& region);
  std::unordered_map<cow_String, std::vector<Count>> byName_;
};

/// One menu of the types that can be created in a step: its name ("mechanical") and the labels on offer.
struct kprC_OfferedMenu {
  cow_String name;
  cow_List<cow_String> labels;
};

/// A repository of step-dependent objects, as callers see it that do not know its family.
///
/// It mirrors the model's list of steps and is the one place at which a change of that list is carried to every object.
/// All visits go through Keys(), in ascending order. A failed operation leaves earlier objects changed: undo belongs to
/// whoever keeps a copy, which costs constant time.
class TVO_API kprC_StepRepository : public mdl_Repository {
 public:
  kprC_StepRepository* Copy() const override = 0;

  /// Name under which scripts know the repository, such as "boundaryConditions".
  virtual char const* RepositoryName() const = 0;
  /// What can be created in a step of that procedure (0: the initial step), menu by menu.
  virtual cow_List<kprC_OfferedMenu> OfferedTypes(int procedure) const = 0;

  /// The repository's copy of the model's steps.
  virtual kprC_StepList const& Procedures() const noexcept = 0;
  /// Keys in ascending order.
  virtual cow_List<cow_String> Keys() const = 0;
  virtual bool IsMember(cow_String const& key) const = 0;
  bool IsEmpty() const { return Size() == 0; }
  /// Objects that nothing suppresses.
  virtual int UnsuppressedSize() const = 0;
  /// The object, for reading or made exclusive for writing (which notes a change). An unknown key is refused with the key.
  virtual kprC_StepObject const& ConstGetObject(cow_String const& key) const = 0;
  virtual kprC_StepObject& GetObject(cow_String const& key) = 0;
  /// Takes a private copy, initialized from the list of steps and validated. `object` must be of the family.
  virtual bool InsertObject(cow_String const& key, kprC_StepObject const& object) = 0;
  /// Whether objects of that class belong here.
  virtual bool Holds(unsigned int typeId) const = 0;
  virtual bool Remove(cow_String const& key) = 0;

  /// Carries a change of the model's steps to all objects; to be called once after each change. The changed step is named
  /// only for a suppression or resumption.
  virtual void UpdateSteps(kprC_StepList const& newList, cow_String const& changedStep, bool suppress) = 0;

  /// Regions that the latest step changes left without any object; reading empties the list.
  virtual cls_xoList<rgnC_Region> DanglingRegions() = 0;
  /// Objects that the last UpdateSteps forced into suppression.
  virtual cow_List<cow_String> const& InvalidKeys() const = 0;
  /// Keys touched since ResetDeltaList.
  virtual cow_List<cow_String> const& DeltaList() const = 0;
  virtual void ResetDeltaList() = 0;
};
