#include "tests/support/calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "realisation.h"

namespace Ortholan::testing {
namespace {

bool Applies(const VectorRow& row) {
  if (!row.knows("where") || !row.has("where")) return true;
  const Realisation here = ThisRealisation();
  const char* const name = here == kNative ? "native" : here == kWine ? "wine" : "windows";
  return row.text("where").find(name) != std::string::npos;
}

}  // namespace

void RunCalls(const std::string& file, const std::vector<Call>& calls) {
  std::set<std::string_view> asked;
  for (const VectorRow& row : ReadVectors(file)) {
    SCOPED_TRACE(row.where());
    const std::string name = row.knows("call") ? row.text("call") : std::string(calls[0].name);
    const auto call = std::find_if(calls.begin(), calls.end(),
                                   [&name](const Call& each) { return each.name == name; });
    if (call == calls.end()) {
      ADD_FAILURE() << "no call " << name;
      continue;
    }
    asked.insert(call->name);
    if (!Applies(row)) continue;
    EXPECT_EQ(call->answer(row), row.text("out"));
  }
  EXPECT_EQ(asked.size(), calls.size()) << "calls of " << file << " without a row";
}

}  // namespace Ortholan::testing
