// A program for a debugger to look into: its global objects are what printers_test.py prints.
//
//   printed NAMES        a file of names, DER in hexadecimal digits, one a line

#include <ortholan/cert_extension.h>
#include <ortholan/general_name.h>
#include <ortholan/ident_obj.h>
#include <ortholan/rdn.h>
#include <ortholan/x509_name.h>
#include <ortholan/zep_string.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <list>
#include <string>

using namespace Ortholan;

constexpr std::size_t kMostNames = 400;

X509Name names[kMostNames];
std::size_t nameCount = 0;

const BYTE kOctets[] = {0x30, 0x03, 0x0A, 0xFF, 0x00};
IdentObj someOctets(kOctets, sizeof kOctets);
IdentObj manyOctets(nullptr, 100000);
IdentObj noOctets;
IdentObj& reference = someOctets;

CZEPString someString("2.5.4.3");
CZEPString emptyString("");
CZEPString noString;
CZEPString withControls("a\n\x1b[31m");
CZEPString longString;

RDNAttr attributes[4] = {{"CN", "Alpha"}, {"C", "RU"}, {"2.5.4.10", 3, IdentObj("12", 2)}, {}};
RDNAttr decodedAttribute;
SimpleRDN pair("2.5.4.3", "Alpha");

GeneralName generalNames[] = {
    GeneralName::CreateDnsName(L"example.org"),
    GeneralName::DerDecode(IdentObj("\x82\x01"
                                    "a",
                                    3)),
    GeneralName::DerDecode(IdentObj("\x87\x04\xC0\x00\x02\x01", 6)),
    GeneralName::DerDecode(IdentObj("\x88\x03\x2A\x03\x04", 5)),
    GeneralName(directoryName, IdentObj("\xA4\x03\x30\x01", 4)),
    GeneralName(static_cast<GeneralNameTag>(77), IdentObj("\x05\x00", 2)),
};
GeneralName directory;
CertExtension extension;
CertExtension emptyExtension;

// What no constructor has seen: each pattern in turn is the memory of an object of every class.
alignas(std::max_align_t) unsigned char garbage[256];
// Pointers that lead nowhere, sizes beyond what is there.
IdentObj* wildPointer = nullptr;
IdentObj* wildSize = nullptr;

extern "C" {
void Inspect();
void InspectGarbage();
}
// Where the debugger stops.
volatile int stops = 0;
void Inspect() { stops = stops + 1; }
void InspectGarbage() { stops = stops + 1; }

namespace {

IdentObj FromDigits(const std::string& digits) {
  IdentObj octets(nullptr, static_cast<DWORD>(digits.size() / 2));
  for (std::size_t i = 0; i < octets.cbData; ++i) {
    octets.pbData[i] = static_cast<BYTE>(std::stoul(digits.substr(2 * i, 2), nullptr, 16));
  }
  return octets;
}

void ReadNames(const char* path) {
  std::ifstream file(path);
  for (std::string line; nameCount < kMostNames && std::getline(file, line);) {
    names[nameCount++] = FromDigits(line);
  }
}

void FillIn() {
  for (int i = 0; i < 2000; ++i) longString += 'x';
  std::list<std::list<RDNAttr>> tree;
  names[0].GetNameInfo(tree);
  decodedAttribute = tree.front().front();
  directory = GeneralName::CreateDirectoryName(names[0]);
  extension.oid = "2.5.29.15";
  extension.critical = TRUE;
  extension.value = IdentObj(kOctets, 4);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  ReadNames(argv[1]);
  FillIn();

  IdentObj first(kOctets, sizeof kOctets);
  IdentObj second(kOctets, sizeof kOctets);
  BYTE* const original = first.pbData;
  wildPointer = &first;
  first.pbData = reinterpret_cast<BYTE*>(std::uintptr_t{16});
  wildSize = &second;
  second.cbData = 0xFFFFFFFF;
  Inspect();
  first.pbData = original;
  second.cbData = sizeof kOctets;

  for (const int pattern : {0x00, 0x01, 0x41, 0xCC, 0xFF}) {
    std::memset(garbage, pattern, sizeof garbage);
    InspectGarbage();
  }
  return 0;
}
