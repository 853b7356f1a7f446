#include "tests/documents/page.h"

#include <cstddef>
#include <fstream>
#include <string_view>
#include <utility>

namespace Ortholan::testing {
namespace {

constexpr char kCr[] = "<CR>";
constexpr char kLf[] = "<LF>";

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \r");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \r") + 1 - first));
}

void Replace(std::string* text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text->find(from, at)) != std::string::npos; at += to.size()) {
    text->replace(at, from.size(), to);
  }
}

// Code is one backquote, or two with a blank inside, on either side.
Cell MakeCell(std::string_view source) {
  Cell cell = {Trimmed(source), {}};
  std::size_t at = 0;
  while ((at = cell.text.find('`', at)) != std::string::npos) {
    const std::string fence = cell.text.compare(at, 2, "``") == 0 ? "``" : "`";
    const std::size_t begin = at + fence.size();
    const std::size_t end = cell.text.find(fence, begin);
    if (end == std::string::npos) break;
    std::string code = cell.text.substr(begin, end - begin);
    if (fence.size() == 2) code = code.substr(1, code.size() - 2);
    Replace(&code, kCr, "\r");
    Replace(&code, kLf, "\n");
    cell.code.push_back(std::move(code));
    at = end + fence.size();
  }
  return cell;
}

std::vector<Cell> Cells(std::string_view line) {
  std::vector<Cell> cells;
  std::size_t begin = 1;
  for (std::size_t end; (end = line.find('|', begin)) != std::string_view::npos; begin = end + 1) {
    cells.push_back(MakeCell(line.substr(begin, end - begin)));
  }
  return cells;
}

std::string Head(const std::vector<Cell>& cells) {
  std::string head;
  for (const Cell& cell : cells) head += (head.empty() ? "" : " | ") + cell.text;
  return head;
}

}  // namespace

std::vector<TableRow> TableRows(const std::string& page, const std::string& head) {
  std::ifstream file(std::string(ORTHOLAN_TEST_SOURCES) + "/" + page, std::ios::binary);
  std::vector<TableRow> rows;
  std::string current;  // head of the table that the line stands in
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line[0] != '|') {
      current.clear();
      continue;
    }
    std::vector<Cell> cells = Cells(line);
    if (current.empty()) {
      current = Head(cells);
    } else if (current == head && line.compare(0, 2, "|-") != 0) {
      rows.push_back({page + ":" + std::to_string(number), std::move(cells)});
    }
  }
  return rows;
}

}  // namespace Ortholan::testing
