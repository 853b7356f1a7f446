#include "examples/differences.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "examples/text.h"

namespace Example {
namespace {

using Lines = std::vector<std::string>;

std::string AttributeText(const NameAttribute& attribute) {
  if (!attribute.isAttribute) return SpacedHex(attribute.octets);
  std::string text = attribute.key.empty() ? attribute.oid : Visible(ToUtf8(attribute.key));
  text += " " + attribute.stringType + ":";
  if (!attribute.isRead) return text + " " + SpacedHex(attribute.value);
  for (const std::wstring& line : attribute.lines) text += " " + Visible(ToUtf8(line));
  return text;
}

// A line an RDN.
Lines LinesOf(const NameReading& name) {
  Lines lines;
  for (const NameRdn& rdn : name.tree.rdns) {
    std::string line;
    for (const NameAttribute& attribute : rdn.attributes) {
      line += (line.empty() ? "" : " + ") + AttributeText(attribute);
    }
    lines.push_back(line);
  }
  return lines;
}

Lines LinesOf(const ExtensionReading& extension) {
  if (extension.lines.empty()) return {Hex(extension.value)};
  Lines lines;
  std::string_view rest = extension.lines;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    lines.emplace_back(line.substr(std::min(line.size(), kExtensionIndent)));
  }
  return lines;
}

Lines WithCritical(const ExtensionReading& extension) {
  Lines lines = LinesOf(extension);
  lines.insert(lines.begin(), extension.isCritical ? "critical" : "not critical");
  return lines;
}

// Sorts the lines of both sides into those of one side and of both; each line of one side stands
// for one of the other.
void Part(const Lines& first, const Lines& second, Difference& difference) {
  std::map<std::string, std::size_t> others;
  for (const std::string& line : second) ++others[line];
  for (const std::string& line : first) {
    const auto other = others.find(line);
    const bool isCommon = other != others.end() && other->second != 0;
    if (isCommon) --other->second;
    (isCommon ? difference.common : difference.removed).push_back(line);
  }
  for (auto line = second.rbegin(); line != second.rend(); ++line) {
    std::size_t& left = others[*line];
    if (left == 0) continue;
    --left;
    difference.added.insert(difference.added.begin(), *line);
  }
}

// `octets` are what the lines stand for.
void PartOrOctets(const Lines& first, const Lines& second, std::string_view firstOctets,
                  std::string_view secondOctets, Difference& difference) {
  Part(first, second, difference);
  if (!difference.removed.empty() || !difference.added.empty()) return;
  difference.removed = {Hex(firstOctets)};
  difference.added = {Hex(secondOctets)};
}

void CompareNames(const Document& first, const Document& second, std::vector<Difference>& found) {
  for (const NameReading& name : first.names) {
    const auto other = std::find_if(
        second.names.begin(), second.names.end(),
        [&name](const NameReading& each) { return std::string_view(each.role) == name.role; });
    if (other == second.names.end() || other->octets == name.octets) continue;
    Difference difference;
    difference.title = name.role;
    difference.names[0] = &name;
    difference.names[1] = &*other;
    PartOrOctets(LinesOf(name), LinesOf(*other), name.octets, other->octets, difference);
    found.push_back(difference);
  }
}

// The extensions of both sides by identifier, and by number where one stands there several times,
// in the order of the first side, then of the second.
struct SamePair {
  const ExtensionReading* sides[2] = {};
};
std::vector<SamePair> PairsOf(const Document& first, const Document& second) {
  std::vector<SamePair> pairs;
  std::map<std::pair<std::string_view, std::size_t>, std::size_t> places;
  const Document* const documents[] = {&first, &second};
  for (std::size_t side = 0; side < 2; ++side) {
    std::map<std::string_view, std::size_t> counts;
    for (const ExtensionReading& each : documents[side]->extensions) {
      const std::string_view key = each.isRead ? std::string_view(each.oid) : each.record;
      const auto place = places.insert({{key, counts[key]++}, pairs.size()});
      if (place.second) pairs.emplace_back();
      pairs[place.first->second].sides[side] = &each;
    }
  }
  return pairs;
}

std::string TitleOf(const ExtensionReading& extension) {
  if (extension.title.empty()) return extension.oid;
  return extension.oid + " " + extension.title;
}

void CompareExtensions(const Document& first, const Document& second,
                       std::vector<Difference>& found) {
  for (const SamePair& pair : PairsOf(first, second)) {
    const ExtensionReading* const a = pair.sides[0];
    const ExtensionReading* const b = pair.sides[1];
    if (a != nullptr && b != nullptr && a->record == b->record) continue;
    Difference difference;
    difference.title = TitleOf(a != nullptr ? *a : *b);
    difference.extensions[0] = a;
    difference.extensions[1] = b;
    PartOrOctets(a != nullptr ? WithCritical(*a) : Lines(),
                 b != nullptr ? WithCritical(*b) : Lines(),
                 a != nullptr ? a->record : std::string_view(),
                 b != nullptr ? b->record : std::string_view(), difference);
    found.push_back(difference);
  }
}

}  // namespace

std::vector<Difference> Compare(const Document& first, const Document& second) {
  std::vector<Difference> found;
  CompareNames(first, second, found);
  CompareExtensions(first, second, found);
  return found;
}

}  // namespace Example
