// Taking certificates, requests and revocation lists out of files.
#ifndef ORTHOLAN_EXAMPLES_DOCUMENT_FILE_H_
#define ORTHOLAN_EXAMPLES_DOCUMENT_FILE_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace Example {

// Whether PEM blocks with this label hold such.
bool IsDocumentLabel(std::string_view label);

// The number of a document, from 1, its octets, and where in the file it ends.
using DocumentFound =
    std::function<void(std::size_t number, std::string_view der, std::size_t position)>;
// The number of what cannot be read, and a description.
using DocumentBad = std::function<void(std::size_t number, const std::string& what)>;

// Calls `found` for each document in a file: in PEM, other blocks and the text around them left
// out, in DER, one behind the other, or one as pasted.h has it; for each certificate and revocation
// list in place of the PKCS #7 bundle that holds them. A place that cannot be read goes to `bad`,
// and the next follows. Returns how many there were, good and bad.
std::size_t ForEachDocument(const std::string& file, const DocumentFound& found,
                            const DocumentBad& bad);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_DOCUMENT_FILE_H_
