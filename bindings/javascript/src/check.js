// What RFC 5280 forbids in the names and extensions of a certificate, a request or a CRL.
import { octetsOf } from "./input.js";
import { layout, number, octetsView, placeOf, refusalView, run } from "./memory.js";
import { oidToText } from "./oid.js";

const faultView = layout("rule:u section:u sentence:u extension:o part:u part_size:u reason:i met:u " +
  "expected:u offset:u");
const firstRoom = 32;

function makeFault(call, at, start) {
  const fault = call.read(faultView, at);
  const [rule, section, sentence] = [fault.rule, fault.section, fault.sentence]
    .map((text) => call.terminated(text));
  const refusal = fault.reason === 0 ? null : call.sentence("ortholan_refusal_sentence",
    call.make(refusalView, fault));
  return Object.freeze({
    rule,
    section,
    sentence,
    extension: fault.extension.length === 0 ? null : oidToText(fault.extension),
    offset: fault.part_size === 0 ? undefined : fault.part - start,
    size: fault.part_size,
    refusal,
    refusedAt: fault.reason === 0 ? undefined : placeOf(fault),
  });
}

/** All faults, in the order of the encoding; none for what is in order. */
export function check(certificate) {
  const der = certificate?.der ?? octetsOf(certificate);
  return run((call) => {
    const place = call.place(der);
    const octets = call.make(octetsView, { value: place });
    const count = call.room(number);
    for (let room = firstRoom; ;) {
      const faults = call.room(faultView.size * room);
      call.check("ortholan_check", octets, faults, room, count);
      const found = call.read(number, count).value;
      if (found <= room) {
        return Array.from({ length: found },
          (_, i) => makeFault(call, faults + i * faultView.size, place.data));
      }
      room = found;
    }
  });
}
