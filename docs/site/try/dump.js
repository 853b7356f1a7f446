// Octets in rows, those of one element marked: identifier, length and content each in its own way.
import { count, h, hex } from "./dom.js";

const mostOctets = 4096;
const narrow = matchMedia("(max-width: 520px)");

/** Fills `root`; `onOctet(offset, isChosen)` is told where the pointer is and what was clicked. */
export class Dump {
  #root;
  #octets = new Uint8Array();
  #first = 0;
  #spans = [];
  #marked = null;
  #fault;

  constructor(root, onOctet) {
    this.#root = root;
    const offsetOf = (event) => event.target.closest("[data-at]")?.dataset.at;
    const tell = (isChosen) => (event) => {
      const at = offsetOf(event);
      if (at !== undefined) onOctet(Number(at), isChosen);
    };
    root.addEventListener("pointerover", tell(false));
    root.addEventListener("click", tell(true));
    narrow.addEventListener("change", () => this.#draw());
  }

  /** @param fault  an octet that the library refused, or undefined */
  show(octets, fault) {
    this.#octets = octets;
    this.#fault = fault;
    this.#marked = null;
    this.#first = 0;
    this.#draw();
  }

  mark(element) {
    this.#marked = element;
    if (element.start < this.#first || element.start >= this.#first + mostOctets) {
      this.#first = element.start - element.start % 16;
      this.#draw();
    }
    this.#paint();
    const span = this.#spans[element.start - this.#first];
    if (span !== undefined) this.#scrollTo(span);
  }

  #scrollTo(span) {
    const [own, outer] = [span.getBoundingClientRect(), this.#root.getBoundingClientRect()];
    if (own.top < outer.top + 8 || own.bottom > outer.bottom - 8) {
      this.#root.scrollTop += own.top - outer.top - 24;
    }
  }

  #draw() {
    const octets = this.#octets.subarray(this.#first, this.#first + mostOctets);
    const width = narrow.matches ? 8 : 16;
    this.#spans = Array.from(octets, (octet, i) =>
      h("span", { "data-at": this.#first + i }, hex([octet])));
    const rows = [];
    for (let at = 0; at < octets.length; at += width) {
      const ascii = String.fromCharCode(...octets.subarray(at, at + width)
        .map((each) => (each >= 0x20 && each < 0x7f ? each : 0xb7)));
      rows.push(h("div", { class: "row" },
        h("span", { class: "offset" }, (this.#first + at).toString(16).padStart(4, "0")),
        h("span", { class: "cells" }, this.#spans.slice(at, at + width)),
        h("span", { class: "ascii", "aria-hidden": "true" }, ascii)));
    }
    const [before, behind] = [this.#first, this.#octets.length - this.#first - octets.length];
    this.#root.replaceChildren(
      ...(before > 0 ? [h("p", { class: "hint" }, `${count(before)} octets before`)] : []), ...rows,
      ...(behind > 0 ? [h("p", { class: "hint" }, `… ${count(behind)} more`)] : []));
    this.#paint();
  }

  #paint() {
    for (const span of this.#root.querySelectorAll(".identifier, .length, .content, .fault")) {
      span.className = "";
    }
    this.#spans[this.#fault - this.#first]?.classList.add("fault");
    if (this.#marked === null) return;
    const { start, lengthAt, content, end } = this.#marked;
    const paint = (from, to, name) => {
      for (let at = Math.max(from, this.#first); at < to; ++at) {
        const span = this.#spans[at - this.#first];
        if (span === undefined) return;
        span.classList.add(name);
      }
    };
    paint(start, lengthAt, "identifier");
    paint(lengthAt, content, "length");
    paint(content, end, "content");
  }
}
