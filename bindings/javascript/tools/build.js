// Makes the package: build.js VERSION WASM OUT
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { deflateRawSync } from "node:zlib";
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

// WebAssembly as a module that needs no file beside it.
function wasmModule(octets) {
  const deflated = deflateRawSync(octets, { level: 9, memLevel: 9 }).toString("base64");
  return `export const size = ${octets.length};\nexport const deflated = "${deflated}";\n`;
}

fs.rmSync(out, { recursive: true, force: true });
fs.mkdirSync(out, { recursive: true });
for (const name of fs.readdirSync(path.join(binding, "src"))) {
  fs.copyFileSync(path.join(binding, "src", name), path.join(out, name));
}
write("wasm.js", wasmModule(fs.readFileSync(wasm)));
write("reasons.js", reasons());
// The other form reads the octets from the file of the first, so that they are there once.
const script = bundle(path.join(out, "index.js")).replace(/(?<=const deflated = )".*";/,
  'require("node:fs").readFileSync(`${__dirname}/wasm.js`, "latin1").split(\'"\')[1];');
write("index.cjs", `"use strict";\nmodule.exports = ${script};\n`);

fs.copyFileSync(path.join(out, "index.d.ts"), path.join(out, "index.d.cts"));
fs.copyFileSync(path.join(binding, "README.md"), path.join(out, "README.md"));
fs.copyFileSync(path.join(binding, "../../LICENSE"), path.join(out, "LICENSE"));
write("package.json",
  `${JSON.stringify({ ...JSON.parse(read(binding, "package.json")), version }, null, 2)}\n`);
