// Tables of the Markdown pages as test data: what a page says of the library is asked of the
// library.

#ifndef ORTHOLAN_TESTS_DOCUMENTS_PAGE_H_
#define ORTHOLAN_TESTS_DOCUMENTS_PAGE_H_

#include <string>
#include <vector>

namespace Ortholan::testing {

// One cell of a table.
struct Cell {
  std::string text;               // the whole cell, without blanks at its ends
  std::vector<std::string> code;  // what stands between backquotes, <CR> and <LF> replaced

  // The first code of the cell, "" where it has none.
  std::string Value() const { return code.empty() ? std::string() : code.front(); }
};

struct TableRow {
  std::string label;  // file and line, for messages
  std::vector<Cell> cells;
};

// The rows of all tables in `page` (a path from the root of the sources) whose head reads as
// `head`, cells separated by " | ". A page without such a table has none.
std::vector<TableRow> TableRows(const std::string& page, const std::string& head);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DOCUMENTS_PAGE_H_
