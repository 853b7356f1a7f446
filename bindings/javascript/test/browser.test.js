// The package and the page in a browser.
import assert from "node:assert/strict";
import fs from "node:fs";
import http from "node:http";
import path from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath } from "node:url";
import { openPage, startBrowser } from "./browser.js";
import { certificate, element, extension } from "./der.js";
import { hex, octets } from "./vectors.js";

const built = fileURLToPath(new URL("../../../build/javascript/", import.meta.url));
const types = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".svg": "image/svg+xml" };

let browser;
let server;
let address;

before(async () => {
  server = http.createServer((request, response) => {
    const file = path.join(built, path.normalize(new URL(request.url, "http://a").pathname));
    fs.readFile(file, (error, data) => {
      response.writeHead(error ? 404 : 200, { "content-type": types[path.extname(file)] ?? "" });
      response.end(error ? "" : data);
    });
  });
  await new Promise((resolve) => { server.listen(0, "127.0.0.1", resolve); });
  address = `http://127.0.0.1:${server.address().port}/`;
  browser = await startBrowser();
});

after(async () => {
  await browser.close();
  server.close();
});

// A page that is looked at, faultless and by itself.
async function look(options, body, url = `${address}try/index.html`) {
  const page = await openPage(browser, url, options);
  const text = (selector) =>
    page.evaluate(`document.querySelector(${JSON.stringify(selector)})?.innerText ?? ""`);
  const paste = (content) => page.evaluate(`(() => {
    const input = document.querySelector("#input");
    input.value = ${JSON.stringify(content)};
    input.dispatchEvent(new Event("input"));
    return new Promise((resolve) => { setTimeout(resolve, 250); });
  })()`);
  await body({ ...page, text, paste });
  assert.deepEqual(page.faults, []);
  const elsewhere = page.requests.filter((request) => !request.startsWith(new URL(".", url).href));
  assert.deepEqual(elsewhere, []);
  await page.close();
}

const seen = (text) => text.replace(/\s+/g, " ");

test("the package as modules of a page", async () => {
  const folder = path.join(built, "modules");
  fs.mkdirSync(folder, { recursive: true });
  fs.writeFileSync(path.join(folder, "index.html"), "<!DOCTYPE html><link rel=icon href=data:,>");
  const page = await openPage(browser, `${address}modules/index.html`);
  assert.deepEqual(await page.evaluate(`import("${address}ortholan/index.js").then((ortholan) => {
    const name = ortholan.encodeName("CN=Alpha,O=Org");
    return [String(name), name.equals(ortholan.encodeName("cn=ALPHA,O=org"))];
  })`), ["CN=Alpha,O=Org", true]);
  await page.close();
});

test("a certificate, whom it is for, and a chain", () => look({}, async ({ click, press, text, type }) => {
  await click("[data-sample=certificate]");
  assert.match(await text("#status"), /^certificate, \d+ octets$/i);
  const facts = seen(await text("#facts"));
  for (const part of ["CN=www.example.org,O=Bücher & Söhne", "4F1E2D3C", "IP:2001:db8::7",
    "keyUsage 2.5.29.15 critical digitalSignature"]) {
    assert.ok(facts.includes(part), part);
  }
  await click("#asked");
  const rows = [["a.shop.example.org", "✓ yes DNS:*.shop.example.org"],
    [".b", "✗ no no name of the certificate is the one"]];
  for (const [more, answer] of rows) {
    await type(more);
    assert.ok(seen(await text("#identified")).startsWith(answer), answer);
  }
  await click("[data-sample=chain]");
  const reason = "DNS name build.intern.example.org is in an excluded subtree of certificate 2";
  assert.ok(seen(await text("#chain")).includes(reason));
  await click("#which");
  await press("ArrowDown");
  await press("Enter");
  assert.ok(seen(await text("#facts")).includes("CN=Example Authority"));
}));

test("texts, pasted in any form", () => look({}, async ({ evaluate, paste, text }) => {
  const rows = [
    ["DNS:*.example.org", "general name, 15 octets"],
    ["30:0C 31:0A:30:08:06:03:55:04:03:0C:01:41", "name, 14 octets"],
    ["MAwxCjAIBgNVBAMMAUE=", "name, 14 octets"],
    ["300c310a300806035504030c01ff", "name, 14 octets, refused: at offset 13: "],
    ["30820100", "refused: at offset 4: the octets end inside an element"],
    ["CN=a, b", "\"b\" at character 7: expected \"=\""],
    ["DNS:a b", "at offset 5: a character stands there that no host name has"],
    ["300", "hexadecimal digits that do not make whole octets"],
    ["-----BEGIN X-----\nAA", "at offset 20: a PEM block has to end"],
  ];
  for (const [pasted, status] of rows) {
    await paste(pasted);
    assert.ok((await text("#status")).toLowerCase().includes(status.toLowerCase()),
      `${pasted}: ${await text("#status")}`);
  }
  const drop = (digits) => evaluate(`(() => {
    const dataTransfer = new DataTransfer();
    const octets = "${digits}".match(/../g).map((each) => Number.parseInt(each, 16));
    dataTransfer.items.add(new File([new Uint8Array(octets)], "a.der"));
    document.querySelector("#facts").dispatchEvent(
      new DragEvent("drop", { dataTransfer, bubbles: true, cancelable: true }));
    return new Promise((resolve) => { setTimeout(resolve, 250); });
  })()`);
  await drop("300C310A300806035504030C0142");
  assert.ok((await text("#facts")).includes("CN=B"));
  assert.equal(await evaluate(`document.querySelector("#input").value`), "MAwxCjAIBgNVBAMMAUI=");
  // The caret stands below the character, whatever stands before it.
  await paste("CN=Ж漢字, foo");
  const [met, caret] = await evaluate(`[".met", ".caret"].map((each) => {
    const { left, top } = document.querySelector(each).getBoundingClientRect();
    return { left, top };
  })`);
  assert.equal(seen(await text(".met")), "f ^");
  assert.equal(caret.left, met.left);
  assert.ok(caret.top > met.top);
}));

test("values that want to be more than text", () => look({}, async ({ evaluate, paste, text }) => {
  const hostile = "<img src=x onerror=alert(1)>\u202Egro\u0000\uFFFE";
  const subject = element(0x30, element(0x31, element(0x30, octets("0603550403"),
    element(0x0c, hostile))));
  const names = element(0x30, element(0x82, hostile), element(0x86, "javascript:alert(1)"));
  await paste(hex(certificate({ subject, extensions: [extension(17, names),
    extension(99, element(0x0c, hostile))] })));
  assert.equal(await evaluate(`document.querySelectorAll("main img, main script, main a").length`), 0);
  const page = await text("body");
  assert.ok(page.includes("img src=x onerror=alert(1)"));
  assert.doesNotMatch(page, /[\u202E\u0000\uFFFE]/);
}));

test("octets and what they mean", () => look({}, async ({ click, evaluate, paste, press, text }) => {
  await paste("300c310a300806035504030c0141");
  const marked = () => evaluate(`["identifier", "length", "content"].map((each) =>
    [...document.querySelectorAll("#dump ." + each)].map((span) => span.textContent).join(""))`);
  await evaluate(`document.querySelector("#tree .item").focus()`);
  assert.deepEqual(await marked(), ["30", "0C", "310A300806035504030C0141"]);
  for (const key of ["End", "ArrowRight", "ArrowDown"]) await press(key);
  assert.deepEqual(await marked(), ["06", "03", "550403"]);
  await press("End");
  assert.deepEqual(await marked(), ["0C", "01", "41"]);
  await paste(hex(certificate({ extensions: [extension(15, octets("0303070600"))] })));
  assert.ok((await text("#facts")).includes("a BIT STRING is malformed"));
  await click(".faults .copy");
  assert.match(await text("#path"), /Certificate › tbsCertificate/);
  await paste("300c310a300806035504030c0141");
  await click("#dump [data-at='8']");
  assert.match(seen(await text("#tree [aria-selected=true]")), /type OBJECT IDENTIFIER commonName/);
  assert.match(await text("#path"), /Name › RelativeDistinguishedName › .* › type/);
}));

test("by keyboard alone, and no trap", () => look({}, async ({ evaluate, press, text, type }) => {
  const where = () => evaluate(`(document.activeElement.id || document.activeElement.dataset.sample ||
    document.activeElement.className || document.activeElement.localName)`);
  const stops = async (last) => {
    const way = [];
    for (let i = 0; i < 60 && way.at(-1) !== last; ++i) {
      await press("Tab");
      way.push(await where());
    }
    return way;
  };
  assert.deepEqual(await stops("second"),
    ["input", "open", "certificate", "chain", "name", "mistake", "clear", "first", "second"]);
  await type("cn=alpha");
  await press("Tab", 8);
  await type("CN=Alpha");
  assert.match(seen(await text("#compared")), /^✓ yes/);
  for (const stop of ["clear", "mistake", "name", "chain"]) {
    await press("Tab", 8);
    assert.equal(await where(), stop);
  }
  await press("Enter");
  const way = await stops("first");
  for (const stop of ["which", "asked-kind", "asked", "item", "dump"]) {
    assert.equal(way.filter((each) => each === stop).length, 1, `${stop} in ${way}`);
  }
  const nameless = await evaluate(`[...document.querySelectorAll("button, input, select, textarea")]
    .filter((each) => !each.hidden && !each.labels?.length && !each.ariaLabel &&
      !each.textContent.trim()).length`);
  assert.equal(nameless, 0);
}));

for (const width of [420, 1280]) {
  for (const dark of [false, true]) {
    test(`${width} pixels, ${dark ? "dark" : "light"}`, () => look({ width, dark }, async (page) => {
      await page.click("[data-sample=chain]");
      const { over, contrasts } = await page.evaluate(`(() => {
        const shine = (colour) => {
          const [r, g, b] = colour.match(/[\\d.]+/g).map((each) => each / 255).map((each) =>
            each <= 0.04045 ? each / 12.92 : ((each + 0.055) / 1.055) ** 2.4);
          return 0.2126 * r + 0.7152 * g + 0.0722 * b + 0.05;
        };
        const ground = (each) => {
          const colour = getComputedStyle(each).backgroundColor;
          return colour !== "rgba(0, 0, 0, 0)" ? colour : ground(each.parentElement);
        };
        const contrasts = [...document.querySelectorAll("main *, footer *")]
          .filter((each) => each.offsetParent !== null && [...each.childNodes]
            .some((node) => node.nodeType === 3 && node.data.trim() !== ""))
          .map((each) => {
            const pair = [shine(getComputedStyle(each).color), shine(ground(each))];
            return [Math.max(...pair) / Math.min(...pair), each.outerHTML.slice(0, 80)];
          });
        return { over: document.documentElement.scrollWidth - innerWidth, contrasts };
      })()`);
      assert.ok(over <= 0, `${over} pixels beyond the edge`);
      assert.ok(contrasts.length > 50);
      assert.deepEqual(contrasts.filter(([contrast]) => contrast < 4.5), []);
      const paper = await page.evaluate("getComputedStyle(document.body).backgroundColor");
      assert.equal(paper === "rgb(20, 23, 26)", dark);
    }));
  }
}

test("from a file, without a server", () => look({}, async ({ click, text }) => {
  await click("[data-sample=name]");
  assert.ok(seen(await text("#facts")).includes("L=Москва"));
}, `file://${built}try/index.html`));
