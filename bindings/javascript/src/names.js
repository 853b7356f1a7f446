// Distinguished names: DER and the text of RFC 4514.
import { octetsOf } from "./input.js";
import { matchNames, nameWithin, rule } from "./matching.js";
import { layout, placeOf, refusalView, run, textOf, utf8 } from "./memory.js";
import { oidFromText, oidToText } from "./oid.js";
import { readings, word } from "./options.js";
import { Refused } from "./refused.js";

const nameView = layout("der:o rdn_count:u attribute_count:u");
const cursorView = layout("index:u offset:u rdn:u rdn_end:u");
const attributeView = layout("type:o value:o content:o rdn:u identifier:u begins_rdn:i");
const optionsView = layout("order:i strings:i long_names:i exact:i names:u name_count:u");
const typeNameView = layout("name:o oid:o");

const orders = { reversed: 0, encoded: 1 };
const stringPolicies = { "printable or utf8": 0, utf8: 1 };

// Of a name that the library wrote itself, which is not read again.
const written = { reading: "structure" };

function textOptions(call, options) {
  const names = Object.entries(options.names ?? {}).map(([name, oid]) => ({
    name: call.place(utf8(name)),
    oid: call.place(oidFromText(oid)),
  }));
  return call.make(optionsView, {
    order: word(orders, options.order ?? "reversed", "order"),
    strings: word(stringPolicies, options.strings ?? "printable or utf8", "strings"),
    long_names: Number(Boolean(options.longNames)),
    exact: Number(Boolean(options.exact)),
    names: call.list(typeNameView, names),
    name_count: names.length,
  });
}

function read(call, der, reading) {
  const view = call.room(nameView);
  call.check("ortholan_name_view_read", call.octets(der), reading, view);
  return view;
}

// The short name of an attribute type: of the text of a name that has it alone.
function keyOf(call, oid, dotted) {
  const tail = [0x0c, 0];
  const wrap = (tag, content) => [tag, ...lengthOctets(content.length), ...content];
  const attribute = wrap(0x30, [...wrap(0x06, oid), ...tail]);
  const view = read(call, Uint8Array.from(wrap(0x30, wrap(0x31, attribute))), readings.structure);
  const text = call.textOf("ortholan_rfc4514_write", view, 0);
  const key = text.slice(0, text.indexOf("="));
  return /^\d/.test(key) ? dotted : key;
}

function lengthOctets(length) {
  if (length < 0x80) return [length];
  return length < 0x100 ? [0x81, length] : [0x82, length >> 8, length & 0xff];
}

/** One attribute of a name. */
function makeAttribute(call, found, at) {
  const text = call.out((...out) => call.invoke("ortholan_attribute_view_text", at, ...out));
  const oid = oidToText(found.type);
  return Object.freeze({
    type: keyOf(call, found.type, oid),
    oid,
    text: text.reason === 0 ? textOf(text.octets) : null,
    value: found.value,
    stringType: found.identifier,
  });
}

export class Name {
  #reading;

  /** A Name in DER, as octets, hexadecimal, base64 or PEM. */
  constructor(input, options = {}) {
    this.der = octetsOf(input);
    this.#reading = word(readings, options.reading ?? "der", "reading");
    if (options !== written) run((call) => read(call, this.der, this.#reading));
  }

  /** RelativeDistinguishedNames with their attributes, the most significant first. */
  get rdns() {
    return run((call) => {
      const view = read(call, this.der, this.#reading);
      const counts = call.read(nameView, view);
      const rdns = Array.from({ length: counts.rdn_count }, () => []);
      const [cursor, at] = [call.room(cursorView), call.room(attributeView)];
      for (let i = 0; i < counts.attribute_count; ++i) {
        call.invoke("ortholan_name_view_attribute", view, i, cursor, at);
        const found = call.read(attributeView, at);
        rdns[found.rdn].push(makeAttribute(call, found, at));
      }
      return rdns;
    });
  }

  /** Text of RFC 4514, safe to show. */
  text(options = {}) {
    return run((call) => call.textOf("ortholan_rfc4514_write", read(call, this.der, this.#reading),
      textOptions(call, options)));
  }

  /** Text that gives the very octets back. */
  get exact() {
    return this.text({ exact: true });
  }

  toString() {
    return this.text();
  }

  toJSON() {
    return this.text();
  }

  /** Octets that are the same exactly for names that are. */
  key(options = {}) {
    return run((call) => call.octetsOf("ortholan_match_key", call.octets(this.der), rule(options)));
  }

  /** Whether the names are the same, with the reason. */
  match(other, options = {}) {
    return matchNames(this, other, options);
  }

  /** True for names that are the same; false also where that cannot be told. */
  equals(other, options = {}) {
    return this.match(other, options).yes;
  }

  /** Whether the name begins with the RDNs of `subtree`, with the reason. */
  matchWithin(subtree, options = {}) {
    return nameWithin(subtree, this, options);
  }

  /** True for a name within the subtree; false also where that cannot be told. */
  within(subtree, options = {}) {
    return this.matchWithin(subtree, options).yes;
  }
}

export function parseName(input, options) {
  return new Name(input, options);
}

/** The name of a text of RFC 4514. A refusal also has `index`, the place in the text. */
export function encodeName(text, options = {}) {
  const octets = utf8(text);
  return new Name(run((call) => {
    const at = call.octets(octets);
    const chosen = textOptions(call, options);
    const refusal = call.room(refusalView);
    const { reason, octets: der } = call.out(
      (...out) => call.invoke("ortholan_rfc4514_read", at, chosen, ...out, refusal));
    if (reason === 0) return der;
    const offset = placeOf(call.read(refusalView, refusal));
    const sentence = call.sentence("ortholan_rfc4514_sentence", at, refusal);
    throw Object.assign(new Refused(reason, sentence, offset), { index: indexOf(octets, offset) });
  }), written);
}

function indexOf(octets, offset) {
  return offset === undefined ? undefined : textOf(octets.subarray(0, offset)).length;
}
