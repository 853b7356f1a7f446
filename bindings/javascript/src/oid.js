// OBJECT IDENTIFIERs: dotted digits and content octets, arcs of any size.
import { run, textOf } from "./memory.js";
import { Refused } from "./refused.js";

function convert(name, argument) {
  return run((call) => {
    const at = call.octets(argument(call));
    const { reason, octets } = call.out((...out) => call.invoke(name, at, ...out));
    if (reason !== 0) throw new Refused(reason, call.reasonSentence(reason));
    return octets;
  });
}

export function oidToText(octets) {
  return textOf(convert("ortholan_oid_to_text", () => octets));
}

export function oidFromText(text) {
  return convert("ortholan_oid_from_text", () => new TextEncoder().encode(text));
}
