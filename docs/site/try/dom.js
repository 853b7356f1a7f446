// Elements made of text that strangers wrote: it becomes text nodes, and what nobody sees is shown.

/** An element; attributes by name, functions as listeners, children as nodes or text. */
export function h(name, attributes, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes ?? {})) {
    if (typeof value === "function") made.addEventListener(key, value);
    else if (value !== undefined && value !== false) made.setAttribute(key, String(value));
  }
  made.append(...children.flat().filter((child) => child !== null && child !== undefined));
  return made;
}

/** Text with controls, directions and other unseen characters written as \u{...}. */
export function shown(text) {
  return text.replace(/[\p{Cc}\p{Cf}\p{Cs}\p{Co}\p{Cn}\p{Zl}\p{Zp}]/gu,
    (each) => `\\u{${each.codePointAt(0).toString(16).toUpperCase()}}`);
}

export function hex(octets, separator = " ") {
  return Array.from(octets, (each) => each.toString(16).padStart(2, "0").toUpperCase())
    .join(separator);
}

/** At most so many octets, and how many there are. */
export function hexStart(octets, most = 64) {
  const rest = octets.length - most;
  return hex(octets.subarray(0, most)) + (rest > 0 ? ` … ${count(rest)} more` : "");
}

const numbers = new Intl.NumberFormat("en");

export function count(number, noun) {
  const digits = numbers.format(number);
  return noun === undefined ? digits : `${digits} ${noun}${number === 1 ? "" : "s"}`;
}

/** What `body` gives, or what the library says against it. */
export function attempt(body, refused) {
  try {
    return body();
  } catch (error) {
    return refused(error.sentence ?? error.message, error);
  }
}

export function wrong(sentence) {
  return h("p", { class: "wrong" }, shown(sentence));
}

/** A button that copies a text; nothing where the browser does not let it. */
export function copyButton(text, label) {
  if (!navigator.clipboard) return null;
  const button = h("button", { type: "button", class: "copy", "aria-label": `Copy ${label}` }, "Copy");
  button.addEventListener("click", async () => {
    try {
      await navigator.clipboard.writeText(text);
      button.textContent = "Copied";
    } catch {
      button.textContent = "Not copied";
    }
    setTimeout(() => { button.textContent = "Copy"; }, 1500);
  });
  return button;
}
