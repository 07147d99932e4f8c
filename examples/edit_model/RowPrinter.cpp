#include "RowPrinter.h"

#include <algorithm>

namespace {

/// Columns that a UTF-8 text takes: its bytes but those that continue a character.
std::size_t Width(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

std::vector<std::size_t> ColumnWidths(Rows const& rows) {
  std::vector<std::size_t> widths;
  for (auto const& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], Width(InOneLine(row[i])));
  }
  return widths;
}

}  // namespace

std::string InOneLine(std::string_view text) {
  std::string line;
  for (char const c : text) {
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\t') {
      line += "\\t";
    } else {
      line += c;
    }
  }
  return line;
}

void RowPrinter::Print(Rows const& rows) const {
  std::vector<std::size_t> const widths = ColumnWidths(rows);
  for (auto const& row : rows) {
    std::string line;
    std::size_t column = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
      std::string const cell = InOneLine(row[i]);
      if (tabs_) {
        line.append(i == 0 ? "" : "\t").append(cell);
        continue;
      }
      if (!cell.empty()) line.append(column - Width(line), ' ').append(cell);
      column += widths[i] + 2;
    }
    Line(line);
  }
}
