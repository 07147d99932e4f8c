#pragma once

#include <cstdint>

#include "cow_String.h"

/// How an attribute is stored. The numbers stand in databases.
enum class cls_AttributeType : int {
  Int = 5,         ///< 32-bit integer
  Counter = 7,     ///< unsigned counter of identifiers
  Double = 10,
  String = 11,
  Bool = 13,
  Enum = 14,       ///< by name
  Object = 15,     ///< an embedded object, or a container
  Reference = 16,  ///< an object held elsewhere
};

/// What kind of container an attribute is. The numbers stand in databases.
enum class cls_CollectionType : int {
  Single = 0,
  ObjectList = 1,
  ObjectMap = 2,      ///< names to objects
  ObjectMapById = 3,  ///< integers to objects
  DoubleList = 52,
  FloatList = 53,
  IntList = 54,
  StringList = 55,
  NameToId = 66,
  NameToName = 67,
  DoubleListList = 82,
  IntListList = 84,
};

/// Type identifiers that stand for containers and for plain values in the declaration of an attribute.
inline constexpr unsigned int cls_PlainValueId = 1;
inline constexpr unsigned int cls_GenericListId = 0x230001;
inline constexpr unsigned int cls_GenericMapId = 0x230002;

/// Key of an attribute. The ordinal is an identity that a class gives each of its attributes once and never reuses.
struct cls_FieldHandle {
  int ordinal = 0;
  cow_String name;

  bool operator==(cls_FieldHandle const&) const = default;
};

/// An attribute as a class declares it.
struct cls_DeclaredAttribute {
  cls_FieldHandle field;
  cls_AttributeType type = cls_AttributeType::Int;
  unsigned int typeId = cls_PlainValueId;
  cls_CollectionType collection = cls_CollectionType::Single;

  bool operator==(cls_DeclaredAttribute const&) const = default;
};
