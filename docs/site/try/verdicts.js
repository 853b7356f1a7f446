// Questions and their answers, each with its reason.
import { encodeName, identify, parseName, permitted } from "ortholan";
import { attempt, h, shown } from "./dom.js";

const marks = { yes: "✓", no: "✗", "cannot tell": "?" };
const questions = [
  ["host", "the host", "www.example.org"],
  ["ip", "the address", "192.0.2.1"],
  ["email", "the mailbox", "joe@example.org"],
  ["uri", "the URI", "https://example.org/"],
  ["srv", "the service", "_imaps.example.org"],
];
const mostMismatches = 50;

/** A verdict as people read it: the word, a sign beside it, and the sentence. */
export function verdictView(verdict, sentences) {
  return h("div", { class: "verdict", "data-verdict": verdict },
    h("p", { class: "word" }, h("span", { "aria-hidden": "true" }, marks[verdict]), ` ${verdict}`),
    h("p", { class: "because" }, shown(sentences)));
}

function refusedView(sentence) {
  return h("p", { class: "wrong" }, shown(sentence));
}

function mismatches(answer) {
  const rows = answer.mismatches.slice(0, mostMismatches).map((each) => h("li", null,
    h("code", null, each.text === "" ? "a name of no kind" : each.text), `: ${each.sentence}`));
  const rest = answer.mismatches.length - rows.length;
  if (rest > 0) rows.push(h("li", null, `… ${rest} more`));
  return rows.length === 0 ? null : h("ul", { class: "mismatches" }, rows);
}

function answerTo(der, kind, text) {
  if (text === "") return [];
  return attempt(() => {
    const answer = identify(der, { [kind]: text });
    return [verdictView(answer.verdict, answer.yes ? answer.name.text : answer.sentence),
      answer.yes ? null : mismatches(answer)];
  }, (sentence) => [refusedView(sentence)]);
}

/** Whether a certificate is for what is asked; the question stays for the next certificate. */
export class Identity {
  #kind = h("select", { id: "asked-kind", "aria-label": "Kind of what is asked for" },
    questions.map(([kind, words]) => h("option", { value: kind }, words)));
  #text = h("input", { id: "asked", type: "text", spellcheck: "false", autocapitalize: "off",
    autocomplete: "off", "aria-label": "What is asked for" });
  #answer = h("output", { id: "identified", for: "asked-kind asked" });
  #der = new Uint8Array();
  view = h("section", { "aria-labelledby": "identity-title" },
    h("h2", { id: "identity-title" }, "Is it for …"),
    h("p", { class: "question" }, this.#kind, this.#text), this.#answer);

  constructor() {
    this.#text.addEventListener("input", () => this.#ask());
    this.#kind.addEventListener("change", () => this.#ask());
  }

  show(der) {
    this.#der = der;
    this.#ask();
  }

  #ask() {
    const [kind, , example] = questions[this.#kind.selectedIndex];
    this.#text.placeholder = example;
    this.#answer.replaceChildren(
      ...answerTo(this.#der, kind, this.#text.value.trim()).filter((each) => each !== null));
  }
}

/** A chain held against its name constraints. */
export function chainView(items) {
  const answer = permitted(items.map((item) => item.octets), { mostFindings: 20 });
  const sentence = answer.yes ? "every name is permitted by the authorities above it" :
    answer.sentence;
  const more = answer.findings.slice(1).map((each) => h("li", null, shown(each.sentence)));
  return h("section", { id: "chain" }, h("h2", null, "May its authorities name this?"),
    verdictView(answer.verdict, sentence),
    more.length === 0 ? null : h("ul", { class: "mismatches" }, more));
}

function nameOf(text) {
  return /^[\s0-9a-fA-F:]+$/.test(text) ? parseName(text, { reading: "structure" }) :
    encodeName(text);
}

/** What two texts of names have to do with each other. */
export function compared(first, second) {
  if (first.trim() === "" || second.trim() === "") return [];
  return attempt(() => {
    const [a, b] = [nameOf(first), nameOf(second)];
    const answer = a.match(b);
    const lines = [verdictView(answer.verdict, answer.sentence)];
    const within = (name, subtree, words) => {
      if (name.within(subtree)) lines.push(h("p", { class: "because" }, words));
    };
    if (!answer.yes) {
      within(a, b, "The first is within the subtree of the second.");
      within(b, a, "The second is within the subtree of the first.");
    }
    return lines;
  }, (sentence) => [refusedView(sentence)]);
}
