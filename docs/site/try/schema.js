// What the parts of certificates, requests, revocation lists and names are called (RFC 5280, RFC
// 2986): fields in their order with the octets that may begin them, or what a list is of.
import { oidToText } from "ortholan";

const time = [0x17, 0x18];
const algorithm = [["algorithm", null, 0x06], ["parameters", null]];

const structures = {
  Certificate: [["tbsCertificate", "TBSCertificate", 0x30],
    ["signatureAlgorithm", "AlgorithmIdentifier", 0x30], ["signatureValue", null, 0x03]],
  TBSCertificate: [["version", null, 0xa0], ["serialNumber", null, 0x02],
    ["signature", "AlgorithmIdentifier", 0x30], ["issuer", "Name", 0x30],
    ["validity", "Validity", 0x30], ["subject", "Name", 0x30],
    ["subjectPublicKeyInfo", "SubjectPublicKeyInfo", 0x30], ["issuerUniqueID", null, 0x81],
    ["subjectUniqueID", null, 0x82], ["extensions", "Tagged Extensions", 0xa3]],
  Request: [["certificationRequestInfo", "RequestInfo", 0x30],
    ["signatureAlgorithm", "AlgorithmIdentifier", 0x30], ["signature", null, 0x03]],
  RequestInfo: [["version", null, 0x02], ["subject", "Name", 0x30],
    ["subjectPublicKeyInfo", "SubjectPublicKeyInfo", 0x30], ["attributes", null, 0xa0]],
  RevocationList: [["tbsCertList", "TBSCertList", 0x30],
    ["signatureAlgorithm", "AlgorithmIdentifier", 0x30], ["signatureValue", null, 0x03]],
  TBSCertList: [["version", null, 0x02], ["signature", "AlgorithmIdentifier", 0x30],
    ["issuer", "Name", 0x30], ["thisUpdate", null, ...time], ["nextUpdate", null, ...time],
    ["revokedCertificates", "Revoked list", 0x30], ["crlExtensions", "Tagged Extensions", 0xa0]],
  Revoked: [["userCertificate", null, 0x02], ["revocationDate", null, ...time],
    ["crlEntryExtensions", "Extensions", 0x30]],
  AlgorithmIdentifier: algorithm,
  Validity: [["notBefore", null, ...time], ["notAfter", null, ...time]],
  SubjectPublicKeyInfo: [["algorithm", "AlgorithmIdentifier", 0x30],
    ["subjectPublicKey", null, 0x03]],
  Extension: [["extnID", null, 0x06], ["critical", null, 0x01], ["extnValue", "Value", 0x04]],
  AttributeTypeAndValue: [["type", null, 0x06], ["value", null]],
  NameConstraints: [["permittedSubtrees", "GeneralSubtrees", 0xa0],
    ["excludedSubtrees", "GeneralSubtrees", 0xa1]],
  GeneralSubtree: [["base", "GeneralName"], ["minimum", null, 0x80], ["maximum", null, 0x81]],
  OtherName: [["type-id", null, 0x06], ["value", null, 0xa0]],
  BasicConstraints: [["cA", null, 0x01], ["pathLenConstraint", null, 0x02]],
  AccessDescription: [["accessMethod", null, 0x06], ["accessLocation", "GeneralName"]],
};

const lists = {
  Name: ["RelativeDistinguishedName", "RDN"],
  RDN: ["AttributeTypeAndValue", "AttributeTypeAndValue"],
  "Tagged Extensions": ["Extensions", "Extensions"],
  Extensions: ["Extension", "Extension"],
  "Revoked list": ["revoked certificate", "Revoked"],
  GeneralNames: [null, "GeneralName"],
  GeneralSubtrees: ["GeneralSubtree", "GeneralSubtree"],
  KeyPurposes: ["KeyPurposeId", null],
  AccessDescriptions: ["AccessDescription", "AccessDescription"],
};

// What stands inside the values of extensions, by the end of their identifier below 2.5.29.
const extensionTypes = { 17: "GeneralNames", 18: "GeneralNames", 19: "BasicConstraints",
  30: "NameConstraints", 37: "KeyPurposes" };

const generalNames = ["otherName", "rfc822Name", "dNSName", "x400Address", "directoryName",
  "ediPartyName", "uniformResourceIdentifier", "iPAddress", "registeredID"];

/** The type that the content of an element is read by. */
export function typeInside(element) {
  if (element.type === "GeneralName") {
    if (element.identifier === 0xa0) return "OtherName";
    return element.identifier === 0xa4 ? "DirectoryName" : null;
  }
  return element.type;
}

function valueType(extension) {
  const oid = oidOf(extension.children[0]);
  return extensionTypes[/^2\.5\.29\.(\d+)$/.exec(oid)?.[1]] ??
    (oid === "1.3.6.1.5.5.7.1.1" ? "AccessDescriptions" : null);
}

/** Name and type of the element that stands next in a structure. */
export function fieldOf(type, header, state, parent) {
  if (type === "DirectoryName") return { name: "Name", type: "Name" };
  if (type === "Value") return { name: "", type: valueType(parent.parent) };
  if (lists[type] !== undefined) {
    const [name, inner] = lists[type];
    return { name: inner === "GeneralName" ? nameKind(header) : name, type: inner };
  }
  const fields = structures[type] ?? [];
  while (state.next < fields.length) {
    const [name, inner, ...firsts] = fields[state.next++];
    if (firsts.length === 0 || firsts.includes(header.identifier)) return { name, type: inner };
  }
  return { name: "", type: null };
}

function nameKind(header) {
  return header.identifier >= 0x80 ? generalNames[header.number] ?? "" : "";
}

export function oidOf(element) {
  try {
    return element?.identifier === 0x06 ? oidToText(element.inside) : "";
  } catch {
    return "";
  }
}
