// Certificates, names and general names in words.
import { Certificate, check, extensionType } from "ortholan";
import { attempt, copyButton, count, h, hex, hexStart, shown, wrong } from "./dom.js";

const stringTypes = { 0x0c: "UTF8String", 0x12: "NumericString", 0x13: "PrintableString",
  0x14: "TeletexString", 0x16: "IA5String", 0x1a: "VisibleString", 0x1c: "UniversalString",
  0x1e: "BMPString" };

function section(title, ...content) {
  return h("section", null, h("h2", null, title), content);
}

function pairs(rows) {
  return h("dl", null, rows.filter((row) => row !== null).map(([term, ...values]) =>
    h("div", null, h("dt", null, term), h("dd", null, values.flat()))));
}

function copied(text, label) {
  return [h("code", null, text), copyButton(text, label)];
}

/** The attributes of a name as a table, a group of rows an RDN. */
function attributes(name) {
  return attempt(() => h("table", null,
    h("caption", { class: "unseen" }, "Attributes in the order of the encoding"),
    h("thead", null, h("tr", null,
      ["Type", "Value", "Encoded as"].map((title) => h("th", { scope: "col" }, title)))),
    name.rdns.map((rdn) => h("tbody", null, rdn.map((attribute, i) => h("tr", null,
      h("th", { scope: "row", title: attribute.oid }, i === 0 ? "" : "+ ", attribute.type),
      h("td", null, attribute.text === null ?
        h("code", null, hexStart(attribute.value, 24)) : shown(attribute.text)),
      h("td", { class: "quiet" }, stringTypes[attribute.stringType] ??
        `type ${hex([attribute.stringType])}`)))))), wrong);
}

const textOf = (name, options) => attempt(() => copied(name.text(options), "the text"), wrong);

function nameSection(name) {
  const plain = attempt(() => name.text(), () => "");
  const exact = attempt(() => name.exact, () => "");
  return section("The name", pairs([
    ["Text", textOf(name)],
    ["Long names", textOf(name, { longNames: true })],
    exact === plain ? null : ["Exact", textOf(name, { exact: true })],
    ["Key", attempt(() => copied(hex(name.key(), ""), "the key"), wrong)],
    ["DER", ...copied(hex(name.der, ""), "the DER")],
  ]), name.der.length > 2 ? attributes(name) : h("p", { class: "hint" }, "It has no attributes."));
}

function party(title, body) {
  return attempt(() => {
    const name = body();
    if (name === null) return null;
    if (name.der.length <= 2) return [title, h("span", { class: "quiet" }, "without attributes")];
    return [title, textOf(name),
      h("details", null, h("summary", null, "Attributes"), attributes(name))];
  }, (sentence) => [title, wrong(sentence)]);
}

function times(certificate) {
  return attempt(() => {
    const { notBefore, notAfter } = certificate.validity;
    const titles = certificate.kind === "revocation list" ? ["This update", "Next update"] :
      ["Not before", "Not after"];
    return [notBefore, notAfter].map((text, i) =>
      (text === null ? null : [titles[i], h("time", { datetime: text }, text)]));
  }, (sentence) => [["Validity", wrong(sentence)]]);
}

function altNames(certificate) {
  return attempt(() => {
    const names = certificate.altNames;
    if (names.length === 0) return h("p", { class: "hint" }, "There are none.");
    return h("ul", { class: "names" }, names.slice(0, 500).map((name) => h("li", null, named(name))),
      names.length > 500 ? h("li", null, `… ${count(names.length - 500)} more`) : null);
  }, wrong);
}

function named(name) {
  const text = attempt(() => name.text, () => name.kind);
  const colon = text.indexOf(":");
  return [h("span", { class: "kind" }, text.slice(0, colon + 1)),
    h("code", null, text.slice(colon + 1))];
}

const mostText = 20_000;
const mostFaults = 100;

function meaning(text) {
  return h("pre", { class: "meaning" },
    text.length > mostText ? `${text.slice(0, mostText)} …` : text.trimEnd());
}

/** One extension; of a value that is refused also what a lenient reading has, or its octets. */
function extension(each, leniently) {
  return h("li", null,
    h("p", { class: "title" }, h("strong", null, each.name ?? each.oid),
      each.name === null ? null : h("span", { class: "quiet" }, each.oid),
      each.critical ? h("span", { class: "critical" }, "critical") : null),
    attempt(() => meaning(each.text), (sentence) => [wrong(sentence),
      attempt(() => meaning(leniently().text), () => meaning(hexStart(each.value)))]));
}

function extensions(certificate) {
  const lenient = new Certificate(certificate.der, { reading: "lenient" });
  return attempt(() => h("ul", { class: "extensions" }, certificate.extensions.map(
    (each, i) => extension(each, () => lenient.extensions[i]))), wrong);
}

/** A fault, with a button that shows its octets. */
function fault(each, showOctet) {
  const about = each.extension === null ? "" : `${extensionType(each.extension)?.name ??
    each.extension}: `;
  const show = each.offset === undefined ? null : h("button", { type: "button", class: "copy",
    "aria-label": `Show the octets at ${each.offset}`, click: () => showOctet(each.offset) }, "Show");
  return h("li", null, `${about}${each.sentence}`, each.refusal === null ? "" : ` (${each.refusal})`,
    each.section === "" ? null : h("span", { class: "quiet" }, ` ${each.section.startsWith("RFC") ? "" : "RFC 5280 "}${each.section}`), show);
}

function faults(certificate, showOctet) {
  return attempt(() => {
    const found = check(certificate);
    if (found.length === 0) return h("p", { class: "hint" }, "Nothing in its names and extensions.");
    const rest = found.length - mostFaults;
    return h("ul", { class: "faults" },
      found.slice(0, mostFaults).map((each) => fault(each, showOctet)),
      rest > 0 ? h("li", null, `… ${count(rest)} more`) : null);
  }, wrong);
}

function certificateSections(certificate, showOctet) {
  const serial = certificate.serialNumber;
  return [
    section(certificate.kind[0].toUpperCase() + certificate.kind.slice(1), pairs([
      party("Subject", () => certificate.subject),
      party("Issuer", () => certificate.issuer),
      serial === "" ? null : ["Serial number", ...copied(serial, "the serial number")],
      ...times(certificate),
    ])),
    certificate.kind === "revocation list" ? null :
      section("Alternative names", altNames(certificate)),
    section("Extensions", extensions(certificate)),
    section("What RFC 5280 forbids", faults(certificate, showOctet)),
  ];
}

function generalNameSection(names) {
  return section(names.length === 1 ? "The name" : "Alternative names",
    h("ul", { class: "names" }, names.map((name) => h("li", null, named(name)))),
    names.length === 1 ? pairs([["Kind", names[0].kind],
      ["DER", ...copied(hex(names[0].der, ""), "the DER")]]) : null);
}

/**
 * Sections about what was understood, the most telling first; what was refused is told elsewhere.
 *   showOctet(offset)  leads to an octet
 */
export function facts({ shape, value }, showOctet) {
  if (value === null) return [];
  if (shape === "name") return [nameSection(value)];
  if (shape === "general name") return [generalNameSection([value])];
  if (shape === "general names") return [generalNameSection(value)];
  return certificateSections(value, showOctet);
}
