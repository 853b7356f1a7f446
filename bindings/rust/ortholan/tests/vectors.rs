//! The rows that every interface answers.

mod support;

use ortholan::*;
use support::{data, octets, rows, Row};

fn verdict(verdict: Verdict) -> &'static str {
    match verdict {
        Verdict::Yes => "yes",
        Verdict::No => "no",
        Verdict::CannotTell => "cannot tell",
    }
}

/// The rows of a file that present names.
fn questions(file: &str) -> impl Iterator<Item = Row> {
    rows(file).into_iter().filter(|row| !matches!(row.text("names"), "none" | "empty"))
}

fn question(row: &Row) -> Reference<'_> {
    let kind = match row.text("kind") {
        "host" => ReferenceKind::Host,
        "ip" => ReferenceKind::Address,
        "email" => ReferenceKind::Mailbox,
        "uri" => ReferenceKind::Uri,
        "srv" => ReferenceKind::Service,
        other => panic!("{}: {other}", row.place),
    };
    let reference = Reference::new(kind, row.text("reference"));
    match row.text("choices") {
        "1" => reference.without_underscores(),
        _ => reference,
    }
}

#[test]
fn names_from_text() {
    for row in rows("rfc4514_read.tsv") {
        let der = row.text("text").parse().map(|name: Name| name.der().to_vec());
        // Digits of a value may stand for what no reading takes: a name is what can be read.
        let is_name = NameView::read_as(&row.octets("der"), Reading::Structure).is_ok();
        let expected = if is_name { row.octets("der") } else { Vec::new() };
        assert_eq!(der.unwrap_or_default(), expected, "{}", row.place);
    }
    for row in rows("rfc4514_errors.tsv") {
        let refusal = Name::from_text(row.text("text")).unwrap_err();
        assert_eq!(refusal.reason().0.to_string(), row.text("reason"), "{}", row.place);
        assert_eq!(refusal.offset().unwrap().to_string(), row.text("at"), "{}", row.place);
        if !row.text("sentence").is_empty() {
            assert_eq!(refusal.to_string(), row.text("sentence"), "{}", row.place);
        }
    }
}

#[test]
fn names_to_text() {
    let exact = TextOptions { exact: true, ..TextOptions::default() };
    for row in rows("rfc4514_write.tsv") {
        match Name::from_der(&row.octets("der")) {
            Err(_) => assert_eq!("", row.text("text"), "{}", row.place),
            Ok(name) => {
                assert_eq!(name.to_string(), row.text("text"), "{}", row.place);
                assert_eq!(name.text(&exact).unwrap(), row.text("exact"), "{}", row.place);
            }
        }
    }
}

#[test]
fn names_that_are_built() {
    let refusal = Name::build(&[("C", "RU"), ("CN", ""), ("FOO", "x")]).unwrap_err();
    assert_eq!(refusal.item(), Some(2), "{refusal}");
    assert_eq!(Name::build(&[("DC", "org"), ("CN", "А")]).unwrap(), "CN=А,DC=org".parse().unwrap());
}

#[test]
fn names_that_are_read() {
    for row in rows("strict_names.tsv") {
        let reading = match row.text("mode") {
            "0" => Reading::Der,
            "1" => Reading::Lenient,
            _ => Reading::Structure,
        };
        let der = if row.text("der") == "-" { Vec::new() } else { row.octets("der") };
        let refusal = NameView::read_as(&der, reading).err();
        let (reason, at) = refusal.map_or((0, 0), |it| (it.reason().0, it.offset().unwrap()));
        assert_eq!(format!("{reason} {at}"), format!("{} {}", row.text("reason"), row.text("at")));
    }
}

#[test]
fn matching() {
    for row in rows("matching.tsv") {
        let (first, second) = (row.octets("first"), row.octets("second"));
        let found = match row.text("call") {
            "names" => match_names(&first, &second, MatchRule::RFC5280),
            "any-order" => match_names(&first, &second, MatchRule::RFC5280.any_order()),
            "ascii-case" => match_names(&first, &second, MatchRule::ASCII_CASE),
            "octets" => match_names(&first, &second, MatchRule::OCTETS),
            _ => within(&first, &second, MatchRule::RFC5280),
        };
        let expected = row.text("out").split(':').next().unwrap();
        assert_eq!(verdict(found.verdict()), expected, "{}", row.place);
    }
    for row in rows("match_sentences.tsv") {
        let (first, second) = (row.octets("first"), row.octets("second"));
        let found = match_names(&first, &second, MatchRule::RFC5280);
        assert_eq!(found.to_string(), row.text("out"), "{}", row.place);
    }
    for row in rows("match_keys.tsv") {
        let key = MatchKey::of(&row.octets("in"), MatchRule::RFC5280).unwrap();
        let expected = row.text("out").split(' ').next().unwrap();
        assert_eq!(key.as_bytes(), octets(expected), "{}", row.place);
    }
}

#[test]
fn identifiers() {
    for row in rows("identifiers.tsv") {
        let (text, oid) = (row.text("text"), row.octets("octets"));
        if !text.is_empty() {
            assert_eq!(oid_from_text(text).unwrap_or_default(), oid, "{}", row.place);
        }
        if !oid.is_empty() {
            assert_eq!(oid_to_text(&oid).unwrap_or_default(), text, "{}", row.place);
        }
    }
}

#[test]
fn general_names() {
    for row in rows("strict_general_names.tsv") {
        if !row.text("offset").is_empty() {
            if row.text("reason") == "ADDRESS_RANGE" {
                continue; // taken here, as in name constraints
            }
            let refusal = GeneralName::from_text(row.text("text")).unwrap_err();
            assert_eq!(refusal.offset().unwrap().to_string(), row.text("offset"), "{}", row.place);
            continue;
        }
        let made = GeneralName::from_text(row.text("text")).unwrap();
        assert_eq!(made, row.octets("der"), "{}", row.place);
        let shown = [row.text("shown"), row.text("text")];
        let shown = shown.into_iter().find(|text| !text.is_empty()).unwrap();
        let read = GeneralName::read_as(&made, Reading::Structure).unwrap();
        assert_eq!(read.to_string(), shown, "{}", row.place);
    }
    for row in rows("strict_alternative_names.tsv") {
        let texts: Vec<_> = row.text("names").split('|').collect();
        let form = match row.text("critical") {
            "1" => AlternativeNames::Critical,
            _ => AlternativeNames::Extension,
        };
        assert_eq!(alternative_names(&texts, form).unwrap(), row.octets("der"), "{}", row.place);
    }
    let refusal = alternative_names(&["DNS:a", "DNS:b", "DNS:c d"], AlternativeNames::Value);
    assert_eq!(refusal.unwrap_err().item(), Some(2));
}

#[test]
fn identity() {
    for row in questions("strict_identity.tsv") {
        let names = row.octets("names");
        let answer = identify_by_names(&names, &question(&row));
        let found = answer.as_ref().map_or("refused", |answer| verdict(answer.verdict()));
        assert_eq!(found, row.text("verdict"), "{}", row.place);
        let answer = match answer {
            Ok(answer) => answer,
            Err(_) => continue,
        };
        let why = row.text("why").split(',').filter(|reason| !reason.is_empty()).count();
        assert_eq!(answer.mismatches().len(), why, "{}", row.place);
        assert_eq!(answer.is_yes(), answer.matched().is_some(), "{}", row.place);
    }
    for row in questions("strict_identity_suites.tsv") {
        let names = row.octets("names");
        let answer = identify_by_names(&names, &question(&row));
        let matches = answer.map_or(false, |answer| answer.is_yes());
        assert_eq!(matches, row.text("verdict") == "match", "{}", row.place);
    }
}

/// Of the chains those of two certificates, by their parts.
#[test]
fn constraints() {
    let mut judged = 0;
    for row in rows("name_constraints.tsv") {
        let chain: Vec<_> = row.text("chain").split([':', '/']).collect();
        let parts = match chain[..] {
            [_, subject, names, _, _, _, _, constraints] => [constraints, subject, names],
            _ => continue,
        };
        if parts.contains(&"-") || parts[0].is_empty() {
            continue;
        }
        let parts = parts.map(octets);
        let options = PermitOptions::default();
        let found = permits_names(&parts[0], &parts[1], &parts[2], &options).unwrap();
        assert_eq!(found.is_yes(), row.text("verdict") == "yes", "{}", row.place);
        assert_eq!(found.is_yes(), found.findings.is_empty(), "{}", row.place);
        judged += 1;
    }
    assert!(judged > 400);
    let found = permits(&[b"0"], &PermitOptions::default()).unwrap();
    assert_eq!(found.verdict, Verdict::CannotTell);
    assert!(found.findings[0].to_string().starts_with("certificate 1"), "{}", found.findings[0]);
}

#[test]
fn certificates() {
    let pem = data("certificates/alternative_names.pem");
    let block = pem_blocks(&pem).next().unwrap().unwrap();
    let certificate = Certificate::read(&block.octets).unwrap();
    assert_eq!(block.label, "CERTIFICATE");
    assert_eq!(certificate.subject().unwrap().unwrap().to_string(), "CN=Gamma");
    assert_eq!(certificate.serial(), Some(&[1][..]));
    assert!(certificate.not_after().unwrap().unwrap().ends_with('Z'));
    let names: Vec<_> = certificate.alternative_names().unwrap().unwrap().collect();
    assert!(names.iter().any(|name| name.to_string() == "IP:2001:db8::1"));
    assert!(names.iter().any(|name| name.address() == Some("2001:db8::1".parse().unwrap())));
    let reference = Reference::host("EXAMPLE.org");
    let answer = certificate.identify(&reference).unwrap();
    assert_eq!(answer.matched().unwrap().to_string(), "DNS:example.org");
    assert!(certificate.extension(&[0x2A, 3]).unwrap().is_none());
    assert_eq!(pem_blocks(b"-----BEGIN A-----\n").filter(|block| block.is_err()).count(), 1);
}

#[test]
fn extensions() {
    let pem = data("certificates/typed.pem");
    let block = pem_blocks(&pem).next().unwrap().unwrap();
    let certificate = Certificate::read(&block.octets).unwrap();
    for extension in certificate.extensions() {
        let oid = oid_to_text(extension.oid()).unwrap();
        let json = extension.json().unwrap();
        assert_eq!(extension_from_json(&oid, &json).unwrap(), extension.value(), "{json}");
        assert!(extension.words().unwrap().ends_with('\n'), "{oid}");
    }
    let list = extensions_from_json(&certificate.extensions_json().unwrap()).unwrap();
    assert!(block.octets.windows(list.len()).any(|part| part == list));
    let refusal = extension_from_json("basicConstraints", "{\"cA\":1}").unwrap_err();
    assert_eq!(refusal.offset(), Some(6));
}

#[test]
fn checks() {
    for row in rows("checks.tsv") {
        let der = row.octets("der");
        let told = match check(&der) {
            Ok(faults) => faults.iter().map(|fault| fault.rule).collect::<Vec<_>>().join(","),
            Err(_) => "refused".to_owned(),
        };
        assert_eq!(told, row.text("faults"), "{}", row.place);
    }
}
