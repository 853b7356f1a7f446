// Modules joined into one script, each a function of its own. They import and export by name alone,
// export where they declare, and do not import each other in a circle.
import fs from "node:fs";
import path from "node:path";

const importing = /^(import|export) \{([^}]*)\} from "([^"]+)";\n/gm;
const exporting = /^export (?=(?:function\*?|class|const) (\w+))/gm;

const list = (names) => names.split(",").map((name) => name.trim()).filter((name) => name !== "");

/**
 * An expression whose value is an object of what a module exports, and everything that it needs.
 *   packages  modules of packages, by the name that they are imported by
 */
export function bundle(entry, packages = {}) {
  const places = new Map();
  const parts = [];
  const visit = (file) => {
    if (places.has(file)) return places.get(file);
    const expression = body(file);
    places.set(file, `modules[${parts.length}]`);
    parts.push(`modules.push(${expression});\n`);
    return places.get(file);
  };
  const body = (file) => {
    const names = [];
    const from = (name) => visit(packages[name] ?? path.join(path.dirname(file), name));
    const text = fs.readFileSync(file, "utf8")
      .replace(importing, (_, word, wanted, name) => {
        if (word === "export") names.push(...list(wanted));
        return `const { ${list(wanted).join(", ")} } = ${from(name)};\n`;
      })
      .replace(exporting, (_, name) => {
        names.push(name);
        return "";
      });
    return `(() => {\n${text}return { ${names.join(", ")} };\n})()`;
  };
  visit(entry);
  return `(() => {\nconst modules = [];\n${parts.join("")}return modules.at(-1);\n})()`;
}
