// How the library's cost grows with the number of attributes, in each direction and form.
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>

#include "bench/measure.h"
#include "bench/names.h"
#include "bench/operations.h"

namespace Bench {
namespace {

using namespace Ortholan;

constexpr size_t kCounts[] = {10, 100, 1000, 10000, 100000};

// One name in all forms.
struct Inputs {
  explicit Inputs(size_t count)
      : attributes(ManyAttributes(count)),
        text(ToText(attributes, {"=", ", "})),
        wide_text(Widen(text)),
        bytes(ToDer(attributes)),
        name(Blob(bytes)),
        utf8_name(Blob(ToDer(attributes, kUtf8String))),
        simple(SimpleList(name)),
        rdns(NameInfo(name)) {
    if (!X500NameDecoder().Decode(name, tree)) std::abort();
  }

  Attributes attributes;
  std::string text;
  std::wstring wide_text;
  std::string bytes;
  X509Name name;
  X509Name utf8_name;
  std::list<SimpleRDN> simple;
  std::list<std::list<RDNAttr>> rdns;
  CertNameInfoWrapper tree;
};

// Made when the first of its cases runs.
class LazyInputs {
 public:
  explicit LazyInputs(size_t count) : count_(count) {}
  Inputs& operator*() {
    if (inputs_ == nullptr) inputs_ = std::make_unique<Inputs>(count_);
    return *inputs_;
  }

 private:
  size_t count_;
  std::unique_ptr<Inputs> inputs_;
};

using SharedInputs = std::shared_ptr<LazyInputs>;

template <typename Operation>
void AddGrowth(const char* form, size_t count, const SharedInputs& inputs, Operation operation,
               bool (*is_right)(Inputs& in)) {
  Add({std::string("growth, ") + form, std::to_string(count),
       [inputs, is_right] { return is_right(**inputs); }},
      [inputs, operation] { return operation(**inputs); });
}

X509Name SortedText(const Inputs& in) {
  X509Name name;
  name.SetBy(in.text.c_str(), 0, true);
  return name;
}

IdentObj EncodeTree(Inputs& in) {
  const CERT_NAME_INFO* tree = in.tree;
  return EncodeStructured(*tree);
}

void AddEncoders(size_t count, const SharedInputs& inputs) {
  AddGrowth(
      "text to DER", count, inputs, [](Inputs& in) { return EncodeText(in.wide_text); },
      [](Inputs& in) { return Bytes(EncodeText(in.wide_text)) == in.bytes; });
  AddGrowth(
      "8-bit text to DER", count, inputs, [](Inputs& in) { return SetByText(in.text); },
      [](Inputs& in) { return Bytes(SetByText(in.text)) == in.bytes; });
  AddGrowth(
      "text to sorted DER", count, inputs, [](Inputs& in) { return SortedText(in); },
      [](Inputs& in) { return SortedText(in) == in.name; });
  AddGrowth(
      "simple RDNs to DER", count, inputs, [](Inputs& in) { return EncodeStructured(in.simple); },
      [](Inputs& in) { return Bytes(EncodeStructured(in.simple)) == in.bytes; });
  AddGrowth(
      "attribute lists to DER", count, inputs, [](Inputs& in) { return EncodeStructured(in.rdns); },
      [](Inputs& in) { return Bytes(EncodeStructured(in.rdns)) == in.bytes; });
  AddGrowth(
      "tree to DER", count, inputs, [](Inputs& in) { return EncodeTree(in); },
      [](Inputs& in) { return Bytes(EncodeTree(in)) == in.bytes; });
}

void AddDecoders(size_t count, const SharedInputs& inputs) {
  AddGrowth(
      "DER to text", count, inputs, [](Inputs& in) { return DecodeText(in.name); },
      [](Inputs& in) { return DecodeText(in.name) == Widen(ToText(in.attributes, {})); });
  AddGrowth(
      "DER to 8-bit text", count, inputs, [](Inputs& in) { return GetText(in.name); },
      [](Inputs& in) { return GetText(in.name) == ToText(in.attributes, {}); });
  AddGrowth(
      "DER to pair list", count, inputs, [](Inputs& in) { return DecodePairs(in.name); },
      [](Inputs& in) { return ToPairs(DecodePairs(in.name)) == ToPairs(in.attributes); });
  AddGrowth(
      "DER to tree", count, inputs, [](Inputs& in) { return DecodeTree(in.name); },
      [](Inputs& in) { return TreePairs(in.name) == ToPairs(in.attributes); });
  AddGrowth(
      "DER to simple RDNs", count, inputs, [](Inputs& in) { return SimpleList(in.name); },
      [](Inputs& in) { return ToPairs(SimpleList(in.name)) == ToPairs(in.attributes); });
  AddGrowth(
      "DER to attribute lists", count, inputs, [](Inputs& in) { return NameInfo(in.name); },
      [](Inputs& in) { return NameInfo(in.name).size() == in.attributes.size(); });
  AddGrowth(
      "compare", count, inputs, [](Inputs& in) { return in.name == in.utf8_name; },
      [](Inputs& in) { return in.name == in.utf8_name; });
}

// Values beyond ASCII, for what a character costs.
void AddLargeCyrillic() {
  const Attributes attributes = LargeCyrillicValue(kLargeSize);
  const std::wstring text = Widen(ToText(attributes, {}));
  const IdentObj der = Blob(ToDer(attributes, kUtf8String));
  const auto encode = [text] {
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG);
    IdentObj out;
    encoder.Encode(text, out, false);
    return out;
  };
  Add({"Cyrillic value of 1 MB, text to DER", "Ortholan", [=] { return encode() == der; }}, encode);
  Add({"Cyrillic value of 1 MB, DER to text", "Ortholan", [=] { return DecodeText(der) == text; }},
      [=] { return DecodeText(der); });
}

void AddCases() {
  for (const size_t count : kCounts) {
    const auto inputs = std::make_shared<LazyInputs>(count);
    AddEncoders(count, inputs);
    AddDecoders(count, inputs);
  }
  AddLargeCyrillic();
}

const Registration registration("growth", "", AddCases);

}  // namespace
}  // namespace Bench
