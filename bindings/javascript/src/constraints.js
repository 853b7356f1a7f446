// Chains against their name constraints (RFC 5280 4.2.1.10 and 6.1).
import { octetsOf } from "./input.js";
import { layout, number, octetsView, run } from "./memory.js";
import { codeOf, Refused } from "./refused.js";
import { Verdict } from "./verdict.js";

const findingView = layout("reason:i verdict:i certificate:u authority:u place:i name:o subtree:o " +
  "subtree_count:u");
const optionsView = layout("budget_low:u budget_high:u");
const places = [null, "subject", "email", "alternative", "list", "constraints"];

function makeFinding(call, at) {
  const { certificate, authority, name, subtree, place, reason, verdict } =
    call.read(findingView, at);
  const sentence = call.sentence("ortholan_finding_sentence", at);
  return new Verdict(verdict, reason, sentence,
    { certificate, authority, place: places[place] ?? null, name, subtree });
}

function judge(options, ask) {
  return run((call) => {
    const most = options.mostFindings ?? 1;
    const budget = options.budget ?? 0;
    const chosen = call.make(optionsView,
      { budget_low: budget % 2 ** 32, budget_high: Math.floor(budget / 2 ** 32) });
    const [verdict, count] = [call.room(number), call.room(number)];
    const findings = call.room(findingView.size * most);
    const reason = ask(call, chosen, verdict, findings, most, count);
    if (reason !== 0) throw new Refused(reason, call.reasonSentence(reason));
    const found = Array.from({ length: call.read(number, count).value },
      (_, i) => makeFinding(call, findings + i * findingView.size));
    const { reason: why = 0, sentence = "" } = found[0] ?? {};
    return new Verdict(call.read(number, verdict).value, why, sentence, { findings: found });
  });
}

/** May the authorities of a chain, from the leaf up, name what its certificates name? */
export function permitted(chain, options = {}) {
  const all = chain.map((each) => each?.der ?? octetsOf(each));
  return judge(options, (call, ...rest) => {
    const list = call.list(octetsView, all.map((octets) => ({ value: call.place(octets) })));
    return call.invoke("ortholan_permits", list, all.length, ...rest);
  });
}

/** The same for loose parts: values of extensions, and a Name; each but the first may be left out. */
export function permittedNames({ constraints, subject, altNames }, options = {}) {
  const part = (given) => (given === undefined ? new Uint8Array() : given.der ?? octetsOf(given));
  const parts = [constraints, subject, altNames].map(part);
  return judge(options, (call, ...rest) => call.invoke("ortholan_permits_names",
    ...parts.map((octets) => call.octets(octets)), ...rest));
}
