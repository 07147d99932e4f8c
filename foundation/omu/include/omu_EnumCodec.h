#pragma once

#include "cls_Codec.h"
#include "omu_PrimEnumBase.h"

/// Enumerations are stored by name. Names are found once per session, not once per object.
template <class E>
  requires std::is_enum_v<E>
struct cls_Codec<E> : cls_PlainCodec<E, cls_AttributeType::Enum> {
  static_assert(omu_EnumRows<E>[0].name != nullptr, "the enumeration has no table of rows");

  static void Write(cls_WriteVisitor const& writer, int column, E value) {
    writer.SetWord(column, StringNumber(writer.Session(), value));
  }
  static void Read(cls_ReadVisitor const& reader, int column, E& value) {
    cls_Column const* const cells = reader.Cells(column);
    if (cells == nullptr) {
      return;
    }
    std::uint32_t const number = cells->words[reader.Row()];
    auto& known = reader.Session().EnumCache(cacheIndex);
    if (number >= known.size()) {
      known.resize(number + 1u, unknown);
    }
    if (known[number] == unknown) {
      std::string_view const name = reader.Session().Database().String(number).View();
      omu_EnumRow const* const row = omu_PrimEnumBase::FindRow(omu_EnumRows<E>, name);
      if (row == nullptr) {
        omu_PrimEnumBase::RefuseStored(omu_EnumRows<E>, name);
      }
      known[number] = row->value;
    }
    value = static_cast<E>(known[number]);
  }
  static std::string Text(E value) {
    omu_EnumRow const* const row = omu_PrimEnumBase::FindRow(omu_EnumRows<E>, static_cast<int>(value));
    return row == nullptr ? std::string() : row->name;
  }
  static bool SetText(std::string_view text, E& value) {
    omu_EnumRow const* const row = omu_PrimEnumBase::FindRow(omu_EnumRows<E>, text);
    if (row == nullptr) {
      omu_PrimEnumBase::RefuseName(omu_EnumRows<E>, text);
    }
    value = static_cast<E>(row->value);
    return true;
  }
  static constexpr char const* expected = "a name of the enumeration";

 private:
  static constexpr int unknown = -2147483647 - 1;
  inline static int const cacheIndex = cls_NextCacheIndex();

  static std::uint32_t StringNumber(cls_WriteSession& session, E value) {
    omu_EnumRow const* const rows = omu_EnumRows<E>;
    auto& numbers = session.EnumCache(cacheIndex);
    std::size_t row = 0;
    while (rows[row].name != nullptr && rows[row].value != static_cast<int>(value)) {
      ++row;
    }
    if (rows[row].name == nullptr) {
      omu_PrimEnumBase::RefuseValue(rows, static_cast<int>(value));
    }
    while (numbers.size() <= row) {
      numbers.push_back(session.Database().StringNumber(rows[numbers.size()].name));
    }
    return numbers[row];
  }
};
