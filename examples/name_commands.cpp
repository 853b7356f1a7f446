// encode, decode, and what can be done with one name or two.

#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_text_error.h>
#include <ortholan/rdn.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <list>
#include <string>
#include <utility>

#include "examples/colour.h"
#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/json.h"
#include "examples/name_text.h"
#include "examples/text.h"
#include "examples/text_failure.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr DWORD kShortKeys = CERT_X500_NAME_STR;

// `what`, and in parentheses the reason where the library left no code that tells it.
std::string WithReason(const std::string& what, DWORD code, const std::string& reason) {
  return code != ERROR_SUCCESS || reason.empty() ? what : what + " (" + reason + ")";
}

// Encodes `text`. Wide text is the one form that means the same whatever the thread's code page.
IdentObj EncodeText(const std::wstring& text, DWORD options, bool sort) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  IdentObj der;
  SetLastError(ERROR_SUCCESS);
  if (encoder.Encode(text, der, sort)) return der;
  const DWORD code = GetLastError();
  FailAtText(text, DescribeNameTextError(text, options));
  Fail(code, "the text cannot be encoded");
}

[[noreturn]] void FailToDecode(DWORD code, const IdentObj& name, const std::string& what) {
  // The text decoder sets a code where the others do not.
  const NameText text = ReadNameText(name);
  if (code == ERROR_SUCCESS) code = text.code;
  Fail(code, WithReason(what, code, text.reason));
}

using AttributeTree = std::list<std::list<RDNAttr>>;

AttributeTree ReadTree(const X509Name& name, const char* what) {
  AttributeTree tree;
  SetLastError(ERROR_SUCCESS);
  // An object without octets would be no name, and no failure either.
  if (name.cbData != 0 && name.TryGetNameInfo(tree)) return tree;
  FailToDecode(GetLastError(), name, what);
}

// A type and the lines of its value.
using Pair = std::pair<std::wstring, std::list<std::wstring>>;

std::string PairLine(const Pair& pair) {
  std::wstring joined;
  for (const std::wstring& value : pair.second) {
    joined += (&value == &pair.second.front() ? L"" : L" | ") + value;
  }
  return Paint(Colour::kKey, Output(pair.first)) + "\t" + Output(joined) + "\n";
}

std::string PairJson(const Pair& pair) {
  std::list<std::string> values;
  for (const std::wstring& value : pair.second) values.push_back(JsonString(value));
  return JsonObject().AddText("type", pair.first).Add("values", JsonArray(values)).End();
}

X509Name ReadName(const std::string& argument) { return X509Name(ReadElement(argument)); }

}  // namespace

int RunEncode(const Arguments& arguments) {
  const IdentObj der = EncodeText(ReadText(arguments.operands[0]), arguments.Number("--options", 0),
                                  arguments.Has("--sort"));
  if (const auto path = arguments.Value("--out")) {
    WriteOctets(*path, der);
  } else {
    Print(Hex(der) + "\n");
  }
  return 0;
}

int RunDecode(const Arguments& arguments) {
  const DWORD options = arguments.Number("--options", kShortKeys);
  const IdentObj der = ReadElement(arguments.operands[0]);
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  std::wstring text;
  SetLastError(ERROR_SUCCESS);
  if (!decoder.Decode(der, text, options)) {
    FailToDecode(GetLastError(), der, "the name cannot be decoded");
  }
  if (arguments.Has("--json")) {
    Print(JsonObject().AddText("text", text).End() + "\n");
  } else {
    Print(Output(text) + "\n");
  }
  return 0;
}

int RunPairs(const Arguments& arguments) {
  const DWORD style = arguments.Number("--style", kShortKeys);
  const IdentObj der = ReadElement(arguments.operands[0]);
  X500NameDecoder decoder;
  std::list<Pair> pairs;
  SetLastError(ERROR_SUCCESS);
  if (!decoder.Decode(der, pairs, style)) {
    FailToDecode(GetLastError(), der, "the name cannot be decoded");
  }
  if (arguments.Has("--json")) {
    std::list<std::string> objects;
    for (const Pair& pair : pairs) objects.push_back(PairJson(pair));
    Print(JsonArray(objects) + "\n");
  } else {
    for (const Pair& pair : pairs) Print(PairLine(pair));
  }
  return 0;
}

int RunGet(const Arguments& arguments) {
  const std::string& oid = arguments.operands[0];
  const X509Name name = ReadName(arguments.operands[1]);
  // Tells the cause, which GetSimpleRDN does not.
  ReadTree(name, "the name cannot be decoded");
  std::wstring value;
  SetLastError(ERROR_SUCCESS);
  if (!name.GetSimpleRDN(oid.c_str(), value)) {
    Fail(static_cast<DWORD>(CRYPT_E_NOT_FOUND), "the name has no attribute " + oid);
  }
  Print(Output(value) + "\n");
  return 0;
}

// What SetSimpleRDN does with 8-bit text in the thread's code page, with wide text.
int RunSet(const Arguments& arguments) {
  const std::string& oid = arguments.operands[0];
  const std::wstring value = FromUtf8(arguments.operands[1]);
  AttributeTree tree = ReadTree(ReadName(arguments.operands[2]), "the name cannot be decoded");

  const auto rdn = std::find_if(tree.begin(), tree.end(), [&oid](const std::list<RDNAttr>& each) {
    return !each.empty() && each.front().oid == CZEPString(oid.c_str());
  });
  if (rdn == tree.end()) {
    Fail(static_cast<DWORD>(CRYPT_E_NOT_FOUND), "the name has no attribute " + oid);
  }

  std::wstring element = FromUtf8(oid) + L"=\"";
  for (const wchar_t unit : value) element.append(unit == L'"' ? 2 : 1, unit);
  const X509Name single(EncodeText(element + L"\"", 0, true));
  rdn->front() = ReadTree(single, "the value cannot be read back").front().front();

  X509Name changed;
  SetLastError(ERROR_SUCCESS);
  if (!changed.TrySetBy(tree, true)) Fail(GetLastError(), "the name cannot be encoded anew");
  Print(Hex(changed) + "\n");
  return 0;
}

int RunEqual(const Arguments& arguments) {
  const X509Name first = ReadName(arguments.operands[0]);
  const X509Name second = ReadName(arguments.operands[1]);
  ReadTree(first, "the first name cannot be decoded");
  ReadTree(second, "the second name cannot be decoded");
  return first == second ? 0 : 1;
}

}  // namespace Example
