// Extension records and lists: what is read and written again is stable, and memory and files give
// the same.
#include <ortholan/cert_extension.h>
#include <ortholan/zep_file.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bytes/byte_view.h"
#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

const char* const kStructures[] = {
    X509_NAME_VALUE,   X509_ALTERNATE_NAME,     X509_KEY_USAGE,         X509_ENHANCED_KEY_USAGE,
    X509_OCTET_STRING, X509_BASIC_CONSTRAINTS2, X509_AUTHORITY_KEY_ID2, X509_UNICODE_NAME_VALUE};

bool Same(const CertExtension& a, const CertExtension& b) {
  return a.oid == b.oid && a.critical == b.critical && a.value == b.value;
}

CertExtension Before() {
  CertExtension extension;
  extension.oid = "1.2.3";
  extension.critical = TRUE;
  extension.value = "before";
  return extension;
}

// A file of its own, gone with the object.
class ScratchFile {
 public:
  ScratchFile() {
    const int handle = mkstemp(path_.data());
    LAW(handle >= 0);
    close(handle);
    LAW(file_.Open(path_.c_str(), CZEPFile::kCreate));
  }
  ~ScratchFile() {
    file_.Close();
    unlink(path_.c_str());
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  CZEPFile& file() { return file_; }

 private:
  std::string path_ = std::filesystem::temp_directory_path() / "extension_fuzz_XXXXXX";
  CZEPFile file_;
};

void CheckFile(ByteView bytes, const CertExtension& expected, DWORD used, int code) {
  ScratchFile scratch;
  CZEPFile& file = scratch.file();
  constexpr DWORD kFront = 3;
  LAW(file.Write("abc", kFront) && file.Write(bytes.data, static_cast<DWORD>(bytes.size)));
  LAW(file.Seek(kFront));
  CertExtension read = Before();
  int error = -1;
  LAW(read.ReadData(file, static_cast<DWORD>(bytes.size), &error) == used);
  // The code may differ: a file tells first that a record is cut short, and gives no octets behind
  // the record to a header that is.
  constexpr int kCorrupt = static_cast<int>(0x80093103);
  constexpr int kBadTag = static_cast<int>(0x8009310B);
  LAW((error == 0) == (code == 0));
  LAW(error == 0 || error == kCorrupt || error == kBadTag);
  LAW(Same(read, expected));
  uint64_t position = 0;
  LAW(file.GetPosition(&position) && position == kFront + used);
  if (used == 0) return;

  const IdentObj record = read.WriteData(&error);
  LAW(file.Seek(0));
  LAW(read.WriteData(file, &error) == record.cbData && error == 0);
  LAW(file.Seek(0));
  CertExtension again;
  LAW(again.ReadData(file, record.cbData, &error) == record.cbData && Same(again, read));
}

// Any value may be asked for as any structure; one that was decoded can be encoded.
void CheckStructures(CertExtension extension) {
  const CertExtension before(extension);
  for (const char* const structure : kStructures) {
    IdentObj decoded("before", 6);
    const bool done = extension.DecodeData(decoded, structure);
    LAW(Same(extension, before));
    if (!done) continue;
    CertExtension encoded(extension);
    if (!encoded.EncodeData(decoded.pbData, structure)) continue;
    IdentObj again;
    LAW(encoded.DecodeData(again, structure));
    CertExtension repeated(encoded);
    LAW(repeated.EncodeData(again.pbData, structure) && repeated.value == encoded.value);
  }
}

// Reads the record at the front of `bytes`. Returns its size, 0 where there is none.
DWORD CheckRecord(ByteView bytes, bool file, CertExtension* extension) {
  const DWORD size = static_cast<DWORD>(bytes.size);
  *extension = Before();
  int error = -1;
  const DWORD used = extension->ReadData(bytes.data, size, &error);
  LAW(used <= size && (used != 0) == (error == 0));
  CertExtension silent = Before();
  SetLastError(kUntouched);
  LAW(silent.ReadData(bytes.data, size, nullptr) == used);
  LAW(GetLastError() == static_cast<DWORD>(error) && Same(silent, *extension));
  if (file) CheckFile(bytes, *extension, used, error);
  if (used == 0) {
    LAW(Same(*extension, Before()));
    return 0;
  }
  LAW(extension->critical == 0 || extension->critical == 1);
  LAW(extension->GetObjectSize() == extension->oid.cbData + extension->value.cbData + 12);
  const IdentObj record = extension->WriteData(&error);
  // An identifier of more octets than are written was read.
  if (error != 0) {
    LAW(record.cbData == 0 && extension->oid.cbData > 260);
    return used;
  }
  CertExtension again;
  LAW(again.ReadData(record.pbData, record.cbData, &error) == record.cbData);
  LAW(Same(again, *extension) && again == *extension);
  LAW(again.WriteData(&error) == record);
  CheckStructures(again);
  return used;
}

void CheckList(const std::vector<CertExtension>& extensions) {
  CertExtensionList list;
  for (const CertExtension& extension : extensions) {
    CertExtension found;
    const CZEPString oid(reinterpret_cast<const char*>(extension.oid.pbData), extension.oid.cbData);
    const bool known = list.FindExtension(oid, found);
    const size_t before = list.size();
    LAW(list.Update(extension) == !(known && Same(found, extension)));
    LAW(list.size() == before + (known ? 0 : 1));
    LAW(list.FindExtension(oid, found) && Same(found, extension));
    LAW(!list.Update(extension));
  }
  DWORD size = 4;
  for (const CertExtension& extension : list) size += extension.GetObjectSize();
  LAW(list.GetObjectSize() == size);
  CertExtensionList merged;
  merged.MergeLists(list);
  merged.MergeLists(merged);
  merged.MergeLists(list);
  LAW(merged.size() == list.size());
  auto other = merged.begin();
  for (const CertExtension& extension : list) LAW(Same(extension, *other++));
}

}  // namespace

void FuzzExtension(const uint8_t* data, size_t size) {
  // Files are slow: a small share of the inputs goes through one.
  constexpr unsigned kShare = 32;
  unsigned sum = 0;
  for (size_t i = 0; i < size; ++i) sum = sum * 31 + data[i];
  ByteView rest(data, size);
  std::vector<CertExtension> extensions;
  for (bool first = true;; first = false) {
    CertExtension extension;
    const DWORD used = CheckRecord(rest, first && sum % kShare == 0, &extension);
    if (used == 0) break;
    extensions.push_back(extension);
    rest = rest.From(used);
  }
  CheckList(extensions);
}

}  // namespace Ortholan::fuzzing
