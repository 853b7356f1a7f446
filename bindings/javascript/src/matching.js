// Two names compared.
import { layout, run } from "./memory.js";
import { word } from "./options.js";
import { Verdict } from "./verdict.js";

const matchView = layout("verdict:i reason:i side:i first_rdn:u first_attribute:u second_rdn:u " +
  "second_attribute:u type:o refusal_reason:i met:u expected:u offset:u");
const rules = { rfc5280: 0, "ascii case": 1, octets: 2 };
const anyOrder = 0x100;

export function rule(options) {
  return word(rules, options.rule ?? "rfc5280", "rule") + (options.anyOrder ? anyOrder : 0);
}

export function compare(name, first, second, options) {
  return run((call) => {
    const match = call.room(matchView);
    call.invoke(name, call.octets(first), call.octets(second), rule(options), match);
    const { verdict, reason } = call.read(matchView, match);
    return new Verdict(verdict, reason, call.sentence("ortholan_match_sentence", match));
  });
}
