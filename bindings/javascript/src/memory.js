// The C functions of the strict layer, called. Octets and text are copied in, results are copied
// out, and everything in between is freed when the call is over:
//
//   run((call) => {
//     const view = call.room(nameView);
//     call.check("ortholan_name_view_read", call.octets(der), 0, view);
//     return call.read(nameView, view).rdn_count;
//   });
import { inflate } from "./inflate.js";
import { Refused } from "./refused.js";
import { deflated, size } from "./wasm.js";

const memoryReason = 2;
const roomReason = 3;
const notFoundReason = 4;
const firstRoom = 256;
// A heap above this is given back behind the call; the module's own never shrinks.
const keptBytes = 16 << 20;
// No block can be larger.
const mostBytes = 2 ** 31;
const noPlace = 0xffffffff;

const decoder = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const encoder = new TextEncoder();

let module;
// Keeps nothing between calls but free memory.
let library;

function open() {
  if (module === undefined) {
    const octets = Uint8Array.from(atob(deflated), (each) => each.charCodeAt(0));
    module = new WebAssembly.Module(inflate(octets, size));
  }
  const stop = () => {
    throw new Error("the library stopped");
  };
  // What the module may ask for is told by its imports; none of it happens but in distress.
  const imports = {};
  for (const { module: from, name } of WebAssembly.Module.imports(module)) {
    imports[from] = { ...imports[from], [name]: name.includes("memory_growth") ? () => {} : stop };
  }
  const { exports } = new WebAssembly.Instance(module, imports);
  exports._initialize();
  return look({ exports });
}

// A heap that grows leaves the views of its old place without octets.
function look(library) {
  library.heap = new Uint8Array(library.exports.memory.buffer);
  library.view = new DataView(library.exports.memory.buffer);
  return library;
}

// The fields of a C structure: "i" a signed number, "u" an unsigned one or a size, "o" octets or
// text by pointer and size. All are multiples of four octets.
export function layout(text) {
  let size = 0;
  const fields = text.split(" ").map((field) => {
    const [name, type] = field.split(":");
    const offset = size;
    size += type === "o" ? 8 : 4;
    return { name, type, offset };
  });
  return { fields, size };
}

export const number = layout("value:u");
export const octetsView = layout("value:o");
export const refusalView = layout("reason:i met:u expected:u offset:u");

/** UTF-8 of a text; refuses one with half a surrogate pair, which has none. */
export function utf8(text) {
  const lone = /\p{Surrogate}/u.exec(text);
  if (lone !== null) {
    throw new Refused(80, `character ${lone.index + 1} of the text is half of a surrogate pair`,
      encoder.encode(text.slice(0, lone.index)).length);
  }
  return encoder.encode(text);
}

class Call {
  #library;
  #blocks = [];

  constructor(library) {
    this.#library = library;
  }

  get #heap() {
    return this.#library.heap;
  }

  /** Calls a function of the library. A stop of the module is told as lack of memory. */
  invoke(name, ...args) {
    try {
      const result = this.#library.exports[name](...args);
      if (this.#heap.length === 0) look(this.#library);
      return result;
    } catch (cause) {
      library = undefined;
      this.#blocks = [];
      throw new Refused(memoryReason, "there is not enough memory", undefined, { cause });
    }
  }

  free() {
    for (const block of this.#blocks) this.invoke("free", block);
    if (this.#heap.length > keptBytes) library = undefined;
  }

  /** Zeros for a structure, or for so many octets. */
  room(what) {
    const size = typeof what === "number" ? what : what.size;
    const block = size < mostBytes ? this.invoke("malloc", size + 1) : 0;
    if (block === 0) throw new Refused(memoryReason, "there is not enough memory");
    this.#blocks.push(block);
    this.#heap.fill(0, block, block + size);
    return block;
  }

  /** Octets in the module's memory, as a structure has them. */
  place(octets) {
    const data = this.room(octets.length);
    this.#heap.set(octets, data);
    return { data, size: octets.length };
  }

  /** The same as an argument. */
  octets(octets) {
    return this.make(octetsView, { value: this.place(octets) });
  }

  text(text) {
    return this.octets(utf8(text));
  }

  /** A structure; fields that are not named are zeros. */
  make(layout, values) {
    const at = this.room(layout);
    this.write(layout, at, values);
    return at;
  }

  write(layout, at, values) {
    const { view } = this.#library;
    for (const { name, type, offset } of layout.fields) {
      const value = values[name] ?? 0;
      if (type !== "o") {
        view.setUint32(at + offset, value, true);
      } else if (value !== 0) {
        view.setUint32(at + offset, value.data, true);
        view.setUint32(at + offset + 4, value.size, true);
      }
    }
  }

  /** An array of structures. */
  list(layout, items) {
    const at = this.room(layout.size * items.length);
    items.forEach((item, i) => this.write(layout, at + i * layout.size, item));
    return at;
  }

  /** A structure's numbers; of octets a copy. */
  read(layout, at) {
    const { view } = this.#library;
    const found = {};
    for (const { name, type, offset } of layout.fields) {
      if (type === "i") {
        found[name] = view.getInt32(at + offset, true);
      } else {
        found[name] = view.getUint32(at + offset, true);
        if (type === "o") {
          const size = view.getUint32(at + offset + 4, true);
          found[name] = this.#heap.slice(found[name], found[name] + size);
        }
      }
    }
    return found;
  }

  /** A text that ends with NUL. */
  terminated(at) {
    return decoder.decode(this.#heap.subarray(at, this.#heap.indexOf(0, at)));
  }

  /** What `body(out, room, size)` writes, asked again where the room was too small. */
  out(body) {
    const size = this.room(number);
    for (let room = firstRoom; ;) {
      const out = this.room(room);
      const reason = body(out, room, size);
      const needed = this.read(number, size).value;
      if (reason !== roomReason) return { reason, octets: this.#heap.slice(out, out + needed) };
      room = needed;
    }
  }

  /** The same as text, of functions that refuse nothing. */
  sentence(name, ...args) {
    return decoder.decode(this.out((...out) => this.invoke(name, ...args, ...out)).octets);
  }

  /** Calls a function whose last argument is a refusal, which is thrown. */
  check(name, ...args) {
    const refusal = this.room(refusalView);
    this.#refuse(this.invoke(name, ...args, refusal), refusal);
  }

  /** The same for one that writes octets before its refusal. */
  octetsOf(name, ...args) {
    const refusal = this.room(refusalView);
    const { reason, octets } = this.out((...out) => this.invoke(name, ...args, ...out, refusal));
    this.#refuse(reason, refusal);
    return octets;
  }

  textOf(name, ...args) {
    return decoder.decode(this.octetsOf(name, ...args));
  }

  /** The items of a list, by a function that moves an offset: `name(view, &offset, item)`. */
  *each(name, view, itemLayout) {
    const offset = this.room(number);
    const item = this.room(itemLayout);
    for (;;) {
      const reason = this.invoke(name, view, offset, item);
      if (reason === notFoundReason) return;
      if (reason !== 0) throw new Refused(reason, this.reasonSentence(reason));
      yield this.read(itemLayout, item);
    }
  }

  #refuse(reason, at) {
    if (reason === 0) return;
    const refusal = this.read(refusalView, at);
    if (refusal.reason === 0) this.write(refusalView, at, { reason, offset: noPlace });
    throw new Refused(reason, this.sentence("ortholan_refusal_sentence", at),
      placeOf(this.read(refusalView, at)));
  }

  reasonSentence(reason) {
    return this.terminated(this.invoke("ortholan_reason_sentence", reason));
  }
}

/** Octets before the place of a refusal; undefined where it has none. */
export function placeOf(refusal) {
  return refusal.offset === noPlace ? undefined : refusal.offset;
}

export function textOf(octets) {
  return decoder.decode(octets);
}

/** Calls functions of the library, and frees what they were given. */
export function run(body) {
  library ??= open();
  const call = new Call(library);
  try {
    return body(call);
  } finally {
    call.free();
  }
}
