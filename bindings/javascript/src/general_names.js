// General names (RFC 5280 4.2.1.6): hosts, addresses, mailboxes, URIs and others.
import { octetsOf } from "./input.js";
import { layout, number, octetsView, refusalView, placeOf, run, textOf, utf8 } from "./memory.js";
import { readings, word } from "./options.js";
import { Refused } from "./refused.js";

const nameView = layout("kind:i other:i bytes:o content:o");
const namesView = layout("der:o names:o count:u");
const kinds = ["otherName", "rfc822Name", "dNSName", "x400Address", "directoryName", "ediPartyName",
  "uniformResourceIdentifier", "iPAddress", "registeredID"];
const forms = { value: 0, critical: 1, extension: 2 };

export class GeneralName {
  /** One GeneralName in DER. */
  constructor(input, options = {}) {
    this.der = octetsOf(input);
    const view = run((call) => {
      const at = call.room(nameView);
      call.check("ortholan_general_name_view_read", call.octets(this.der),
        word(readings, options.reading ?? "der", "reading"), at);
      return call.read(nameView, at);
    });
    /** As RFC 5280 calls it. */
    this.kind = kinds[view.kind];
    /** Characters, octets of an address, the whole Name of a directory name. */
    this.content = view.content;
  }

  /** "DNS:example.org", safe to show. */
  get text() {
    return generalNameText(this.der);
  }

  toString() {
    return this.text;
  }

  toJSON() {
    return this.text;
  }
}

/** The text of one GeneralName, malformed or not. */
export function generalNameText(der) {
  return run((call) => call.textOf("ortholan_general_name_to_text", call.octets(der)));
}

export function parseGeneralName(input, options) {
  return new GeneralName(input, options);
}

/** The names in the value of an alternative-name extension. */
export function parseGeneralNames(input, options = {}) {
  const der = octetsOf(input);
  const found = run((call) => {
    const view = call.room(namesView);
    call.check("ortholan_general_names_view_read", call.octets(der),
      word(readings, options.reading ?? "der", "reading"), view);
    return [...call.each("ortholan_general_names_view_next", view, nameView)];
  });
  return found.map((each) => new GeneralName(each.bytes, { reading: "structure" }));
}

/** The name of a text such as "DNS:example.org". */
export function encodeGeneralName(text, options = {}) {
  return new GeneralName(run((call) => call.octetsOf("ortholan_general_name_from_text",
    call.text(text), Number(Boolean(options.allowRange)))), { reading: "structure" });
}

/** Alternative names in DER: the extension's value, or a whole Extension. */
export function buildAltNames(texts, options = {}) {
  const form = word(forms, options.form ?? "value", "form");
  return run((call) => {
    const list = call.list(octetsView, texts.map((each) => ({ value: call.place(utf8(each)) })));
    const [wrong, refusal] = [call.room(number), call.room(refusalView)];
    const { reason, octets } = call.out((...out) => call.invoke(
      "ortholan_alternative_names_from_text", list, texts.length, form, ...out, wrong, refusal));
    if (reason === 0) return octets;
    const sentence = call.sentence("ortholan_refusal_sentence", refusal);
    const offset = placeOf(call.read(refusalView, refusal));
    throw Object.assign(new Refused(reason, sentence, offset),
      { item: call.read(number, wrong).value });
  });
}
