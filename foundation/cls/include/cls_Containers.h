#pragma once

#include <algorithm>
#include <bit>
#include <span>

#include "cls_Codec.h"

// Persistent containers: a cow container that carries an identity of its own. Copying shares the content and keeps the
// identity; equality is by content.

/// A list of objects held by value, or of holders of objects of a class and those derived from it; no holder is null.
template <class T, class Tag>
class cls_ObjectList : public cow_List<T> {
 public:
  using cow_List<T>::cow_List;
  cls_ObjectList() = default;
  explicit cls_ObjectList(cow_List<T> list) : cow_List<T>(std::move(list)) {}
  explicit cls_ObjectList(cls_ReadVisitor const& reader, int column) : cls_ObjectList() {
    cls_Codec<cls_ObjectList>::Read(reader, column, *this);
  }

  cls_Uid const& Uid() const noexcept { return uid_; }
  void NewUid() { uid_.NewUid(); }
  void SetStoredUid(cls_Uid const& uid) { uid_ = uid; }
  /// Writes the list as the attribute at `column` of the row that the visitor stands on.
  void DBWrite(cls_WriteVisitor const& writer, int column) const {
    cls_Codec<cls_ObjectList>::Write(writer, column, *this);
  }

 private:
  cls_Uid uid_;
};

template <class T>
using cls_xoList = cls_ObjectList<T, struct cls_xoListTag>;
template <class T>
using cls_xo1DArrayList = cls_ObjectList<T, struct cls_xo1DArrayListTag>;
template <class T>
using cls_xoListFromCow = cls_xoList<T>;

/// A list of plain values.
template <class V, class Tag>
class cls_ValueList : public cow_List<V> {
 public:
  using cow_List<V>::cow_List;
  cls_ValueList() = default;
  explicit cls_ValueList(cow_List<V> list) : cow_List<V>(std::move(list)) {}
  explicit cls_ValueList(cls_ReadVisitor const& reader, int column) : cls_ValueList() {
    cls_Codec<cls_ValueList>::Read(reader, column, *this);
  }

  cls_Uid const& Uid() const noexcept { return uid_; }
  void NewUid() { uid_.NewUid(); }
  void SetStoredUid(cls_Uid const& uid) { uid_ = uid; }
  void DBWrite(cls_WriteVisitor const& writer, int column) const {
    cls_Codec<cls_ValueList>::Write(writer, column, *this);
  }

 private:
  cls_Uid uid_;
};

using cls_xpListInt = cls_ValueList<int, struct cls_xpListIntTag>;
using cls_xpListString = cls_ValueList<cow_String, struct cls_xpListStringTag>;
using cls_xpListDouble = cls_ValueList<double, struct cls_xpListDoubleTag>;
using cls_xp1DArrayInt = cls_ValueList<int, struct cls_xp1DArrayIntTag>;
using cls_xp1DArrayListInt = cls_ValueList<int, struct cls_xp1DArrayListIntTag>;
using cls_xp1DArrayListFloat = cls_ValueList<float, struct cls_xp1DArrayListFloatTag>;
using cls_xp1DArrayListDouble = cls_ValueList<double, struct cls_xp1DArrayListDoubleTag>;
using cls_xp1DArrayListString = cls_ValueList<cow_String, struct cls_xp1DArrayListStringTag>;
/// Two-level lists.
using cls_xp2DArrayInt = cls_ValueList<cls_xp1DArrayListInt, struct cls_xp2DArrayIntTag>;
using cls_xp2DArrayDouble = cls_ValueList<cls_xp1DArrayListDouble, struct cls_xp2DArrayDoubleTag>;

/// A map with an identity.
template <class K, class V, class Tag>
class cls_IdentifiedMap : public cow_Map<K, V> {
 public:
  cls_Uid const& Uid() const noexcept { return uid_; }
  void NewUid() { uid_.NewUid(); }
  void SetStoredUid(cls_Uid const& uid) { uid_ = uid; }
  void DBWrite(cls_WriteVisitor const& writer, int column) const {
    cls_Codec<cls_IdentifiedMap>::Write(writer, column, *this);
  }

 private:
  cls_Uid uid_;
};

using cls_xpMapString2String = cls_IdentifiedMap<cow_String, cow_String, struct cls_xpMapString2StringTag>;
using cls_xpBtreeString2Uint = cls_IdentifiedMap<cow_String, unsigned int, struct cls_xpBtreeString2UintTag>;
/// A map from keys to held objects; `T` is the class of the objects, `V` their holder.
template <class K, class V, class T>
using cls_xcBtree = cls_IdentifiedMap<K, V, T>;

// ---- how they are stored

/// What all collections share: the row of the collection, its stretch of the heap, the identity.
template <class C, cls_CollectionType Kind>
struct cls_CollectionCodec {
  static constexpr cls_AttributeType type = cls_AttributeType::Object;
  static constexpr cls_CollectionType collection = Kind;
  static constexpr bool hasIdentity = true;
  static constexpr unsigned int DeclaredTypeId() {
    bool const map = Kind == cls_CollectionType::ObjectMap || Kind == cls_CollectionType::ObjectMapById ||
                     Kind == cls_CollectionType::NameToId || Kind == cls_CollectionType::NameToName;
    return map ? cls_GenericMapId : cls_GenericListId;
  }
  static cls_Persistent* Embedded(C&) { return nullptr; }
  static bool Equal(C const& a, C const& b) { return a == b; }
  static void Unshare(C&, cls_DeepCopyContext&) {}
  static void NewUid(C& value) { value.NewUid(); }

  /// Takes the place of the collection's elements before they are written, since elements write collections, too.
  static std::uint32_t Take(cls_WriteVisitor const& writer, C const& value, std::size_t count) {
    cls_Database& database = writer.Session().Database();
    bool const ofDoubles = Kind == cls_CollectionType::DoubleList;
    std::size_t const first = ofDoubles ? database.doubles.size() : database.words.size();
    std::size_t const end = first + count * (ofDoubles ? 1 : cls_ElementWords(Kind));
    if (end >= cls_NoRow || database.collections.size() >= cls_NoRow) {
      cls_RefuseStored("collections", cls_NoRow, "there are more elements than numbers for them");
    }
    if (ofDoubles) {
      database.doubles.resize(end);
    } else {
      database.words.resize(end);
    }
    database.collections.push_back(
        {value.Uid().Value(), Kind, static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(count)});
    return static_cast<std::uint32_t>(first);
  }
  static std::uint32_t LastNumber(cls_WriteVisitor const& writer) {
    return static_cast<std::uint32_t>(writer.Session().Database().collections.size() - 1);
  }
  static void RestoreUid(C& value, cls_Collection const& stored) {
    value.SetStoredUid(stored.uid == 0 ? cls_Uid() : cls_Uid::Stored(stored.uid));
  }
};

template <class T, class Tag>
struct cls_Codec<cls_ObjectList<T, Tag>>
    : cls_CollectionCodec<cls_ObjectList<T, Tag>, cls_CollectionType::ObjectList> {
  using List = cls_ObjectList<T, Tag>;
  using Base = cls_CollectionCodec<List, cls_CollectionType::ObjectList>;

  static void Write(cls_WriteVisitor const& writer, int column, List const& list) {
    std::uint32_t at = Base::Take(writer, list, static_cast<std::size_t>(list.Length()));
    writer.SetWord(column, Base::LastNumber(writer));
    bool const shared = list.IsShared();
    for (T const& element : list) {
      cls_Persistent const& object = ObjectOf(element);
      std::uint32_t const row = writer.WriteElement(object, shared || IsShared(element));
      cls_Database& database = writer.Session().Database();
      database.words[at] = object.DynTypeId();
      database.words[at + 1] = row;
      at += 2;
    }
  }
  static void Read(cls_ReadVisitor const& reader, int column, List& list) {
    list.Clear();
    cls_Collection const* const stored = reader.Collection(column, Base::collection);
    if (stored == nullptr) {
      return;
    }
    cls_ReadSession::Shared* const shared = SharedElement(reader, *stored);
    if (shared != nullptr && TakeKnown(reader, *stored, *shared, list)) {
      Base::RestoreUid(list, *stored);
      return;
    }
    cow_List<T> read(static_cast<int>(stored->count));
    for (std::uint32_t i = 0; i < stored->count; ++i) {
      auto const& words = reader.Session().Database().words;
      std::size_t const at = stored->first + 2 * static_cast<std::size_t>(i);
      cls_ReadVisitor inner = reader.EnterRow(words[at], words[at + 1], cls_Codec<T>::DeclaredTypeId());
      if constexpr (byValue) {
        T element;
        cls_Codec<T>::ReadInto(inner, element);
        read.Append(std::move(element));
      } else {
        read.Append(cls_Codec<T>::ReadHolder(inner));
      }
    }
    // A damaged file may hold thousands of lists that begin alike, of which each would be compared with all.
    if (shared != nullptr && std::ranges::count(shared->holders, &knownListKey, FirstOf) < mostKnownLists) {
      shared->holders.emplace_back(&knownListKey, std::make_shared<KnownList>(KnownList{stored, read}));
    }
    static_cast<cow_List<T>&>(list) = std::move(read);
    Base::RestoreUid(list, *stored);
  }
  static bool Equal(List const& a, List const& b) {
    if (a.Length() != b.Length()) {
      return false;
    }
    auto other = b.begin();
    for (T const& element : a) {
      if (&element != &*other && !cls_Codec<T>::Equal(element, *other)) {
        return false;
      }
      ++other;
    }
    return true;
  }
  static void NewUid(List& list) {
    list.NewUid();
    for (int i = 0; i < list.Length(); ++i) {
      cls_Codec<T>::NewUid(list.Get(i));
    }
  }
  static void Unshare(List& list, cls_DeepCopyContext& context) {
    for (int i = 0; i < list.Length(); ++i) {
      cls_Codec<T>::Unshare(list.Get(i), context);
    }
  }
  static std::string Text(List const& list) {
    std::string text;
    for (T const& element : list) {
      text += text.empty() ? "" : (TypedByValues() ? ";" : ",");
      text += ElementText(element);
    }
    return text;
  }
  static bool SetText(std::string_view text, List& list) {
    if (!cls_Named<T> && !TypedByValues()) {
      return false;
    }
    List read;
    while (!text.empty()) {
      std::size_t const end = text.find(cls_Named<T> ? ',' : ';');
      T element;
      if (!SetElement(element, text.substr(0, end))) {
        return false;
      }
      read.Append(element);
      text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    static_cast<cow_List<T>&>(list) = read;
    return true;
  }
  // Whether scripts make the elements is found in their class's table, so this is a text only when it is asked for.
  struct Hint {
    operator char const*() const {
      return cls_Named<T>      ? "names with commas between them"
             : TypedByValues() ? "objects that scripts make, as key=value,key=value;key=value"
                               : "no text: objects stand here";
    }
  };
  static constexpr Hint expected{};

 private:
  static constexpr bool byValue = std::derived_from<T, cls_Persistent>;

  // Elements that have no name but that scripts make are typed by their values, which takes the comma.
  static bool TypedByValues() {
    if constexpr (byValue && !cls_Named<T>) {
      return !T::Attributes().ScriptingName().IsEmpty();
    } else {
      return false;
    }
  }
  static std::string ElementText(T const& element) {
    return TypedByValues() ? cls_ValuesText(ObjectOf(element)) : cls_Codec<T>::Text(element);
  }
  static bool SetElement(T& element, std::string_view text) {
    if constexpr (cls_Named<T>) {
      element.SetText(text);
      return true;
    } else if constexpr (byValue) {
      return cls_SetValuesText(element, text);
    } else {
      return false;
    }
  }
  /// Whether the element can be met again in another place.
  static bool IsShared([[maybe_unused]] T const& element) {
    if constexpr (byValue) {
      return false;
    } else {
      return !element.Exclusive();
    }
  }
  static cls_Persistent const& ObjectOf(T const& element) {
    if constexpr (byValue) {
      return element;
    } else {
      return element.ConstGet();
    }
  }

  // Lists that shared their elements when they were written share them again, as the repositories of a model share its
  // steps: those whose first element stands in several places and whose other elements are the same, too.
  struct KnownList {
    cls_Collection const* stored;
    cow_List<T> list;
  };
  static constexpr char knownListKey = 0;
  static constexpr std::ptrdiff_t mostKnownLists = 4;
  static void const* FirstOf(std::pair<void const*, std::shared_ptr<void>> const& holder) { return holder.first; }

  static cls_ReadSession::Shared* SharedElement(cls_ReadVisitor const& reader, cls_Collection const& stored) {
    if (!byValue || stored.count == 0) {
      return nullptr;
    }
    auto const& words = reader.Session().Database().words;
    cls_ReadVisitor const first =
        reader.EnterRow(words[stored.first], words[stored.first + 1], cls_Codec<T>::DeclaredTypeId());
    return reader.Session().FindShared(first.Table(), first.Row());
  }
  static bool TakeKnown(cls_ReadVisitor const& reader, cls_Collection const& stored,
                        cls_ReadSession::Shared const& shared, List& list) {
    auto const elements = [&words = reader.Session().Database().words](cls_Collection const& of) {
      return std::span(words).subspan(of.first, std::size_t{2} * of.count);
    };
    for (auto const& [key, holder] : shared.holders) {
      if (key == &knownListKey) {
        auto const& known = *static_cast<KnownList const*>(holder.get());
        if (std::ranges::equal(elements(*known.stored), elements(stored))) {
          static_cast<cow_List<T>&>(list) = known.list;
          return true;
        }
      }
    }
    return false;
  }
};

/// Cells of the heap for one plain value.
template <class V>
struct cls_HeapCell;
template <>
struct cls_HeapCell<int> {
  static constexpr auto kind = cls_CollectionType::IntList;
  static std::uint32_t Word(cls_WriteVisitor const&, int value) { return static_cast<std::uint32_t>(value); }
  static int Value(cls_ReadVisitor const&, std::uint32_t word) { return static_cast<int>(word); }
};
template <>
struct cls_HeapCell<float> {
  static constexpr auto kind = cls_CollectionType::FloatList;
  static std::uint32_t Word(cls_WriteVisitor const&, float value) { return std::bit_cast<std::uint32_t>(value); }
  static float Value(cls_ReadVisitor const&, std::uint32_t word) { return std::bit_cast<float>(word); }
};
template <>
struct cls_HeapCell<cow_String> {
  static constexpr auto kind = cls_CollectionType::StringList;
  static std::uint32_t Word(cls_WriteVisitor const& writer, cow_String const& value) {
    return writer.Session().StringNumber(value);
  }
  static cow_String Value(cls_ReadVisitor const& reader, std::uint32_t word) {
    return reader.Session().Database().String(word);
  }
};
template <>
struct cls_HeapCell<double> {
  static constexpr auto kind = cls_CollectionType::DoubleList;
};
template <class V, class Tag>
struct cls_HeapCell<cls_ValueList<V, Tag>> {
  static constexpr auto kind =
      std::is_same_v<V, double> ? cls_CollectionType::DoubleListList : cls_CollectionType::IntListList;
};

template <>
struct cls_Codec<float> {
  static std::string Text(float value) { return cls_NumberText(value); }
  static bool SetText(std::string_view text, float& value) { return cls_ReadNumber(text, value); }
  static constexpr char const* expected = "a number";
};

template <class V, class Tag>
struct cls_Codec<cls_ValueList<V, Tag>> : cls_CollectionCodec<cls_ValueList<V, Tag>, cls_HeapCell<V>::kind> {
  using List = cls_ValueList<V, Tag>;
  using Base = cls_CollectionCodec<List, cls_HeapCell<V>::kind>;
  static constexpr bool ofLists =
      Base::collection == cls_CollectionType::DoubleListList || Base::collection == cls_CollectionType::IntListList;

  static void Write(cls_WriteVisitor const& writer, int column, List const& list) {
    writer.SetWord(column, WriteCollection(writer, list));
  }
  /// Number of the written collection. Inner lists come first: a list refers only to lists before it.
  static std::uint32_t WriteCollection(cls_WriteVisitor const& writer, List const& list) {
    cls_Database& database = writer.Session().Database();
    auto const count = static_cast<std::size_t>(list.Length());
    if constexpr (ofLists) {
      std::vector<std::uint32_t> inner;
      for (V const& element : list) {
        inner.push_back(cls_Codec<V>::WriteCollection(writer, element));
      }
      std::uint32_t const at = Base::Take(writer, list, count);
      std::copy(inner.begin(), inner.end(), database.words.begin() + at);
    } else if constexpr (std::is_same_v<V, double>) {
      std::uint32_t at = Base::Take(writer, list, count);
      for (double const element : list) {
        database.doubles[at++] = element;
      }
    } else {
      std::uint32_t at = Base::Take(writer, list, count);
      for (V const& element : list) {
        database.words[at++] = cls_HeapCell<V>::Word(writer, element);
      }
    }
    return Base::LastNumber(writer);
  }
  static void Read(cls_ReadVisitor const& reader, int column, List& list) {
    list.Clear();
    if (cls_Collection const* const stored = reader.Collection(column, Base::collection)) {
      list = ReadCollection(reader, *stored);
    }
  }
  static List ReadCollection(cls_ReadVisitor const& reader, cls_Collection const& stored) {
    cls_Database const& database = reader.Session().Database();
    List list(static_cast<int>(stored.count));
    for (std::size_t at = stored.first; at < stored.first + std::size_t{stored.count}; ++at) {
      if constexpr (ofLists) {
        cls_Collection const& inner = database.collections[database.words[at]];
        if (inner.kind != cls_Codec<V>::collection) {
          reader.Refuse("refers to a collection of another kind");
        }
        list.Append(cls_Codec<V>::ReadCollection(reader, inner));
      } else if constexpr (std::is_same_v<V, double>) {
        list.Append(database.doubles[at]);
      } else {
        list.Append(cls_HeapCell<V>::Value(reader, database.words[at]));
      }
    }
    Base::RestoreUid(list, stored);
    return list;
  }
  static bool Equal(List const& a, List const& b) {
    if (a.Identical(b) || a.Length() != b.Length()) {
      return a.Length() == b.Length();
    }
    auto other = b.begin();
    return std::ranges::all_of(a, [&](V const& element) { return cls_IsSame(element, *other++); });
  }
  static void NewUid(List& list) {
    list.NewUid();
    if constexpr (ofLists) {
      for (int i = 0; i < list.Length(); ++i) {
        list.Get(i).NewUid();
      }
    }
  }
  // The level of a list decides what stands between its elements.
  static std::string Text(List const& list) {
    std::string text;
    for (V const& element : list) {
      text += text.empty() ? "" : (ofLists ? ";" : ",");
      text += cls_Codec<V>::Text(element);
    }
    return text;
  }
  static bool SetText(std::string_view text, List& list) {
    List read;
    while (!text.empty()) {
      std::size_t const end = text.find(ofLists ? ';' : ',');
      V element{};
      if (!cls_Codec<V>::SetText(text.substr(0, end), element)) {
        return false;
      }
      read.Append(element);
      text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    static_cast<cow_List<V>&>(list) = read;
    return true;
  }
  static constexpr char const* expected =
      ofLists ? "numbers with commas between them, lists with semicolons" : "values with commas between them";
};

// Maps. A key is a name or a number; a value an object behind a holder, a name or a number.

template <class K>
struct cls_KeyCell;
template <>
struct cls_KeyCell<cow_String> : cls_HeapCell<cow_String> {};
template <>
struct cls_KeyCell<int> : cls_HeapCell<int> {};
template <>
struct cls_KeyCell<unsigned int> {
  static std::uint32_t Word(cls_WriteVisitor const&, unsigned int value) { return value; }
  static unsigned int Value(cls_ReadVisitor const&, std::uint32_t word) { return word; }
};

template <class K, class V>
struct cls_MapKind {
  static constexpr auto kind =
      std::is_same_v<K, cow_String> ? cls_CollectionType::ObjectMap : cls_CollectionType::ObjectMapById;
  static constexpr bool ofObjects = true;
};
template <>
struct cls_MapKind<cow_String, unsigned int> {
  static constexpr auto kind = cls_CollectionType::NameToId;
  static constexpr bool ofObjects = false;
};
template <>
struct cls_MapKind<cow_String, cow_String> {
  static constexpr auto kind = cls_CollectionType::NameToName;
  static constexpr bool ofObjects = false;
};

template <class K, class V, class Tag>
struct cls_Codec<cls_IdentifiedMap<K, V, Tag>>
    : cls_CollectionCodec<cls_IdentifiedMap<K, V, Tag>, cls_MapKind<K, V>::kind> {
  using Map = cls_IdentifiedMap<K, V, Tag>;
  using Base = cls_CollectionCodec<Map, cls_MapKind<K, V>::kind>;
  static constexpr bool ofObjects = cls_MapKind<K, V>::ofObjects;

  static void Write(cls_WriteVisitor const& writer, int column, Map const& map) {
    std::uint32_t at = Base::Take(writer, map, static_cast<std::size_t>(map.Size()));
    writer.SetWord(column, Base::LastNumber(writer));
    for (auto const& entry : map) {
      std::uint32_t cells[3] = {cls_KeyCell<K>::Word(writer, entry.key), 0, cls_NoRow};
      if constexpr (ofObjects) {
        cells[1] = entry.value.ConstGet().DynTypeId();
        cells[2] = writer.WriteElement(entry.value.ConstGet(), true);
      } else {
        cells[1] = cls_KeyCell<V>::Word(writer, entry.value);
      }
      auto& words = writer.Session().Database().words;
      for (std::uint32_t i = 0; i < cls_ElementWords(Base::collection); ++i) {
        words[at++] = cells[i];
      }
    }
  }
  static void Read(cls_ReadVisitor const& reader, int column, Map& map) {
    map.Clear();
    cls_Collection const* const stored = reader.Collection(column, Base::collection);
    if (stored == nullptr) {
      return;
    }
    for (std::uint32_t i = 0; i < stored->count; ++i) {
      auto const& words = reader.Session().Database().words;
      std::size_t const at = stored->first + std::size_t{cls_ElementWords(Base::collection)} * i;
      K key = cls_KeyCell<K>::Value(reader, words[at]);
      if constexpr (ofObjects) {
        cls_ReadVisitor inner = reader.EnterRow(words[at + 1], words[at + 2], cls_Codec<V>::DeclaredTypeId());
        map.Insert(key, cls_Codec<V>::ReadHolder(inner));
      } else {
        map.Insert(key, cls_KeyCell<V>::Value(reader, words[at + 1]));
      }
    }
    if (static_cast<std::uint32_t>(map.Size()) != stored->count) {
      reader.Refuse("a map has a key twice");
    }
    Base::RestoreUid(map, *stored);
  }
  static bool Equal(Map const& a, Map const& b) {
    if constexpr (!ofObjects) {
      return a == b;
    } else {
      if (a.Size() != b.Size()) {
        return false;
      }
      auto other = b.begin();
      for (auto const& entry : a) {
        if (!(entry.key == (*other).key) || !cls_Codec<V>::Equal(entry.value, (*other).value)) {
          return false;
        }
        ++other;
      }
      return true;
    }
  }
  static void NewUid(Map& map) {
    map.NewUid();
    if constexpr (ofObjects) {
      ForEach(map, [](V& value) { cls_Codec<V>::NewUid(value); });
    }
  }
  static void Unshare([[maybe_unused]] Map& map, [[maybe_unused]] cls_DeepCopyContext& context) {
    if constexpr (ofObjects) {
      ForEach(map, [&](V& value) { cls_Codec<V>::Unshare(value, context); });
    }
  }
  static std::string Text(Map const& map) {
    std::string text;
    for (auto const& entry : map) {
      text += text.empty() ? "" : ",";
      if constexpr (std::is_same_v<K, cow_String>) {
        text += entry.key.View();
      } else {
        text += cls_NumberText(entry.key);
      }
    }
    return text;
  }
  static bool SetText(std::string_view, Map&) { return false; }
  static constexpr char const* expected = "no text: a map stands here";

 private:
  template <class Change>
  static void ForEach(Map& map, Change change) {
    cow_List<K> keys;
    for (auto const& entry : map) {
      keys.Append(entry.key);
    }
    for (K const& key : keys) {
      change(map.Get(key));
    }
  }
};
