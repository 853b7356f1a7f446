// Certificates, certificate requests and revocation lists (RFC 5280, RFC 2986): names, times,
// extensions. Keys and signatures are not looked at.
import { Extension } from "./extensions.js";
import { parseGeneralNames } from "./general_names.js";
import { octetsOf, readInput } from "./input.js";
import { layout, run, textOf } from "./memory.js";
import { Name } from "./names.js";
import { oidFromText } from "./oid.js";
import { readings, word } from "./options.js";
import { Refused } from "./refused.js";

const certificateView = layout("kind:i der:o subject:o issuer:o serial:o not_before:o not_after:o " +
  "extensions:o extension_count:u");
const extensionView = layout("oid:o value:o bytes:o critical:i");
const kinds = ["extensions", "certificate", "request", "revocation list"];

function hex(octets) {
  return Array.from(octets, (each) => each.toString(16).padStart(2, "0")).join("").toUpperCase();
}

// A time, a whole element, as ISO 8601 text; null for none.
function timeText(time) {
  if (time.length === 0) return null;
  return run((call) => {
    const at = call.octets(time);
    const { reason, octets } = call.out(
      (...out) => call.invoke("ortholan_time_to_text", at, ...out));
    if (reason !== 0) throw new Refused(reason, call.reasonSentence(reason));
    return textOf(octets);
  });
}

/** What is malformed inside is refused when it is asked for. */
export class Certificate {
  #reading;
  #view;

  /** A certificate, request or revocation list, as octets, hexadecimal, base64 or PEM. */
  constructor(input, options = {}) {
    this.der = octetsOf(input);
    this.#reading = options.reading ?? "der";
    this.#view = run((call) => call.read(certificateView, this.#read(call)));
    this.kind = kinds[this.#view.kind];
  }

  #read(call) {
    const view = call.room(certificateView);
    call.check("ortholan_certificate_view_read", call.octets(this.der),
      word(readings, this.#reading, "reading"), view);
    return view;
  }

  #name(octets) {
    return octets.length === 0 ? null : new Name(octets, { reading: this.#reading });
  }

  /** Null for a revocation list. */
  get subject() {
    return this.#name(this.#view.subject);
  }

  /** Null for a request. */
  get issuer() {
    return this.#name(this.#view.issuer);
  }

  /** Content octets of the INTEGER as hexadecimal digits; "" but for a certificate. */
  get serialNumber() {
    return hex(this.#view.serial);
  }

  /** ISO 8601 texts or null: of a revocation list thisUpdate and nextUpdate. */
  get validity() {
    return {
      notBefore: timeText(this.#view.not_before),
      notAfter: timeText(this.#view.not_after),
    };
  }

  get extensions() {
    return run((call) => [...call.each("ortholan_certificate_view_next_extension",
      this.#read(call), extensionView)]).map((found) => new Extension(found, this.#reading));
  }

  /** The one extension of a type, or null. One that stands there twice is refused. */
  extension(oid) {
    return run((call) => {
      const found = call.room(extensionView);
      try {
        call.check("ortholan_certificate_view_extension", this.#read(call),
          call.octets(oidFromText(oid)), found);
      } catch (error) {
        if (error.code === "NOT_FOUND") return null;
        throw error;
      }
      return new Extension(call.read(extensionView, found), this.#reading);
    });
  }

  /** The subject alternative names; none without the extension. */
  get altNames() {
    const found = this.extension("2.5.29.17");
    return found === null ? [] : parseGeneralNames(found.value, { reading: this.#reading });
  }
}

export function parseCertificate(input, options) {
  return new Certificate(input, options);
}

/** All certificates of a PEM text, or the one of other inputs. */
export function parseCertificates(input, options) {
  return readInput(input).map((octets) => new Certificate(octets, options));
}
