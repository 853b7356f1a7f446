#include "tests/support/vectors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>

namespace Ortholan::testing {
namespace {

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

void AppendUtf8(uint32_t code, std::string* text) {
  const auto append = [text](uint32_t octet) { text->push_back(static_cast<char>(octet)); };
  if (code < 0x80) return append(code);
  if (code < 0x800) {
    append(0xC0 | code >> 6);
  } else if (code < 0x10000) {
    append(0xE0 | code >> 12);
    append(0x80 | (code >> 6 & 0x3F));
  } else {
    append(0xF0 | code >> 18);
    append(0x80 | (code >> 12 & 0x3F));
    append(0x80 | (code >> 6 & 0x3F));
  }
  append(0x80 | (code & 0x3F));
}

// The four digits behind "\u" at `at`; nothing where there are fewer.
std::optional<uint32_t> UnitAt(std::string_view json, std::size_t at) {
  if (at + 6 > json.size() || json.substr(at, 2) != "\\u") return std::nullopt;
  uint32_t unit = 0;
  for (const char c : json.substr(at + 2, 4)) {
    if (DigitValue(c) < 0) return std::nullopt;
    unit = unit << 4 | static_cast<uint32_t>(DigitValue(c));
  }
  return unit;
}

// Appends the escape at `at` of a JSON string; returns its length, 0 for none (RFC 8259 7).
std::size_t AppendEscape(std::string_view json, std::size_t at, std::string* text) {
  constexpr std::string_view kLetters = "\"\\/bfnrt";
  constexpr std::string_view kMeant = "\"\\/\b\f\n\r\t";
  const std::optional<uint32_t> unit = UnitAt(json, at);
  if (!unit) {
    const std::size_t which = at + 1 < json.size() ? kLetters.find(json[at + 1]) : kLetters.npos;
    if (which == kLetters.npos) return 0;
    text->push_back(kMeant[which]);
    return 2;
  }
  const std::optional<uint32_t> low = UnitAt(json, at + 6);
  const bool pair = *unit >> 10 == 0x36 && low && *low >> 10 == 0x37;
  AppendUtf8(pair ? 0x10000 + ((*unit & 0x3FF) << 10 | (*low & 0x3FF)) : *unit, text);
  return pair ? 12 : 6;
}

// What a cell means; nothing for a JSON string that is none.
std::optional<std::string> CellText(std::string_view cell) {
  if (cell.empty() || cell[0] != '"') return std::string(cell);
  std::string text;
  std::size_t at = 1;
  while (at < cell.size() && cell[at] != '"') {
    if (cell[at] != '\\') {
      text.push_back(cell[at++]);
      continue;
    }
    const std::size_t length = AppendEscape(cell, at, &text);
    if (length == 0) return std::nullopt;
    at += length;
  }
  if (at + 1 != cell.size()) return std::nullopt;
  return text;
}

std::vector<std::string> Split(const std::string& line) {
  std::vector<std::string> cells;
  std::size_t begin = 0;
  for (std::size_t tab; (tab = line.find('\t', begin)) != std::string::npos; begin = tab + 1) {
    cells.push_back(line.substr(begin, tab - begin));
  }
  cells.push_back(line.substr(begin));
  return cells;
}

}  // namespace

bool VectorRow::knows(std::string_view column) const {
  return std::find(columns_->begin(), columns_->end(), column) != columns_->end();
}

const std::string& VectorRow::text(std::string_view column) const {
  static const std::string kNothing;
  const auto found = std::find(columns_->begin(), columns_->end(), column);
  if (found == columns_->end()) {
    ADD_FAILURE() << where_ << ": no column " << column;
    return kNothing;
  }
  const auto which = static_cast<std::size_t>(found - columns_->begin());
  return which < cells_.size() ? cells_[which] : kNothing;
}

std::wstring VectorRow::wide(std::string_view column) const {
  std::wstring units;
  uint32_t code = 0;
  unsigned left = 0;
  for (const char c : text(column)) {
    const auto octet = static_cast<unsigned char>(c);
    if (octet >= 0x80 && octet < 0xC0) {
      code = code << 6 | (octet & 0x3Fu);
      --left;
    } else {
      left = octet < 0xC0 ? 0 : octet < 0xE0 ? 1 : octet < 0xF0 ? 2 : 3;
      code = left == 0 ? octet : octet & (0x3Fu >> left);
    }
    if (left != 0) continue;
    if (code >= 0x10000) units.push_back(static_cast<wchar_t>(0xD7C0 + (code >> 10)));
    units.push_back(static_cast<wchar_t>(code >= 0x10000 ? 0xDC00 | (code & 0x3FF) : code));
  }
  return units;
}

std::string VectorRow::octets(std::string_view column) const {
  std::string octets;
  int high = -1;
  for (const char c : text(column)) {
    if (c == ' ') continue;
    const int digit = DigitValue(c);
    if (digit < 0) ADD_FAILURE() << where_ << ": no hexadecimal digits: " << column;
    if (high >= 0) octets.push_back(static_cast<char>(high << 4 | digit));
    high = high >= 0 ? -1 : digit;
  }
  if (high >= 0) ADD_FAILURE() << where_ << ": an odd number of digits: " << column;
  return octets;
}

uint64_t VectorRow::number(std::string_view column) const {
  const std::string& cell = text(column);
  if (cell.empty()) return 0;
  char* end = nullptr;
  const bool hexadecimal = cell.compare(0, 2, "0x") == 0;
  const uint64_t value = std::strtoull(cell.c_str(), &end, hexadecimal ? 16 : 10);
  if (*end != '\0') ADD_FAILURE() << where_ << ": no number: " << column;
  return value;
}

std::vector<VectorRow> ReadVectors(const std::string& name) {
  std::ifstream file(ORTHOLAN_TEST_DATA "/vectors/" + name, std::ios::binary);
  std::shared_ptr<const VectorRow::Columns> columns;
  std::vector<VectorRow> rows;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> cells = Split(line);
    if (!columns) {
      columns = std::make_shared<VectorRow::Columns>(std::move(cells));
      continue;
    }
    const std::string where = name + ":" + std::to_string(number) + ": " + cells[0];
    if (cells.size() > columns->size()) ADD_FAILURE() << where << ": more cells than columns";
    for (std::string& cell : cells) {
      std::optional<std::string> text = CellText(cell);
      if (!text) ADD_FAILURE() << where << ": not a JSON string: " << cell;
      cell = text.value_or("");
    }
    rows.emplace_back(columns, std::move(cells), where);
  }
  if (rows.empty()) ADD_FAILURE() << "no rows in tests/data/vectors/" << name;
  return rows;
}

}  // namespace Ortholan::testing
