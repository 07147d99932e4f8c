#pragma once

#include <ostream>
#include <string>
#include <vector>

/// Rows of cells.
using Rows = std::vector<std::vector<std::string>>;

/// The text in one line: line breaks as `\n`, tabs as `\t`.
std::string InOneLine(std::string_view text);

/// Prints rows with tabs between the cells, or as an aligned table.
class RowPrinter {
 public:
  RowPrinter(std::ostream& out, bool tabs) : out_(out), tabs_(tabs) {}

  void Print(Rows const& rows) const;
  void Line(std::string_view text) const { out_ << text << '\n'; }

 private:
  std::ostream& out_;
  bool tabs_;
};
