// Certificates of nothing but what a test is about.
import { octets } from "./vectors.js";

/** An element; content as octets, elements one behind the other, or text. */
export function element(identifier, ...content) {
  const inner = Buffer.concat(content.map((each) => Buffer.from(each)));
  const length = [];
  for (let rest = inner.length; rest !== 0; rest = Math.floor(rest / 256)) {
    length.unshift(rest % 256);
  }
  const header = inner.length < 0x80 ? [inner.length] : [0x80 + length.length, ...length];
  return new Uint8Array([identifier, ...header, ...inner]);
}

export function extension(number, value) {
  return element(0x30, element(0x06, [0x55, 0x1d, number]), element(0x04, value));
}

export function certificate({ subject = octets("3000"), issuer = subject, extensions = [] }) {
  const algorithm = octets("300406022A03");
  const bits = octets("030100");
  const time = element(0x17, "260101000000Z");
  const body = element(0x30, octets("A003020102020101"), algorithm, issuer,
    element(0x30, time, time), subject, element(0x30, algorithm, bits),
    ...(extensions.length === 0 ? [] : [element(0xa3, element(0x30, ...extensions))]));
  return element(0x30, body, algorithm, bits);
}
