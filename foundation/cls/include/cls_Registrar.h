#pragma once

#include <map>
#include <memory>
#include <vector>

#include "TVOExport.h"
#include "cls_AttributeTable.h"
#include "omi_Singleton.h"

/// A class as the registry knows it: name, identifier, version, base, attributes, and how to make an object of it.
class TVO_API cls_ClassMetadata {
 public:
  /// `kind` is 1 for every class and tells nothing.
  cls_ClassMetadata(cow_String name, unsigned int typeId, int version, void* (*ctor)(cls_ReadVisitor&), unsigned int kind,
                    unsigned int parentTypeId = 0);
  virtual ~cls_ClassMetadata();

  cow_String const& Name() const noexcept { return name_; }
  unsigned int TypeId() const noexcept { return typeId_; }
  int Version() const noexcept { return version_; }
  unsigned int ParentTypeId() const noexcept { return parentTypeId_; }
  std::vector<cls_DeclaredAttribute> const& Declared() const noexcept { return declared_; }

  /// Declares an attribute; to be chained.
  cls_ClassMetadata& AddAttribute(cls_FieldHandle const& field, cls_AttributeType type, unsigned int typeId,
                                  cls_CollectionType collection);
  /// Declares what the class itself adds in its table.
  cls_ClassMetadata& AddAttributes(cls_AttributeTable const& table);
  /// What drops a holder of the class whose static type is lost; to be chained.
  cls_ClassMetadata& AddDtor(void (*dtor)(cls_UntypedHolder*));

  /// The live class's table, null for a class that is only declared.
  virtual cls_AttributeTable const* Attributes() const { return nullptr; }
  // In what follows `object` is of this class or of one derived from it.
  virtual void DBWrite(void const* object, cls_WriteVisitor const& writer) const;
  /// Destroys the object and frees its memory.
  virtual void Delete(void* object) const;
  /// Drops what the holder of an object holds and leaves it null; nothing happens without AddDtor.
  void DeleteCow(cls_UntypedHolder* holder) const;
  /// A new object read from a row, or null for a class that cannot be built. The caller owns it.
  virtual cls_Persistent* Ctor(cls_ReadVisitor const& reader) const;
  /// A new object with default values, or null for an abstract class. The caller owns it.
  virtual cls_Persistent* New() const { return nullptr; }

 private:
  cow_String name_;
  unsigned int typeId_;
  int version_;
  void* (*ctor_)(cls_ReadVisitor&);
  unsigned int parentTypeId_;
  void (*dtor_)(cls_UntypedHolder*) = nullptr;
  std::vector<cls_DeclaredAttribute> declared_;
};

/// Metadata of an abstract class, which cannot be built by itself.
template <class T>
class cls_AbsTypeAdapter : public cls_ClassMetadata {
 public:
  cls_AbsTypeAdapter(cow_String const& name, int version, unsigned int parentTypeId)
      : cls_ClassMetadata(name, T::TypeId(), version, nullptr, 1, parentTypeId) {}

  cls_AttributeTable const* Attributes() const override { return &T::Attributes(); }
  void DBWrite(void const* object, cls_WriteVisitor const& writer) const override {
    static_cast<T const*>(object)->DBWrite(writer);
  }
  void Delete(void* object) const override { delete static_cast<T*>(object); }
};

template <class T>
class cls_TypeAdapter final : public cls_AbsTypeAdapter<T> {
 public:
  using cls_AbsTypeAdapter<T>::cls_AbsTypeAdapter;

  cls_Persistent* Ctor(cls_ReadVisitor const& reader) const override { return new T(reader); }
  cls_Persistent* New() const override { return new T(); }
};

/// The registry of the present classes.
class TVO_API cls_ClassRegistrar {
 public:
  cls_ClassRegistrar();
  ~cls_ClassRegistrar();
  cls_ClassRegistrar(cls_ClassRegistrar const&) = delete;
  cls_ClassRegistrar& operator=(cls_ClassRegistrar const&) = delete;

  /// The registry that the modules fill at start-up.
  static cls_ClassRegistrar& Present();

  /// Declares a class by its base's type identifier, or 1 for a class without one. The registrar owns the result.
  cls_ClassMetadata& CreateClassMD(cow_String const& name, unsigned int typeId, int version, void* (*ctor)(cls_ReadVisitor&),
                                   unsigned int base);
  /// Takes the metadata of a class. A class registered twice is refused, with both names.
  cls_ClassMetadata& AddClassMD(cls_ClassMetadata* metadata);
  /// Forgets a class; nothing happens if it is not known under that name.
  void DeleteClass(cow_String const& name, unsigned int typeId);
  void Clear();

  cls_ClassMetadata const* Find(unsigned int typeId) const;
  cls_ClassMetadata const* FindByName(std::string_view name) const;
  /// The class whose scripting constructor has that name.
  cls_ClassMetadata const* FindByScriptingName(std::string_view name) const;
  /// As Find; an unknown class is refused with its number.
  cls_ClassMetadata const& Get(unsigned int typeId) const;
  /// All classes in ascending order of their identifiers.
  std::map<unsigned int, std::unique_ptr<cls_ClassMetadata>> const& All() const noexcept { return classes_; }

  /// Whether class `derived` is class `base` or derives from it.
  static bool InheritanceCheck(unsigned int derived, unsigned int base);

 private:
  std::map<unsigned int, std::unique_ptr<cls_ClassMetadata>> classes_;
};

/// Collects the registrations of a module's classes and runs them by phase: what others depend on (3, 4) before the rest (7).
class TVO_API cls_MetadataRegistrar : public omi_Singleton<cls_MetadataRegistrar> {
 public:
  void initClassMetadata(void (*registration)(cls_ClassRegistrar&), int phase);
  /// Runs what was given since the last call, lower phases first, within a phase in the order given.
  void RunPhases();

 private:
  struct Pending {
    void (*registration)(cls_ClassRegistrar&);
    int phase;
  };
  std::vector<Pending> pending_;
};

template <class T>
void cls_Register(cls_ClassRegistrar& registrar) {
  cls_AttributeTable const& table = T::Attributes();
  unsigned int const parent = table.Base() == nullptr ? 0 : table.Base()->TypeId();
  if constexpr (std::is_abstract_v<T>) {
    auto* const adapter = new cls_AbsTypeAdapter<T>(table.Name(), table.Version(), parent);
    registrar.AddClassMD(adapter).AddDtor(&T::CowDtor).AddAttributes(table);
  } else {
    auto* const adapter = new cls_TypeAdapter<T>(table.Name(), table.Version(), parent);
    registrar.AddClassMD(adapter).AddDtor(&T::Dtor).AddAttributes(table);
  }
}

/// A new object of that class with the values and identities of `object`, sharing nothing with it. The caller owns it.
TVO_API void* DDB_DeepCopyPtr(void const* object, unsigned int typeId);
