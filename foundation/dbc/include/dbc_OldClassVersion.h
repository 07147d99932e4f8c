#pragma once

#include <memory>
#include <vector>

#include "cls_Registrar.h"
#include "cow_CountedHld.h"

class dbc_DatabaseConverter;

/// A former shape of a class: declares the attributes as they stood and says how a stored row reaches the next shape.
///
/// Old classes have no data; one object of each is registered. dbc_OldClasses.h makes them from tables.
class TVO_API dbc_OldClassVersion {
 public:
  virtual ~dbc_OldClassVersion();
  /// Declares the class as it stood, and no other.
  virtual void InitializeMetadata(cls_ClassRegistrar& registrar) = 0;
  /// Binds to the revision of the next shape what leads to it.
  virtual void SchemaChanges(dbc_DatabaseConverter& converter) = 0;
  /// Lists the classes whose tables are dropped.
  virtual void ClassesToDelete(dbc_DatabaseConverter& converter);
  /// Lists the classes that have another name since.
  virtual void ClassesToRename(dbc_DatabaseConverter& converter);
  /// Brings the rows of a renamed class into the table of its new name.
  virtual void TablesToRename(dbc_DatabaseConverter& converter);
};

/// All old classes of the modules that are up.
class TVO_API dbc_OldClassRegistrar : public omi_Singleton<dbc_OldClassRegistrar> {
 public:
  /// One old class with what it declares.
  struct Entry {
    cow_CountedHld<dbc_OldClassVersion> version;
    unsigned int group = 0;
    std::unique_ptr<cls_ClassRegistrar> declared = {};
    cls_ClassMetadata const* metadata = nullptr;
  };

  /// Enters an old class; the registrar shares the object with the holder. Groups are 1, 4 and 5; others are refused
  /// with nex_PrimException<cow_String, 3>, and so are, at the first question, a class that is entered twice in one
  /// version and an old class that declares nothing.
  void Register(cow_CountedHld<dbc_OldClassVersion>* holder, unsigned int group);
  /// Takes an old class out again; nothing happens if it is not there.
  void Unregister(dbc_OldClassVersion const* version);
  /// Whether no old class is registered.
  bool IsEmpty() const noexcept { return entries_.empty(); }

  /// All old classes: lower numbers first, of equal numbers lower groups first, then in the order of registration.
  std::vector<Entry> const& InOrder();
  /// The class as it stood at that version, or null. Pointers hold until classes are registered or taken out.
  cls_ClassMetadata const* Find(unsigned int typeId, int version);
  /// The class as it stood at the lowest of its old versions that is not below `version`, or null.
  cls_ClassMetadata const* FindFrom(unsigned int typeId, int version);
  /// The numbers at which the class changed, ascending; empty for a class that never did.
  std::vector<int> Versions(unsigned int typeId);

 private:
  void Declare();

  std::vector<Entry> entries_;
  std::map<std::pair<unsigned int, int>, cls_ClassMetadata const*> byVersion_;
  bool declared_ = true;
};
