// Compiled, never run: what the types allow, and what they refuse.
import {
  buildAltNames, Certificate, encodeExtension, encodeName, identify, Name, parseCertificate, parseGeneralNames,
  permitted, readInput, Refused, type Verdict,
} from "ortholan";

const name: Name = encodeName("CN=a", { order: "encoded", names: { x: "2.5.4.3" } });
const texts: (string | null)[] = name.rdns.flat().map((attribute) => attribute.text);
const certificate: Certificate = parseCertificate(new Uint8Array(), { reading: "lenient" });
const subject: string | undefined = certificate.subject?.text({ exact: true });
const answer = identify(certificate, { host: "example.org", noUnderscore: true });
const verdict: Verdict = permitted([certificate, "3000"], { mostFindings: 3 });
const reasons: string[] = answer.mismatches.map((mismatch) => `${mismatch.text}: ${mismatch.code}`);
const all: Uint8Array[] = readInput(buildAltNames(["DNS:a"], { form: "critical" }));
const kinds = parseGeneralNames(all[0]).filter((each) => each.kind === "dNSName");
const meanings = certificate.extensions.map((each) => ({ name: each.name ?? each.oid, is: each.json }));
const value: Uint8Array = encodeExtension("basicConstraints", { cA: true });
const place = (error: unknown): number | undefined =>
  error instanceof Refused ? error.index ?? error.offset : undefined;

// @ts-expect-error: null for revocation lists
certificate.subject.text();
// @ts-expect-error: one question at a time
identify(certificate, {});
// @ts-expect-error: no such word
name.equals(name, { rule: "loose" });
// @ts-expect-error: values do not change
name.der = new Uint8Array();

export { texts, subject, verdict, reasons, kinds, meanings, value, place };
