// The failure without a type, as an application meets it through the built library.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <thread>

#include "tests/support/failure.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

struct FailingRow {
  const char* label;
  std::function<void()> call;
};

X509Name NoName() { return Blob("01 02"); }

const FailingRow kFailingRows[] = {
    {"constructor", [] { X509Name("no name", 0, true); }},
    {"constructor from pairs", [] { X509Name(std::list<SimpleRDN>{}); }},
    {"assignment",
     [] {
       X509Name() = CERT_NAME_INFO{0, nullptr};
     }},
    {"set by null", [] { X509Name().SetBy(nullptr, 0, true); }},
    {"wide text",
     [] {
       std::wstring out;
       NoName().GetX500String(out, 3);
     }},
    {"8-bit text",
     [] {
       std::string out;
       NoName().GetX500String(out, 3);
     }},
    {"attributes",
     [] {
       std::list<std::list<RDNAttr>> out;
       NoName().GetNameInfo(out);
     }},
    {"one value",
     [] {
       CZEPString out;
       NoName().GetSimpleRDN("2.5.4.3", out);
     }},
    {"pairs",
     [] {
       std::vector<SimpleRDN> out;
       NoName().GetSimpleRDNVector(out);
     }},
    {"comparison", [] { static_cast<void>(NoName() == X509Name()); }},
    {"attribute of text", [] { RDNAttr("XYZ", "a"); }},
    {"replaced value", [] { X509Name("C=RU", 0, true).SetSimpleRDN("2.5.4.6", "R_"); }},
};

// Set by its destructor, so that a test sees whether the stack was unwound.
class Local {
 public:
  explicit Local(int* gone) : gone_(gone) {}
  Local(const Local&) = delete;
  Local& operator=(const Local&) = delete;
  ~Local() { ++*gone_; }

 private:
  int* gone_;
};

std::string FailureWithLocals(const FailingRow& row) {
  int gone = 0;
  const std::string failure = Failure([&] {
    const Local outer(&gone);
    [&] {
      const Local inner(&gone);
      row.call();
    }();
  });
  return failure + ", " + std::to_string(gone) + " locals gone";
}

constexpr char kExpected[] = "untyped 1358, 2 locals gone";

TEST(UntypedFailure, IsSeenByNoTypedHandler) {
  for (const FailingRow& row : kFailingRows) {
    EXPECT_EQ(FailureWithLocals(row), kExpected) << row.label;
  }
}

// A thread's first exception makes the runtime set up its state: each row has a thread of its own.
TEST(UntypedFailure, KeepsTheLastErrorOnAFreshThread) {
  for (const FailingRow& row : kFailingRows) {
    std::string failure;
    std::thread([&] { failure = FailureWithLocals(row); }).join();
    EXPECT_EQ(failure, kExpected) << row.label;
  }
}

TEST(UntypedFailure, InAHandlerIsNotTheCallersException) {
  for (const FailingRow& row : kFailingRows) {
    SCOPED_TRACE(row.label);
    std::string failure;
    std::string rethrown;
    try {
      throw std::runtime_error("the caller's");
    } catch (const std::runtime_error&) {
      failure = FailureWithLocals(row);
      // And the caller's exception is still the one that a rethrow throws.
      try {
        throw;
      } catch (const std::exception& own) {
        rethrown = own.what();
      }
    }
    EXPECT_EQ(failure, kExpected);
    EXPECT_EQ(rethrown, "the caller's");
  }
}

TEST(UntypedFailure, CanBeKeptAndThrownAgain) {
  std::exception_ptr kept;
  try {
    X509Name("", 0, true);
  } catch (...) {
    kept = std::current_exception();
  }
  ASSERT_NE(kept, nullptr);
  SetLastError(1358);
  std::string failure;
  std::thread([&] { failure = Failure([&] { std::rethrow_exception(kept); }); }).join();
  EXPECT_EQ(failure, "untyped 0");  // the last error is each thread's own
}

TEST(UntypedFailure, LeavesALibraryThatWorks) {
  X509Name name;
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(Failure([&] { name.SetBy("CN", 0, true); }), kUntyped);
    EXPECT_EQ(Failure([&] { name.SetBy("CN=a", 0, true); }), "returned");
  }
  EXPECT_EQ(Hex(name), "30 0C 31 0A 30 08 06 03 55 04 03 13 01 61");
}

}  // namespace
}  // namespace Ortholan::testing
