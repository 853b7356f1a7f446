// What the rules look at: each function adds a fault for every place where its rule is broken.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_

#include "bytes/byte_view.h"

namespace Ortholan::strict {

struct CheckCase;

// Where RFC 5280 has an extension, or another RFC, which is named; "4.2", "5.2" and "5.3" for
// others.
const char* SectionOf(ByteView oid, uint8_t kind);

}  // namespace Ortholan::strict

namespace Ortholan::strict::looks {

// check_names.cpp: of a name.
void NameEncoding(const CheckCase& at);
void ValueTypes(const CheckCase& at);
void ValueSizes(const CheckCase& at);
void EmptyValues(const CheckCase& at);
// Of alternative names.
void EmptyNames(const CheckCase& at);
void Hosts(const CheckCase& at);
void Mailboxes(const CheckCase& at);
void Uris(const CheckCase& at);
void UriHosts(const CheckCase& at);
void Addresses(const CheckCase& at);
// Of name constraints.
void SubtreeDistances(const CheckCase& at);
void SubtreeForms(const CheckCase& at);

// check_documents.cpp: of the whole.
void Encoding(const CheckCase& at);
void EmptyExtensions(const CheckCase& at);
void Version(const CheckCase& at);
void ListVersion(const CheckCase& at);
void SerialSign(const CheckCase& at);
void SerialSize(const CheckCase& at);
void EmptyIssuer(const CheckCase& at);
void EmptySubjectOfAuthority(const CheckCase& at);
void EmptySubjectOfListIssuer(const CheckCase& at);
void EmptySubjectWithoutNames(const CheckCase& at);
void EmailOutsideNames(const CheckCase& at);
void MissingAuthorityKeyId(const CheckCase& at);
void MissingInAuthority(const CheckCase& at);
void Missing(const CheckCase& at);

// check_extensions.cpp, check_critical.cpp, check_policies.cpp, check_distribution_points.cpp: of
// any extension.
void Twice(const CheckCase& at);
void ValueEncoding(const CheckCase& at);
void EmptyLists(const CheckCase& at);
void IsCritical(const CheckCase& at);
void IsNotCritical(const CheckCase& at);
// Of one.
void EmptySubjectNotCritical(const CheckCase& at);
void NoUsage(const CheckCase& at);
void CertSignWithoutAuthority(const CheckCase& at);
void AuthorityNotCritical(const CheckCase& at);
void PathLengthWithoutAuthority(const CheckCase& at);
void PathLengthWithoutCertSign(const CheckCase& at);
void NegativeNumbers(const CheckCase& at);
void NumberSize(const CheckCase& at);
void OutsideAuthority(const CheckCase& at);
void EmptyStructure(const CheckCase& at);
void KeyIdHalves(const CheckCase& at);
void NoKeyId(const CheckCase& at);
void PolicyTwice(const CheckCase& at);
void AnyPolicyQualifiers(const CheckCase& at);
void NoticeSize(const CheckCase& at);
void AnyPolicyMapped(const CheckCase& at);
void ReasonsAlone(const CheckCase& at);
void SomeReasonsOnly(const CheckCase& at);
void RelativeToSeveral(const CheckCase& at);
void ListIssuerForms(const CheckCase& at);
void PointsOfFreshest(const CheckCase& at);
void FreshestInDelta(const CheckCase& at);
void ScopesOfList(const CheckCase& at);
void AttributeCertificates(const CheckCase& at);
void AccessMethodsOfList(const CheckCase& at);

// check_entries.cpp: of the entries of a CRL.
void EmptyRevoked(const CheckCase& at);
void EntryEncoding(const CheckCase& at);
void ReasonsUnused(const CheckCase& at);
void RemovedOutsideDelta(const CheckCase& at);
void ReasonsOutsideList(const CheckCase& at);
void IssuerOutsideIndirect(const CheckCase& at);
void IssuerWithoutName(const CheckCase& at);

// check_resources.cpp: of delegated addresses and autonomous systems.
void FamilySizes(const CheckCase& at);
void FamilyOrder(const CheckCase& at);
void AddressBits(const CheckCase& at);
void EndsOfRanges(const CheckCase& at);
void RangeEnds(const CheckCase& at);
void SpanOrder(const CheckCase& at);
void SpanOverlap(const CheckCase& at);
void SpansAdjacent(const CheckCase& at);
void RangesOfPrefixes(const CheckCase& at);

}  // namespace Ortholan::strict::looks

#endif  // ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_
