// Names and extensions of X.509 certificates, and verdicts with reasons.

/** Octets, or text that holds them: hexadecimal digits in any usual form, base64, one PEM block. */
export type Input = Uint8Array | ArrayBufferView | ArrayBuffer | string;

/** The octets that an input holds, several for a text of several PEM blocks. */
export function readInput(input: Input): Uint8Array[];

/**
 * How closely an encoding is read: "der" by X.690 8 to 11; "lenient" for what is not quite DER;
 * "structure" without a look at strings. Verdicts never read leniently.
 */
export type Reading = "der" | "lenient" | "structure";

export interface ReadOptions {
  reading?: Reading;
}

/** An input that is refused. The message is the sentence. */
export class Refused extends Error {
  /** Number of the reason, as the C interface has it. */
  readonly reason: number;
  /** Its name: "HOST_EMPTY". */
  readonly code: string;
  /** One English sentence without a full stop. */
  readonly sentence: string;
  /** Octets of the input before the place; undefined where there is none. */
  readonly offset: number | undefined;
  /** The same in the units of a text, for texts of names. */
  readonly index?: number;
  /** The number of the text, from 0, of several that were given. */
  readonly item?: number;
}

/** What was decided. Only "yes" lets something through; an object is always true: ask `yes`. */
export interface Verdict {
  readonly verdict: "yes" | "no" | "cannot tell";
  readonly yes: boolean;
  /** Number of the reason, 0 for a yes. */
  readonly reason: number;
  /** Name of the reason, "" for a yes. */
  readonly code: string;
  /** One English sentence without a full stop. */
  readonly sentence: string;
}
export const Verdict: { readonly prototype: Verdict };

export interface Attribute {
  /** Short name of the type, or its dotted digits: "CN". */
  readonly type: string;
  /** The type's identifier in dotted digits. */
  readonly oid: string;
  /** Null for a value that is no text. */
  readonly text: string | null;
  /** The whole element of the value. */
  readonly value: Uint8Array;
  /** Identifier octet of the value: 0x13 is PrintableString. */
  readonly stringType: number;
}

export interface TextOptions {
  /** "reversed" begins with the last RDN of the encoding (RFC 4514 2.1), which is the default. */
  order?: "reversed" | "encoded";
  /** The string type of free text that is written. */
  strings?: "printable or utf8" | "utf8";
  /** commonName in place of CN. */
  longNames?: boolean;
  /** # and digits where plain text would not give the same octets back. */
  exact?: boolean;
  /** Further names of types, each with its identifier in dotted digits. */
  names?: Record<string, string>;
}

export interface MatchOptions {
  /** By which rule values are the same: RFC 5280 7.1, ASCII case and white space, octets. */
  rule?: "rfc5280" | "ascii case" | "octets";
  /** RDNs in any order, for lists that people write by hand; never for certificates. */
  anyOrder?: boolean;
}

/** A distinguished name. */
export class Name {
  constructor(input: Input, options?: ReadOptions);
  readonly der: Uint8Array;
  /** RelativeDistinguishedNames with their attributes, the most significant first. */
  readonly rdns: Attribute[][];
  /** Text of RFC 4514, safe to show. */
  text(options?: TextOptions): string;
  /** Text that gives the very octets back. */
  readonly exact: string;
  toString(): string;
  toJSON(): string;
  /** Octets that are the same exactly for names that are; those of a subtree stand in front. */
  key(options?: MatchOptions): Uint8Array;
  /** Whether the names are the same, with the reason. */
  match(other: Name, options?: MatchOptions): Verdict;
  /** True for names that are the same; false also where that cannot be told. */
  equals(other: Name, options?: MatchOptions): boolean;
  /** Whether the name begins with the RDNs of `subtree`, with the reason. */
  matchWithin(subtree: Name, options?: Omit<MatchOptions, "anyOrder">): Verdict;
  /** True for a name within the subtree; false also where that cannot be told. */
  within(subtree: Name, options?: Omit<MatchOptions, "anyOrder">): boolean;
}
/** Whether two names are the same. What cannot be read is not refused but "cannot tell". */
export function matchNames(
  first: Name | Input, second: Name | Input, options?: MatchOptions): Verdict;
/** Whether a name begins with the RDNs of a subtree. */
export function nameWithin(
  subtree: Name | Input, name: Name | Input, options?: Omit<MatchOptions, "anyOrder">): Verdict;
export function parseName(input: Input, options?: ReadOptions): Name;
/** The name of a text of RFC 4514. A refusal has `index`, the place in the text. */
export function encodeName(text: string, options?: TextOptions): Name;

export type GeneralNameKind =
  | "otherName" | "rfc822Name" | "dNSName" | "x400Address" | "directoryName" | "ediPartyName"
  | "uniformResourceIdentifier" | "iPAddress" | "registeredID";

/** A general name (RFC 5280 4.2.1.6). */
export class GeneralName {
  constructor(input: Input, options?: ReadOptions);
  readonly der: Uint8Array;
  readonly kind: GeneralNameKind;
  /** Characters, octets of an address, the whole Name of a directory name. */
  readonly content: Uint8Array;
  /** "DNS:example.org", safe to show. */
  readonly text: string;
  toString(): string;
  toJSON(): string;
}
export function parseGeneralName(input: Input, options?: ReadOptions): GeneralName;
/** The names in the value of an alternative-name extension. */
export function parseGeneralNames(input: Input, options?: ReadOptions): GeneralName[];
/** The name of a text: "DNS:example.org", "IP:192.0.2.1", "email:", "URI:", "dirName:", "UPN:" ... */
export function encodeGeneralName(text: string, options?: { allowRange?: boolean }): GeneralName;
/**
 * Alternative names in DER: the extension's value, or a whole Extension, critical or not. A refusal
 * has `item`, the number of the text.
 */
export function buildAltNames(
  texts: string[], options?: { form?: "value" | "critical" | "extension" }): Uint8Array;

export type Json = null | boolean | number | string | Json[] | { [member: string]: Json };

/** One extension; a value that is malformed is refused when its meaning is asked for. */
export class Extension {
  private constructor();
  readonly oid: string;
  /** "basicConstraints"; null for one that is not known. */
  readonly name: string | null;
  readonly critical: boolean;
  /** Inside the OCTET STRING. */
  readonly value: Uint8Array;
  readonly der: Uint8Array;
  /** The value, its members called as the standard calls its parts: { cA: true }. */
  readonly json: Json;
  /** The same in plain words for people, a line for each fact. */
  readonly text: string;
  toJSON(): Json;
}
/** What a type is called: "basicConstraints", and "Basic Constraints" for people; or null. */
export function extensionType(oid: string): { oid: string; name: string; title: string } | null;
/** The value of an extension in DER, by name or dotted digits, of what Extension.json gives. */
export function encodeExtension(type: string, json: Json): Uint8Array;
/** SEQUENCE OF Extension in DER. */
export function buildExtensions(
  extensions: Array<({ oid: string } | { name: string }) & { critical?: boolean; value: Json }>
): Uint8Array;

/** A certificate, request or revocation list; what is malformed inside is refused when asked for. */
export class Certificate {
  constructor(input: Input, options?: ReadOptions);
  readonly der: Uint8Array;
  readonly kind: "certificate" | "request" | "revocation list";
  /** Null for a revocation list. */
  readonly subject: Name | null;
  /** Null for a request. */
  readonly issuer: Name | null;
  /** Content of the INTEGER in hexadecimal digits; "" but for a certificate. */
  readonly serialNumber: string;
  /** ISO 8601; of a revocation list thisUpdate and nextUpdate. */
  readonly validity: { notBefore: string | null; notAfter: string | null };
  /** The subject alternative names; none without the extension. */
  readonly altNames: GeneralName[];
  readonly extensions: Extension[];
  /** The one extension of a type, by dotted digits, or null. */
  extension(oid: string): Extension | null;
}
export function parseCertificate(input: Input, options?: ReadOptions): Certificate;
/** All of a PEM text, or the one of other inputs. */
export function parseCertificates(input: Input, options?: ReadOptions): Certificate[];

/** Something that RFC 5280 forbids. */
export interface Fault {
  /** "path-length-without-ca": stays the same. */
  readonly rule: string;
  /** Of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6". */
  readonly section: string;
  /** One English sentence without a full stop. */
  readonly sentence: string;
  /** The type of the extension that it is about, be it missing; or null. */
  readonly extension: string | null;
  /** Where the part at fault stands; undefined where something is missing. */
  readonly offset: number | undefined;
  readonly size: number;
  /** Why the part cannot be read, and the place, counted from its start. */
  readonly refusal: string | null;
  readonly refusedAt: number | undefined;
}
/** What RFC 5280 forbids in the names and extensions of a certificate, a request or a CRL. */
export function check(certificate: Certificate | Input): Fault[];

/** One question. */
export type Reference = (
  | { host: string } | { ip: string } | { email: string } | { uri: string } | { srv: string }
) & {
  /** Hosts with an underscore are no hosts. */
  noUnderscore?: boolean;
};

/** A presented name that is not the one that was asked for, and why. */
export interface Mismatch {
  readonly der: Uint8Array;
  /** "" for a name of none of the nine kinds. */
  readonly text: string;
  readonly reason: number;
  readonly code: string;
  readonly sentence: string;
}

export interface Identity extends Verdict {
  /** The name that matched. */
  readonly name: GeneralName | null;
  readonly mismatches: Mismatch[];
}
/** Whether a certificate is for a host, address, mailbox, URI or service (RFC 9525). */
export function identify(certificate: Certificate | Input, asked: Reference): Identity;
/** The same of the value of an alternative-name extension alone. */
export function identifyByNames(names: Input, asked: Reference): Identity;

export interface Finding extends Verdict {
  /** Index of the certificate whose name it is, 0 for the leaf. */
  readonly certificate: number;
  /** Index of the certificate whose constraints decide. */
  readonly authority: number;
  readonly place: null | "subject" | "email" | "alternative" | "list" | "constraints";
  readonly name: Uint8Array;
  /** GeneralName that is the base of the subtree. */
  readonly subtree: Uint8Array;
}
export interface Permission extends Verdict {
  readonly findings: Finding[];
}
export interface PermitOptions {
  /** Comparisons of a name with a subtree, at most. */
  budget?: number;
  /** How many reasons are wanted; with 1, the default, the search ends at the first refusal. */
  mostFindings?: number;
}
/** May the authorities of a chain, from the leaf up, name what its certificates name? */
export function permitted(
  chain: Array<Certificate | Input>, options?: PermitOptions): Permission;
/** The same for loose parts: values of extensions, and a Name. */
export function permittedNames(
  parts: { constraints: Input; subject?: Name | Input; altNames?: Input },
  options?: PermitOptions): Permission;

/** Dotted digits of the content octets of an OBJECT IDENTIFIER, and back. */
export function oidToText(octets: Uint8Array): string;
export function oidFromText(text: string): Uint8Array;
