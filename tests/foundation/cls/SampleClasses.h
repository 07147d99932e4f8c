#pragma once

#include <set>

#include "cls_Containers.h"
#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "nex_Exception.h"
#include "omu_EnumCodec.h"
#include "typ_Module.h"

// Classes with every kind of member, for tests of what is done to all classes alike.

inline constexpr unsigned short smp_moduleId = 0x7f0;
inline constexpr typ_Row smp_rows[] = {
    {1, "smp_Shape", ""}, {2, "smp_Box", "smp_Shape"}, {3, "smp_Mark", ""}, {4, "smp_Link", ""}};
consteval unsigned int smp_TypeId(std::string_view name) { return typ_Id(smp_moduleId, smp_rows, name); }

enum smp_ColourEnm { RED = 0, GREEN = 5 };
template <>
inline constexpr omu_EnumRow omu_EnumRows<smp_ColourEnm>[] = {{"RED", 0}, {"GREEN", 5}, {nullptr, 0}};

class smp_Mark : public cls_Persistent {
  CLS_PERSISTENT(smp, smp_Mark)

 public:
  smp_Mark() = default;
  explicit smp_Mark(double size) : value(size) {}
  double value = 0.0;
  smp_ColourEnm state = RED;
};
inline cls_AttributeTable const& smp_Mark::Attributes() {
  static auto const table = cls_Describe<smp_Mark>("smp_Mark", 203)
                                .Attribute(4, "val", &smp_Mark::value)
                                .Attribute(2, "state", &smp_Mark::state);
  return table;
}

class smp_Shape : public cls_Persistent {
  CLS_ABSTRACT(smp, smp_Shape)

 public:
  virtual double Size() const = 0;
  cow_String label;
  smp_Mark mark;
};
inline cls_AttributeTable const& smp_Shape::Attributes() {
  static auto const table = cls_Describe<smp_Shape>("smp_Shape", 1327)
                                .Attribute("label", &smp_Shape::label)
                                .Attribute("mark", &smp_Shape::mark);
  return table;
}

using smp_ShapeHolder = cow_COW<smp_Shape, cow_Virtual<smp_Shape>>;

class smp_Box : public smp_Shape {
  CLS_PERSISTENT(smp, smp_Box)

 public:
  smp_Box() = default;
  double Size() const override { return width; }

  bool fixed = false;
  int number = 0;
  unsigned int lastId = 0;
  double width = 0.0;
  omi_complex load;
  smp_ShapeHolder inner, other, none;
  cls_xoList<smp_Mark> marks;
  cls_xpListString names;
  cls_xp1DArrayListDouble sizes;
  cls_xp1DArrayListFloat axis;
  cls_xp2DArrayInt dofs;
  cls_xp2DArrayDouble table;
  cls_xpMapString2String titles;
  cls_xpBtreeString2Uint ids;
  cls_xcBtree<cow_String, smp_ShapeHolder, smp_Shape> byName;
  cls_xcBtree<int, smp_ShapeHolder, smp_Shape> byNumber;
};
inline cls_AttributeTable const& smp_Box::Attributes() {
  static auto const table = cls_Describe<smp_Box, smp_Shape>("smp_Box", 203)
                                .Attribute(6, "fixed", &smp_Box::fixed)
                                .Attribute(1, "number", &smp_Box::number)
                                .Attribute(2, "lastID", &smp_Box::lastId)
                                .Attribute(3, "width", &smp_Box::width)
                                .Complex(4, "loadReal", "loadImag", &smp_Box::load)
                                .Attribute(7, "inner", &smp_Box::inner)
                                .Shared(8, "other", &smp_Box::other)
                                .Attribute(9, "none", &smp_Box::none)
                                .Attribute(10, "marks", &smp_Box::marks)
                                .Attribute(11, "names", &smp_Box::names)
                                .Attribute(12, "sizes", &smp_Box::sizes)
                                .Attribute(13, "axis", &smp_Box::axis)
                                .Attribute(14, "dofs", &smp_Box::dofs)
                                .Attribute(15, "table", &smp_Box::table)
                                .Attribute(16, "titles", &smp_Box::titles)
                                .Attribute(17, "nameToID", &smp_Box::ids)
                                .Attribute(18, "map", &smp_Box::byName)
                                .Attribute(19, "IDToObj", &smp_Box::byNumber);
  return table;
}

/// An object that holds another of its kind.
class smp_Link : public cls_Persistent {
  CLS_PERSISTENT(smp, smp_Link)

 public:
  smp_Link() = default;
  cow_COW<smp_Link, cow_Virtual<smp_Link>> next;
};
inline cls_AttributeTable const& smp_Link::Attributes() {
  static auto const table = cls_Describe<smp_Link>("smp_Link", 203).Attribute("next", &smp_Link::next);
  return table;
}

/// A chain of that many links.
inline smp_Link smp_Chain(int links) {
  smp_Link head;
  for (int i = 1; i < links; ++i) {
    smp_Link outer;
    outer.next = new smp_Link(head);
    head = outer;
  }
  return head;
}

/// A box in which no member has its default; `seed` makes the values of two boxes differ. One shape is held four times.
inline smp_Box smp_FilledBox(int seed) {
  auto const text = [&](char const* what) { return cow_String(what) + cow_String(std::to_string(seed)); };
  smp_Box box;
  box.label = text("box");
  box.mark = smp_Mark(seed + 0.5);
  box.mark.state = GREEN;
  box.fixed = seed % 2 == 0;
  box.number = -seed;
  box.lastId = 0x80000000u + static_cast<unsigned int>(seed);
  box.width = 1e300 / seed;
  box.load = omi_complex(seed, -2.0 * seed);
  smp_Box held;
  held.label = text("held");
  held.marks.Append(smp_Mark(seed));
  box.inner = smp_ShapeHolder(held);
  box.other = box.inner;
  box.byName.Insert(text("same"), box.inner);
  box.byNumber.Insert(seed, box.inner);
  box.byNumber.Insert(-seed, smp_ShapeHolder(smp_Box()));
  for (int i = 0; i < 3 + seed; ++i) {
    box.marks.Append(smp_Mark(i));
    box.names.Append(i == 1 ? cow_String() : text("name"));
    box.sizes.Append(i / 7.0);
    box.axis.Append(0.1f * static_cast<float>(i));
    cls_xp1DArrayListInt row;
    cls_xp1DArrayListDouble values;
    for (int j = 0; j < i; ++j) {
      row.Append(j - seed);
      values.Append(j / 3.0);
    }
    box.dofs.Append(row);
    box.table.Append(values);
  }
  box.titles.Insert(text("key"), text("title"));
  box.ids.Insert(text("id"), 7u);
  return box;
}

/// The tables that hold an object.
inline cls_Database smp_Write(cls_Persistent const& object) {
  cls_Database database;
  cls_WriteSession session(database);
  object.DBWrite(cls_WriteVisitor(session));
  database.Complete();
  return database;
}

/// All identities of an object and of what it holds.
inline std::set<std::uint64_t> smp_Identities(cls_Persistent const& object) {
  std::set<std::uint64_t> identities;
  cls_Database const database = smp_Write(object);
  for (auto const& table : database.tables) {
    identities.insert(table->uids.begin(), table->uids.end());
  }
  for (cls_Collection const& collection : database.collections) {
    identities.insert(collection.uid);
  }
  identities.erase(0);
  return identities;
}

/// Enters the classes for as long as it lives.
class smp_Registration {
 public:
  smp_Registration() : types_(smp_moduleId, smp_rows) {
    types_.Insert();
    auto& registrar = cls_ClassRegistrar::Present();
    smp_Shape::InitializeMetadata(registrar);
    smp_Box::InitializeMetadata(registrar);
    smp_Mark::InitializeMetadata(registrar);
    smp_Link::InitializeMetadata(registrar);
  }
  ~smp_Registration() {
    for (typ_Row const& row : smp_rows) {
      unsigned int const typeId = (unsigned{smp_moduleId} << 16) | static_cast<unsigned int>(row.row);
      cls_ClassRegistrar::Present().DeleteClass(row.name, typeId);
    }
    types_.Remove();
  }

 private:
  typ_Module types_;
};

/// The message of what `act` raises.
template <class Act>
std::string smp_Refusal(Act act) {
  try {
    act();
  } catch (TVOBasException const& error) {
    return error.what();
  }
  return "no refusal";
}
