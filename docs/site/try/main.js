// The page: what was pasted is understood, and told in words, as a tree and octet by octet.
import { Refused } from "ortholan";
import { readElements } from "./der.js";
import { count, h, shown } from "./dom.js";
import { Dump } from "./dump.js";
import { facts } from "./facts.js";
import { describe, typeOf } from "./meaning.js";
import { samples } from "./samples.js";
import { Tree } from "./tree.js";
import { understand } from "./understand.js";
import { chainView, compared, Identity } from "./verdicts.js";

const pause = 120;
const byId = (id) => document.getElementById(id);
const [input, status, mistake] = ["input", "status", "mistake"].map(byId);
const [results, factsPart, path] = ["results", "facts", "path"].map(byId);

let roots = [];
const tree = new Tree(byId("tree"), (element) => point(element));
const dump = new Dump(byId("dump"), (offset, isChosen) => {
  if (isChosen) showOctet(offset);
  else path.replaceChildren(...way(elementAt(offset)));
});
const identity = new Identity();

function elementAt(offset) {
  return roots.find((root) => offset >= root.start && offset < root.end)?.at(offset);
}

function showOctet(offset) {
  const element = elementAt(offset);
  if (element !== undefined) tree.reveal(element, true);
}

// The way to an element, and what it is.
function way(element) {
  const names = [];
  for (let each = element; each !== null; each = each.parent) {
    names.unshift(each.field || typeOf(each));
  }
  return [h("span", null, names.join(" › ")), h("span", { class: "quiet" }, describe(element))];
}

function point(element) {
  dump.mark(element);
  path.replaceChildren(...way(element));
}

const called = { element: "an element that is none of the kinds known here" };

function tell({ octets, shape, value, refusal }, number, total) {
  const what = called[shape] ?? shape;
  const which = total > 1 ? `${number + 1} of ${total}: ` : "";
  const size = count(octets.length, "octet");
  if (refusal === null) return `${which}${what}, ${size}`;
  const reading = value === null ? "" : "; shown as a lenient reading has it, which no verdict takes";
  return `${which}${what}, ${size}, refused: ${refusal.sentence}${reading}`;
}

function choice(items, chosen) {
  const select = h("select", { id: "which" }, items.map((item, i) => h("option",
    { value: i, selected: i === chosen }, `${i + 1}: ${item.value?.subject ?? item.shape}`)));
  select.addEventListener("change", () => {
    show(items, select.selectedIndex);
    byId("which").focus();
  });
  return h("p", { class: "which" }, h("label", { for: "which" }, "Shown "), select);
}

function show(items, chosen) {
  const item = items[chosen];
  const isCertificate = item.shape === "certificate";
  status.textContent = shown(tell(item, chosen, items.length));
  status.classList.toggle("refused", item.refusal !== null);
  identity.show(item.octets);
  const [first = null, ...rest] = facts(item, (offset) => {
    showOctet(offset);
    path.scrollIntoView({ block: "nearest" });
  });
  factsPart.replaceChildren(...[
    items.length > 1 ? choice(items, chosen) : null,
    first,
    isCertificate ? identity.view : null,
    isCertificate && items.length > 1 ? chainView(items) : null,
    ...rest,
  ].filter((each) => each !== null));
  roots = readElements(item.octets, item.type);
  dump.show(item.octets, item.refusal?.offset);
  tree.show(roots);
  const at = item.refusal?.offset;
  const refused = at === undefined ? undefined : elementAt(at);
  if (refused !== undefined) tree.reveal(refused);
  results.hidden = false;
}

// The text with a caret below the place where it is wrong.
function showMistake(text, refusal) {
  const octets = new TextEncoder().encode(text);
  const before = new TextDecoder().decode(octets.subarray(0, refusal.offset));
  const [met = ""] = text.slice(before.length);
  mistake.replaceChildren(h("pre", null, shown(before),
    h("span", { class: "met" }, shown(met), h("span", { class: "caret", "aria-hidden": "true" }, "^")),
    shown(text.slice(before.length + met.length))));
  mistake.hidden = false;
}

function refuse(text, refusal) {
  status.textContent = shown(refusal.sentence);
  status.classList.add("refused");
  if (refusal.offset !== undefined) showMistake(text, refusal);
}

function clear() {
  results.hidden = true;
  mistake.hidden = true;
  status.textContent = "";
  status.classList.remove("refused");
}

function update() {
  clear();
  if (input.value.trim() === "") return;
  try {
    show(understand(input.value).items, 0);
  } catch (error) {
    if (!(error instanceof Refused)) throw error;
    refuse(input.value.replace(/[\r\n]+$/, ""), error);
  }
}

function set(text) {
  input.value = text;
  update();
}

// A file of text as it is, any other as base64.
async function take(file) {
  const octets = new Uint8Array(await file.arrayBuffer());
  const isText = octets.every((each) => (each >= 0x20 && each < 0x7f) || (each >= 9 && each <= 13));
  if (isText) return set(new TextDecoder().decode(octets));
  let characters = "";
  for (const octet of octets) characters += String.fromCharCode(octet);
  return set(btoa(characters).replace(/.{64}/g, "$&\n"));
}

let timer;
input.addEventListener("input", () => {
  clearTimeout(timer);
  timer = setTimeout(update, pause);
});
byId("open").addEventListener("click", () => byId("file").click());
byId("file").addEventListener("change", (event) => {
  if (event.target.files.length !== 0) take(event.target.files[0]);
  event.target.value = "";
});
byId("clear").addEventListener("click", () => {
  set("");
  input.focus();
});
for (const button of document.querySelectorAll("[data-sample]")) {
  button.addEventListener("click", () => set(samples[button.dataset.sample]));
}
document.addEventListener("dragover", (event) => event.preventDefault());
document.addEventListener("drop", (event) => {
  event.preventDefault();
  if (event.dataTransfer.files.length !== 0) take(event.dataTransfer.files[0]);
  else if (event.target !== input) set(event.dataTransfer.getData("text"));
});
for (const id of ["first", "second"]) {
  byId(id).addEventListener("input", () => {
    byId("compared").replaceChildren(...compared(byId("first").value, byId("second").value));
  });
}
update();
