// Message texts from string resources, by module name.
#ifndef ORTHOLAN_FOUNDATION_MESSAGE_LOADER_H_
#define ORTHOLAN_FOUNDATION_MESSAGE_LOADER_H_

#include <ortholan/platform.h>

#include <string>

namespace Ortholan {

// The name under which this library's own texts are asked for.
constexpr const char* kOwnModuleName = "ZEPAK2";

// Loads resource `id` of the module: this library's for kOwnModuleName, compared over its length
// without regard to case; the host program's for null; otherwise the file of that name beside the
// host program. False, `text` unchanged, where there is no such module; `text` is "" where the
// module has no such resource.
bool LoadMessage(UINT id, const char* moduleName, std::string* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_MESSAGE_LOADER_H_
