// What is refused is thrown as one class of errors.
import { codes } from "./reasons.js";

/** The code of a reason's number: "HOST_EMPTY"; "" for 0. */
export function codeOf(reason) {
  return codes[reason] ?? "";
}

/** An input that is refused, and where. */
export class Refused extends Error {
  /**
   * @param reason    number, as the C interface has it
   * @param sentence  one English sentence without a full stop
   * @param offset    octets of the input before the place; undefined where there is none
   */
  constructor(reason, sentence, offset, options) {
    super(sentence, options);
    this.name = "Refused";
    this.reason = reason;
    this.code = codeOf(reason);
    this.sentence = sentence;
    this.offset = offset;
  }
}
