// Names and extensions of X.509 certificates, and verdicts with reasons. Values are copies: nothing
// has to be freed, and threads do not share anything.
export { Certificate, parseCertificate, parseCertificates } from "./certificates.js";
export { check } from "./check.js";
export { permitted, permittedNames } from "./constraints.js";
export { buildExtensions, encodeExtension, Extension, extensionType } from "./extensions.js";
export {
  buildAltNames, encodeGeneralName, GeneralName, parseGeneralName, parseGeneralNames,
} from "./general_names.js";
export { identify, identifyByNames } from "./identity.js";
export { readInput } from "./input.js";
export { matchNames, nameWithin } from "./matching.js";
export { encodeName, Name, parseName } from "./names.js";
export { oidFromText, oidToText } from "./oid.js";
export { Refused } from "./refused.js";
export { Verdict } from "./verdict.js";
