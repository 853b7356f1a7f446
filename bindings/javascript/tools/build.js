// Makes the package: build.js VERSION WASM OUT
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { bundle } from "./bundle.js";

const [version, wasm, out] = process.argv.slice(2);
const binding = fileURLToPath(new URL("..", import.meta.url));
const headers = path.join(binding, "../../include/ortholan/strict");

const write = (name, text) => fs.writeFileSync(path.join(out, name), text);
const read = (...names) => fs.readFileSync(path.join(...names), "utf8");

// Names of reasons by their numbers, from the headers.
function reasons() {
  const codes = {};
  for (const header of fs.readdirSync(headers).filter((name) => name.endsWith(".h"))) {
    for (const [, code, number] of
      read(headers, header).matchAll(/\bORTHOLAN_REASON_(\w+) = (\d+)/g)) {
      if (number !== "0") codes[number] = code;
    }
  }
  return "// Names of reasons by their numbers.\nexport const codes = " +
    `${JSON.stringify(codes, null, 2)};\n`;
}

// The module is there once: the other form reads it from the file of the first.
const readsModule = `(() => {
  const { readFileSync } = require("node:fs");
  const text = readFileSync(require("node:path").join(__dirname, "wasm.js"), "latin1");
  return { default: text.slice(text.indexOf('"') + 1, text.lastIndexOf('"')) };
})()`;

fs.rmSync(out, { recursive: true, force: true });
fs.mkdirSync(out, { recursive: true });
for (const name of fs.readdirSync(path.join(binding, "src"))) {
  fs.copyFileSync(path.join(binding, "src", name), path.join(out, name));
}
write("wasm.js", `export default "${fs.readFileSync(wasm).toString("base64")}";\n`);
write("reasons.js", reasons());
const script = bundle(path.join(out, "index.js"), { [path.join(out, "wasm.js")]: readsModule });
write("index.cjs", `"use strict";\nmodule.exports = ${script};\n`);
fs.copyFileSync(path.join(out, "index.d.ts"), path.join(out, "index.d.cts"));
fs.copyFileSync(path.join(binding, "README.md"), path.join(out, "README.md"));
fs.copyFileSync(path.join(binding, "../../LICENSE"), path.join(out, "LICENSE"));
write("package.json",
  `${JSON.stringify({ ...JSON.parse(read(binding, "package.json")), version }, null, 2)}\n`);
