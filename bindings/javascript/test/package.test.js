// What is installed: its size, both forms, its types, and memory given back.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { after, test } from "node:test";
import { fileURLToPath } from "node:url";
import {
  buildAltNames, buildExtensions, Certificate, encodeExtension, encodeName, extensionType, identify,
  Name, parseCertificates, parseGeneralNames, parseName, permitted, readInput, Refused,
} from "../../../build/javascript/ortholan/index.js";
import { element } from "./der.js";
import { hex, octets } from "./vectors.js";

const root = fileURLToPath(new URL("../../../", import.meta.url));
const built = path.join(root, "build/javascript");
const version = /VERSION (\S+)/.exec(fs.readFileSync(path.join(root, "CMakeLists.txt"), "utf8")
  .split("project(Ortholan")[1])[1];
const project = fs.mkdtempSync(path.join(os.tmpdir(), "ortholan-project-"));
const inProject = (...command) =>
  execFileSync(command[0], command.slice(1), { cwd: project, encoding: "utf8" });
const pem = (name) => fs.readFileSync(path.join(root, "tests/data/certificates", name), "utf8");

// As a package manager unpacks it, but from nowhere.
const installed = path.join(project, "node_modules/ortholan");
fs.mkdirSync(installed, { recursive: true });
execFileSync("tar", ["xzf", path.join(built, `ortholan-${version}.tgz`), "-C", installed,
  "--strip-components=1"]);
after(() => fs.rmSync(project, { recursive: true }));

test("size and parts of the package", () => {
  const files = fs.readdirSync(installed);
  const size = files.reduce((sum, file) => sum + fs.statSync(path.join(installed, file)).size, 0);
  assert.ok(size <= 400_000, `${size} octets`);
  const described = JSON.parse(fs.readFileSync(path.join(installed, "package.json"), "utf8"));
  assert.equal(described.version, version);
  assert.equal(described.dependencies, undefined);
  for (const file of ["LICENSE", "README.md", "index.d.ts"]) assert.ok(files.includes(file), file);
});

test("both forms of modules, from a project of somebody else's", () => {
  const use = 'process.stdout.write(String(encodeName("CN=a").equals(encodeName("CN=A "))));';
  const commands = [
    ["--input-type=module", "-e", `import { encodeName } from "ortholan"; ${use}`],
    ["--input-type=commonjs", "-e", `const { encodeName } = require("ortholan"); ${use}`],
  ];
  for (const command of commands) assert.equal(inProject("node", ...command), "true");
});

test("types, and what they refuse", () => {
  const source = fileURLToPath(new URL("types.ts", import.meta.url));
  fs.copyFileSync(source, path.join(project, "types.mts"));
  fs.copyFileSync(source, path.join(project, "types.cts"));
  inProject("tsc", "--strict", "--noEmit", "--target", "es2022", "--module", "node16",
    "--moduleResolution", "node16", "types.mts", "types.cts");
});

test("what the document has people run", () => {
  const page = fs.readFileSync(path.join(root, "docs/javascript.md"), "utf8");
  const [first] = /^node -p .*$/m.exec(page);
  assert.equal(execFileSync("sh", ["-c", first], { cwd: root, encoding: "utf8" }), "CN=Alpha,O=Org\n");
  const [, ...blocks] = page.split("```js\n").map((part) => part.split("\n```")[0]);
  assert.notEqual(blocks.length, 0);
  for (const block of blocks) {
    const expected = [...block.matchAll(/\/\/ (?:→ )(.*)/g)].map((match) => match[1]);
    fs.writeFileSync(path.join(project, "server.pem"), pem("alternative_names.pem"));
    fs.writeFileSync(path.join(project, "typed.pem"), pem("typed.pem"));
    const printed = inProject("node", "--input-type=module", "-e", block);
    assert.deepEqual(printed.trimEnd().split("\n"), expected);
  }
});

test("certificates, requests and revocation lists", () => {
  const certificate = new Certificate(pem("alternative_names.pem"));
  assert.equal(String(certificate.subject), "CN=Gamma");
  assert.equal(certificate.serialNumber, "01");
  assert.ok(Date.parse(certificate.validity.notAfter) > Date.parse(certificate.validity.notBefore));
  assert.ok(certificate.altNames.map(String).includes("IP:2001:db8::1"));
  assert.equal(certificate.altNames[0].der.length, certificate.altNames[0].content.length + 2);
  assert.equal(certificate.extension("2.5.29.14"), null);
  const answer = identify(certificate, { host: "EXAMPLE.org" });
  assert.deepEqual([answer.yes, String(answer.name)], [true, "DNS:example.org"]);
  const list = new Certificate(pem("list.pem"));
  assert.deepEqual([list.kind, list.subject, list.serialNumber], ["revocation list", null, ""]);
  const request = new Certificate(pem("request.pem"));
  assert.deepEqual([request.kind, request.issuer, request.validity],
    ["request", null, { notBefore: null, notAfter: null }]);
  const two = pem("alternative_names.pem") + pem("cyrillic.pem");
  assert.equal(parseCertificates(two).length, 2);
  assert.throws(() => new Certificate(two), /^Refused: 2 PEM blocks where one is wanted$/);
  assert.equal(permitted(["3000"]).verdict, "cannot tell");
});

test("extensions by what they mean", () => {
  const { extensions } = new Certificate(pem("typed.pem"));
  const basic = extensions.find((each) => each.name === "basicConstraints");
  assert.deepEqual(basic.json, { cA: true, pathLenConstraint: 3 });
  assert.equal(basic.text, "certificate authority: yes\npath length: 3\n");
  for (const each of extensions) {
    assert.equal(hex(encodeExtension(each.oid, each.json)), hex(each.value));
  }
  assert.equal(hex(buildExtensions(JSON.parse(JSON.stringify(extensions)))),
    hex(element(0x30, ...extensions.map((each) => each.der))));
  assert.throws(() => encodeExtension("keyUsage", ["flying"]), { code: "JSON_WORD" });
  assert.equal(extensionType("1.2.3"), null);
});

test("what people paste", () => {
  const name = "300C310A300806035504030C0141";
  const rows = ["30 0c:31,0A 0x30 0x08060355 04030c0141\n", `0x${name}`,
    Buffer.from(name, "hex").toString("base64"), octets(name).buffer, octets(name),
    new DataView(octets(`00${name}`).buffer, 1)];
  for (const row of rows) assert.equal(hex(readInput(row)[0]), name);
  const refused = ["", "300", "3 0:0 0c", "30 0:c", "MAwxCjAIBgNVBAMMAUE", "MAwxCjAIBgNVBAMMAUF=",
    "0x", "30x", "CN=a", "MAwx_jAI"];
  for (const row of refused) assert.throws(() => readInput(row), Refused, JSON.stringify(row));
  assert.throws(() => readInput(12), TypeError);
});

test("refusals of texts name the place", () => {
  const rows = [
    [() => encodeName("CN=\u{1F600}, b"), { code: "TEXT_NO_EQUALS", offset: 9, index: 7 }],
    [() => encodeName("CN=a\uD800"), { code: "TEXT_UTF8", offset: 4 }],
    [() => buildAltNames(["DNS:a", "DNS:a b"]), { code: "HOST_CHARACTER", offset: 5, item: 1 }],
    [() => buildAltNames([]), { code: "EMPTY", offset: 0 }],
    [() => identify("3000", { host: "a b" }), { code: "HOST_CHARACTER", offset: 1 }],
    [() => new Name("3003"), { code: "TRUNCATED", offset: 2, reason: 20 }],
  ];
  for (const [body, expected] of rows) assert.throws(body, { name: "Refused", ...expected });
  const misuse = [() => encodeName("", { order: "toString" }), () => identify("3000", {}),
    () => identify("3000", { host: "a", ip: "::1" }), () => new Name("3000", { reading: "x" })];
  for (const body of misuse) assert.throws(body, TypeError);
});

test("text is kept as it is", () => {
  const text = "CN=\uFEFFa";
  assert.equal(encodeName(text).rdns[0][0].text, "\uFEFFa");
  assert.equal(encodeName("ortho=x", { names: { ortho: "2.5.4.3" } }).text({ longNames: true }),
    "commonName=x");
  assert.equal(encodeName("C=DE,CN=a", { order: "encoded" }).text(), "CN=a,C=DE");
  assert.equal(encodeName("CN=a", { strings: "utf8" }).rdns[0][0].stringType, 0x0c);
});

test("inputs of any size, and memory given back", () => {
  const long = "a".repeat(3_000_000);
  assert.equal(encodeName(`CN=${long}`).rdns[0][0].text, long);
  const names = parseGeneralNames(buildAltNames(Array(20_000).fill("DNS:a.example")));
  assert.equal(names.length, 20_000);
  const digits = hex(element(0x30, octets("00".repeat(5_000_000))));
  assert.throws(() => parseName(digits), { code: "IDENTIFIER" });
  assert.throws(() => permitted(["3000"], { mostFindings: 2 ** 26 }), { code: "MEMORY" });
  const name = encodeName("CN=a");
  const before = process.memoryUsage().arrayBuffers;
  for (let i = 0; i < 20_000; ++i) name.text();
  for (let i = 0; i < 30; ++i) encodeName(`CN=${long}`);
  globalThis.gc?.();
  assert.ok(process.memoryUsage().arrayBuffers - before < 200_000_000);
  assert.equal(name.text(), "CN=a");
});
