package ortholan

// #include <ortholan/strict.h>
import "C"

import (
	"errors"
	"net/netip"
)

// NameKind is one of the nine kinds of general names, by the number of its tag (RFC 5280 4.2.1.6).
type NameKind int32

// The nine kinds.
const (
	OtherName     NameKind = C.ORTHOLAN_NAME_OTHER
	MailName      NameKind = C.ORTHOLAN_NAME_MAIL
	DNSName       NameKind = C.ORTHOLAN_NAME_DNS
	X400Name      NameKind = C.ORTHOLAN_NAME_X400
	DirectoryName NameKind = C.ORTHOLAN_NAME_DIRECTORY
	EDIPartyName  NameKind = C.ORTHOLAN_NAME_EDI_PARTY
	URIName       NameKind = C.ORTHOLAN_NAME_URI
	AddressName   NameKind = C.ORTHOLAN_NAME_ADDRESS
	RegisteredID  NameKind = C.ORTHOLAN_NAME_REGISTERED_ID
)

// OtherKind says what kind of other name a type stands for.
type OtherKind int32

// The kinds of other names that are known.
const (
	UnknownOther   OtherKind = C.ORTHOLAN_OTHER_UNKNOWN
	UPN            OtherKind = C.ORTHOLAN_OTHER_UPN             // of Windows
	ServiceName    OtherKind = C.ORTHOLAN_OTHER_SERVICE         // RFC 4985
	UTF8Mailbox    OtherKind = C.ORTHOLAN_OTHER_UTF8_MAILBOX    // RFC 9598
	Kerberos       OtherKind = C.ORTHOLAN_OTHER_KERBEROS        // RFC 4556 3.2.2
	XMPP           OtherKind = C.ORTHOLAN_OTHER_XMPP            // RFC 6120 13.7.1.4
	PermanentID    OtherKind = C.ORTHOLAN_OTHER_PERMANENT_ID    // RFC 4043
	HardwareModule OtherKind = C.ORTHOLAN_OTHER_HARDWARE_MODULE // RFC 4108 5
	GUID           OtherKind = C.ORTHOLAN_OTHER_GUID            // of a domain controller
)

// GeneralName is one general name. Names are == where their octets are.
type GeneralName struct {
	der, content string
	kind         NameKind
	other        OtherKind
}

func generalName(view *C.ortholan_general_name_view) GeneralName {
	return GeneralName{
		der:     string(copied(view.bytes)),
		content: string(copied(view.content)),
		kind:    NameKind(view.kind),
		other:   OtherKind(view.other),
	}
}

// ReadGeneralName reads one name in DER that is the whole of der.
func ReadGeneralName(der []byte) (GeneralName, error) {
	return ReadGeneralNameAs(der, DER)
}

// ReadGeneralNameAs is ReadGeneralName, as closely as asked.
func ReadGeneralNameAs(der []byte, reading Reading) (GeneralName, error) {
	var m memory
	defer m.free()
	var view C.ortholan_general_name_view
	place := noRefusal()
	reason := C.ortholan_general_name_view_read(m.octets(der), C.int32_t(reading), &view, &place)
	return generalName(&view), refused(reason, place)
}

// ParseGeneralName makes a name of its text: "DNS:example.org", "IP:192.0.2.1",
// "UPN:joe@example.org". An address may have a mask.
func ParseGeneralName(text string) (GeneralName, error) {
	var m memory
	defer m.free()
	given := m.text(text)
	der, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_general_name_from_text(given, 1, out.octets(), out.size(), out.needs, place)
	})
	if err != nil {
		return GeneralName{}, err
	}
	return ReadGeneralNameAs(der, Structure)
}

// ReadGeneralNames reads the value of an alternative-name extension, a list in DER that is the whole
// of der.
func ReadGeneralNames(der []byte) ([]GeneralName, error) {
	return ReadGeneralNamesAs(der, DER)
}

// ReadGeneralNamesAs is ReadGeneralNames, as closely as asked.
func ReadGeneralNamesAs(der []byte, reading Reading) ([]GeneralName, error) {
	var m memory
	defer m.free()
	var view C.ortholan_general_names_view
	place := noRefusal()
	reason := C.ortholan_general_names_view_read(m.octets(der), C.int32_t(reading), &view, &place)
	if reason != C.ORTHOLAN_REASON_NONE {
		return nil, refused(reason, place)
	}
	names := make([]GeneralName, 0, view.count)
	var offset C.size_t
	var each C.ortholan_general_name_view
	for C.ortholan_general_names_view_next(&view, &offset, &each) == C.ORTHOLAN_REASON_NONE {
		names = append(names, generalName(&each))
	}
	return names, nil
}

// Kind is the kind of the name.
func (n GeneralName) Kind() NameKind { return n.kind }

// OtherKind is the kind of an other name.
func (n GeneralName) OtherKind() OtherKind { return n.other }

// DER is the whole element.
func (n GeneralName) DER() []byte { return []byte(n.der) }

// Content is characters, octets of an address, content of an identifier, the whole Name of a
// directory name; of other kinds what is inside the tag.
func (n GeneralName) Content() []byte { return []byte(n.content) }

// Address is the address of a name that is one without a mask.
func (n GeneralName) Address() (netip.Addr, bool) {
	if n.kind != AddressName {
		return netip.Addr{}, false
	}
	return netip.AddrFromSlice([]byte(n.content))
}

// String is "DNS:example.org"; what cannot be seen is escaped, and malformed names have a text too.
func (n GeneralName) String() string {
	var m memory
	defer m.free()
	given := m.octets([]byte(n.der))
	return sentence(func(out room) C.ortholan_reason {
		return C.ortholan_general_name_to_text(given, out.text(), out.size(), out.needs, nil)
	})
}

// AlternativeNamesForm is what alternative names come out as.
type AlternativeNamesForm int32

const (
	// Value is the value of the extension.
	Value AlternativeNamesForm = C.ORTHOLAN_ALTERNATIVE_NAMES_VALUE
	// CriticalExtension is a whole Extension, critical, as a subject without names needs it.
	CriticalExtension AlternativeNamesForm = C.ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL
	// PlainExtension is a whole Extension that is not critical.
	PlainExtension AlternativeNamesForm = C.ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION
)

// AlternativeNames writes alternative names in DER, of one text each; the Refusal's Item says which
// text was refused.
func AlternativeNames(texts []string, form AlternativeNamesForm) ([]byte, error) {
	var m memory
	defer m.free()
	given := array[C.ortholan_text](&m, len(texts))
	for i, text := range texts {
		given[i] = m.text(text)
	}
	var wrong C.size_t
	der, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_alternative_names_from_text(first(given), C.size_t(len(given)),
			C.int32_t(form), out.octets(), out.size(), out.needs, &wrong, place)
	})
	var refusal *Refusal
	if errors.As(err, &refusal) {
		refusal.Item = int(wrong)
	}
	return der, err
}
