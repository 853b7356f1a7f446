// What an element is, in words: its type and its value.
import { extensionType, parseName } from "ortholan";
import { count, hexStart, shown } from "./dom.js";
import { oidOf } from "./schema.js";

const types = { 1: "BOOLEAN", 2: "INTEGER", 3: "BIT STRING", 4: "OCTET STRING", 5: "NULL",
  6: "OBJECT IDENTIFIER", 10: "ENUMERATED", 12: "UTF8String", 13: "RELATIVE-OID", 16: "SEQUENCE",
  17: "SET", 18: "NumericString", 19: "PrintableString", 20: "TeletexString", 21: "VideotexString",
  22: "IA5String", 23: "UTCTime", 24: "GeneralizedTime", 25: "GraphicString", 26: "VisibleString",
  27: "GeneralString", 28: "UniversalString", 30: "BMPString" };
const classes = ["", "application ", "", "private "];

// Algorithms and purposes; types of attributes and extensions are known to the library.
const identifiers = {
  "1.2.840.113549.1.1.1": "rsaEncryption",
  "1.2.840.113549.1.1.5": "sha1WithRSAEncryption",
  "1.2.840.113549.1.1.10": "RSASSA-PSS",
  "1.2.840.113549.1.1.11": "sha256WithRSAEncryption",
  "1.2.840.113549.1.1.12": "sha384WithRSAEncryption",
  "1.2.840.113549.1.1.13": "sha512WithRSAEncryption",
  "1.2.840.10045.2.1": "ecPublicKey",
  "1.2.840.10045.3.1.7": "prime256v1",
  "1.2.840.10045.4.3.2": "ecdsa-with-SHA256",
  "1.2.840.10045.4.3.3": "ecdsa-with-SHA384",
  "1.2.840.10045.4.3.4": "ecdsa-with-SHA512",
  "1.2.840.113549.1.9.14": "extensionRequest",
  "1.3.101.112": "Ed25519",
  "1.3.101.113": "Ed448",
  "1.3.132.0.34": "secp384r1",
  "1.3.132.0.35": "secp521r1",
  "1.3.6.1.5.5.7.3.1": "serverAuth",
  "1.3.6.1.5.5.7.3.2": "clientAuth",
  "1.3.6.1.5.5.7.48.1": "ocsp",
  "1.3.6.1.5.5.7.48.2": "caIssuers",
};
const decoders = { 0x0c: "utf-8", 0x1e: "utf-16be" };

/** "SEQUENCE", "[0]", "application 3". */
export function typeOf(element) {
  if (element.isUniversal) return types[element.number] ?? `universal ${element.number}`;
  return `[${classes[element.identifier >> 6]}${element.number}]`;
}

// The short name of an attribute type, from the text of a name that has it alone.
function attributeName(oid) {
  const inner = [0x06, oid.length, ...oid, 0x0c, 0];
  const wrap = (tag, content) => [tag, content.length, ...content];
  const text = parseName(Uint8Array.from(wrap(0x30, wrap(0x31, wrap(0x30, inner)))),
    { reading: "structure" }).text({ longNames: true });
  const name = text.slice(0, text.indexOf("="));
  return /^\d/.test(name) ? undefined : name;
}

export function identifierName(element) {
  const dotted = oidOf(element);
  if (identifiers[dotted] !== undefined) return identifiers[dotted];
  try {
    const extension = extensionType(dotted);
    if (extension !== null) return extension.name;
    return element.inside.length < 0x60 ? attributeName(element.inside) : undefined;
  } catch {
    return undefined;
  }
}

function integer(octets) {
  if (octets.length === 0 || octets.length > 6) return hexStart(octets, 24);
  return String(octets.reduce((sum, each) => sum * 256 + each, 0) -
    (octets[0] >= 0x80 ? 256 ** octets.length : 0));
}

function text(element) {
  const isTagged = element.identifier >= 0x80;
  const octets = element.inside;
  const label = decoders[element.identifier] ?? "windows-1252";
  if (isTagged && octets.some((each) => each < 0x20 || each > 0x7e)) return hexStart(octets, 16);
  try {
    return `“${shown(new TextDecoder(label, { fatal: true, ignoreBOM: true }).decode(octets))}”`;
  } catch {
    return hexStart(octets, 16);
  }
}

const values = {
  0x01: (element) => (element.inside[0] === 0 ? "false" : "true"),
  0x02: (element) => integer(element.inside),
  0x05: () => "",
  0x06: (element) => {
    const name = identifierName(element);
    return name === undefined ? oidOf(element) : `${name}, ${oidOf(element)}`;
  },
  0x0a: (element) => integer(element.inside),
};

/** The value in words, "" for what its parts tell. */
export function valueOf(element) {
  if (element.fault !== undefined) return element.fault;
  if (element.isConstructed || element.children.length !== 0) return "";
  const own = values[element.identifier];
  if (own !== undefined) return own(element);
  const isString = element.isUniversal ? element.number >= 12 : true;
  return isString ? text(element) : hexStart(element.inside, 16);
}

/** One line about an element and its place. */
export function describe(element) {
  const size = element.end - element.content;
  return `${typeOf(element)} at ${count(element.start)}: ${count(element.content - element.start)} ` +
    `+ ${count(size, "octet")}`;
}
