// Random chains against a slow reading of RFC 5280 4.2.1.10: a subtree and a name are sets of
// hosts, mailboxes, addresses or paths of RDNs in a world small enough to be listed, and the rules
// are said of these sets. Every chain is also asked with its lists reversed, in other letter case,
// and with its subtrees often enough for the tables of long lists: the verdict stays.

#include <gtest/gtest.h>

#include <algorithm>
#include <ortholan/strict.hpp>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/support/certificates.h"

namespace Ortholan::testing {
namespace {

using World = std::set<std::string>;

// One name or subtree: its encoding as a GeneralName, and what it stands for.
struct Item {
  int form;
  std::string text;
  World members;
};

enum Form { kMail = 1, kDns = 2, kDirectory = 4, kUri = 6, kAddress = 7 };

// All hosts of up to four labels "a" and "b".
const std::vector<std::string>& Hosts() {
  static const std::vector<std::string> hosts = [] {
    std::vector<std::string> all = {"a", "b"};
    for (size_t i = 0; i < all.size() && all[i].size() < 7; ++i) {
      all.push_back("a." + all[i]);
      all.push_back("b." + all[i]);
    }
    return all;
  }();
  return hosts;
}

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// Hosts with at least `least` labels in front of the given one.
World Below(const std::string& host, bool withItself, bool oneLabelAlone) {
  World below;
  for (const std::string& each : Hosts()) {
    const bool is_below = EndsWith(each, "." + host);
    const bool is_near = each.size() == host.size() + 2;
    if ((withItself && each == host) || (is_below && (is_near || !oneLabelAlone))) {
      below.insert(each);
    }
  }
  return below;
}

class Maker {
 public:
  explicit Maker(unsigned seed) : random_(seed) {}

  size_t Below(size_t count) { return random_() % count; }
  std::string Host() { return Hosts()[Below(14)]; }
  bool OneIn(size_t count) { return Below(count) == 0; }

  Item Subtree() {
    const std::string host = Host();
    const bool dotted = OneIn(3);
    const World hosts = testing::Below(host, !dotted, false);
    const std::string text = (dotted ? "." : "") + host;
    switch (Below(5)) {
      case 0:
        return {kDns, text, hosts};
      case 1:
        return {kUri, text, dotted ? hosts : World{host}};
      case 2:
        if (OneIn(2)) return Mailbox();
        return {kMail, text, MailboxesAt(dotted ? hosts : World{host})};
      case 3:
        return Range();
      default:
        return {kDirectory, Path(2), {}};
    }
  }

  Item Name() {
    const std::string host = Host();
    switch (Below(6)) {
      case 0:
        return {kDns, host, {host}};
      case 1:
        return {kDns, "*." + host, testing::Below(host, false, true)};
      case 2:
        return {kUri, "https://" + host + "/x", {host}};
      case 3:
        return Mailbox();
      case 4: {
        const auto last = static_cast<char>(Below(8));
        const std::string address = {'\x0A', '\0', '\0', last};
        return {kAddress, address, {address}};
      }
      default:
        return {kDirectory, Path(3), {}};
    }
  }

 private:
  Item Mailbox() {
    const std::string mailbox = (OneIn(2) ? "x@" : "y@") + Host();
    return {kMail, mailbox, {mailbox}};
  }
  static World MailboxesAt(const World& hosts) {
    World mailboxes;
    for (const std::string& host : hosts) {
      mailboxes.insert("x@" + host);
      mailboxes.insert("y@" + host);
    }
    return mailboxes;
  }
  // 10.0.0.0/29 to /32.
  Item Range() {
    const unsigned bits = static_cast<unsigned>(Below(4));
    const unsigned mask = 0xFFu << bits & 0xFF;
    const unsigned first = static_cast<unsigned>(Below(8));
    World members;
    for (unsigned last = 0; last < 8; ++last) {
      if ((last & mask) == (first & mask)) members.insert({'\x0A', '\0', '\0', char(last)});
    }
    return {kAddress,
            std::string{'\x0A', '\0', '\0', char(first), '\xFF', '\xFF', '\xFF', char(mask)},
            members};
  }
  // A letter an RDN.
  std::string Path(size_t most) {
    std::string path;
    for (size_t i = Below(most + 1); i != 0; --i) path += OneIn(2) ? 'p' : 'q';
    return path;
  }

  std::mt19937 random_;
};

// ---- The slow reading

bool IsInside(const Item& name, const Item& subtree) {
  if (name.form == kDirectory) return name.text.compare(0, subtree.text.size(), subtree.text) == 0;
  return std::includes(subtree.members.begin(), subtree.members.end(), name.members.begin(),
                       name.members.end());
}

bool IsTouched(const Item& name, const Item& subtree) {
  if (name.form == kDirectory) return IsInside(name, subtree);
  return std::any_of(name.members.begin(), name.members.end(),
                     [&](const std::string& each) { return subtree.members.count(each) != 0; });
}

struct Authority {
  std::vector<Item> permitted, excluded;
};

bool Permits(const Authority& authority, const Item& name) {
  bool is_constrained = false, is_permitted = false;
  for (const Item& subtree : authority.excluded) {
    if (subtree.form == name.form && IsTouched(name, subtree)) return false;
  }
  for (const Item& subtree : authority.permitted) {
    if (subtree.form != name.form) continue;
    is_constrained = true;
    is_permitted = is_permitted || IsInside(name, subtree);
  }
  return !is_constrained || is_permitted;
}

// ---- Encodings

std::string Upper(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

std::string NameOf(const std::string& path) {
  std::string rdns;
  for (const char letter : path) {
    const std::string value = Tlv(0x13, std::string(1, letter));
    rdns += Tlv(0x31, Tlv(0x30, Tlv(0x06, "\x55\x04\x0B") + value));
  }
  return Tlv(0x30, rdns);
}

// How a chain is written down: the ways that may not matter.
struct Writing {
  bool reversed = false;
  bool upper = false;
  size_t times = 1;
};

std::string General(const Item& item, const Writing& writing) {
  const bool folds = writing.upper && item.form != kAddress && item.form != kMail;
  const std::string text = folds ? Upper(item.text) : item.text;
  if (item.form == kDirectory) return Tlv(0xA4, NameOf(text));
  return Tlv(static_cast<uint8_t>(0x80 | item.form), text);
}

std::string List(const std::vector<Item>& items, bool areSubtrees, const Writing& writing) {
  std::vector<std::string> parts;
  for (const Item& item : items) {
    const std::string general = General(item, writing);
    parts.push_back(areSubtrees ? Tlv(0x30, general) : general);
  }
  if (writing.reversed) std::reverse(parts.begin(), parts.end());
  std::string list;
  for (size_t i = 0; i < (areSubtrees ? writing.times : 1); ++i) {
    for (const std::string& part : parts) list += part;
  }
  return list;
}

std::string Constraints(const Authority& authority, const Writing& writing) {
  std::string lists;
  if (!authority.permitted.empty()) lists += Tlv(0xA0, List(authority.permitted, true, writing));
  if (!authority.excluded.empty()) lists += Tlv(0xA1, List(authority.excluded, true, writing));
  return lists.empty() ? lists : Extension(30, Tlv(0x30, lists));
}

ortholan::Verdict Ask(const std::vector<Item>& names, const std::vector<Authority>& authorities,
                      const Writing& writing) {
  const std::string alternatives =
      Extension(17, Tlv(0x30, List(names, false, {writing.reversed, false, 1})));
  std::vector<std::string> chain = {Certificate(NameOf("i"), NameOf(""), alternatives)};
  for (const Authority& authority : authorities) {
    chain.push_back(Certificate(NameOf("i"), NameOf(""), Constraints(authority, writing)));
  }
  return ortholan::Permits({chain.begin(), chain.end()}).verdict;
}

TEST(NameConstraints, AgreesWithSetsOfNames) {
  Maker maker(20261121);
  size_t permitted = 0;
  constexpr size_t kChains = 3000 / ORTHOLAN_TEST_SCALE;
  for (size_t i = 0; i < kChains; ++i) {
    std::vector<Item> names;
    std::vector<Authority> authorities(1 + maker.Below(2));
    for (size_t k = 1 + maker.Below(3); k != 0; --k) names.push_back(maker.Name());
    for (Authority& authority : authorities) {
      for (size_t k = maker.Below(4); k != 0; --k) authority.permitted.push_back(maker.Subtree());
      for (size_t k = maker.Below(3); k != 0; --k) authority.excluded.push_back(maker.Subtree());
    }
    bool permits = true;
    for (const Authority& authority : authorities) {
      for (const Item& name : names) permits = permits && Permits(authority, name);
    }
    permitted += permits ? 1 : 0;
    const auto expected = permits ? ortholan::Verdict::kYes : ortholan::Verdict::kNo;
    for (const Writing& writing :
         {Writing{}, {true, false, 1}, {false, true, 1}, {true, true, 40}}) {
      EXPECT_EQ(Ask(names, authorities, writing), expected)
          << "chain " << i << ": " << List(names, false, {}) << " under "
          << Constraints(authorities[0], {});
    }
  }
  // Neither verdict is rare.
  EXPECT_GT(permitted, kChains / 5);
  EXPECT_LT(permitted, kChains * 4 / 5);
}

// A budget that does not suffice is no yes, and no refusal that was not found.
TEST(NameConstraints, AnEmptyBudgetCannotTell) {
  const std::string name =
      Certificate(NameOf("i"), NameOf(""), Extension(17, Tlv(0x30, Tlv(0x82, "a"))));
  const std::string subtrees = Tlv(0x30, Tlv(0x82, "b")) + Tlv(0x30, Tlv(0x82, "a"));
  const std::string authority =
      Certificate(NameOf("i"), NameOf(""), Extension(30, Tlv(0x30, Tlv(0xA0, subtrees))));
  const std::vector<ortholan::Octets> chain = {name, authority};
  EXPECT_EQ(ortholan::Permits(chain, {2, 1}).verdict, ortholan::Verdict::kCannotTell);
  EXPECT_EQ(ortholan::Permits(chain, {3, 1}).verdict, ortholan::Verdict::kYes);
}

}  // namespace
}  // namespace Ortholan::testing
