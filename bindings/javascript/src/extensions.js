// Extensions by what they mean, and written from it (RFC 5280 4.2 and 5.2 and others).
import { layout, run } from "./memory.js";
import { oidFromText, oidToText } from "./oid.js";
import { readings, word } from "./options.js";

const typeView = layout("oid:o name:u title:u");

/** What a type is called, by its identifier in dotted digits; null for one that is not known. */
export function extensionType(oid) {
  return run((call) => {
    const view = call.room(typeView);
    if (call.invoke("ortholan_extension_type_of", call.octets(oidFromText(oid)), view) !== 0) {
      return null;
    }
    const { name, title } = call.read(typeView, view);
    return { oid, name: call.terminated(name), title: call.terminated(title) };
  });
}

/** One extension. */
export class Extension {
  #reading;

  /** Of the fields of the C structure. */
  constructor(found, reading) {
    this.oid = oidToText(found.oid);
    this.name = extensionType(this.oid)?.name ?? null;
    this.critical = found.critical === 1;
    /** Inside the OCTET STRING. */
    this.value = found.value;
    this.der = found.bytes;
    this.#reading = word(readings, reading, "reading");
  }

  #told(name, ...options) {
    return run((call) => call.textOf(name, call.octets(oidFromText(this.oid)),
      call.octets(this.value), this.#reading, ...options));
  }

  /** The value, its members called as the standard calls its parts. */
  get json() {
    return JSON.parse(this.#told("ortholan_extension_json"));
  }

  /** The same in plain words for people, a line for each fact. */
  get text() {
    return this.#told("ortholan_extension_text", 0);
  }

  toJSON() {
    const { oid, name, critical } = this;
    return { oid, ...(name === null ? {} : { name }), critical, value: this.json };
  }
}

/** The value of an extension in DER, of what `json` has. */
export function encodeExtension(type, json) {
  return run((call) => call.octetsOf("ortholan_extension_from_json", call.text(type),
    call.text(JSON.stringify(json))));
}

/** SEQUENCE OF Extension in DER from objects with "oid" or "name", "critical" and "value". */
export function buildExtensions(extensions) {
  return run((call) => call.octetsOf("ortholan_extensions_from_json",
    call.text(JSON.stringify(extensions))));
}
