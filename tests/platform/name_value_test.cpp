// CryptEncodeObject and CryptDecodeObject over X509_NAME_VALUE, and how both treat types and sizes.

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kTooLarge = static_cast<DWORD>(CRYPT_E_ASN1_LARGE);
constexpr DWORD kAccessViolation = 0xC0000005;

constexpr unsigned kSystem = kWindows | kWine;

struct RoomRow {
  const char* label;
  DWORD room;
  bool fits;
};

TEST(CodecSizes, TooLittleRoomIsRefusedAndTheNeedStored) {
  BYTE text[] = {'A'};
  const CERT_NAME_VALUE value{CERT_RDN_PRINTABLE_STRING, {1, text}};
  for (const RoomRow& row : {RoomRow{"none", 0, false}, RoomRow{"one less", 2, false},
                             RoomRow{"just enough", 3, true}, RoomRow{"more", 9, true}}) {
    SCOPED_TRACE(row.label);
    ExactBlock<char> out(row.room);
    DWORD size = row.room;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &value, AsBytes(out.data()), &size),
              row.fits ? TRUE : FALSE);
    ExpectLastError(!row.fits, ERROR_MORE_DATA);
    EXPECT_EQ(size, 3u);
  }

  if (ThisRealisation() == kWine) return;  // it writes past the room when it decodes
  BYTE der[] = {0x13, 0x01, 'A'};
  for (const RoomRow& row : {RoomRow{"none", 0, false}, RoomRow{"the structure alone", 24, false},
                             RoomRow{"just enough", 25, true}, RoomRow{"more", 40, true}}) {
    SCOPED_TRACE(row.label);
    ExactBlock<char> out(row.room);
    DWORD size = row.room;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptDecodeObject(kEncoding, X509_NAME_VALUE, der, sizeof der, 0, out.data(), &size),
              row.fits ? TRUE : FALSE);
    ExpectLastError(!row.fits, ERROR_MORE_DATA);
    EXPECT_EQ(size, 25u);
  }
}

struct TypeRow {
  const char* label;
  DWORD encoding;
  LPCSTR type;
  bool known;
};

TEST(CodecTypes, AreFoundByEncodingAndType) {
  const TypeRow kRows[] = {
      {"both encodings", kEncoding, X509_NAME_VALUE, true},
      {"X.509 alone", X509_ASN_ENCODING, X509_NAME_VALUE, true},
      {"PKCS #7 alone", PKCS_7_ASN_ENCODING, X509_NAME_VALUE, true},
      {"no encoding", 0, X509_NAME_VALUE, false},
      {"another encoding", 0x00020002, X509_NAME_VALUE, false},
      {"no such constant", kEncoding, reinterpret_cast<LPCSTR>(999), false},
      {"no such identifier", kEncoding, "1.2.3", false},
      {"empty identifier", kEncoding, "", false},
      {"null", kEncoding, nullptr, false},
  };
  BYTE der[] = {0x13, 0x01, 'A'};
  BYTE text[] = {'A'};
  const CERT_NAME_VALUE value{CERT_RDN_PRINTABLE_STRING, {1, text}};
  for (const TypeRow& row : kRows) {
    SCOPED_TRACE(row.label);
    DWORD size = 0;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptDecodeObject(row.encoding, row.type, der, sizeof der, 0, nullptr, &size),
              row.known ? TRUE : FALSE);
    ExpectLastError(!row.known, ERROR_FILE_NOT_FOUND);
    SetLastError(kUntouched);
    EXPECT_EQ(CryptEncodeObject(row.encoding, row.type, &value, nullptr, &size),
              row.known ? TRUE : FALSE);
    ExpectLastError(!row.known, ERROR_FILE_NOT_FOUND);
  }
}

TEST(CodecArguments, NullStructureIsRefused) {
  DWORD size = 0;
  SetLastError(kUntouched);
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, nullptr, nullptr, &size));
  const Contract<DWORD> kError{
      ERROR_INVALID_PARAMETER,
      {{kSystem, kAccessViolation, "runs into the null pointer and catches itself"}}};
  ExpectLastError(true, kError.Here());
}

TEST(CodecArguments, CountedOctetsMustBeThere) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system relies on its caller";
  const CERT_NAME_VALUE in{CERT_RDN_PRINTABLE_STRING, {5, nullptr}};
  DWORD size = 0;
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, nullptr, &size));
  ExpectLastError(true, ERROR_INVALID_PARAMETER);
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, nullptr, nullptr));
  EXPECT_FALSE(CryptDecodeObject(kEncoding, X509_NAME_VALUE, nullptr, 5, 0, nullptr, &size));
  ExpectLastError(true, ERROR_INVALID_PARAMETER);

  // The largest value there can be: its element would pass 32 bits.
  BYTE octet = 'A';
  const CERT_NAME_VALUE huge{CERT_RDN_PRINTABLE_STRING, {0xFFFFFFFF, &octet}};
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &huge, nullptr, &size));
  ExpectLastError(true, kTooLarge);
}

}  // namespace
}  // namespace Ortholan::testing
