// Makes the page: page.js PACKAGE SOURCES OUT. All scripts become one, the module inside, so that the
// page also runs from a file.
import fs from "node:fs";
import path from "node:path";
import { bundle } from "./bundle.js";

const [packaged, sources, out] = process.argv.slice(2);
const script = bundle(path.join(sources, "main.js"),
  { ortholan: path.join(packaged, "index.js") });

fs.rmSync(out, { recursive: true, force: true });
fs.mkdirSync(out, { recursive: true });
fs.writeFileSync(path.join(out, "try.js"), `"use strict";\n${script};\n`);
for (const name of ["index.html", "style.css", "icon.svg"]) {
  fs.copyFileSync(path.join(sources, name), path.join(out, name));
}
