// The tree of elements, walked by arrow keys as trees are: one element is in the order of tabs.
import { h } from "./dom.js";
import { typeOf, valueOf } from "./meaning.js";

const mostChildren = 400;
const openDepth = 2;

function line(element) {
  return h("span", { class: "line" },
    element.field ? h("span", { class: "field" }, element.field) : null,
    h("span", { class: "type" }, typeOf(element)),
    h("span", { class: "value" }, valueOf(element)));
}

/**
 * Fills `root` with the elements.
 *   onPoint(element)   the pointer or the focus is at one
 */
export class Tree {
  #root;
  #onPoint;
  #items = new Map();
  #current = null;

  constructor(root, onPoint) {
    this.#root = root;
    this.#onPoint = onPoint;
    root.addEventListener("keydown", (event) => this.#press(event));
    root.addEventListener("click", (event) => this.#click(event));
    root.addEventListener("pointerover", (event) => {
      const item = event.target.closest(".item");
      if (item !== null) this.#onPoint(item.element);
    });
    root.addEventListener("pointerleave", () => {
      if (this.#current !== null) this.#onPoint(this.#current.element);
    });
  }

  show(elements) {
    this.#items.clear();
    this.#current = null;
    this.#root.replaceChildren(...this.#itemsOf(elements));
    const first = this.#root.querySelector(".item");
    if (first !== null) this.#choose(first, false);
  }

  /** Opens the way to an element and chooses it; the page stays where it is. */
  reveal(element, takesFocus = false) {
    const way = [];
    for (let each = element; each !== null; each = each.parent) way.unshift(each);
    for (const each of way.slice(0, -1)) this.#open(this.#items.get(each), true);
    const item = this.#items.get(element);
    if (item === undefined) return;
    this.#choose(item, false);
    if (takesFocus) item.focus({ preventScroll: true });
  }

  #itemsOf(elements) {
    const items = elements.slice(0, mostChildren).map((element) => this.#item(element));
    const rest = elements.length - items.length;
    return rest > 0 ? [...items, h("p", { class: "hint" }, `… ${rest} more`)] : items;
  }

  #item(element) {
    const hasChildren = element.children.length !== 0;
    const item = h("div", { class: "item", role: "treeitem", tabindex: -1, "aria-selected": "false",
      "aria-level": element.depth + 1 },
    h("span", { class: "mark", "aria-hidden": "true" }, hasChildren ? "▸" : ""), line(element));
    item.element = element;
    this.#items.set(element, item);
    const branch = h("div", { class: "branch", role: "none" }, item);
    if (hasChildren) {
      item.setAttribute("aria-expanded", "false");
      if (element.depth < openDepth) this.#open(item, true);
    }
    return branch;
  }

  #open(item, isOpen) {
    if (item === undefined || !item.hasAttribute("aria-expanded")) return;
    if ((item.getAttribute("aria-expanded") === "true") === isOpen) return;
    item.setAttribute("aria-expanded", String(isOpen));
    item.firstChild.textContent = isOpen ? "▾" : "▸";
    let group = item.nextElementSibling;
    if (group === null) {
      group = h("div", { class: "group", role: "group" }, this.#itemsOf(item.element.children));
      item.after(group);
    }
    group.hidden = !isOpen;
  }

  #choose(item, takesFocus) {
    if (this.#current !== null) {
      this.#current.tabIndex = -1;
      this.#current.setAttribute("aria-selected", "false");
    }
    this.#current = item;
    item.tabIndex = 0;
    item.setAttribute("aria-selected", "true");
    if (takesFocus) item.focus();
    else this.#scrollTo(item);
    this.#onPoint(item.element);
  }

  // Inside the tree alone: the page stays where it is.
  #scrollTo(item) {
    const [own, outer] = [item.getBoundingClientRect(), this.#root.getBoundingClientRect()];
    if (own.top < outer.top || own.bottom > outer.bottom) {
      this.#root.scrollTop += own.top - outer.top - outer.height / 3;
    }
  }

  #click(event) {
    const item = event.target.closest(".item");
    if (item === null) return;
    if (event.target.closest(".mark") !== null || item === this.#current) {
      this.#open(item, item.getAttribute("aria-expanded") !== "true");
    }
    this.#choose(item, true);
  }

  #seen() {
    return [...this.#root.querySelectorAll(".item")].filter((item) => item.offsetParent !== null);
  }

  #press(event) {
    if (event.altKey || event.ctrlKey || event.metaKey || this.#current === null) return;
    const item = this.#current;
    const isOpen = item.getAttribute("aria-expanded") === "true";
    const seen = this.#seen();
    const at = seen.indexOf(item);
    const moves = {
      ArrowDown: () => seen[at + 1],
      ArrowUp: () => seen[at - 1],
      Home: () => seen[0],
      End: () => seen.at(-1),
      ArrowRight: () => (isOpen ? seen[at + 1] : this.#open(item, true)),
      ArrowLeft: () => (isOpen ? this.#open(item, false) : this.#items.get(item.element.parent)),
      Enter: () => this.#open(item, !isOpen),
      " ": () => this.#open(item, !isOpen),
    };
    if (moves[event.key] === undefined) return;
    event.preventDefault();
    const next = moves[event.key]();
    if (next !== undefined) this.#choose(next, true);
  }
}
