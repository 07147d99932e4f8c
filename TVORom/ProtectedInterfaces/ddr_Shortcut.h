#pragma once

#include <concepts>
#include <string>

#include "ddr_Model.h"
#include "ddr_ShortcutBaseImpl.h"
#include "nex_DynamicCast.h"
#include "nex_Exception.h"

/// A path from a model to an object of class T.
template <class T>
class TVO_API ddr_ShortcutImpl : public ddr_ShortcutBaseImpl {
 public:
  static constexpr unsigned int TypeId() noexcept { return cls_InstanceOf<ddr_ShortcutImpl>::typeId; }
  static cls_AttributeTable const& Attributes();
  static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_Register<ddr_ShortcutImpl>(registrar); }
  ddr_ShortcutImpl* Copy() const override = 0;
  static void CowDtor(cls_UntypedHolder* holder) { cls_DropHolder<ddr_ShortcutImpl>(holder); }

  /// The object in that model, made exclusive for writing or for reading. A path that leads nowhere is refused:
  /// nex_CmdException<cow_String, 1>.
  virtual T& Get(ddr_DdbContainer& model) const = 0;
  virtual T const& ConstGet(ddr_DdbContainer const& model) const = 0;
};

template <class T>
cls_AttributeTable const& ddr_ShortcutImpl<T>::Attributes() {
  static auto const table = cls_Describe<ddr_ShortcutImpl<T>>(cls_InstanceOf<ddr_ShortcutImpl<T>>::name, 203);
  return table;
}

/// A reference to an object of class T that is stored with the model and survives saving and reading, or no reference.
/// Copies share the path.
template <class T>
class TVO_API ddr_Shortcut final : public cls_Persistent {
  CLS_PERSISTENT_TEMPLATE(ddr_Shortcut)

 public:
  ddr_Shortcut() = default;
  /// Takes ownership.
  explicit ddr_Shortcut(ddr_ShortcutImpl<T>* impl) : impl_(impl) {}

  bool HasValue() const noexcept { return impl_.HasValue(); }
  // As those of ddr_ShortcutBaseImpl; empty without a value.
  cow_String Name() const { return HasValue() ? impl_.ConstGet().Name() : cow_String(); }
  cow_String Path() const { return HasValue() ? impl_.ConstGet().Path() : cow_String(); }
  cow_String PythonPath() const { return HasValue() ? impl_.ConstGet().PythonPath() : cow_String(); }

  /// The object in that model. A shortcut without a value, or whose path leads nowhere, is refused.
  T& Get(ddr_DdbContainer& model) const { return Impl().Get(model); }
  T const& ConstGet(ddr_DdbContainer const& model) const { return Impl().ConstGet(model); }
  /// The path itself. A shortcut without a value is refused: nex_CmdException<cow_String, 1>.
  ddr_ShortcutImpl<T> const& Impl() const {
    if (!HasValue()) nex_CmdException<cow_String, 1>("The shortcut has no value.").Throw(__FILE__, __LINE__);
    return impl_.ConstGet();
  }

  static void CowDtor(cls_UntypedHolder* holder) { Dtor(holder); }

 private:
  cow_COW<ddr_ShortcutImpl<T>, cow_Virtual<ddr_ShortcutImpl<T>>> impl_;
};

template <class T>
cls_AttributeTable const& ddr_Shortcut<T>::Attributes() {
  using Self = ddr_Shortcut<T>;
  static auto const table = cls_Describe<Self>(cls_InstanceOf<Self>::name, 203).Attribute("impl", &Self::impl_);
  return table;
}

/// The member of class T of an object of class P; specialised beside T with
///
///     static char const* Name();            // by which the model knows it
///     static char const* ScriptingName();   // by which scripts know it
///
/// and, if it is not an extension of a model, `T& Get(P&)` and `T const& ConstGet(P const&)`.
template <class P, class T>
struct ddr_MemberOf;

/// The path to a member of a parent: of the model itself, or of an object that another path leads to.
template <class P, class T, int n>
class TVO_API ddr_MemberShortcut final : public ddr_ShortcutImpl<T> {
  CLS_PERSISTENT_TEMPLATE(ddr_MemberShortcut)

 public:
  ddr_MemberShortcut() = default;
  explicit ddr_MemberShortcut(ddr_Shortcut<P> parent)
    requires(!std::derived_from<P, ddr_DdbContainer>)
      : parent_(std::move(parent)) {}

  cow_String Name() const override { return Member::Name(); }
  cow_String Path() const override { return this->Joined(ParentPath(), Name()); }
  cow_String PythonPath() const override {
    if constexpr (ofModel) {
      return Member::ScriptingName();
    } else {
      return this->Joined(parent_.PythonPath(), Member::ScriptingName());
    }
  }

  P& GetParent(ddr_DdbContainer& model) const {
    if constexpr (ofModel) {
      nex_canDynamicCastRef(P::TypeId(), model.DynTypeId(), __FILE__, __LINE__);
      return static_cast<P&>(model);
    } else {
      return parent_.Get(model);
    }
  }
  P const& ConstGetParent(ddr_DdbContainer const& model) const {
    if constexpr (ofModel) {
      nex_canDynamicCastRef(P::TypeId(), model.DynTypeId(), __FILE__, __LINE__);
      return static_cast<P const&>(model);
    } else {
      return parent_.ConstGet(model);
    }
  }
  T& Get(ddr_DdbContainer& model) const override {
    P& parent = GetParent(model);
    if constexpr (requires { Member::Get(parent); }) {
      return Member::Get(parent);
    } else {
      if (!parent.HasExtension(Name())) this->RefuseUnresolved();
      mdl_Extension& extension = parent.GetExtension(Name());
      nex_canDynamicCastRef(T::TypeId(), extension.DynTypeId(), __FILE__, __LINE__);
      return static_cast<T&>(extension);
    }
  }
  T const& ConstGet(ddr_DdbContainer const& model) const override {
    P const& parent = ConstGetParent(model);
    if constexpr (requires { Member::ConstGet(parent); }) {
      return Member::ConstGet(parent);
    } else {
      if (!parent.HasExtension(Name())) this->RefuseUnresolved();
      mdl_Extension const& extension = parent.ConstGetExtension(Name());
      nex_canDynamicCastRef(T::TypeId(), extension.DynTypeId(), __FILE__, __LINE__);
      return static_cast<T const&>(extension);
    }
  }

 private:
  using Member = ddr_MemberOf<P, T>;
  static constexpr bool ofModel = std::derived_from<P, ddr_DdbContainer>;
  struct None {};

  cow_String ParentPath() const {
    if constexpr (ofModel) {
      return cow_String();
    } else {
      return parent_.Path();
    }
  }

  [[no_unique_address]] std::conditional_t<ofModel, None, ddr_Shortcut<P>> parent_;
};

template <class P, class T, int n>
cls_AttributeTable const& ddr_MemberShortcut<P, T, n>::Attributes() {
  using Self = ddr_MemberShortcut<P, T, n>;
  static auto const table = [] {
    cls_Describe<Self, ddr_ShortcutImpl<T>> described(cls_InstanceOf<Self>::name, 203);
    if constexpr (!ofModel) described.Attribute("parent", &Self::parent_);
    return described;
  }();
  return table;
}

/// What the paths to an element of a container have in common: the path to the container.
template <class C, class T>
class TVO_API ddr_ElementShortcut : public ddr_ShortcutImpl<T> {
 public:
  ddr_ElementShortcut* Copy() const override = 0;
  cow_String Path() const override { return this->Joined(parent_.Path(), this->Name()); }
  cow_String PythonPath() const override { return parent_.PythonPath() + "[" + Subscript() + "]"; }
  C& GetParent(ddr_DdbContainer& model) const { return parent_.Get(model); }
  C const& ConstGetParent(ddr_DdbContainer const& model) const { return parent_.ConstGet(model); }

 protected:
  ddr_ElementShortcut() = default;
  explicit ddr_ElementShortcut(ddr_Shortcut<C> parent) : parent_(std::move(parent)) {}
  /// The element's place in brackets of the scripting language.
  virtual cow_String Subscript() const = 0;

  /// The object of an element that is the object itself or a counted holder of it.
  template <class Element>
  static T& ObjectOf(Element& element) {
    if constexpr (std::derived_from<Element, T>) {
      return element;
    } else {
      return element.Get();
    }
  }
  template <class Element>
  static T const& ConstObjectOf(Element const& element) {
    if constexpr (std::derived_from<Element, T>) {
      return element;
    } else {
      return element.ConstGet();
    }
  }

  ddr_Shortcut<C> parent_;
};

/// The path to the object under a key of a container: a repository, or a map of names to objects.
template <class C, class T, int n>
class TVO_API ddr_DictionaryShortcut final : public ddr_ElementShortcut<C, T> {
  CLS_PERSISTENT_TEMPLATE(ddr_DictionaryShortcut)

 public:
  ddr_DictionaryShortcut() = default;
  ddr_DictionaryShortcut(ddr_Shortcut<C> parent, cow_String const& key)
      : ddr_ElementShortcut<C, T>(std::move(parent)), key_(key) {}

  cow_String const& Key() const noexcept { return key_; }
  cow_String Name() const override { return key_; }
  T& Get(ddr_DdbContainer& model) const override {
    C& container = this->GetParent(model);
    if (!container.IsMember(key_)) this->RefuseUnresolved();
    return this->ObjectOf(container.Get(key_));
  }
  T const& ConstGet(ddr_DdbContainer const& model) const override {
    C const& container = this->ConstGetParent(model);
    if (!container.IsMember(key_)) this->RefuseUnresolved();
    return this->ConstObjectOf(container.ConstGet(key_));
  }

 private:
  cow_String Subscript() const override { return this->Quoted(key_); }

  cow_String key_;
};

template <class C, class T, int n>
cls_AttributeTable const& ddr_DictionaryShortcut<C, T, n>::Attributes() {
  using Self = ddr_DictionaryShortcut<C, T, n>;
  static auto const table = cls_Describe<Self, ddr_ShortcutImpl<T>>(cls_InstanceOf<Self>::name, 203)
                                .Attribute("parent", &Self::parent_)
                                .Attribute("key", &Self::key_);
  return table;
}

/// The path to the object at a place of a list, counted from 0.
template <class C, class T, int n>
class TVO_API ddr_SequenceShortcut final : public ddr_ElementShortcut<C, T> {
  CLS_PERSISTENT_TEMPLATE(ddr_SequenceShortcut)

 public:
  ddr_SequenceShortcut() = default;
  ddr_SequenceShortcut(ddr_Shortcut<C> parent, int index)
      : ddr_ElementShortcut<C, T>(std::move(parent)), index_(index) {}

  int Index() const noexcept { return index_; }
  cow_String Name() const override { return cow_String(std::to_string(index_)); }
  T& Get(ddr_DdbContainer& model) const override {
    C& list = this->GetParent(model);
    Check(list);
    return this->ObjectOf(list.Get(index_));
  }
  T const& ConstGet(ddr_DdbContainer const& model) const override {
    C const& list = this->ConstGetParent(model);
    Check(list);
    return this->ConstObjectOf(list.ConstGet(index_));
  }

 private:
  cow_String Subscript() const override { return Name(); }
  void Check(C const& list) const {
    if (index_ < 0 || index_ >= list.Length()) this->RefuseUnresolved();
  }

  int index_ = 0;
};

template <class C, class T, int n>
cls_AttributeTable const& ddr_SequenceShortcut<C, T, n>::Attributes() {
  using Self = ddr_SequenceShortcut<C, T, n>;
  static auto const table = cls_Describe<Self, ddr_ShortcutImpl<T>>(cls_InstanceOf<Self>::name, 203)
                                .Attribute("parent", &Self::parent_)
                                .Attribute("index", &Self::index_);
  return table;
}

/// Ties the shortcuts of a container of the model, and of the objects in it by key, to their rows in the module's list.
#define DDR_CONTAINER_SHORTCUTS(Module, Container, Object)                \
  CLS_INSTANCE(Module, ddr_Shortcut<Object>);                             \
  CLS_INSTANCE(Module, ddr_ShortcutImpl<Object>);                         \
  CLS_INSTANCE(Module, ddr_DictionaryShortcut<Container, Object, 1>);     \
  CLS_INSTANCE(Module, ddr_Shortcut<Container>);                          \
  CLS_INSTANCE(Module, ddr_ShortcutImpl<Container>);                      \
  CLS_INSTANCE(Module, ddr_MemberShortcut<ddr_Model, Container, 1>)
/// The same classes as lines of the module's list of classes.
#define DDR_CONTAINER_SHORTCUT_CLASSES(Container, Object)     \
  CLASS(7, ddr_Shortcut<Object>)                              \
  CLASS(7, ddr_ShortcutImpl<Object>)                          \
  CLASS(7, ddr_DictionaryShortcut<Container, Object, 1>)      \
  CLASS(7, ddr_Shortcut<Container>)                           \
  CLASS(7, ddr_ShortcutImpl<Container>)                       \
  CLASS(7, ddr_MemberShortcut<ddr_Model, Container, 1>)
