// What a person pastes: octets, hexadecimal digits in any usual form, base64, PEM. It is understood
// or refused, never misread.
import { layout, number, run, textOf } from "./memory.js";
import { Refused } from "./refused.js";

const argumentReason = 1;
const base64Reason = 123;
const broken = "hexadecimal digits that do not make whole octets";
const pemBlock = layout("label:o base64:o");

/** Octets of a Uint8Array, another view or an ArrayBuffer; undefined for anything else. */
function asOctets(input) {
  if (ArrayBuffer.isView(input)) {
    return new Uint8Array(input.buffer, input.byteOffset, input.byteLength).slice();
  }
  return input instanceof ArrayBuffer ? new Uint8Array(input.slice(0)) : undefined;
}

export function pemBlocks(text) {
  return run((call) => {
    const at = call.text(text);
    const offset = call.room(number);
    const block = call.room(pemBlock);
    const blocks = [];
    try {
      for (;;) {
        call.check("ortholan_pem_next", at, offset, block);
        const { octets } = call.out((...out) => call.invoke("ortholan_pem_octets", block, ...out));
        blocks.push({ label: textOf(call.read(pemBlock, block).label), octets });
      }
    } catch (error) {
      if (error.code !== "NOT_FOUND") throw error;
    }
    return blocks;
  });
}

const isDigit = (character) => /^[0-9a-fA-F]$/.test(character ?? "");
const isPrefix = (text, at) => text[at] === "0" && /^[xX]$/.test(text[at + 1] ?? "");

// Pairs of digits, with 0x before them and blanks, colons and commas between; undefined for text
// with anything else in it.
function fromHex(text) {
  if (/[^0-9a-fA-FxX:, \t\r\n\f\v]/.test(text)) return undefined;
  const octets = new Uint8Array(text.length / 2);
  let size = 0;
  let high = "";
  for (let i = 0; i < text.length; ++i) {
    const character = text[i];
    if (high === "" && isPrefix(text, i)) {
      ++i;
    } else if (isDigit(character)) {
      if (high !== "") octets[size++] = Number.parseInt(high + character, 16);
      high = high === "" ? character : "";
    } else if (/[xX]/.test(character)) {
      return undefined;
    } else if (high !== "" && /[:,]/.test(character)) {
      throw new Refused(argumentReason, broken);
    }
  }
  if (high !== "" || size === 0) throw new Refused(argumentReason, broken);
  return octets.slice(0, size);
}

// Canonical alone: padding and the bits beside it as RFC 4648 section 4 has them.
function fromBase64(text) {
  const plain = text.replace(/[ \t\r\n\f\v]+/g, "");
  if (plain.length % 4 !== 0 || /[^\w+/=]/.test(plain)) return undefined;
  try {
    const characters = atob(plain);
    if (btoa(characters) !== plain) return undefined;
    return Uint8Array.from(characters, (each) => each.charCodeAt(0));
  } catch {
    return undefined;
  }
}

/** The octets of an input; text that is none of the forms is refused. */
export function octetsOf(input) {
  const octets = asOctets(input);
  if (octets !== undefined) return octets;
  if (typeof input !== "string") {
    throw new TypeError("expected a Uint8Array, an ArrayBuffer or a text");
  }
  const all = readInput(input);
  if (all.length !== 1) {
    throw new Refused(argumentReason, `${all.length} PEM blocks where one is wanted`);
  }
  return all[0];
}

/** The same where a text may hold several PEM blocks. */
export function readInput(input) {
  const octets = asOctets(input);
  if (octets !== undefined) return [octets];
  if (input.includes("-----BEGIN ")) return pemBlocks(input).map((block) => block.octets);
  const found = fromHex(input) ?? fromBase64(input);
  if (found === undefined || found.length === 0) {
    throw new Refused(base64Reason, "a text that is neither hexadecimal, base64 nor PEM");
  }
  return [found];
}
