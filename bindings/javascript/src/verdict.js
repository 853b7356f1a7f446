// What was decided. Only "yes" lets something through; an object is always true, so ask `yes`.
import { codeOf } from "./refused.js";

const words = ["cannot tell", "yes", "no"];

export class Verdict {
  constructor(verdict, reason, sentence, details = {}) {
    this.verdict = words[verdict] ?? words[0];
    this.yes = this.verdict === "yes";
    this.reason = reason;
    this.code = codeOf(reason);
    this.sentence = sentence;
    Object.assign(this, details);
    Object.freeze(this);
  }
}
