// Columns answer as the functions for single items do, whatever room there is.
#include <gtest/gtest.h>
#include <ortholan/strict.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/hex.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

struct Column {
  std::string data;
  std::vector<int64_t> offsets{0};

  void Add(const std::string& item) {
    data += item;
    offsets.push_back(static_cast<int64_t>(data.size()));
  }
  // The items from one on.
  ortholan_column From(size_t first) const {
    return {reinterpret_cast<const uint8_t*>(data.data()), data.size(), offsets.data() + first,
            offsets.size() - 1 - first};
  }
};

using Ask =
    std::function<ortholan_reason(const ortholan_column*, const ortholan_column_room*, size_t*)>;

// The answers, asked with room for `size` octets at a time.
std::vector<std::string> Answers(const Column& items, size_t size, const Ask& ask) {
  std::vector<std::string> answers;
  const size_t count = items.offsets.size() - 1;
  while (answers.size() < count) {
    std::vector<uint8_t> data(size);
    std::vector<int64_t> offsets(count + 1);
    std::vector<ortholan_reason> reasons(count);
    const ortholan_column rest = items.From(answers.size());
    const ortholan_column_room room = {data.data(), size, offsets.data(), reasons.data()};
    size_t done = 0;
    EXPECT_EQ(ask(&rest, &room, &done), ORTHOLAN_REASON_NONE);
    if (done == 0) size *= 2;
    for (size_t i = 0; i < done; ++i) {
      const std::string answer(data.data() + offsets[i], data.data() + offsets[i + 1]);
      answers.push_back(reasons[i] == 0 ? answer : "refused" + answer);
    }
  }
  return answers;
}

TEST(Columns, AnswerAsSingleCallsDo) {
  const struct {
    const char* file;
    const char* in;
    const char* out;
    const char* instead;  // where the column before has nothing
    bool is_text_in, is_text_out;
    Ask ask;
  } kRows[] = {
      {"rfc4514_write.tsv", "der", "text", "text", false, true,
       [](auto* names, auto* room, auto* done) {
         return ortholan_column_rfc4514_write(names, ORTHOLAN_READ_DER, nullptr, room, done);
       }},
      {"rfc4514_read.tsv", "text", "der", "der", true, false,
       [](auto* texts, auto* room, auto* done) {
         return ortholan_column_rfc4514_read(texts, nullptr, room, done);
       }},
      {"strict_general_names.tsv", "der", "shown", "text", false, true,
       [](auto* names, auto* room, auto* done) {
         return ortholan_column_general_name_to_text(names, room, done);
       }},
  };
  for (const auto& row : kRows) {
    Column items;
    std::vector<std::string> wanted;
    for (const VectorRow& each : ReadVectors(row.file)) {
      const std::string in = each.text(row.in);
      const std::string out = each.text(each.text(row.out).empty() ? row.instead : row.out);
      if (in.empty()) continue;
      items.Add(row.is_text_in ? in : Octets(in));
      wanted.push_back(out.empty() ? "refused" : row.is_text_out ? out : Octets(out));
    }
    for (const size_t size : {1u, 300u, 100000u}) {
      EXPECT_EQ(Answers(items, size, row.ask), wanted) << row.file << ", room for " << size;
    }
  }
}

TEST(Columns, KeysAreThoseOfSingleNames) {
  Column names;
  std::vector<std::string> wanted;
  for (const VectorRow& row : ReadVectors("match_keys.tsv")) {
    names.Add(Octets(row.text("in")));
    wanted.push_back(Octets(row.text("out").substr(0, row.text("out").find(' '))));
  }
  const auto ask = [](auto* items, auto* room, auto* done) {
    return ortholan_column_match_key(items, ORTHOLAN_MATCH_RFC5280, room, done);
  };
  EXPECT_EQ(Answers(names, 50, ask), wanted);
}

TEST(Columns, RefuseOffsetsOutsideTheData) {
  const uint8_t data[] = {0x30, 0x00};
  uint8_t text[8];
  int64_t offsets[2];
  ortholan_reason reasons[1];
  const ortholan_column_room room = {text, sizeof text, offsets, reasons};
  for (const auto& [begin, end] : {std::pair<int64_t, int64_t>{0, 3}, {-1, 2}, {2, 1}}) {
    const int64_t wrong[] = {begin, end};
    const ortholan_column names = {data, sizeof data, wrong, 1};
    size_t done = 1;
    EXPECT_EQ(ortholan_column_match_key(&names, ORTHOLAN_MATCH_RFC5280, &room, &done),
              ORTHOLAN_REASON_ARGUMENT);
    EXPECT_EQ(done, 0u);
  }
}

}  // namespace
}  // namespace Ortholan::testing
