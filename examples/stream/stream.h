// Many in one run: what a command does with --lines. Items come from the files or standard input,
// and a line goes out for each, in the same order, whether it is refused or not.
//
//   x509name decode --rfc4514 --lines --jobs 2 <names.hex >names.txt
#ifndef ORTHOLAN_EXAMPLES_STREAM_STREAM_H_
#define ORTHOLAN_EXAMPLES_STREAM_STREAM_H_

#include <functional>

#include "examples/arguments.h"
#include "examples/stream/answers.h"
#include "examples/stream/item_source.h"

namespace Example {

// Adds one line; a Failure that it throws is a line as well.
using ItemWork = std::function<void(const Item& item, Answers& answers)>;

// How a command takes items; without `make` it takes none.
struct LineWork {
  // Once for each thread, so that each has memory of its own. Throws UsageError.
  ItemWork (*make)(const Arguments& arguments) = nullptr;
  bool takes_documents = false;  // files of certificates may be PEM or DER as well
};

extern const Option kLinesOption;  // --lines
extern const Option kJobsOption;   // --jobs N

// Returns the exit status: 1 where an item was refused or a file could not be read.
int RunStream(const char* command, const LineWork& work, const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_STREAM_H_
