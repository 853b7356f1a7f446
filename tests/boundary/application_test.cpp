// A small application over the public headers: it keeps a directory of names that people type and
// strangers send.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <string>
#include <vector>

namespace {

using Ortholan::SimpleRDN;
using Ortholan::X509Name;

constexpr char kCommonName[] = "2.5.4.3";
constexpr char kOrganisation[] = "2.5.4.10";

class Directory {
 public:
  // Text that a person typed; the reason where it is refused.
  std::string Add(const char* text) {
    X509Name name;
    Ortholan::SetLastError(0);
    if (!name.TrySetBy(text, 0, true)) return "error " + std::to_string(Ortholan::GetLastError());
    return Add(std::move(name));
  }

  // Bytes that a stranger sent.
  std::string Add(const std::vector<unsigned char>& der) {
    const auto size = static_cast<uint32_t>(der.size());
    return Add(X509Name(Ortholan::IdentObj(der.data(), size)));
  }

  bool Rename(size_t index, const char* common_name) {
    try {
      return names_[index].SetSimpleRDN(kCommonName, common_name);
    } catch (...) {
      return false;
    }
  }

  std::string Text(size_t index) const {
    std::string text;
    names_[index].GetX500String(text, 2);
    return text;
  }

  std::string Organisation(size_t index) const {
    Ortholan::CZEPString value;
    return names_[index].GetSimpleRDN(kOrganisation, value) ? value.c_str() : "-";
  }

  // The name at `index` with the attribute of `key` as in the name at `source`.
  X509Name Merged(size_t index, size_t source, const char* key) const {
    std::list<SimpleRDN> target;
    std::list<SimpleRDN> from;
    names_[index].GetSimpleRDNList(target, false);
    names_[source].GetSimpleRDNList(from, false);
    X509Name::MergeRDNAtributes(target, from, key);
    return X509Name(target);
  }

  const X509Name& operator[](size_t index) const { return names_[index]; }

 private:
  std::string Add(X509Name name) {
    try {
      for (const X509Name& known : names_) {
        if (known == name) return "known";
      }
      std::wstring text;
      name.GetX500String(text, 2);
      names_.push_back(std::move(name));
    } catch (...) {
      return "error " + std::to_string(Ortholan::GetLastError());
    }
    return "added";
  }

  std::vector<X509Name> names_;
};

std::vector<unsigned char> BytesOf(const X509Name& name) {
  return {name.pbData, name.pbData + name.cbData};
}

TEST(Application, KeepsADirectoryOfNames) {
  Directory directory;
  EXPECT_EQ(directory.Add("CN=Alpha, O=\"Org, Ltd\", C=RU"), "added");
  EXPECT_EQ(directory.Add("C=RU; CN=Alpha; O=\"Org, Ltd\""), "known");
  EXPECT_EQ(directory.Add("CN=Beta, C=RU"), "added");
  EXPECT_EQ(directory.Text(0), "2.5.4.6=RU,2.5.4.10=\"Org, Ltd\",2.5.4.3=Alpha");
  EXPECT_EQ(directory.Organisation(0), "Org, Ltd");
  EXPECT_EQ(directory.Organisation(1), "-");

  EXPECT_TRUE(directory.Rename(1, "Alpha"));
  EXPECT_FALSE(directory.Rename(1, ""));
  EXPECT_EQ(directory.Text(1), "2.5.4.6=RU,2.5.4.3=Alpha");
  EXPECT_TRUE(directory[0] != directory[1]);
  EXPECT_TRUE(directory.Merged(1, 0, kOrganisation) == directory[0]);
  EXPECT_TRUE(directory.Merged(0, 1, kOrganisation) == directory[1]);
}

TEST(Application, RecoversFromBadInput) {
  Directory directory;
  EXPECT_EQ(directory.Add("CN=Alpha, O=Org"), "added");
  EXPECT_EQ(directory.Add(""), "error 160");
  EXPECT_EQ(directory.Add(static_cast<const char*>(nullptr)), "error 160");
  const std::vector<unsigned char> der = BytesOf(X509Name("CN=Beta, C=RU", 0, true));
  int refused = 0;
  for (size_t i = 0; i < der.size(); ++i) {
    std::vector<unsigned char> cut = der;
    cut.resize(i);
    // The empty object is a name without attributes.
    EXPECT_EQ(directory.Add(cut), i == 0 ? "added" : "error 1358");
    std::vector<unsigned char> spoiled = der;
    spoiled[i] ^= 0x41;
    const std::string outcome = directory.Add(spoiled);
    EXPECT_TRUE(outcome == "added" || outcome == "known" || outcome == "error 1358") << outcome;
    refused += outcome == "error 1358";
  }
  EXPECT_GT(refused, 10);
  EXPECT_EQ(directory.Text(0), "2.5.4.10=Org,2.5.4.3=Alpha");
}

}  // namespace
