#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

#include "TVOBasI18n.h"
#include "TVOExport.h"
#include "cow_List.h"
#include "cow_String.h"
#include "kprC_Procedures.h"
#include "kprC_StepRepository.h"
#include "uti_TranslationMap.h"

// Which types of step-dependent objects are on offer in which step. A family gives tables, one for each of its menus, and
// an index over them; menus and the test of a single type are read from these.

/// A set of analysis products (kprC_AnalysisProductEnm, and the 4 beyond it that callers pass too).
class kprC_ProductSet {
 public:
  template <std::same_as<int>... Products>
  constexpr kprC_ProductSet(Products... products) : mask_((0U | ... | (1U << products))) {}
  constexpr bool Contains(int product) const { return product >= 0 && product < 32 && (mask_ >> product & 1U) != 0; }

 private:
  unsigned int mask_;
};

/// A type in a menu, and the procedures of its row in which it is left out.
struct kprC_OfferedType {
  constexpr kprC_OfferedType() = default;
  constexpr kprC_OfferedType(unsigned int typeId, kprC_ProcedureSet leftOutIn = {}) : type(typeId), except(leftOutIn) {}

  unsigned int type = 0;
  kprC_ProcedureSet except{};
};

/// The types of a menu, in the order in which a user sees them.
class kprC_TypeMenu {
 public:
  static constexpr std::size_t capacity = 20;

  template <std::convertible_to<kprC_OfferedType>... Types>
  constexpr kprC_TypeMenu(Types... types) : types_{kprC_OfferedType(types)...}, size_(sizeof...(Types)) {
    static_assert(sizeof...(Types) <= capacity);
  }
  constexpr kprC_OfferedType const* begin() const { return types_.data(); }
  constexpr kprC_OfferedType const* end() const { return types_.data() + size_; }

 private:
  std::array<kprC_OfferedType, capacity> types_;
  std::size_t size_;
};

/// One row of a menu's table. In one table a procedure stands in one row at most; a procedure in none is offered nothing.
struct kprC_TypesByStepRow {
  /// The procedures that the row speaks of; none stands for the initial step.
  kprC_ProcedureSet procedures{};
  kprC_TypeMenu types{};
  /// Products for which the row offers nothing.
  kprC_ProductSet notFor{};

  /// Whether the row speaks of the procedure, 0 being the initial step.
  constexpr bool Covers(unsigned int procedure) const {
    return procedure == 0 ? procedures.IsEmpty() : procedures.Contains(procedure);
  }
};

/// A menu: its name ("mechanical") and its table.
struct kprC_TypesMenu {
  char const* name;
  std::span<kprC_TypesByStepRow const> rows;
};

/// The label of a type, as stored and before translation.
struct kprC_TypeLabelRow {
  unsigned int type;
  char const* label;
};

/// Whether no procedure stands in two rows of the table.
constexpr bool kprC_RowsAreDisjoint(std::span<kprC_TypesByStepRow const> rows) {
  int initial = 0;
  int named = 0;
  kprC_ProcedureSet seen;
  for (kprC_TypesByStepRow const& row : rows) {
    initial += row.procedures.IsEmpty() ? 1 : 0;
    named += row.procedures.Size();
    seen = seen | row.procedures;
  }
  return initial <= 1 && named == seen.Size();
}

/// Whether types and labels of the list are all different, so that a type may stand for its label.
constexpr bool kprC_LabelsDiffer(std::span<kprC_TypeLabelRow const> labels) {
  for (std::size_t i = 0; i < labels.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (labels[i].type == labels[j].type || std::string_view(labels[i].label) == labels[j].label) return false;
    }
  }
  return true;
}

/// Whether every type that the table offers has a label.
constexpr bool kprC_AllLabelled(std::span<kprC_TypesByStepRow const> rows, std::span<kprC_TypeLabelRow const> labels) {
  for (kprC_TypesByStepRow const& row : rows) {
    for (kprC_OfferedType const& offered : row.types) {
      bool const labelled =
          std::any_of(labels.begin(), labels.end(), [&](auto const& label) { return label.type == offered.type; });
      if (!labelled) return false;
    }
  }
  return true;
}

/// Whether the tables of all menus are such.
constexpr bool kprC_MenusAreSound(std::span<kprC_TypesMenu const> menus, std::span<kprC_TypeLabelRow const> labels) {
  return std::all_of(menus.begin(), menus.end(), [&](kprC_TypesMenu const& menu) {
    return kprC_RowsAreDisjoint(menu.rows) && kprC_AllLabelled(menu.rows, labels);
  });
}

/// Answers for one type whether any of a family's menus offers it: the tables turned over at compile time into a mask of
/// steps for each type and product. `TypeRows` is the number of rows in the type table of the family's module.
template <std::size_t TypeRows>
class kprC_OfferIndex {
 public:
  consteval kprC_OfferIndex(unsigned int moduleId, std::span<kprC_TypesMenu const> menus) : moduleId_(moduleId) {
    for (kprC_TypesMenu const& menu : menus) {
      for (kprC_TypesByStepRow const& row : menu.rows) Enter(row);
    }
  }

  /// Whether the type is on offer in a step of the procedure, 0 being the initial step. False for any type, procedure or
  /// product that the tables do not know of, except that an unknown product restricts nothing. Constant time.
  constexpr bool IsOffered(unsigned int type, unsigned int procedure, int product) const {
    unsigned int const row = type & 0xffffU;
    if (type >> 16 != moduleId_ || row >= masks_.size()) return false;
    int const bit = procedure == 0 ? initialBit : kprC_ProcedureBit(procedure);
    std::size_t const column = product > 0 && product < products ? static_cast<std::size_t>(product) : 0;
    return bit >= 0 && (masks_[row][column] >> bit & 1U) != 0;
  }

 private:
  static constexpr int products = 5;
  static constexpr int initialBit = static_cast<int>(std::size(kprC_ProcedureRows));

  consteval void Enter(kprC_TypesByStepRow const& row) {
    for (kprC_OfferedType const& offered : row.types) {
      std::uint64_t const steps = row.procedures.IsEmpty() ? std::uint64_t{1} << initialBit
                                                           : row.procedures.Mask() & ~offered.except.Mask();
      for (int product = 0; product < products; ++product) {
        if (row.notFor.Contains(product)) continue;
        masks_[offered.type & 0xffffU][static_cast<std::size_t>(product)] |= steps;
      }
    }
  }

  unsigned int moduleId_;
  std::array<std::array<std::uint64_t, products>, TypeRows + 1> masks_{};
};

/// The labels of the types that the table offers in a step of the procedure (0: the initial step) to the product, in menu
/// order. `mode` 0 gives them as stored, any other in the encoding of the locale; an empty label is left out.
TVO_API cow_List<cow_String> kprC_OfferedLabels(std::span<kprC_TypesByStepRow const> rows,
                                                uti_TranslationMap const& labels, int procedure, int product,
                                                TVOBasStringMode mode);

/// The same for all menus of a family, as stored.
TVO_API cow_List<kprC_OfferedMenu> kprC_OfferedMenus(std::span<kprC_TypesMenu const> menus,
                                                     uti_TranslationMap const& labels, int procedure, int product);

/// Whether an index offers the type in a step of the procedure. A type that has no label is none to ask for: it raises
/// cow_KeyError.
template <std::size_t TypeRows>
bool kprC_IsOfferedByLabel(kprC_OfferIndex<TypeRows> const& index, uti_TranslationMap const& labels, int type,
                           int procedure, int product) {
  bool const offered = index.IsOffered(static_cast<unsigned int>(type), static_cast<unsigned int>(procedure), product);
  if (!offered) {
    labels.ConstGet(static_cast<unsigned int>(type));
  }
  return offered;
}
