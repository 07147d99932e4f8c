#include "dbc_ColumnCoding.h"

#include <algorithm>
#include <concepts>
#include <span>
#include <type_traits>

namespace {

/// Form of a column; the numbers stand in files.
enum class Form : std::uint8_t {
  packed = 0,     ///< the least cell, then what each cell is above it, in the same number of bytes for all
  valueRuns = 1,  ///< runs of equal cells: length, change from the value before
  stepRuns = 2,   ///< runs of cells that rise by the same step: length, step
};

template <std::unsigned_integral Cell>
std::uint64_t ZigZag(Cell difference) {
  auto const top = static_cast<Cell>(difference >> (8 * sizeof(Cell) - 1));
  return static_cast<Cell>((difference << 1) ^ (Cell{0} - top));
}
template <std::unsigned_integral Cell>
Cell UnZigZag(Cell code) {
  return static_cast<Cell>((code >> 1) ^ (Cell{0} - (code & 1)));
}

constexpr std::uint64_t SwapBytes(std::uint64_t value) {
  value = (value & 0x00ff00ff00ff00ffu) << 8 | (value >> 8 & 0x00ff00ff00ff00ffu);
  value = (value & 0x0000ffff0000ffffu) << 16 | (value >> 16 & 0x0000ffff0000ffffu);
  return value << 32 | value >> 32;
}

// How a cell takes part in runs. Arithmetic is modulo the cell's range, so "no row" and row 0 are neighbours. A double
// has its bytes reversed: what people type has few bits set, all at the top.
template <class Cell>
struct Coding {
  using Bits = Cell;
  static Bits BitsOf(Cell cell) { return cell; }
  static std::uint64_t ChangeCode(Bits value, Bits before) { return ZigZag(static_cast<Bits>(value - before)); }
  static Bits AfterChange(Bits code, Bits before) { return static_cast<Bits>(before + UnZigZag(code)); }
};
template <>
struct Coding<double> {
  using Bits = std::uint64_t;
  static Bits BitsOf(double cell) { return std::bit_cast<Bits>(cell); }
  static std::uint64_t ChangeCode(Bits value, Bits) { return SwapBytes(value); }
  static Bits AfterChange(Bits code, Bits) { return SwapBytes(code); }
};

/// Counts the bytes of runs up to a limit, so that the form can be chosen before anything is written.
class RunCounter {
 public:
  explicit RunCounter(std::size_t limit) : limit_(limit) {}
  bool Put(std::size_t length, std::uint64_t code) {
    size += dbc_VarintSize(length) + dbc_VarintSize(code);
    return size < limit_;
  }
  std::size_t size = 0;

 private:
  std::size_t limit_;
};

class RunWriter {
 public:
  explicit RunWriter(std::uint8_t* to) : at_(to) {}
  bool Put(std::size_t length, std::uint64_t code) {
    at_ = dbc_StoreVarint(dbc_StoreVarint(at_, length), code);
    return true;
  }

 private:
  std::uint8_t* at_;
};

template <class Cell, class Sink>
void ForValueRuns(std::span<Cell const> cells, Sink& sink) {
  using Of = Coding<Cell>;
  typename Of::Bits before = 0;
  for (std::size_t i = 0; i < cells.size();) {
    typename Of::Bits const value = Of::BitsOf(cells[i]);
    std::size_t const last = std::min(cells.size(), i + dbc_MaxRun);
    std::size_t end = i + 1;
    while (end < last && Of::BitsOf(cells[end]) == value) {
      ++end;
    }
    if (!sink.Put(end - i, Of::ChangeCode(value, before))) {
      return;
    }
    before = value;
    i = end;
  }
}

template <class Cell, class Sink>
void ForStepRuns(std::span<Cell const> cells, Sink& sink) {
  Cell before = 0;
  for (std::size_t i = 0; i < cells.size();) {
    auto const step = static_cast<Cell>(cells[i] - before);
    std::size_t const last = std::min(cells.size(), i + dbc_MaxRun);
    std::size_t end = i + 1;
    while (end < last && static_cast<Cell>(cells[end] - cells[end - 1]) == step) {
      ++end;
    }
    if (!sink.Put(end - i, ZigZag(step))) {
      return;
    }
    before = cells[end - 1];
    i = end;
  }
}

template <unsigned int Width, class Bits>
void Unpack(std::uint8_t const* from, Bits* to, std::size_t count, Bits least) {
  for (std::size_t i = 0; i < count; ++i) {
    Bits above = 0;
    for (unsigned int b = 0; b < Width; ++b) {
      above |= static_cast<Bits>(Bits{from[i * Width + b]} << (8 * b));
    }
    to[i] = static_cast<Bits>(least + above);
  }
}
template <unsigned int Width, class Bits>
void Pack(Bits const* from, std::uint8_t* to, std::size_t count, Bits least) {
  for (std::size_t i = 0; i < count; ++i) {
    auto const above = static_cast<Bits>(from[i] - least);
    for (unsigned int b = 0; b < Width; ++b) {
      to[i * Width + b] = static_cast<std::uint8_t>(above >> (8 * b));
    }
  }
}

/// Calls `act` with the width as a constant, so that the loops over cells are tight.
template <class Bits, unsigned int Width = 1, class Act>
void ForWidth(unsigned int width, Act act) {
  if (width == Width) {
    act(std::integral_constant<unsigned int, Width>());
  } else if constexpr (Width < sizeof(Bits)) {
    ForWidth<Bits, Width + 1>(width, act);
  }
}

void PackAll(mem_Array<double> const& cells, dbc_ByteWriter& out) {
  std::uint8_t* to = out.Extend(8 * cells.size());
  for (std::size_t i = 0; i < cells.size(); ++i) {
    dbc_StoreLittle(to + 8 * i, std::bit_cast<std::uint64_t>(cells[i]));
  }
}

template <class Cell>
struct Range {
  Cell least = 0;
  unsigned int width = sizeof(Cell);
};
template <class Cell>
Range<Cell> RangeOf(mem_Array<Cell> const& cells) {
  Range<Cell> range;
  if constexpr (std::is_integral_v<Cell>) {
    Cell least = cells.empty() ? Cell{0} : cells.front();
    Cell most = least;
    for (Cell const cell : cells) {
      least = std::min(least, cell);
      most = std::max(most, cell);
    }
    range.least = least;
    range.width = std::max(1u, static_cast<unsigned int>(std::bit_width(static_cast<Cell>(most - least)) + 7) / 8);
  }
  return range;
}

template <class Cell>
void WritePacked(mem_Array<Cell> const& cells, Range<Cell> const& range, dbc_ByteWriter& out) {
  if constexpr (std::is_same_v<Cell, double>) {
    PackAll(cells, out);
  } else {
    out.Byte(static_cast<std::uint8_t>(range.width));
    out.Varint(range.least);
    ForWidth<Cell>(range.width, [&](auto width) {
      Pack<width.value>(cells.data(), out.Extend(width.value * cells.size()), cells.size(), range.least);
    });
  }
}

template <class Cell>
mem_Array<Cell> ReadPacked(dbc_ByteReader& in, std::size_t count) {
  unsigned int width = sizeof(Cell);
  std::uint64_t least = 0;
  if constexpr (std::is_integral_v<Cell>) {
    width = in.Byte();
    least = in.Varint();
    if (width == 0 || width > sizeof(Cell) || least > std::numeric_limits<Cell>::max()) {
      in.Refuse("a column has cells of no known size");
    }
  }
  if (count > in.Left() / width) {
    in.Refuse("a column has more cells than bytes");
  }
  std::uint8_t const* const from = in.Take(width * count);
  mem_Array<Cell> cells(count);
  if constexpr (std::is_integral_v<Cell>) {
    ForWidth<Cell>(width, [&](auto constant) {
      Unpack<constant.value>(from, cells.data(), count, static_cast<Cell>(least));
    });
  } else {
    for (std::size_t i = 0; i < count; ++i) {
      cells[i] = std::bit_cast<double>(dbc_LoadLittle<std::uint64_t>(from + 8 * i));
    }
  }
  return cells;
}

/// Reads runs: `fill` sets the cells of one run of that length from its code.
template <class Cell, class Fill>
mem_Array<Cell> ReadRuns(dbc_ByteReader& in, std::size_t count, Fill fill) {
  if (count / dbc_MaxRun > in.Left() / 2) {
    in.Refuse("a column has more cells than its runs can hold");
  }
  mem_Array<Cell> cells(count);
  for (std::size_t i = 0; i < count;) {
    std::size_t const length = in.Varint();
    if (length == 0 || length > dbc_MaxRun || length > count - i) {
      in.Refuse("a run has a wrong length");
    }
    std::uint64_t const code = in.Varint();
    if constexpr (sizeof(Cell) < sizeof code) {
      if (code > std::numeric_limits<Cell>::max()) {
        in.Refuse("a number is out of range");
      }
    }
    fill(cells.data() + i, length, static_cast<typename Coding<Cell>::Bits>(code));
    i += length;
  }
  return cells;
}

template <class Cell>
mem_Array<Cell> ReadValueRuns(dbc_ByteReader& in, std::size_t count) {
  using Of = Coding<Cell>;
  typename Of::Bits value = 0;
  return ReadRuns<Cell>(in, count, [&](Cell* to, std::size_t length, typename Of::Bits code) {
    value = Of::AfterChange(code, value);
    std::fill_n(to, length, std::bit_cast<Cell>(value));
  });
}

template <class Cell>
mem_Array<Cell> ReadStepRuns(dbc_ByteReader& in, std::size_t count) {
  Cell value = 0;
  return ReadRuns<Cell>(in, count, [&](Cell* to, std::size_t length, Cell code) {
    Cell const step = UnZigZag(code);
    for (std::size_t i = 0; i < length; ++i) {
      value = static_cast<Cell>(value + step);
      to[i] = value;
    }
  });
}

}  // namespace

template <class Cell>
void dbc_EncodeColumn(mem_Array<Cell> const& cells, dbc_ByteWriter& out) {
  std::span<Cell const> const all(cells);
  Range<Cell> const range = RangeOf(cells);
  Form form = Form::packed;
  std::size_t size = range.width * cells.size();
  RunCounter values(size);
  ForValueRuns(all, values);
  if (values.size < size) {
    form = Form::valueRuns;
    size = values.size;
  }
  if constexpr (std::is_integral_v<Cell>) {
    RunCounter steps(size);
    ForStepRuns(all, steps);
    if (steps.size < size) {
      form = Form::stepRuns;
      size = steps.size;
    }
  }
  out.Byte(static_cast<std::uint8_t>(form));
  if (form == Form::packed) {
    WritePacked(cells, range, out);
    return;
  }
  RunWriter writer(out.Extend(size));
  if (form == Form::valueRuns) {
    ForValueRuns(all, writer);
  } else if constexpr (std::is_integral_v<Cell>) {
    ForStepRuns(all, writer);
  }
}

template <class Cell>
mem_Array<Cell> dbc_DecodeColumn(dbc_ByteReader& in, std::size_t count) {
  switch (static_cast<Form>(in.Byte())) {
    case Form::packed:
      return ReadPacked<Cell>(in, count);
    case Form::valueRuns:
      return ReadValueRuns<Cell>(in, count);
    case Form::stepRuns:
      if constexpr (std::is_integral_v<Cell>) {
        return ReadStepRuns<Cell>(in, count);
      }
      break;
  }
  in.Refuse("a column has no known form");
}

template void dbc_EncodeColumn(mem_Array<std::uint32_t> const&, dbc_ByteWriter&);
template void dbc_EncodeColumn(mem_Array<std::uint64_t> const&, dbc_ByteWriter&);
template void dbc_EncodeColumn(mem_Array<double> const&, dbc_ByteWriter&);
template mem_Array<std::uint32_t> dbc_DecodeColumn(dbc_ByteReader&, std::size_t);
template mem_Array<std::uint64_t> dbc_DecodeColumn(dbc_ByteReader&, std::size_t);
template mem_Array<double> dbc_DecodeColumn(dbc_ByteReader&, std::size_t);
