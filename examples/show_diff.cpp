#include "examples/show_diff.h"

#include <list>
#include <string>
#include <vector>

#include "examples/colour.h"
#include "examples/differences.h"
#include "examples/document_file.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/json.h"
#include "examples/show_json.h"
#include "examples/show_text.h"
#include "examples/text.h"

namespace Example {
namespace {

// A document with what is needed to name it.
struct Side {
  std::string path;
  std::size_t number;
  std::string der;
  Document document;
};

void AppendDocuments(const std::string& path, std::list<Side>& sides) {
  ForEachDocument(
      ReadOctets(path),
      [&](std::size_t number, std::string_view der, std::size_t) {
        sides.push_back({path, number, std::string(der), {}});
      },
      [&path](std::size_t number, const std::string& what) {
        Refuse(path + ": certificate " + std::to_string(number) + ": " + what);
      });
}

std::list<Side> ReadSides(const std::vector<std::string>& paths) {
  std::list<Side> sides;
  for (const std::string& path : paths) AppendDocuments(path, sides);
  if (sides.size() != 2) {
    throw UsageError{"--diff takes two documents, and there are " + std::to_string(sides.size()) +
                     " in the files"};
  }
  for (Side& side : sides) side.document = ReadDocument(side.der);
  return sides;
}

std::string MarkedLines(char mark, const std::vector<std::string>& lines, Colour colour) {
  std::string text;
  for (const std::string& line : lines) {
    text += Paint(colour, std::string(1, mark) + " " + line) + "\n";
  }
  return text;
}

std::string SideLine(const char* mark, const Side& side) {
  return std::string(mark) + " " + Visible(Repaired(side.path)) + ", " +
         DocumentTitle(side.document.kind, side.number) + "\n";
}

std::string DiffText(const Side& first, const Side& second, const std::vector<Difference>& found) {
  if (found.empty()) return {};
  std::string text = SideLine("---", first) + SideLine("+++", second);
  for (const Difference& each : found) {
    text += Paint(Colour::kHeading, each.title) + ":\n";
    for (const std::string& line : each.common) text += "  " + line + "\n";
    text += MarkedLines('-', each.removed, Colour::kFault) +
            MarkedLines('+', each.added, Colour::kNotable);
  }
  return text;
}

std::string ListJson(const std::vector<std::string>& lines) {
  std::list<std::string> values;
  for (const std::string& line : lines) values.push_back(JsonString(line));
  return JsonArray(values);
}

std::string SideJson(const Side& side) {
  return JsonPlace(side.path, side.number)
      .AddText("kind", std::string(KindWord(side.document.kind)))
      .End();
}

// What stands on one side, null where nothing does.
std::string PartJson(const Difference& difference, std::size_t side) {
  if (difference.names[side] != nullptr) return NameJson(*difference.names[side]);
  const ExtensionReading* const extension = difference.extensions[side];
  return extension != nullptr ? ExtensionJson(*extension) : "null";
}

std::string DifferenceJson(const Difference& difference) {
  return JsonObject()
      .AddText("part", difference.title)
      .Add("first", PartJson(difference, 0))
      .Add("second", PartJson(difference, 1))
      .Add("removed", ListJson(difference.removed))
      .Add("added", ListJson(difference.added))
      .End();
}

std::string DiffJson(const Side& first, const Side& second, const std::vector<Difference>& found) {
  std::list<std::string> list;
  for (const Difference& each : found) list.push_back(DifferenceJson(each));
  return JsonObject()
             .Add("first", SideJson(first))
             .Add("second", SideJson(second))
             .Add("differences", JsonArray(list))
             .End() +
         "\n";
}

}  // namespace

int RunShowDiff(const Arguments& arguments) {
  arguments.RequireNone({"--library-text"}, "--diff");
  const std::list<Side> sides = ReadSides(arguments.operands);
  const Side& first = sides.front();
  const Side& second = sides.back();
  const std::vector<Difference> found = Compare(first.document, second.document);
  Print(arguments.Has("--json") ? DiffJson(first, second, found) : DiffText(first, second, found));
  return found.empty() ? 0 : 1;
}

}  // namespace Example
