// Files of test vectors: facts that several tests ask of the library, each written once.
//
// A file of tests/data/vectors/ is UTF-8. Its first line names the columns, every other line is a
// row, tabs part the cells. Lines that begin with "#" and empty lines say nothing to a test. A cell
// that begins with a quotation mark is a JSON string, any other stands for itself; one that is
// missing at the end of a row is empty.
//
//   label            text                   options  der
//   a comma          CN=a, O=b              0        301831...
//   a line end       "CN=\"a\nb\""          0        3010310E...
//
//   for (const VectorRow& row : ReadVectors("names.tsv")) {
//     SCOPED_TRACE(row.where());
//     EXPECT_EQ(Encode(row.wide("text"), row.number("options")), row.octets("der"));
//   }
#ifndef ORTHOLAN_TESTS_SUPPORT_VECTORS_H_
#define ORTHOLAN_TESTS_SUPPORT_VECTORS_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Ortholan::testing {

// One row. Asking for a column that the file has not, or for a cell in another form than it has,
// fails the test and answers with nothing.
class VectorRow {
 public:
  using Columns = std::vector<std::string>;

  VectorRow(std::shared_ptr<const Columns> columns, std::vector<std::string> cells,
            std::string where)
      : columns_(std::move(columns)), cells_(std::move(cells)), where_(std::move(where)) {}

  // File, line and first cell, for the message of a failure.
  const std::string& where() const { return where_; }

  // Whether the file has such a column.
  bool knows(std::string_view column) const;
  // Whether the cell holds anything.
  bool has(std::string_view column) const { return !text(column).empty(); }
  // UTF-8; an unpaired surrogate of a JSON string takes three octets, as any other character there.
  const std::string& text(std::string_view column) const;
  // A UTF-16 unit for each wchar_t.
  std::wstring wide(std::string_view column) const;
  // From hexadecimal digits of either case; blanks are passed over.
  std::string octets(std::string_view column) const;
  // Decimal, or hexadecimal behind 0x; an empty cell is 0.
  uint64_t number(std::string_view column) const;

 private:
  std::shared_ptr<const Columns> columns_;
  std::vector<std::string> cells_;
  std::string where_;
};

// The rows of tests/data/vectors/`name`. A file that is missing, holds no row or a row that is out
// of form fails the test.
std::vector<VectorRow> ReadVectors(const std::string& name);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_VECTORS_H_
