package ortholan

// #include <ortholan/strict.h>
import "C"

// MatchRule says by which rule attribute values are the same.
type MatchRule int32

const (
	// RFC5280 is caseIgnoreMatch after the preparation of RFC 4518, as RFC 5280 7.1 demands it.
	RFC5280 MatchRule = C.ORTHOLAN_MATCH_RFC5280
	// ASCIICase is ASCII case and white space alone.
	ASCIICase MatchRule = C.ORTHOLAN_MATCH_ASCII_CASE
	// SameOctets compares octets.
	SameOctets MatchRule = C.ORTHOLAN_MATCH_OCTETS
	// AnyOrder is added to one of them: RDNs in any order, for lists that people write by hand; never
	// for a verdict about certificates.
	AnyOrder MatchRule = C.ORTHOLAN_MATCH_ANY_ORDER
)

// Match is a verdict about two names with its reason.
type Match struct {
	Verdict  Verdict
	Code     Code
	RDN      int    // of the first name or the subtree that the reason is about, from 0, or -1
	Side     int    // which name it is about, 1 or 2; 0 for both
	Sentence string // one English sentence without a full stop
}

// Yes says whether the verdict is yes.
func (m Match) Yes() bool { return m.Verdict == Yes }

func matched(verdict C.ortholan_verdict, match *C.ortholan_match) Match {
	return Match{
		Verdict: Verdict(verdict),
		Code:    Code(match.reason),
		RDN:     placeOf(match.first.rdn),
		Side:    int(match.side),
		Sentence: sentence(func(out room) C.ortholan_reason {
			return C.ortholan_match_sentence(match, out.text(), out.size(), out.needs)
		}),
	}
}

// MatchNames says whether two encoded Names are the same. A name that cannot be read cannot be told.
func MatchNames(first, second []byte, rule MatchRule) Match {
	var m memory
	defer m.free()
	var match C.ortholan_match
	return matched(C.ortholan_match_names(m.octets(first), m.octets(second), C.int32_t(rule), &match),
		&match)
}

// Within says whether a name begins with the RDNs of a subtree; every name is within the empty one.
func Within(subtree, name []byte, rule MatchRule) Match {
	var m memory
	defer m.free()
	var match C.ortholan_match
	return matched(C.ortholan_name_within(m.octets(subtree), m.octets(name), C.int32_t(rule), &match),
		&match)
}

// Key is the same exactly for names that are the same under a rule: for maps and databases. The key
// of a subtree begins the keys of all names within it, unless AnyOrder was added. Keys do not
// change within a major version of the library.
type Key string

// KeyOf is the key of an encoded Name. What makes a name unreadable is refused.
func KeyOf(name []byte, rule MatchRule) (Key, error) {
	var m memory
	defer m.free()
	given := m.octets(name)
	key, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_match_key(given, C.int32_t(rule), out.octets(), out.size(), out.needs, place)
	})
	return Key(key), err
}
