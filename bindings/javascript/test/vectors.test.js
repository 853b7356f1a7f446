// The package asked what every other door is asked.
import assert from "node:assert/strict";
import { test } from "node:test";
import {
  buildAltNames, check, encodeGeneralName, encodeName, identify, matchNames, nameWithin, oidFromText, oidToText,
  parseGeneralName, parseName, permitted, Refused,
} from "../../../build/javascript/ortholan/index.js";
import { certificate, extension } from "./der.js";
import { hex, octets, rowsOf } from "./vectors.js";

function each(file, check) {
  test(file, () => {
    for (const row of rowsOf(file)) {
      try {
        check(row);
      } catch (error) {
        error.message = `${row.where}: ${error.message}`;
        throw error;
      }
    }
  });
}

const structure = { reading: "structure" };
const calls = {
  names: matchNames,
  "any-order": (first, second) => matchNames(first, second, { anyOrder: true }),
  "ascii-case": (first, second) => matchNames(first, second, { rule: "ascii case" }),
  octets: (first, second) => matchNames(first, second, { rule: "octets" }),
  within: nameWithin,
};
const asked = { host: "host", ip: "ip", email: "email", uri: "uri", srv: "srv" };

function refusalOf(body) {
  try {
    body();
  } catch (error) {
    if (!(error instanceof Refused)) throw error;
    return error;
  }
  return assert.fail("it is not refused");
}

const compared = (row) => calls[row.call](octets(row.first), octets(row.second));

each("rfc4514_read.tsv", (row) => {
  if (row.der === "") refusalOf(() => encodeName(row.text));
  else assert.equal(hex(encodeName(row.text).der), row.der);
});

each("rfc4514_write.tsv", (row) => {
  if (row.text === "") {
    refusalOf(() => parseName(row.der));
    return;
  }
  const name = parseName(row.der);
  assert.deepEqual([name.text(), name.exact], [row.text, row.exact]);
});

each("rfc4514_errors.tsv", (row) => {
  const refusal = refusalOf(() => encodeName(row.text));
  assert.deepEqual([refusal.reason, refusal.offset, refusal.sentence],
    [Number(row.reason), Number(row.at), row.sentence]);
  const before = Buffer.from(row.text).subarray(0, refusal.offset).toString();
  assert.equal(refusal.index, before.length);
});

each("strict_names.tsv", (row) => {
  const options = { reading: ["der", "lenient", "structure"][row.mode] };
  if (row.reason === "0") {
    parseName(octets(row.der), options);
    return;
  }
  const refusal = refusalOf(() => parseName(octets(row.der), options));
  assert.deepEqual([refusal.reason, refusal.offset], [Number(row.reason), Number(row.at)]);
});

each("identifiers.tsv", (row) => {
  if (row.octets === "") refusalOf(() => oidFromText(row.text));
  else if (row.text === "") refusalOf(() => oidToText(octets(row.octets)));
  else {
    assert.equal(hex(oidFromText(row.text)), row.octets);
    assert.equal(oidToText(octets(row.octets)), row.text);
  }
});

each("matching.tsv", (row) => {
  const answer = compared(row);
  assert.equal(answer.code === "" ? answer.verdict : `${answer.verdict}: ${answer.code}`,
    row.out.split(",")[0]);
});

each("published_names.tsv", (row) => {
  assert.equal(compared(row).verdict === "yes" ? "yes" : "no", row.out);
});

each("match_sentences.tsv", (row) => {
  assert.equal(matchNames(octets(row.first), octets(row.second)).sentence, row.out);
});

each("match_keys.tsv", (row) => {
  assert.equal(hex(parseName(octets(row.in), structure).key()), row.out.split(" ")[0]);
});

each("strict_general_names.tsv", (row) => {
  const make = () => encodeGeneralName(row.text, { allowRange: row.label.startsWith("range") });
  if (row.reason !== "") {
    const refusal = refusalOf(make);
    assert.deepEqual([refusal.code, refusal.offset], [row.reason, Number(row.offset)]);
    return;
  }
  assert.equal(hex(make().der), row.der);
  assert.equal(parseGeneralName(row.der, structure).text, row.shown || row.text);
});

each("strict_alternative_names.tsv", (row) => {
  const form = row.critical === "1" ? "critical" : "extension";
  assert.equal(hex(buildAltNames(row.names.split("|"), { form })), row.der);
});

function identified(row) {
  const names = row.names === "none" ? [] :
    [extension(17, octets(row.names === "empty" ? "" : row.names))];
  const question = { [asked[row.kind]]: row.reference, noUnderscore: row.choices === "1" };
  return identify(certificate({ extensions: names }), question);
}

each("strict_identity.tsv", (row) => {
  if (row.verdict === "refused") {
    assert.equal(refusalOf(() => identified(row)).code, row.reason);
    return;
  }
  const answer = identified(row);
  assert.deepEqual([answer.verdict, answer.code], [row.verdict, row.reason]);
  if (row.why !== "") {
    assert.deepEqual(answer.mismatches.map((mismatch) => mismatch.code),
      row.why.split(",").filter((code) => code !== ""));
  }
});

each("strict_identity_suites.tsv", (row) => {
  let matches = false;
  try {
    matches = identified(row).yes;
  } catch (error) {
    if (!(error instanceof Refused)) throw error;
  }
  assert.equal(matches ? "match" : "nomatch", row.verdict);
});

each("checks.tsv", (row) => {
  if (row.faults === "refused") refusalOf(() => check(row.der));
  else assert.equal(check(row.der).map((fault) => fault.rule).join(","), row.faults);
});

const issuer = encodeName("CN=issuer").der;

function certificateOf(parts) {
  const [own, subject, altNames, constraints] = parts.split(":");
  const extensions = [[17, altNames], [30, constraints]].filter(([, digits]) => digits)
    .map(([number, digits]) => extension(number, octets(digits)));
  return certificate({
    subject: octets(subject),
    issuer: own === "=" ? octets(subject) : issuer,
    extensions,
  });
}

each("name_constraints.tsv", (row) => {
  const answer = permitted(row.chain.split("/").map(certificateOf));
  assert.equal(answer.yes ? "yes" : "other", row.verdict);
  assert.equal(answer.findings.length, answer.yes ? 0 : 1);
});
