// The module's octets, which the package holds deflated (RFC 1951): browsers inflate by themselves,
// but not at once.

const extraLengthBits = [0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5,
  5, 5, 0];
const extraDistanceBits = Array.from({ length: 30 }, (_, i) => Math.max(0, (i >> 1) - 1));
const lengthStarts = starts(3, extraLengthBits.slice(0, -1)).concat(258);
const distanceStarts = starts(1, extraDistanceBits);
// In which order the lengths of the codes of lengths stand (3.2.7).
const lengthOrder = [16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15];
const endOfBlock = 256;

function starts(first, bits) {
  let next = first;
  return bits.map((each) => {
    const start = next;
    next += 2 ** each;
    return start;
  });
}

/** Symbols by the number of bits that stand for them, and of these in their order (3.2.2). */
function makeCode(lengths) {
  return Array.from({ length: 16 }, (_, bits) =>
    [...lengths.keys()].filter((symbol) => bits !== 0 && lengths[symbol] === bits));
}

class Bits {
  #octets;
  #at = 0;

  constructor(octets) {
    this.#octets = octets;
  }

  take(count) {
    let value = 0;
    for (let i = 0; i < count; ++i, ++this.#at) {
      value |= (this.#octets[this.#at >> 3] >> (this.#at & 7) & 1) << i;
    }
    return value;
  }

  symbol(code) {
    for (let bits = 1, value = 0, first = 0; bits < code.length; ++bits) {
      value = value << 1 | this.take(1);
      first <<= 1;
      const symbols = code[bits];
      if (value - first < symbols.length) return symbols[value - first];
      first += symbols.length;
    }
    throw new Error("the package is damaged");
  }
}

// The two codes of a block, whose lengths are coded themselves (3.2.7).
function readCodes(bits) {
  const [symbols, distances, count] = [bits.take(5) + 257, bits.take(5) + 1, bits.take(4) + 4];
  const own = Array(19).fill(0);
  for (const place of lengthOrder.slice(0, count)) own[place] = bits.take(3);
  const code = makeCode(own);
  const lengths = [];
  while (lengths.length < symbols + distances) {
    const symbol = bits.symbol(code);
    if (symbol < 16) lengths.push(symbol);
    else if (symbol === 16) lengths.push(...Array(3 + bits.take(2)).fill(lengths.at(-1)));
    else lengths.push(...Array(symbol === 17 ? 3 + bits.take(3) : 11 + bits.take(7)).fill(0));
  }
  return [makeCode(lengths.slice(0, symbols)), makeCode(lengths.slice(symbols))];
}

/** Blocks of codes of their own alone, as the package's are: the octets of the given size. */
export function inflate(octets, size) {
  const bits = new Bits(octets);
  const out = new Uint8Array(size);
  for (let at = 0, isLast = false; !isLast;) {
    isLast = bits.take(1) === 1;
    if (bits.take(2) !== 2) throw new Error("the package is damaged");
    const [code, distanceCode] = readCodes(bits);
    for (let symbol; (symbol = bits.symbol(code)) !== endOfBlock;) {
      if (symbol < endOfBlock) {
        out[at++] = symbol;
        continue;
      }
      const length = lengthStarts[symbol - 257] + bits.take(extraLengthBits[symbol - 257]);
      const far = bits.symbol(distanceCode);
      const distance = distanceStarts[far] + bits.take(extraDistanceBits[far]);
      for (let i = 0; i < length; ++i, ++at) out[at] = out[at - distance];
    }
  }
  return out;
}
