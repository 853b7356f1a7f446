// What the rules look at: each function adds a fault for every place where its rule is broken.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_

#include "strict/extensions/check_case.h"

namespace Ortholan::strict::looks {

// check_names.cpp: of a name.
void NameEncoding(const Case& at);
void ValueTypes(const Case& at);
void ValueSizes(const Case& at);
void EmptyValues(const Case& at);
// Of alternative names.
void EmptyNames(const Case& at);
void Hosts(const Case& at);
void Mailboxes(const Case& at);
void Uris(const Case& at);
void UriHosts(const Case& at);
void Addresses(const Case& at);
// Of name constraints.
void SubtreeDistances(const Case& at);
void SubtreeForms(const Case& at);

// check_documents.cpp: of the whole.
void Encoding(const Case& at);
void EmptyExtensions(const Case& at);
void Version(const Case& at);
void ListVersion(const Case& at);
void SerialSign(const Case& at);
void SerialSize(const Case& at);
void EmptyIssuer(const Case& at);
void EmptySubjectOfAuthority(const Case& at);
void EmptySubjectOfListIssuer(const Case& at);
void EmptySubjectWithoutNames(const Case& at);
void EmailOutsideNames(const Case& at);
void MissingAuthorityKeyId(const Case& at);
void MissingInAuthority(const Case& at);
void Missing(const Case& at);

// check_extensions.cpp: of any extension.
void Twice(const Case& at);
void ValueEncoding(const Case& at);
void EmptyLists(const Case& at);
void IsCritical(const Case& at);
void IsNotCritical(const Case& at);
// Of one.
void EmptySubjectNotCritical(const Case& at);
void NoUsage(const Case& at);
void CertSignWithoutAuthority(const Case& at);
void AuthorityNotCritical(const Case& at);
void PathLengthWithoutAuthority(const Case& at);
void PathLengthWithoutCertSign(const Case& at);
void NegativeNumbers(const Case& at);
void NumberSize(const Case& at);
void OutsideAuthority(const Case& at);
void EmptyStructure(const Case& at);
void KeyIdHalves(const Case& at);
void NoKeyId(const Case& at);
void PolicyTwice(const Case& at);
void AnyPolicyQualifiers(const Case& at);
void NoticeSize(const Case& at);
void AnyPolicyMapped(const Case& at);
void ReasonsAlone(const Case& at);
void SomeReasonsOnly(const Case& at);
void RelativeToSeveral(const Case& at);
void ListIssuerForms(const Case& at);
void PointsOfFreshest(const Case& at);
void FreshestInDelta(const Case& at);
void ScopesOfList(const Case& at);
void AttributeCertificates(const Case& at);
void AccessMethodsOfList(const Case& at);

}  // namespace Ortholan::strict::looks

namespace Ortholan::strict {

// Where RFC 5280 has an extension; "4.2" and "5.2" for others.
const char* SectionOf(ByteView oid, uint8_t kind);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_CHECK_LOOKS_H_
