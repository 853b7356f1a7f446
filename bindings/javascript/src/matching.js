// Two names compared.
import { octetsOf } from "./input.js";
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

function compare(name, names, options) {
  return run((call) => {
    const match = call.room(matchView);
    const [first, second] = names.map((each) => call.octets(each?.der ?? octetsOf(each)));
    call.invoke(name, first, second, rule(options), match);
    const { verdict, reason } = call.read(matchView, match);
    return new Verdict(verdict, reason, call.sentence("ortholan_match_sentence", match));
  });
}

/** Whether two names are the same. What cannot be read is not refused but "cannot tell". */
export function matchNames(first, second, options = {}) {
  return compare("ortholan_match_names", [first, second], options);
}

/** Whether a name begins with the RDNs of a subtree. */
export function nameWithin(subtree, name, options = {}) {
  return compare("ortholan_name_within", [subtree, name], options);
}
