#pragma once

#include "cls_Codec.h"
#include "omi_complex.h"

/// An attribute that is a member of the class.
template <class C, class M>
class cls_MemberAttribute : public cls_Attribute {
 public:
  using Codec = cls_Codec<M>;
  cls_MemberAttribute(cls_FieldHandle field, M C::*member)
      : cls_Attribute({std::move(field), Codec::type, Codec::DeclaredTypeId(), Codec::collection}), member_(member) {}

  void Write(cls_Persistent const& object, cls_WriteVisitor const& writer) const override {
    Codec::Write(writer, column, Of(object));
  }
  void Read(cls_Persistent& object, cls_ReadVisitor const& reader) const override {
    Codec::Read(reader, column, Of(object));
  }
  bool Equal(cls_Persistent const& a, cls_Persistent const& b) const override { return Codec::Equal(Of(a), Of(b)); }
  void Assign(cls_Persistent& to, cls_Persistent const& from) const override { Of(to) = Of(from); }
  bool HasIdentity() const override { return Codec::hasIdentity; }
  void NewUid(cls_Persistent& object) const override { Codec::NewUid(Of(object)); }
  void Unshare(cls_Persistent& object, cls_DeepCopyContext& context) const override {
    Codec::Unshare(Of(object), context);
  }
  void AssertPartsValid(cls_Persistent const& object) const override { cls_AssertPartsValid(Of(object)); }
  std::string Text(cls_Persistent const& object) const override { return Codec::Text(Of(object)); }
  bool SetText(cls_Persistent& object, std::string_view text) const override { return Codec::SetText(text, Of(object)); }
  char const* Expected() const override { return Codec::expected; }
  cls_Persistent* Embedded(cls_Persistent& object) const override { return Codec::Embedded(Of(object)); }

 private:
  M& Of(cls_Persistent& object) const { return static_cast<C&>(object).*member_; }
  M const& Of(cls_Persistent const& object) const { return static_cast<C const&>(object).*member_; }

  M C::*member_;
};

/// A member that refers to an object of others: its identity is not this object's to change.
template <class C, class M>
class cls_SharedAttribute final : public cls_MemberAttribute<C, M> {
 public:
  using cls_MemberAttribute<C, M>::cls_MemberAttribute;
  bool HasIdentity() const override { return false; }
  void NewUid(cls_Persistent&) const override {}
};

/// A holder that is never null: a row without its object is damaged.
template <class C, class M>
class cls_RequiredAttribute final : public cls_MemberAttribute<C, M> {
 public:
  using cls_MemberAttribute<C, M>::cls_MemberAttribute;
  void Read(cls_Persistent& object, cls_ReadVisitor const& reader) const override {
    cls_MemberAttribute<C, M>::Read(object, reader);
    if (this->Embedded(object) == nullptr) {
      reader.Refuse("an object is missing");
    }
  }
};

/// One part of a complex member, stored in rectangular form under a key of its own.
template <class C>
class cls_ComplexPart final : public cls_Attribute {
 public:
  enum class Part { real, imaginary };
  cls_ComplexPart(cls_FieldHandle field, omi_complex C::*member, Part part)
      : cls_Attribute({std::move(field), cls_AttributeType::Double, cls_PlainValueId, cls_CollectionType::Single}),
        member_(member),
        part_(part) {}

  void Write(cls_Persistent const& object, cls_WriteVisitor const& writer) const override {
    writer.SetDouble(column, Value(object));
  }
  void Read(cls_Persistent& object, cls_ReadVisitor const& reader) const override {
    double value = Value(object);
    cls_Codec<double>::Read(reader, column, value);
    Set(object, value);
  }
  bool Equal(cls_Persistent const& a, cls_Persistent const& b) const override { return cls_IsSame(Value(a), Value(b)); }
  void Assign(cls_Persistent& to, cls_Persistent const& from) const override {
    static_cast<C&>(to).*member_ = Of(from);
  }
  std::string Text(cls_Persistent const& object) const override { return cls_NumberText(Value(object)); }
  bool SetText(cls_Persistent& object, std::string_view text) const override {
    double value = 0.0;
    if (!cls_ReadNumber(text, value)) {
      return false;
    }
    Set(object, value);
    return true;
  }
  char const* Expected() const override { return cls_Codec<double>::expected; }

 private:
  omi_complex const& Of(cls_Persistent const& object) const { return static_cast<C const&>(object).*member_; }
  double Value(cls_Persistent const& object) const {
    return part_ == Part::real ? Of(object).ConvertedReal() : Of(object).ConvertedImag();
  }
  void Set(cls_Persistent& object, double value) const {
    omi_complex& complex = static_cast<C&>(object).*member_;
    complex = part_ == Part::real ? omi_complex(value, complex.ConvertedImag())
                                  : omi_complex(complex.ConvertedReal(), value);
  }

  omi_complex C::*member_;
  Part part_;
};

/// Builds the attribute table of class T, derived from the persistent class Parent if one is given.
///
///     static auto const table = cls_Describe<kbcC_DisplacementBC, kbcC_BC>("kbcC_DisplacementBC", 203)
///         .Attribute(6, "fixed", &kbcC_DisplacementBC::fixed);
///     return table;
///
/// An ordinal that is not given is the position in the order of registration, from 0.
template <class T, class Parent = void>
class cls_Describe : public cls_AttributeTable {
 public:
  cls_Describe(char const* name, int version) : cls_AttributeTable(cow_String(name), version, T::TypeId(), BaseTable()) {}

  /// A member stored as its type says.
  template <class M, class C>
  cls_Describe&& Attribute(int ordinal, char const* key, M C::*member) {
    Add(std::make_unique<cls_MemberAttribute<T, M>>(Field(ordinal, key), static_cast<M T::*>(member)));
    return std::move(*this);
  }
  template <class M, class C>
  cls_Describe&& Attribute(char const* key, M C::*member) {
    return Attribute(NextOrdinal(), key, member);
  }
  /// A holder of an object that belongs to others.
  template <class M, class C>
  cls_Describe&& Shared(int ordinal, char const* key, M C::*member) {
    Add(std::make_unique<cls_SharedAttribute<T, M>>(Field(ordinal, key), static_cast<M T::*>(member)));
    return std::move(*this);
  }
  /// A holder that is never null.
  template <class M, class C>
  cls_Describe&& Required(char const* key, M C::*member) {
    Add(std::make_unique<cls_RequiredAttribute<T, M>>(Field(NextOrdinal(), key), static_cast<M T::*>(member)));
    return std::move(*this);
  }
  /// A complex member under two keys with ordinals in sequence.
  template <class C>
  cls_Describe&& Complex(int ordinal, char const* realKey, char const* imaginaryKey, omi_complex C::*member) {
    using Part = cls_ComplexPart<T>;
    auto const own = static_cast<omi_complex T::*>(member);
    Add(std::make_unique<Part>(Field(ordinal, realKey), own, Part::Part::real));
    Add(std::make_unique<Part>(Field(ordinal + 1, imaginaryKey), own, Part::Part::imaginary));
    return std::move(*this);
  }
  /// Scripting name of the constructor; scripts and drivers make objects by it.
  cls_Describe&& Constructor(char const* scriptingName) {
    scriptingName_ = cow_String(scriptingName);
    return std::move(*this);
  }
  /// The class of the object's value in a step.
  template <class State>
  cls_Describe&& VariesBy() {
    stepState_ = &State::Attributes;
    return std::move(*this);
  }

 private:
  static cls_AttributeTable const* BaseTable() {
    if constexpr (std::is_void_v<Parent>) {
      return nullptr;
    } else {
      return &Parent::Attributes();
    }
  }
  static cls_FieldHandle Field(int ordinal, char const* key) { return {ordinal, cow_String(key)}; }
  int NextOrdinal() const { return static_cast<int>(Own().size()); }
};
