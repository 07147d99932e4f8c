#pragma once

#include "TVOExport.h"
#include "cls_Uid.h"
#include "cow_COW.h"
#include "mem_Allocation.h"

class cls_AttributeTable;
class cls_ReadVisitor;
class cls_WriteVisitor;

/// Base of every class that is stored: an object with an identity and a table of attributes.
///
/// A class declares itself by CLS_PERSISTENT or CLS_ABSTRACT in its body and by one definition of Attributes() in its
/// source; writing, reading, new identities, deep copy and comparison follow from that table.
/// One identity serves an object with all levels of its class.
class TVO_API cls_Persistent : public mem_AllocationOperators {
 public:
  virtual ~cls_Persistent();

  virtual unsigned int DynTypeId() const = 0;
  virtual cls_AttributeTable const& DynAttributes() const = 0;
  /// A new object of the same class with the same values and identities; the caller owns it.
  virtual cls_Persistent* Copy() const = 0;
  virtual void DBWrite(cls_WriteVisitor const& writer) const;
  /// New identities for the object and all that is embedded in it.
  virtual void NewUid();

  cls_Uid const& Uid() const noexcept { return uid_; }
  void SetStoredUid(cls_Uid const& uid) noexcept { uid_ = uid; }

 protected:
  cls_Persistent() = default;
  cls_Persistent(cls_Persistent const&) = default;
  cls_Persistent& operator=(cls_Persistent const&) = default;

  cls_Uid uid_;
};

/// Equality of two objects by their class and the values of their attributes; identities take no part.
TVO_API bool cls_EqualValues(cls_Persistent const& a, cls_Persistent const& b);

/// A holder whose static type is lost. It may stand for a holder of any class that the registry knows, and for that alone.
using cls_UntypedHolder = cow_COW<int, cow_Direct<int>>;

/// Drops what the holder of a T holds; the last one that shares the object deletes it. The holder is null afterwards.
template <class T>
void cls_DropHolder(cls_UntypedHolder* holder) noexcept {
  reinterpret_cast<cow_CountedHld<T>*>(holder)->DropReference();
}

/// What a concrete class and an abstract one have in common. `Module` is the prefix of the list that numbers the class.
#define CLS_COMMON(Module, Class)                                                              \
 public:                                                                                       \
  static constexpr unsigned int TypeId() noexcept { return Module##_TypeId(#Class); }          \
  static cls_AttributeTable const& Attributes();                                               \
  static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_Register<Class>(registrar); }

/// In the body of a concrete persistent class, which has a default constructor.
#define CLS_PERSISTENT(Module, Class)                                                          \
  CLS_COMMON(Module, Class)                                                                    \
  CLS_CONCRETE_OPERATIONS(Class)

#define CLS_CONCRETE_OPERATIONS(Class)                                                         \
 public:                                                                                       \
  explicit Class(cls_ReadVisitor const& reader) : Class() { cls_ReadLevels(*this, reader); }   \
  static Class* Ctor(cls_ReadVisitor& reader) { return new Class(reader); }                    \
  unsigned int DynTypeId() const override { return TypeId(); }                                 \
  cls_AttributeTable const& DynAttributes() const override { return Attributes(); }            \
  Class* Copy() const override { return new Class(*this); }                                    \
  static void Dtor(cls_UntypedHolder* holder) { cls_DropHolder<Class>(holder); }

/// In the body of an abstract persistent class.
#define CLS_ABSTRACT(Module, Class)                                                            \
  CLS_COMMON(Module, Class)                                                                    \
 public:                                                                                       \
  Class* Copy() const override = 0;                                                            \
  static void CowDtor(cls_UntypedHolder* holder) { cls_DropHolder<Class>(holder); }

class cls_ClassRegistrar;

/// Registers the metadata that follow from T's table of attributes.
template <class T>
void cls_Register(cls_ClassRegistrar& registrar);

/// Reads all levels of an object from the row that the visitor stands on, its identity included.
TVO_API void cls_ReadLevels(cls_Persistent& object, cls_ReadVisitor const& reader);

/// Name and identifier of one instance of a persistent class template; given by CLS_INSTANCE beside the module's classes.
template <class T>
struct cls_InstanceOf;

/// `CLS_INSTANCE(kbcC, kprC_PropagatingContainer<kbcC_BC>);` ties the instance to its row in the module's list.
#define CLS_INSTANCE(Module, ...)                                                    \
  template <>                                                                        \
  struct cls_InstanceOf<__VA_ARGS__> {                                               \
    static constexpr char const* name = #__VA_ARGS__;                                \
    static constexpr unsigned int typeId = Module##_TypeId(#__VA_ARGS__);            \
  }

/// In the body of a persistent class template whose instances are given by CLS_INSTANCE.
#define CLS_PERSISTENT_TEMPLATE(Class)                                                                   \
 public:                                                                                                 \
  static constexpr unsigned int TypeId() noexcept { return cls_InstanceOf<Class>::typeId; }              \
  static cls_AttributeTable const& Attributes();                                                         \
  static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_Register<Class>(registrar); }      \
  CLS_CONCRETE_OPERATIONS(Class)
