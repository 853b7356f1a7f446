package ortholan

// #include <ortholan/strict.h>
import "C"

import (
	"errors"
	"time"
)

// CertificateKind is what was read.
type CertificateKind int32

// The kinds.
const (
	CertificateItself  CertificateKind = C.ORTHOLAN_CERTIFICATE
	CertificateRequest CertificateKind = C.ORTHOLAN_CERTIFICATE_REQUEST
	RevocationList     CertificateKind = C.ORTHOLAN_REVOCATION_LIST
)

// Extension is one extension.
type Extension struct {
	OID      []byte // content octets of the identifier; OIDToText shows them
	Critical bool
	Value    []byte // inside the OCTET STRING
}

// Certificate is a certificate, a request or a CRL (RFC 5280 4.1 and 5.1, RFC 2986 4). Parts that the
// kind has not are nil. Keys and signatures are not looked at.
type Certificate struct {
	Kind       CertificateKind
	DER        []byte
	RawSubject []byte // a whole Name; a CRL has none
	RawIssuer  []byte // a whole Name; a request has none
	Serial     []byte // content octets of the INTEGER; of a certificate alone
	RawBefore  []byte // a whole element; of a CRL thisUpdate
	RawAfter   []byte // a whole element; of a CRL nextUpdate
	Extensions []Extension
	reading    Reading
}

// ReadCertificate reads one in DER that is the whole of der. The outer shape is checked; names, times
// and the values of extensions are where they are asked for.
func ReadCertificate(der []byte) (*Certificate, error) {
	return ReadCertificateAs(der, DER)
}

// ReadCertificateAs is ReadCertificate, as closely as asked.
func ReadCertificateAs(der []byte, reading Reading) (*Certificate, error) {
	var m memory
	defer m.free()
	var view C.ortholan_certificate_view
	place := noRefusal()
	reason := C.ortholan_certificate_view_read(m.octets(der), C.int32_t(reading), &view, &place)
	if reason != C.ORTHOLAN_REASON_NONE {
		return nil, refused(reason, place)
	}
	return &Certificate{
		Kind:       CertificateKind(view.kind),
		DER:        copied(view.der),
		RawSubject: copied(view.subject),
		RawIssuer:  copied(view.issuer),
		Serial:     copied(view.serial),
		RawBefore:  copied(view.not_before),
		RawAfter:   copied(view.not_after),
		Extensions: extensions(&view),
		reading:    reading,
	}, nil
}

func extensions(view *C.ortholan_certificate_view) []Extension {
	found := make([]Extension, 0, view.extension_count)
	var offset C.size_t
	var each C.ortholan_extension_view
	for C.ortholan_certificate_view_next_extension(view, &offset, &each) == C.ORTHOLAN_REASON_NONE {
		found = append(found, Extension{copied(each.oid), each.critical != 0, copied(each.value)})
	}
	return found
}

// Subject is the subject's name; of a CRL the empty one.
func (c *Certificate) Subject() (Name, error) { return c.name(c.RawSubject) }

// Issuer is the issuer's name; of a request the empty one.
func (c *Certificate) Issuer() (Name, error) { return c.name(c.RawIssuer) }

func (c *Certificate) name(der []byte) (Name, error) {
	if len(der) == 0 {
		return Name{}, nil
	}
	return ReadNameAs(der, c.reading)
}

// NotBefore is the start of its validity; of a CRL thisUpdate. The zero time where it has none.
func (c *Certificate) NotBefore() (time.Time, error) { return moment(c.RawBefore) }

// NotAfter is the end of its validity; of a CRL nextUpdate.
func (c *Certificate) NotAfter() (time.Time, error) { return moment(c.RawAfter) }

func moment(element []byte) (time.Time, error) {
	if len(element) == 0 {
		return time.Time{}, nil
	}
	var m memory
	defer m.free()
	given := m.octets(element)
	text, err := write(func(out room, _ *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_time_to_text(given, out.text(), out.size(), out.needs)
	})
	if err != nil {
		return time.Time{}, err
	}
	return time.Parse(time.RFC3339, string(text))
}

// Extension is the one extension of a type, by its dotted identifier, or nil. Refused where there are
// several.
func (c *Certificate) Extension(oid string) (*Extension, error) {
	wanted, err := OIDFromText(oid)
	if err != nil {
		return nil, err
	}
	var found *Extension
	for i := range c.Extensions {
		if string(c.Extensions[i].OID) != string(wanted) {
			continue
		}
		if found != nil {
			return nil, refused(C.ORTHOLAN_REASON_DUPLICATE_EXTENSION, noRefusal())
		}
		found = &c.Extensions[i]
	}
	return found, nil
}

// AlternativeNames are the subject's; none without that extension.
func (c *Certificate) AlternativeNames() ([]GeneralName, error) {
	extension, err := c.Extension("2.5.29.17")
	if extension == nil {
		return nil, err
	}
	return ReadGeneralNamesAs(extension.Value, c.reading)
}

// PEMBlock is a block of PEM text (RFC 7468).
type PEMBlock struct {
	Label  string // "CERTIFICATE"
	Octets []byte
}

// PEMBlocks are all blocks of PEM text, whatever stands between them, up to one that is out of form,
// which is the error.
func PEMBlocks(text []byte) ([]PEMBlock, error) {
	var m memory
	defer m.free()
	given := m.text(string(text))
	var offset C.size_t
	var blocks []PEMBlock
	for {
		var block C.ortholan_pem_block
		place := noRefusal()
		err := refused(C.ortholan_pem_next(given, &offset, &block, &place), place)
		var refusal *Refusal
		if errors.As(err, &refusal) && refusal.Code == notFound {
			return blocks, nil
		} else if err != nil {
			return blocks, err
		}
		octets, err := write(func(out room, _ *C.ortholan_refusal) C.ortholan_reason {
			return C.ortholan_pem_octets(&block, out.octets(), out.size(), out.needs)
		})
		if err != nil {
			return blocks, err
		}
		label := C.GoStringN(block.label.data, C.int(block.label.size))
		blocks = append(blocks, PEMBlock{label, octets})
	}
}
