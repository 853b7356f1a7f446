// The files of tests/data/vectors/, which every door of the library reads.
import fs from "node:fs";

const folder = new URL("../../../tests/data/vectors/", import.meta.url);

/** The rows of a file, each an object of column and text; `where` tells file, line and label. */
export function rowsOf(name) {
  let columns;
  const rows = [];
  const lines = fs.readFileSync(new URL(name, folder), "utf8").split("\n");
  for (const [index, line] of lines.entries()) {
    if (line === "" || line.startsWith("#")) continue;
    const cells = line.split("\t").map((cell) => (cell.startsWith('"') ? JSON.parse(cell) : cell));
    if (columns === undefined) {
      columns = cells;
      continue;
    }
    if (cells.length > columns.length) throw new Error(`${name}:${index + 1}: too many cells`);
    const row = Object.fromEntries(columns.map((column, i) => [column, cells[i] ?? ""]));
    rows.push({ ...row, where: `${name}:${index + 1}: ${cells[0]}` });
  }
  if (rows.length === 0) throw new Error(`${name}: no rows`);
  return rows;
}

export const hex = (octets) => Buffer.from(octets).toString("hex").toUpperCase();
export const octets = (digits) => new Uint8Array(Buffer.from(digits.replace(/^-$/, ""), "hex"));
