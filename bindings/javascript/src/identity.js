// Whom a certificate stands for (RFC 9525, RFC 5280 4.2.1.6, RFC 9598).
import { generalNameText, GeneralName } from "./general_names.js";
import { octetsOf } from "./input.js";
import { layout, placeOf, refusalView, run, utf8 } from "./memory.js";
import { codeOf, Refused } from "./refused.js";
import { Verdict } from "./verdict.js";

const referenceView = layout("kind:i choices:u text:o");
const identityView = layout("verdict:i reason:i name:o index:u names:o name_count:u");
const presentedView = layout("bytes:o reason:i");
const kinds = { host: 1, ip: 2, email: 3, uri: 4, srv: 5 };
const noUnderscore = 1;

function makeReference(call, asked) {
  const given = Object.keys(kinds).filter((kind) => asked?.[kind] !== undefined);
  if (given.length !== 1) {
    throw new TypeError(`one of ${Object.keys(kinds).join(", ")} is to be asked for`);
  }
  return call.make(referenceView, {
    kind: kinds[given[0]],
    choices: asked.noUnderscore ? noUnderscore : 0,
    text: call.place(utf8(String(asked[given[0]]))),
  });
}

// Each presented name that is not the one, and why.
function mismatchesOf(call, identity, reference) {
  const mismatches = [];
  const [offset, item] = [call.room(4), call.room(presentedView)];
  while (call.invoke("ortholan_identity_explain", identity, reference, offset, item) === 0) {
    const { bytes, reason } = call.read(presentedView, item);
    if (reason === 0) continue;
    mismatches.push(Object.freeze({ der: bytes, text: shownName(bytes), reason, code: codeOf(reason),
      sentence: call.reasonSentence(reason) }));
  }
  return mismatches;
}

function shownName(der) {
  try {
    return generalNameText(der);
  } catch {
    return "";
  }
}

function ask(name, octets, asked) {
  return run((call) => {
    const reference = makeReference(call, asked);
    const identity = call.room(identityView);
    const refusal = call.room(refusalView);
    const fault = call.invoke(name, call.octets(octets), reference, identity, refusal);
    const found = call.read(refusalView, refusal);
    if (fault !== 0) {
      throw new Refused(fault, call.sentence("ortholan_refusal_sentence", refusal), placeOf(found));
    }
    const answer = call.read(identityView, identity);
    const sentence = found.reason !== 0 ? call.sentence("ortholan_refusal_sentence", refusal) :
      call.reasonSentence(answer.reason);
    return new Verdict(answer.verdict, answer.reason, sentence, {
      name: answer.name.length !== 0 ? new GeneralName(answer.name, { reading: "structure" }) : null,
      mismatches: mismatchesOf(call, identity, reference),
    });
  });
}

/** Whether a certificate is for a host, address, mailbox, URI or service. */
export function identify(certificate, asked) {
  return ask("ortholan_identify", certificate?.der ?? octetsOf(certificate), asked);
}

/** The same of the value of an alternative-name extension alone. */
export function identifyByNames(names, asked) {
  return ask("ortholan_identify_by_names", octetsOf(names), asked);
}
