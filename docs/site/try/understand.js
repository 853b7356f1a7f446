// What was pasted: a certificate or a chain, a name, general names, or any other encoding.
import {
  Certificate, encodeGeneralName, encodeName, GeneralName, Name, parseGeneralNames, readInput,
} from "ortholan";
import { readElements } from "./der.js";

const kindBefore = /^\s*[A-Za-z][A-Za-z0-9]*:/;

// By the shape of the outermost elements, for what the library refuses as well.
function shapeOf(octets) {
  const [outer] = readElements(octets, null);
  if (outer === undefined) return "element";
  if (outer.identifier >= 0x80) return "general name";
  if (outer.identifier !== 0x30) return "element";
  const inner = outer.children.map((each) => each.identifier);
  if (inner.length === 0 || inner.every((each) => each === 0x31)) return "name";
  if (inner.every((each) => each >= 0x80)) return "general names";
  if (inner.length === 3 && inner[2] === 0x03 && inner[0] === 0x30) return signedShape(outer);
  return "element";
}

// Of a certificate, a request or a revocation list, by what comes before the names.
function signedShape(outer) {
  const inside = outer.children[0].children;
  if (inside[0]?.identifier === 0xa0) return "certificate";
  if (inside[0]?.identifier === 0x02) {
    const third = inside[2]?.identifier;
    if (inside.length <= 4 && inside.at(-1)?.identifier === 0xa0) return "request";
    return third === 0x30 && inside[3]?.identifier === 0x30 ? "certificate" : "revocation list";
  }
  return "revocation list";
}

const types = { certificate: "Certificate", request: "Request", "revocation list": "RevocationList",
  name: "Name", "general name": "GeneralName", "general names": "GeneralNames", element: null };
const readers = {
  certificate: Certificate,
  request: Certificate,
  "revocation list": Certificate,
  name: Name,
  "general name": GeneralName,
};

function read(shape, octets, options) {
  if (shape === "general names") return parseGeneralNames(octets, options);
  return readers[shape] === undefined ? null : new readers[shape](octets, options);
}

/** Of octets: what they are, read to the letter or, where that is refused, leniently. */
function fromOctets(octets) {
  const shape = shapeOf(octets);
  const found = { octets, shape, type: types[shape], value: null, refusal: null };
  try {
    return { ...found, value: read(shape, octets, { reading: "der" }) };
  } catch (refusal) {
    try {
      return { ...found, refusal, value: read(shape, octets, { reading: "lenient" }) };
    } catch {
      return { ...found, refusal };
    }
  }
}

function fromText(text) {
  const isGeneral = kindBefore.test(text);
  const trimmed = text.replace(/[\r\n]+$/, "");
  const value = isGeneral ? encodeGeneralName(trimmed, { allowRange: true }) : encodeName(trimmed);
  const shape = isGeneral ? "general name" : "name";
  return { octets: value.der, shape, type: types[shape], value, refusal: null };
}

// The encodings of a text, or null for one that is none. A word may be base64 by chance: only an
// element that is there as a whole counts.
function encodingsOf(input) {
  if (typeof input !== "string") return [input];
  const isMeant = input.includes("-----BEGIN ") || /^[0-9a-fA-FxX:,\s]*$/.test(input);
  try {
    const found = readInput(input);
    const elements = readElements(found[0], null);
    return isMeant || (elements.length === 1 && elements[0].fault === undefined) ? found : null;
  } catch (refusal) {
    if (isMeant) throw refusal;
    return null;
  }
}

/**
 * What stands in a text or in octets: `items`, of which a chain has several. Refuses text that is
 * neither an encoding nor a name, with the place in it.
 */
export function understand(input) {
  const found = encodingsOf(input);
  return found === null ? { items: [fromText(input)], isText: true } :
    { items: found.map(fromOctets), isText: false };
}

