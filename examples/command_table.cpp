#include "examples/command_table.h"

#include <algorithm>
#include <iterator>

#include "examples/commands.h"

namespace Example {
namespace {

constexpr Option kJson = {"--json", nullptr,
                          "JSON in place of lines; the manual page has its shape"};

const Command kCommands[] = {
    {"encode",
     RunEncode,
     1,
     1,
     "[--options N] [--sort] [--out FILE] TEXT",
     "the DER of a name text",
     "Prints one line of hexadecimal digits. TEXT is a list of type=value; \"-\" reads it from\n"
     "standard input, but for one line end behind it.\n",
     "x509name encode --sort 'CN=Alpha, O=Org, C=RU'\n"
     "x509name encode --options 0x140000 --out name.der 'CN=Alpha, O=\"Org, Ltd\"'\n",
     {{"--options", "N",
       "0x40000 UTF8String, not BMPString; 0x140000 for all free text;\n"
       "0x40000000 \";\" alone separates"},
      {"--sort", nullptr, "put the attributes in canonical order, common name last"},
      {"--out", "FILE", "write the octets into FILE"},
      {}}},
    {"decode",
     RunDecode,
     1,
     1,
     "[--options N] [--json] NAME",
     "the text of a name",
     "Prints the text in one line, or with CR LF as the separator in several.\n",
     "x509name decode 3010310E300C06035504031305416C706861\n"
     "    CN=Alpha\n"
     "x509name encode 'CN=Alpha, C=RU' | x509name decode -\n"
     "x509name decode --json name.der\n",
     {{"--options", "N",
       "1 values, 2 object identifiers, 3 short keys (the default); added to\n"
       "it 0x40000000 \";\" or 0x08000000 CR LF as the separator"},
      kJson,
      {}}},
    {"pairs",
     RunPairs,
     1,
     1,
     "[--style N] [--json] NAME",
     "type and values of each RDN",
     "Prints a line for each RDN: type, tab, values joined by \" | \".\n",
     "x509name pairs name.der\n"
     "x509name pairs --style 2 name.der | cut -f 1\n",
     {{"--style", "N", "2 object identifiers, 3 short keys (the default)"}, kJson, {}}},
    {"get",
     RunGet,
     2,
     2,
     "OID NAME",
     "the value of one attribute",
     "OID is the attribute's OBJECT IDENTIFIER in dotted form.\n",
     "x509name get 2.5.4.3 name.der\n",
     {}},
    {"set",
     RunSet,
     3,
     3,
     "OID VALUE NAME",
     "the DER of a name with another value",
     "The attribute has to be there; its first value is replaced.\n",
     "x509name set 2.5.4.3 Beta name.der\n",
     {}},
    {"equal",
     RunEqual,
     2,
     2,
     "NAME NAME",
     "whether two names hold the same",
     "Exit status 0 for equal names, 1 for others. The order of the attributes and the string\n"
     "types of values do not count, letter case does.\n",
     "x509name equal a.der b.der && echo same\n",
     {}},
    {"show",
     RunShow,
     1,
     kAnyNumber,
     "[--json] FILE...",
     "certificates: names and extensions",
     "A FILE holds certificates, in PEM with anything between them, or in DER. Subject and issuer\n"
     "are shown as text and as a tree; what cannot be read is told on standard error, and the\n"
     "others follow.\n",
     "x509name show server.pem\n"
     "x509name show --json bundle.pem | jq -r '.[].subject.text'\n",
     {kJson, {}}},
    {"survey",
     RunSurvey,
     1,
     kAnyNumber,
     "FILE...",
     "count what becomes of names",
     "Takes the names of all certificates from DER to text and back, and counts the results.\n",
     "x509name survey /etc/ssl/certs/ca-certificates.crt\n",
     {}},
    {"extension",
     RunExtension,
     1,
     1,
     "RECORD",
     "one certificate extension",
     "Prints identifier, critical or not, value, and the record written anew, a line each.\n",
     "x509name extension 300E0603551D0F0101FF0404030205A0\n",
     {}},
    {"general-name",
     RunGeneralName,
     1,
     1,
     "NAME",
     "one general name",
     "Prints tag and text.\n",
     "x509name general-name 820B6578616D706C652E6F7267\n"
     "    2       example.org\n",
     {}},
};

}  // namespace

CommandRange AllCommands() { return {std::begin(kCommands), std::end(kCommands)}; }

const Command* FindCommand(const std::string& name) {
  const CommandRange all = AllCommands();
  const Command* const command = std::find_if(
      all.begin(), all.end(), [&name](const Command& row) { return name == row.name; });
  return command != all.end() ? command : nullptr;
}

}  // namespace Example
