#pragma once

#include <charconv>
#include <concepts>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

#include "cls_AttributeTable.h"
#include "cow_COW.h"
#include "cow_List.h"
#include "cow_Map.h"
#include "omi_complex.h"

/// How values of type M are stored, compared, copied and typed: one specialisation for each kind of member.
template <class M>
struct cls_Codec;

/// Whether two values are the same, as their codec says if they have one. What is no number is the same as another that
/// is none, or a model that holds it would not equal its own copy.
template <class V>
bool cls_IsSame(V const& a, V const& b) {
  if constexpr (std::floating_point<V>) {
    return a == b || (a != a && b != b);
  } else if constexpr (std::same_as<V, omi_complex>) {
    return a.Representation() == b.Representation() && cls_IsSame(a.First(), b.First()) &&
           cls_IsSame(a.Second(), b.Second());
  } else {
    return cls_Codec<V>::Equal(a, b);
  }
}

/// What kinds of values have in common that hold no objects.
template <class M, cls_AttributeType Type>
struct cls_PlainCodec {
  static constexpr cls_AttributeType type = Type;
  static constexpr cls_CollectionType collection = cls_CollectionType::Single;
  static constexpr unsigned int DeclaredTypeId() { return cls_PlainValueId; }
  static constexpr bool hasIdentity = false;
  static bool Equal(M const& a, M const& b) { return a == b; }
  static void NewUid(M&) {}
  static void Unshare(M&, cls_DeepCopyContext&) {}
  static cls_Persistent* Embedded(M&) { return nullptr; }
};

/// Numbers that are not given: the largest of their kind.
template <class Number>
inline constexpr Number cls_NotGiven = std::numeric_limits<Number>::max();

/// The shortest text that reads back equal; "(default)" for a number that is not given.
template <class Number>
std::string cls_NumberText(Number value) {
  if (value == cls_NotGiven<Number>) {
    return "(default)";
  }
  char text[32];
  auto const end = std::to_chars(text, text + sizeof text, value);
  return std::string(text, end.ptr);
}

template <class Number>
bool cls_ReadNumber(std::string_view text, Number& value) {
  if (text == "(default)") {
    value = cls_NotGiven<Number>;
    return true;
  }
  Number read{};
  auto const end = std::from_chars(text.data(), text.data() + text.size(), read);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size() || read != read) {
    return false;
  }
  value = read;
  return true;
}

template <>
struct cls_Codec<bool> : cls_PlainCodec<bool, cls_AttributeType::Bool> {
  static void Write(cls_WriteVisitor const& writer, int column, bool value) { writer.SetWord(column, std::uint32_t{value}); }
  static void Read(cls_ReadVisitor const& reader, int column, bool& value) {
    if (cls_Column const* cells = reader.Cells(column)) {
      value = cells->words[reader.Row()] != 0;
    }
  }
  static std::string Text(bool value) { return value ? "true" : "false"; }
  static bool SetText(std::string_view text, bool& value) {
    value = text == "true";
    return value || text == "false";
  }
  static constexpr char const* expected = "true or false";
};

template <class Number, cls_AttributeType Type>
struct cls_WordCodec : cls_PlainCodec<Number, Type> {
  static void Write(cls_WriteVisitor const& writer, int column, Number value) {
    writer.SetWord(column, static_cast<std::uint32_t>(value));
  }
  static void Read(cls_ReadVisitor const& reader, int column, Number& value) {
    if (cls_Column const* cells = reader.Cells(column)) {
      value = static_cast<Number>(cells->words[reader.Row()]);
    }
  }
  static std::string Text(Number value) { return cls_NumberText(value); }
  static bool SetText(std::string_view text, Number& value) { return cls_ReadNumber(text, value); }
  static constexpr char const* expected = "an integer";
};

template <>
struct cls_Codec<int> : cls_WordCodec<int, cls_AttributeType::Int> {};
template <>
struct cls_Codec<unsigned int> : cls_WordCodec<unsigned int, cls_AttributeType::Counter> {};

template <>
struct cls_Codec<double> : cls_PlainCodec<double, cls_AttributeType::Double> {
  static bool Equal(double a, double b) { return cls_IsSame(a, b); }
  static void Write(cls_WriteVisitor const& writer, int column, double value) { writer.SetDouble(column, value); }
  static void Read(cls_ReadVisitor const& reader, int column, double& value) {
    if (cls_Column const* cells = reader.Cells(column)) {
      value = cells->doubles[reader.Row()];
    }
  }
  static std::string Text(double value) { return cls_NumberText(value); }
  static bool SetText(std::string_view text, double& value) { return cls_ReadNumber(text, value); }
  static constexpr char const* expected = "a number";
};

template <>
struct cls_Codec<cow_String> : cls_PlainCodec<cow_String, cls_AttributeType::String> {
  static void Write(cls_WriteVisitor const& writer, int column, cow_String const& value) {
    writer.SetWord(column, writer.Session().StringNumber(value));
  }
  static void Read(cls_ReadVisitor const& reader, int column, cow_String& value) {
    if (cls_Column const* cells = reader.Cells(column)) {
      value = reader.Session().Database().String(cells->words[reader.Row()]);
    }
  }
  static std::string Text(cow_String const& value) { return std::string(value.View()); }
  static bool SetText(std::string_view text, cow_String& value) {
    value = cow_String(text);
    return true;
  }
  static constexpr char const* expected = "a text";
};

/// A class whose objects a person names by one text, such as a region.
template <class T>
concept cls_Named = requires(T object, std::string_view text) {
  { object.Text() } -> std::convertible_to<std::string>;
  object.SetText(text);
};

/// An object embedded by value: always of the member's own class, reached through its owner alone.
template <class T>
  requires std::derived_from<T, cls_Persistent>
struct cls_Codec<T> {
  static constexpr cls_AttributeType type = cls_AttributeType::Object;
  static constexpr cls_CollectionType collection = cls_CollectionType::Single;
  static unsigned int DeclaredTypeId() { return T::TypeId(); }
  static constexpr bool hasIdentity = true;

  static void Write(cls_WriteVisitor const& writer, int column, T const& value) {
    if constexpr (std::same_as<decltype(&T::DBWrite), decltype(&cls_Persistent::DBWrite)>) {
      writer.SetPart(column, value, T::Attributes());
    } else {
      writer.SetObject(column, value, false);  // the class has a way of its own
    }
  }
  static void Read(cls_ReadVisitor const& reader, int column, T& value) {
    cls_ReadVisitor const inner = reader.Enter(column, T::TypeId());
    if (inner.HasRow()) {
      ReadInto(inner, value);
    }
  }
  /// Reads the object of a row; one that other places refer to as well is read once and copied.
  static void ReadInto(cls_ReadVisitor const& inner, T& value) {
    if (inner.StoredTypeId() != T::TypeId()) {
      inner.Refuse("refers to an object of another kind");
    }
    cls_ReadSession::Shared* const shared = inner.Session().FindShared(inner.Table(), inner.Row());
    if (shared == nullptr) {
      cls_ReadLevels(value, inner);
      return;
    }
    if (shared->object == nullptr) {
      if (shared->reading) {
        inner.Refuse("an object holds itself");
      }
      shared->reading = true;
      auto object = std::make_unique<T>();
      cls_ReadLevels(*object, inner);
      shared->object = std::move(object);
      shared->reading = false;
    }
    value = static_cast<T const&>(*shared->object);
  }
  static bool Equal(T const& a, T const& b) {
    if constexpr (requires { { a == b } -> std::same_as<bool>; }) {
      return a == b;
    } else {
      return cls_EqualValues(a, b);
    }
  }
  static void NewUid(T& value) { value.NewUid(); }
  static void Unshare(T& value, cls_DeepCopyContext& context) { T::Attributes().Unshare(value, context); }
  static cls_Persistent* Embedded(T& value) { return &value; }
  static std::string Text(T const& value) {
    if constexpr (cls_Named<T>) {
      return value.Text();
    } else {
      return std::string(T::Attributes().Name().View());
    }
  }
  static bool SetText([[maybe_unused]] std::string_view text, [[maybe_unused]] T& value) {
    if constexpr (cls_Named<T>) {
      value.SetText(text);
      return true;
    } else {
      return false;
    }
  }
  static constexpr char const* expected = cls_Named<T> ? "a name" : "no text: an object stands here";
};

/// Builds the object of a row by its stored class.
TVO_API cls_Persistent* cls_ConstructStored(cls_ReadVisitor& reader);

/// An object behind a counted holder: of the holder's class or one derived from it, perhaps shared, perhaps absent.
template <class T, class Policy>
struct cls_Codec<cow_COW<T, Policy>> {
  using Holder = cow_COW<T, Policy>;
  static constexpr cls_AttributeType type = cls_AttributeType::Object;
  static constexpr cls_CollectionType collection = cls_CollectionType::Single;
  static unsigned int DeclaredTypeId() { return T::TypeId(); }
  static constexpr bool hasIdentity = true;

  static void Write(cls_WriteVisitor const& writer, int column, Holder const& holder) {
    if (holder.IsNull()) {
      writer.SetWord(column, std::uint32_t{0});
      writer.SetWord(column + 1, cls_NoRow);
    } else {
      writer.SetObject(column, holder.ConstGet(), !holder.Exclusive());
    }
  }
  static void Read(cls_ReadVisitor const& reader, int column, Holder& holder) {
    cls_ReadVisitor inner = reader.Enter(column, T::TypeId());
    holder = inner.HasRow() ? ReadHolder(inner) : Holder();
  }
  static Holder ReadHolder(cls_ReadVisitor& inner) {
    cls_ReadSession::Shared* const shared = inner.Session().FindShared(inner.Table(), inner.Row());
    if (shared == nullptr) {
      return Holder(Construct(inner));
    }
    static char const holderType = 0;
    for (auto const& [known, sharedHolder] : shared->holders) {
      if (known == &holderType) {
        return *static_cast<Holder const*>(sharedHolder.get());
      }
    }
    if (shared->reading) {
      inner.Refuse("an object holds itself");
    }
    shared->reading = true;
    Holder constructed(Construct(inner));  // owned before anything else is allocated
    auto holder = std::make_shared<Holder>(std::move(constructed));
    shared->holders.emplace_back(&holderType, holder);
    shared->reading = false;
    return *holder;
  }
  static bool Equal(Holder const& a, Holder const& b) {
    return a.Identical(b) || (a.HasValue() && b.HasValue() && cls_EqualValues(a.ConstGet(), b.ConstGet()));
  }
  static void NewUid(Holder& holder) {
    if (holder.HasValue()) {
      holder.Get().NewUid();
    }
  }
  static void Unshare(Holder& holder, cls_DeepCopyContext& context) {
    if (holder.IsNull()) {
      return;
    }
    T const& original = holder.ConstGet();
    if (Holder const* const copy = context.template Find<Holder>(&original)) {
      holder = *copy;
      return;
    }
    // Two holders, this one and the one it was copied from: nobody else can ask for the copy.
    bool const others = holder.Count() > 2;
    Holder copy(cls_DeepCopyOf(original, context));
    if (others) {
      context.Note(&original, copy);
    }
    holder = std::move(copy);
  }
  static cls_Persistent* Embedded(Holder& holder) { return holder.IsNull() ? nullptr : const_cast<T*>(&holder.ConstGet()); }
  static std::string Text(Holder const& holder) {
    return holder.IsNull() ? "(none)" : std::string(holder.ConstGet().DynAttributes().Name().View());
  }
  static bool SetText(std::string_view, Holder&) { return false; }
  static constexpr char const* expected = "no text: an object stands here";

 private:
  static T* Construct(cls_ReadVisitor& inner) { return static_cast<T*>(cls_ConstructStored(inner)); }
};

/// Asks the objects in a value that have an AssertValid(): the value itself, what it holds, its elements. They answer
/// for what stands in them.
template <class M>
void cls_AssertPartsValid(M const& value) {
  if constexpr (requires { value.AssertValid(); }) {
    value.AssertValid();
  } else if constexpr (requires { value.HasValue(), value.ConstGet(); }) {
    if (value.HasValue()) cls_AssertPartsValid(value.ConstGet());
  } else if constexpr (requires { value.begin(), value.end(); }) {
    for (auto const& element : value) cls_AssertPartsValid(element);
  } else if constexpr (requires { value.key, value.value; }) {
    cls_AssertPartsValid(value.value);
  }
}
