package ortholan

// #include <ortholan/strict.h>
import "C"

import "errors"

// Name is a distinguished name (RFC 5280 4.1.2.4), held as its DER. Names are == where their octets
// are the same; names that RFC 5280 holds for the same have the same Key. The zero value is the
// name without RDNs.
type Name struct {
	der string
}

// RDNOrder is the order of RDNs in a text.
type RDNOrder int32

// Reversed puts the last RDN of the encoding first, as RFC 4514 2.1 does.
const (
	Reversed  RDNOrder = C.ORTHOLAN_RDNS_REVERSED
	AsEncoded RDNOrder = C.ORTHOLAN_RDNS_AS_ENCODED
)

// StringPolicy is the string type of free text; types that prescribe one get theirs.
type StringPolicy int32

// PrintableOrUTF8 is PrintableString where its alphabet allows.
const (
	PrintableOrUTF8 StringPolicy = C.ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8
	UTF8            StringPolicy = C.ORTHOLAN_STRINGS_UTF8
)

// TypeName is a name of the caller's own for a type.
type TypeName struct {
	Name string // a letter, then letters, digits and hyphens
	OID  []byte // content octets of the identifier, as OIDFromText makes them
}

// TextOptions are what text looks like; the zero value is RFC 4514. Text that was written is read
// back with the same options.
type TextOptions struct {
	Order     RDNOrder
	Strings   StringPolicy
	LongNames bool       // commonName, not CN
	Exact     bool       // digits of the encoding where a plain value would lose octets
	Names     []TypeName // come before the names that the library knows
}

func (o TextOptions) plain(m *memory) *C.ortholan_rfc4514_options {
	names := array[C.ortholan_type_name](m, len(o.Names))
	for i, each := range o.Names {
		names[i] = C.ortholan_type_name{name: m.text(each.Name), oid: m.octets(each.OID)}
	}
	options := array[C.ortholan_rfc4514_options](m, 1)
	options[0] = C.ortholan_rfc4514_options{
		order:      C.int32_t(o.Order),
		strings:    C.int32_t(o.Strings),
		long_names: number(o.LongNames),
		exact:      number(o.Exact),
		names:      first(names),
		name_count: C.size_t(len(names)),
	}
	return &options[0]
}

// ParseName reads text of RFC 4514. The Refusal says what is expected at which character.
func ParseName(text string) (Name, error) {
	return ParseNameAs(text, TextOptions{})
}

// ParseNameAs is ParseName with options.
func ParseNameAs(text string, options TextOptions) (Name, error) {
	var m memory
	defer m.free()
	given, plain := m.text(text), options.plain(&m)
	place := noRefusal()
	der, reason := fill(func(out room) C.ortholan_reason {
		return C.ortholan_rfc4514_read(given, plain, out.octets(), out.size(), out.needs, &place)
	})
	if reason == C.ORTHOLAN_REASON_NONE {
		return ReadNameAs(der, Structure)
	}
	err := refused(reason, place)
	var refusal *Refusal
	if errors.As(err, &refusal) {
		refusal.Sentence = sentence(func(out room) C.ortholan_reason {
			return C.ortholan_rfc4514_sentence(given, &place, out.text(), out.size(), out.needs)
		})
	}
	return Name{}, err
}

// TypeAndValue is an attribute to be written: a type such as CN or dotted digits, and its text.
type TypeAndValue struct {
	Type  string
	Value string
}

// BuildName makes a name of attributes, an RDN each, the most significant first. The Refusal's Item says
// which attribute was refused.
func BuildName(attributes ...TypeAndValue) (Name, error) {
	var m memory
	defer m.free()
	plain := array[C.ortholan_new_attribute](&m, len(attributes))
	for i, each := range attributes {
		plain[i]._type, plain[i].text = m.text(each.Type), m.text(each.Value)
	}
	der, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_name_build(first(plain), C.size_t(len(plain)), nil, out.octets(), out.size(),
			out.needs, place)
	})
	var refusal *Refusal
	if errors.As(err, &refusal) {
		refusal.Item = int(refusal.Met)
	}
	if err != nil {
		return Name{}, err
	}
	return ReadNameAs(der, Structure)
}

// ReadName reads a Name in DER that is the whole of der.
func ReadName(der []byte) (Name, error) {
	return ReadNameAs(der, DER)
}

// ReadNameAs is ReadName, as closely as asked.
func ReadNameAs(der []byte, reading Reading) (Name, error) {
	var m memory
	defer m.free()
	if _, err := readView(m.octets(der), reading); err != nil {
		return Name{}, err
	}
	return Name{string(der)}, nil
}

func readView(der C.ortholan_octets, reading Reading) (C.ortholan_name_view, error) {
	var view C.ortholan_name_view
	place := noRefusal()
	reason := C.ortholan_name_view_read(der, C.int32_t(reading), &view, &place)
	return view, refused(reason, place)
}

// view reads the name again, as it was read before.
func (n Name) view(m *memory) C.ortholan_name_view {
	der := m.octets(n.DER())
	view, err := readView(der, Structure)
	if err != nil {
		view, _ = readView(der, Lenient)
	}
	return view
}

// DER is the whole encoding.
func (n Name) DER() []byte {
	if n.der == "" {
		return []byte{0x30, 0x00}
	}
	return []byte(n.der)
}

// Text is text that is safe to show and to log.
func (n Name) Text(options TextOptions) (string, error) {
	var m memory
	defer m.free()
	view, plain := n.view(&m), options.plain(&m)
	text, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_rfc4514_write(&view, plain, out.text(), out.size(), out.needs, place)
	})
	return string(text), err
}

// String is the text of RFC 4514; of a name whose text is refused the reason, in angle brackets.
func (n Name) String() string {
	text, err := n.Text(TextOptions{})
	if err != nil {
		return "<" + err.Error() + ">"
	}
	return text
}

// Attribute is one attribute of a name.
type Attribute struct {
	OID       []byte // content octets of the type's identifier; OIDToText shows them
	Text      string // the value of a string, as it stands there: not escaped
	IsText    bool   // false for a value that is no string or malformed
	Value     []byte // the whole element
	RDN       int    // index of its RDN
	BeginsRDN bool   // the first of its RDN
}

// Attributes are in the order of the encoding, the most significant RDN first.
func (n Name) Attributes() []Attribute {
	var m memory
	defer m.free()
	view := n.view(&m)
	var cursor C.ortholan_name_cursor
	var found C.ortholan_attribute_view
	attributes := make([]Attribute, view.attribute_count)
	for i := range attributes {
		C.ortholan_name_view_attribute(&view, C.size_t(i), &cursor, &found)
		text, reason := fill(func(out room) C.ortholan_reason {
			return C.ortholan_attribute_view_text(&found, out.text(), out.size(), out.needs)
		})
		attributes[i] = Attribute{
			OID:       copied(found._type),
			Text:      string(text),
			IsText:    reason == C.ORTHOLAN_REASON_NONE,
			Value:     copied(found.value),
			RDN:       int(found.rdn),
			BeginsRDN: found.begins_rdn != 0,
		}
	}
	return attributes
}

// Values are the texts of all attributes of a type, by its dotted identifier ("2.5.4.3" is
// commonName).
func (n Name) Values(oid string) []string {
	wanted, err := OIDFromText(oid)
	if err != nil {
		return nil
	}
	var values []string
	for _, each := range n.Attributes() {
		if each.IsText && string(each.OID) == string(wanted) {
			values = append(values, each.Text)
		}
	}
	return values
}

// Matches says whether another name is the same by RFC 5280 7.1.
func (n Name) Matches(other Name) Match {
	return MatchNames(n.DER(), other.DER(), RFC5280)
}

// IsWithin says whether the name begins with the RDNs of another.
func (n Name) IsWithin(subtree Name) Match {
	return Within(subtree.DER(), n.DER(), RFC5280)
}

// Key is what the name is found by in maps, by RFC 5280 7.1.
func (n Name) Key() (Key, error) {
	return KeyOf(n.DER(), RFC5280)
}
