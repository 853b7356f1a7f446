// Elements of an encoding with their places, read as generously as they can be shown: nothing is
// decided by what stands here.
import { fieldOf, typeInside } from "./schema.js";

const longTag = 0x1f;
const constructedBit = 0x20;
const mostDepth = 48;

/** The header at a place before `end`; `fault` where it is none or what it says does not fit. */
function readHeader(octets, start, end) {
  let at = start;
  const identifier = octets[at++];
  let number = identifier & longTag;
  if (number === longTag) {
    number = 0;
    for (let octet = 0x80; (octet & 0x80) !== 0 && at < end;) {
      octet = octets[at++];
      number = number * 128 + (octet & 0x7f);
    }
  }
  const header = { start, identifier, number, lengthAt: at };
  if (at >= end) return { ...header, content: end, end, fault: "it ends before its length" };
  let length = octets[at++];
  if (length === 0x80) return { ...header, content: at, end, fault: "the length is indefinite" };
  if (length > 0x80) {
    const digits = octets.subarray(at, Math.min(at + (length & 0x7f), end));
    at += digits.length;
    length = digits.reduce((sum, digit) => sum * 256 + digit, 0);
  }
  if (at + length > end) {
    return { ...header, content: at, end, fault: `its length says ${length} octets` };
  }
  return { ...header, content: at, end: at + length };
}

/** One element of an encoding; what is inside is read when it is asked for. */
export class Element {
  #children;

  constructor(octets, header, field, parent) {
    Object.assign(this, header);
    this.octets = octets;
    this.parent = parent;
    this.depth = parent === null ? 0 : parent.depth + 1;
    this.field = field.name;
    this.type = field.type;
  }

  get isConstructed() {
    return (this.identifier & constructedBit) !== 0;
  }

  get isUniversal() {
    return this.identifier < 0x40;
  }

  get bytes() {
    return this.octets.subarray(this.start, this.end);
  }

  get inside() {
    return this.octets.subarray(this.content, this.end);
  }

  get children() {
    this.#children ??= this.depth < mostDepth ? this.#read() : [];
    return this.#children;
  }

  #read() {
    if (this.isConstructed) return elements(this, this.content);
    // Octet and bit strings often hold an encoding: those that are one as a whole are opened.
    const offset = { 0x03: 1, 0x04: 0 }[this.identifier];
    if (offset === undefined || this.end - this.content < offset + 2) return [];
    if (offset === 1 && this.octets[this.content] !== 0) return [];
    const found = elements(this, this.content + offset);
    return found.length === 1 && isPlausible(found[0]) ? found : [];
  }

  /** The element that an octet belongs to, the innermost one. */
  at(offset) {
    const child = this.children.find((each) => offset >= each.start && offset < each.end);
    return child === undefined ? this : child.at(offset);
  }
}

function isPlausible(element) {
  return element.fault === undefined && element.identifier !== 0 &&
    (!element.isConstructed || element.children.every(isPlausible));
}

function elements(parent, start) {
  const found = [];
  const type = typeInside(parent);
  const state = { next: 0 };
  for (let at = start; at < parent.end;) {
    const header = readHeader(parent.octets, at, parent.end);
    found.push(new Element(parent.octets, header, fieldOf(type, header, state, parent), parent));
    at = header.end;
  }
  return found;
}

/** The elements of a whole encoding, of which a well-formed one has one. */
export function readElements(octets, type) {
  const found = [];
  for (let at = 0; at < octets.length;) {
    const header = readHeader(octets, at, octets.length);
    found.push(new Element(octets, header, { name: type ?? "", type }, null));
    at = header.end;
  }
  return found;
}
