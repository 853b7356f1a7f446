// Each call of the platform made to fail: the operation above it answers as its header says. The
// stand-ins that fail are in posix/ and windows/.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <cstdio>
#include <functional>
#include <string>

#include "tests/faults/rows.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr char kCyrillic[] = "CN=\xD0\x98";

IdentObj Encoded(const wchar_t* text) {
  IdentObj der;
  X500NameEncoder().Encode(text, der, false);
  return der;
}

// What an operation without a typed failure does: its last error.
std::string Untyped(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const XZEPBaseMsg&) {
    return "typed";
  } catch (...) {
    return "untyped " + std::to_string(GetLastError());
  }
  return "returned";
}

CertExtension KeyUsage() {
  CertExtension extension;
  extension.oid = "2.5.29.15";
  extension.value = Blob("03 02 05 A0");
  return extension;
}

constexpr char kFile[] = "platform_faults_test.tmp";

const Row kRows[] = {
    {"MultiByteToWideChar", 0, "ToWString, size",
     [] { return Thrown([] { DerHelper::ToWString("a", 65001); }); },
     "146 DerHelper::ToWString MultiByteToWideChar(1)"},
    {"MultiByteToWideChar", 1, "ToWString, text",
     [] { return Thrown([] { DerHelper::ToWString("a", 65001); }); },
     "146 DerHelper::ToWString MultiByteToWideChar(2)"},
    {"WideCharToMultiByte", 0, "ToString, size",
     [] { return Thrown([] { DerHelper::ToString(L"a", 65001); }); },
     "146 DerHelper::ToString WideCharToMultiByte(1)"},
    {"WideCharToMultiByte", 1, "ToString, text",
     [] { return Thrown([] { DerHelper::ToString(L"a", 65001); }); },
     "146 DerHelper::ToString WideCharToMultiByte(2)"},
    {"MultiByteToWideChar", 0, "NarrowToWide",
     [] {
       wchar_t out[4] = L"xyz";
       const bool null = NarrowToWide(out, "a", 4, 65001) == nullptr;
       return std::string(null && out[0] == 0 ? "null" : "text");
     },
     "null"},
    {"MultiByteToWideChar", 0, "TrySetBy",
     [] {
       X509Name name("O=before", 0, false);
       const IdentObj before = name;
       const std::string told = Told(name.TrySetBy(kCyrillic, 0, false));
       return told + (before == name ? " unchanged" : " changed");
     },
     "false 1114 unchanged"},
    {"MultiByteToWideChar", 0, "SetBy",
     [] {
       X509Name name("O=before", 0, false);
       const std::string told = Untyped([&] { name.SetBy(kCyrillic, 0, false); });
       return told + (name.cbData == 0 ? " empty" : " not empty");
     },
     "untyped 1358 empty"},
    {"WideCharToMultiByte", 0, "GetX500String",
     [] {
       const X509Name name(kCyrillic, 0, false);
       std::string text = "before";
       name.GetX500String(text, 3);
       return "text " + text;
     },
     "text "},
    {"EncodeStringValue", 0, "Encode",
     [] {
       IdentObj der = Blob("AA");
       const std::string told = Told(X500NameEncoder().Encode(L"CN=a", der, false));
       return told + (der.cbData == 0 ? " empty" : " not empty");
     },
     "false 1114 empty"},
    {"DecodeStringValue", 0, "Decode text",
     [] {
       // The text is tried as ASCII and then in full; both must be refused.
       plan.always = true;
       std::wstring text;
       return Told(X500NameDecoder().Decode(Blob("30 0E 31 0C 30 0A 06 03 55 04 03 13 03 61 62 63"),
                                            text, 3));
     },
     "false 1114"},
    {"DecodeStringValue", 0, "Decode tree",
     [] {
       plan.always = true;
       CertNameInfoWrapper tree;
       const bool done =
           X500NameDecoder().Decode(Blob("30 0E 31 0C 30 0A 06 03 55 04 03 13 03 61 62 63"), tree);
       const CERT_RDN_ATTR& attr = static_cast<CERT_NAME_INFO*>(tree)->rgRDN[0].rgRDNAttr[0];
       return (done ? "true " : "false ") + std::to_string(attr.dwValueType) + " " +
              Hex(attr.Value);
     },
     "true 1 13 03 61 62 63"},
    {"FindAttributeInfo", 0, "keywords of the library's own",
     [] {
       // Types of no other row: the system's answers may be remembered.
       plan.always = true;
       const IdentObj der = Encoded(L"l=a, T=b");
       std::wstring text;
       X500NameDecoder().Decode(der, text, 3);
       return DerHelper::ToString(text, 65001);
     },
     "l=a,t=b"},
    {"CryptEncodeObject", 0, "EncodeData, size",
     [] {
       CertExtension extension = KeyUsage();
       CERT_BASIC_CONSTRAINTS2_INFO info = {TRUE, FALSE, 0};
       const std::string told = Told(extension.EncodeData(&info, X509_BASIC_CONSTRAINTS2));
       return told + " " + Hex(extension.value);
     },
     "false 1114 03 02 05 A0"},
    {"CryptEncodeObject", 1, "EncodeData, value",
     [] {
       CertExtension extension = KeyUsage();
       CERT_BASIC_CONSTRAINTS2_INFO info = {TRUE, FALSE, 0};
       const std::string told = Told(extension.EncodeData(&info, X509_BASIC_CONSTRAINTS2));
       return told + " " + Hex(extension.value);
     },
     "false 1114 00 00 00 00 00"},
    {"CryptDecodeObject", 0, "DecodeData, size",
     [] {
       CertExtension extension = KeyUsage();
       IdentObj out = Blob("AA");
       const std::string told = Told(extension.DecodeData(out, X509_KEY_USAGE));
       return told + " " + Hex(out);
     },
     "false 1114 AA"},
    {"CryptDecodeObject", 1, "DecodeData, structure",
     [] {
       CertExtension extension = KeyUsage();
       IdentObj out = Blob("AA");
       return Told(extension.DecodeData(out, X509_KEY_USAGE));
     },
     "false 1114"},
    {"CertRDNValueToStrA", 1, "GetRDNAttrValueString",
     [] {
       const RDNAttr attr("2.5.4.3", CERT_RDN_PRINTABLE_STRING, Blob("61 62"));
       CZEPString out("before");
       X509Name::GetRDNAttrValueString(attr, out);
       return std::string(out.c_str());
     },
     "before"},
    {"CertRDNValueToStrW", 0, "GetSimpleRDN, wide",
     [] {
       const X509Name name("CN=a", 0, false);
       std::wstring out = L"before";
       const bool found = name.GetSimpleRDN("2.5.4.3", out);
       return (found ? "found " : "none ") + DerHelper::ToString(out, 65001);
     },
     "found "},
    {"FileTimeToSystemTime", 0, "ASNTPutElement",
     [] {
       return Thrown([] {
         const BYTE time[8] = {};
         const ASNT_ASN_STRUCT_INFO info = {0, 0, 24, 0, nullptr};
         ASNTPutElement(info, time, 8);
       });
     },
     "1 ASNTPutElement"},
    {"SystemTimeToFileTime", 0, "ASNTGetElement",
     [] {
       const IdentObj der = Blob("17 0D 32 30 30 31 30 31 30 30 30 30 30 30 5A");
       ASNT_ASN_STRUCT_INFO info;
       ASNTGetStructInfo(info, der.pbData, der.cbData);
       IdentObj value;
       return std::to_string(ASNTGetElement(info, der.pbData + der.cbData, value));
     },
     "206"},
    {"LoadStringA", 0, "LoadString",
     [] {
       CZEPString text("before");
       text.LoadString(206);
       return "text " + std::string(text.c_str());
     },
     "text "},
    {"FileOpen", 0, "Open", [] { return Told(CZEPFile().Open(kFile, CZEPFile::kCreate)); },
     "false 1114"},
    {"FileClose", 0, "Close",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       const std::string told = Told(file.Close());
       return told + (file.IsOpen() ? " open" : " closed");
     },
     "false 1114 closed"},
    {"FileClose", 0, "Open where another file is open",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       const std::string told = Told(file.Open(kFile, CZEPFile::kCreate));
       return told + (file.IsOpen() ? " open" : " closed");
     },
     "false 1114 closed"},
    {"FileWrite", 0, "WriteData",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       int error = 0;
       const DWORD written = KeyUsage().WriteData(file, &error);
       return std::to_string(written) + " error " + std::to_string(error);
     },
     "0 error 1114"},
    {"FileRead", 0, "ReadData",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       KeyUsage().WriteData(file, nullptr);
       file.Seek(0);
       CertExtension extension;
       int error = 0;
       const DWORD read = extension.ReadData(file, 100, &error);
       uint64_t position = 99;
       file.GetPosition(&position);
       return std::to_string(read) + " error " + std::to_string(error) + " at " +
              std::to_string(position);
     },
     "0 error 1114 at 0"},
    {"FileSize", 0, "ReadData, size",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       CertExtension extension;
       const DWORD read = extension.ReadData(file, 100, nullptr);
       return std::to_string(read) + " " + std::to_string(GetLastError());
     },
     "0 1114"},
    {"FileSeek", 1, "ReadData, position behind the record",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       KeyUsage().WriteData(file, nullptr);
       file.Seek(0);
       CertExtension extension;
       int error = 0;
       const DWORD read = extension.ReadData(file, 100, &error);
       return std::to_string(read) + " error " + std::to_string(error) +
              (extension == CertExtension() ? " unchanged" : " changed");
     },
     "0 error 1114 unchanged"},
    {"FilePosition", 0, "WriteData, position",
     [] {
       CZEPFile file;
       file.Open(kFile, CZEPFile::kCreate);
       int error = 0;
       const DWORD written = KeyUsage().WriteData(file, &error);
       uint64_t size = 99;
       file.GetSize(&size);
       return std::to_string(written) + " error " + std::to_string(error) + " in " +
              std::to_string(size);
     },
     "0 error 1114 in 0"},
};

TEST(PlatformFaults, AreAnsweredAsPromised) {
  RunRows(kRows);
  std::remove(kFile);
}

}  // namespace
}  // namespace Ortholan::testing
