package ortholan

import (
	"fmt"
	"os"
	"strconv"
	"strings"
	"testing"
)

func Example() {
	name, _ := ParseName("CN=Alpha,O=Org")
	other, _ := ParseName("cn=ALPHA,o= org ")
	fmt.Println(name, name.Values("2.5.4.3"), name.Matches(other).Verdict)
	_, err := ParseName("CN=Acme, Inc., C=US")
	fmt.Println(err.(*Refusal).Offset)
	// Output:
	// CN=Alpha,O=Org [Alpha] yes
	// 9
}

func TestNamesFromText(t *testing.T) {
	rows(t, "rfc4514_read.tsv", func(t *testing.T, row row) {
		// Digits of a value may stand for what no reading takes: a name is what can be read.
		if _, err := ReadNameAs(row.octets(t, "der"), Structure); err != nil {
			row["der"] = ""
		}
		name, err := ParseName(row["text"])
		same(t, err == nil, row["der"] != "")
		if err == nil {
			same(t, digits(name.DER()), row["der"])
		}
	})
	rows(t, "rfc4514_errors.tsv", func(t *testing.T, row row) {
		_, err := ParseName(row["text"])
		refusal := refusal(t, err)
		same(t, strconv.Itoa(int(refusal.Code)), row["reason"])
		same(t, strconv.Itoa(refusal.Offset), row["at"])
		if row["sentence"] != "" {
			same(t, err.Error(), row["sentence"])
		}
	})
}

func TestNamesToText(t *testing.T) {
	rows(t, "rfc4514_write.tsv", func(t *testing.T, row row) {
		name, err := ReadName(row.octets(t, "der"))
		if err != nil {
			same(t, "", row["text"])
			return
		}
		exact, _ := name.Text(TextOptions{Exact: true})
		same(t, name.String(), row["text"])
		same(t, exact, row["exact"])
	})
	own := TextOptions{Order: AsEncoded, Names: []TypeName{{"device", []byte{0x2A, 3, 4}}}}
	name, err := ParseNameAs("O=Org,device=7", own)
	same(t, err, nil)
	same(t, name.String(), "1.2.3.4=#130137,O=Org")
	same(t, Name{}.String(), "")
}

func TestNamesThatAreBuilt(t *testing.T) {
	_, err := BuildName(TypeAndValue{"C", "RU"}, TypeAndValue{"CN", ""}, TypeAndValue{"FOO", "x"})
	same(t, refusal(t, err).Item, 2)
	built, _ := BuildName(TypeAndValue{"DC", "org"}, TypeAndValue{"CN", "А"})
	read, _ := ParseName("CN=А,DC=org")
	same(t, built, read)
}

func TestNamesThatAreRead(t *testing.T) {
	rows(t, "strict_names.tsv", func(t *testing.T, row row) {
		reading, _ := strconv.Atoi(row["mode"])
		row["der"] = strings.Trim(row["der"], "-")
		_, err := ReadNameAs(row.octets(t, "der"), Reading(reading))
		if row["reason"] == "0" {
			same(t, err, nil)
			return
		}
		refusal := refusal(t, err)
		same(t, strconv.Itoa(int(refusal.Code)), row["reason"])
		same(t, strconv.Itoa(refusal.Offset), row["at"])
	})
}

func TestMatching(t *testing.T) {
	rules := map[string]MatchRule{"names": RFC5280, "any-order": RFC5280 | AnyOrder,
		"ascii-case": ASCIICase, "octets": SameOctets}
	rows(t, "matching.tsv", func(t *testing.T, row row) {
		first, second := row.octets(t, "first"), row.octets(t, "second")
		match := Within(first, second, RFC5280)
		if rule, is := rules[row["call"]]; is {
			match = MatchNames(first, second, rule)
		}
		same(t, match.Verdict.String(), strings.Split(row["out"], ":")[0])
	})
	rows(t, "match_sentences.tsv", func(t *testing.T, row row) {
		match := MatchNames(row.octets(t, "first"), row.octets(t, "second"), RFC5280)
		same(t, match.Sentence, row["out"])
	})
	rows(t, "match_keys.tsv", func(t *testing.T, row row) {
		key, err := KeyOf(row.octets(t, "in"), RFC5280)
		same(t, err, nil)
		same(t, digits([]byte(key)), strings.Split(row["out"], " ")[0])
	})
}

func TestIdentifiers(t *testing.T) {
	rows(t, "identifiers.tsv", func(t *testing.T, row row) {
		if row["text"] != "" {
			oid, _ := OIDFromText(row["text"])
			same(t, digits(oid), row["octets"])
		}
		if row["octets"] != "" {
			text, _ := OIDToText(row.octets(t, "octets"))
			same(t, text, row["text"])
		}
	})
}

func TestGeneralNames(t *testing.T) {
	rows(t, "strict_general_names.tsv", func(t *testing.T, row row) {
		name, err := ParseGeneralName(row["text"])
		if row["offset"] != "" && row["reason"] != "ADDRESS_RANGE" {
			same(t, strconv.Itoa(refusal(t, err).Offset), row["offset"])
			return
		} else if row["offset"] != "" {
			return // taken here, as in name constraints
		}
		if row["shown"] == "" {
			row["shown"] = row["text"]
		}
		same(t, digits(name.DER()), row["der"])
		same(t, name.String(), row["shown"])
	})
	rows(t, "strict_alternative_names.tsv", func(t *testing.T, row row) {
		form := PlainExtension
		if row["critical"] == "1" {
			form = CriticalExtension
		}
		der, err := AlternativeNames(strings.Split(row["names"], "|"), form)
		same(t, err, nil)
		same(t, digits(der), row["der"])
	})
	_, err := AlternativeNames([]string{"DNS:a", "DNS:b", "DNS:c d"}, Value)
	same(t, refusal(t, err).Item, 2)
}

func TestIdentity(t *testing.T) {
	kinds := map[string]ReferenceKind{"host": Host, "ip": Address, "email": Mailbox, "uri": URI,
		"srv": Service}
	ask := func(t *testing.T, row row) (Identity, error) {
		if row["names"] == "none" || row["names"] == "empty" {
			t.SkipNow()
		}
		return IdentifyByNames(row.octets(t, "names"),
			Reference{kinds[row["kind"]], row["reference"], row["choices"] == "1"})
	}
	rows(t, "strict_identity.tsv", func(t *testing.T, row row) {
		answer, err := ask(t, row)
		if row["verdict"] == "refused" {
			refusal(t, err)
			return
		}
		same(t, answer.Verdict.String(), row["verdict"])
		same(t, answer.Yes(), answer.Name.String() != "")
		why := strings.FieldsFunc(row["why"], func(r rune) bool { return r == ',' })
		same(t, len(answer.Mismatches), len(why))
	})
	rows(t, "strict_identity_suites.tsv", func(t *testing.T, row row) {
		answer, _ := ask(t, row)
		same(t, answer.Yes(), row["verdict"] == "match")
	})
}

// Of the chains those of two certificates, by their parts.
func TestConstraints(t *testing.T) {
	judged := 0
	rows(t, "name_constraints.tsv", func(t *testing.T, row row) {
		parts := strings.Split(strings.ReplaceAll(row["chain"], "/", ":"), ":")
		if len(parts) != 8 || parts[2] == "-" || parts[7] == "-" || parts[7] == "" {
			return
		}
		row["subject"], row["names"], row["constraints"] = parts[1], parts[2], parts[7]
		found, err := PermitsNames(row.octets(t, "constraints"), row.octets(t, "subject"),
			row.octets(t, "names"), PermitOptions{})
		same(t, err, nil)
		same(t, found.Yes(), row["verdict"] == "yes")
		same(t, found.Yes(), len(found.Findings) == 0)
		judged++
	})
	same(t, judged > 400, true)
	found, err := Permits([][]byte{{'0'}}, PermitOptions{})
	same(t, err, nil)
	same(t, found.Verdict, CannotTell)
	same(t, strings.HasPrefix(found.Findings[0].Sentence, "certificate 1"), true)
}

func TestCertificates(t *testing.T) {
	text, _ := os.ReadFile(data + "certificates/alternative_names.pem")
	blocks, err := PEMBlocks(text)
	same(t, err, nil)
	same(t, blocks[0].Label, "CERTIFICATE")
	certificate, err := ReadCertificate(blocks[0].Octets)
	same(t, err, nil)
	subject, _ := certificate.Subject()
	same(t, subject.String(), "CN=Gamma")
	same(t, digits(certificate.Serial), "01")
	before, _ := certificate.NotBefore()
	after, err := certificate.NotAfter()
	same(t, err == nil && before.Before(after), true)
	shown := []string{}
	names, _ := certificate.AlternativeNames()
	for _, name := range names {
		if address, is := name.Address(); is {
			same(t, "IP:"+address.String(), name.String())
		}
		shown = append(shown, name.String())
	}
	same(t, strings.Contains(strings.Join(shown, " "), " IP:2001:db8::1"), true)
	answer, _ := Identify(certificate.DER, Reference{Kind: Host, Text: "EXAMPLE.org"})
	same(t, answer.Name.String(), "DNS:example.org")
	_, err = PEMBlocks([]byte("-----BEGIN A-----\n"))
	refusal(t, err)
}

func TestExtensions(t *testing.T) {
	text, _ := os.ReadFile(data + "certificates/typed.pem")
	blocks, _ := PEMBlocks(text)
	certificate, err := ReadCertificate(blocks[0].Octets)
	same(t, err, nil)
	for _, extension := range certificate.Extensions {
		oid, _ := OIDToText(extension.OID)
		json, err := extension.JSON()
		same(t, err, nil)
		value, err := ExtensionFromJSON(oid, json)
		same(t, err, nil)
		same(t, digits(value), digits(extension.Value))
		words, err := extension.Words()
		same(t, err == nil && strings.HasSuffix(words, "\n"), true)
	}
	json, _ := certificate.ExtensionsJSON()
	list, err := ExtensionsFromJSON(json)
	same(t, err == nil && strings.Contains(digits(certificate.DER), digits(list)), true)
	_, err = ExtensionFromJSON("basicConstraints", `{"cA":1}`)
	same(t, refusal(t, err).Offset, 6)
}

func TestChecks(t *testing.T) {
	rows(t, "checks.tsv", func(t *testing.T, row row) {
		told := "refused"
		if faults, err := Check(row.octets(t, "der")); err == nil {
			rules := []string{}
			for _, fault := range faults {
				rules = append(rules, fault.Rule)
			}
			told = strings.Join(rules, ",")
		}
		same(t, told, row["faults"])
	})
}
