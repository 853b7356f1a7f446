using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using NUnit.Framework;

namespace Ortholan.Tests
{
    [TestFixture]
    public class VectorTests
    {
        private static readonly Dictionary<string, ReferenceKind> Kinds =
            new Dictionary<string, ReferenceKind>
            {
                { "host", ReferenceKind.Host },
                { "ip", ReferenceKind.Address },
                { "email", ReferenceKind.Mailbox },
                { "uri", ReferenceKind.Uri },
                { "srv", ReferenceKind.Service },
            };

        private static readonly Dictionary<string, MatchRule> Rules = new Dictionary<string, MatchRule>
        {
            { "names", MatchRule.Rfc5280 },
            { "any-order", MatchRule.Rfc5280 | MatchRule.AnyOrder },
            { "ascii-case", MatchRule.AsciiCase },
            { "octets", MatchRule.Octets },
        };

        private static string Word(Verdict verdict)
        {
            return verdict == Verdict.CannotTell ? "cannot tell" : verdict.ToString().ToLowerInvariant();
        }

        /// <summary>What a call gives, or null where it is refused.</summary>
        private static T OrNull<T>(Func<T> call) where T : class
        {
            try
            {
                return call();
            }
            catch (RefusedException)
            {
                return null;
            }
        }

        private static RefusedException Refusal(Action call)
        {
            return Assert.Throws<RefusedException>(() => call());
        }

        [Test]
        public void NamesFromText()
        {
            Row.Each("rfc4514_read.tsv", row =>
            {
                // Digits of a value may stand for what no reading takes: a name is what can be read.
                Name expected = OrNull(() => Name.FromDer(row.Octets("der"), Reading.Structure));
                row.Same(expected, OrNull(() => Name.Parse(row["text"])));
            });
            Row.Each("rfc4514_errors.tsv", row =>
            {
                RefusedException refused = Refusal(() => Name.Parse(row["text"]));
                row.Same(row["reason"] + " " + row["at"], refused.Reason + " " + refused.Offset);
                if (row["sentence"] != "") row.Same(row["sentence"], refused.Message);
            });
        }

        [Test]
        public void NamesToText()
        {
            Row.Each("rfc4514_write.tsv", row =>
            {
                Name name = OrNull(() => Name.FromDer(row.Octets("der")));
                row.Same(row["text"], name == null ? "" : name.ToString());
                if (name != null) row.Same(row["exact"], name.ToText(new TextOptions { Exact = true }));
            });
            var own = new TextOptions { Order = RdnOrder.AsEncoded, Types = { { "device", "1.2.3.4" } } };
            Assert.AreEqual("1.2.3.4=#130137,O=Org", Name.Parse("O=Org,device=7", own).ToString());
            Assert.AreEqual(new[] { "Alpha" }, Name.Parse("CN=Alpha,O=Org").Values("2.5.4.3"));
        }

        [Test]
        public void NamesThatAreBuilt()
        {
            Assert.AreEqual(2, Refusal(() => Name.Build(("C", "RU"), ("CN", ""), ("FOO", "x"))).Item);
            Assert.AreEqual(Name.Parse("CN=А,DC=org"), Name.Build(("DC", "org"), ("CN", "А")));
        }

        [Test]
        public void NamesThatAreRead()
        {
            Row.Each("strict_names.tsv", row =>
            {
                var reading = (Reading)int.Parse(row["mode"]);
                string found = "0 0", der = row["der"].Trim('-');
                try
                {
                    Name.FromDer(Hex.Octets(der), reading);
                }
                catch (RefusedException refused)
                {
                    found = refused.Reason + " " + refused.Offset;
                }
                row.Same(row["reason"] + " " + row["at"], found);
            });
        }

        [Test]
        public void Matching()
        {
            Row.Each("matching.tsv", row =>
            {
                byte[] first = row.Octets("first"), second = row.Octets("second");
                Match match = Rules.TryGetValue(row["call"], out MatchRule rule)
                    ? Match.Names(first, second, rule) : Match.Within(first, second);
                row.Same(row["out"].Split(':')[0], Word(match.Verdict));
            });
            Row.Each("match_sentences.tsv", row =>
                row.Same(row["out"], Match.Names(row.Octets("first"), row.Octets("second")).Sentence));
            Row.Each("match_keys.tsv", row => row.Same(row["out"].Split(' ')[0],
                Hex.Digits(MatchKey.Of(row.Octets("in")).ToBytes())));
        }

        [Test]
        public void Identifiers()
        {
            Row.Each("identifiers.tsv", row =>
            {
                string text = row["text"];
                byte[] oid = row.Octets("octets");
                if (text != "")
                {
                    row.Same(oid, OrNull(() => ObjectIdentifier.FromText(text)) ?? new byte[0]);
                }
                if (oid.Length != 0) row.Same(text, OrNull(() => ObjectIdentifier.ToText(oid)) ?? "");
            });
        }

        [Test]
        public void GeneralNames()
        {
            Row.Each("strict_general_names.tsv", row =>
            {
                if (row["reason"] == "ADDRESS_RANGE") return; // taken here, as in name constraints
                if (row["offset"] != "")
                {
                    row.Same(row["offset"], Refusal(() => GeneralName.Parse(row["text"])).Offset.ToString());
                    return;
                }
                GeneralName name = GeneralName.Parse(row["text"]);
                row.Same(row["der"], Hex.Digits(name.ToDer()));
                row.Same(row["shown"] == "" ? row["text"] : row["shown"], name.ToString());
            });
            Row.Each("strict_alternative_names.tsv", row =>
            {
                bool isCritical = row["critical"] == "1";
                row.Same(row["der"], Hex.Digits(GeneralName.WriteAlternativeNames(row["names"].Split('|'),
                    isCritical ? AlternativeNames.Critical : AlternativeNames.Extension)));
            });
            string[] texts = { "DNS:a", "DNS:b", "DNS:c d" };
            Assert.AreEqual(2, Refusal(() => GeneralName.WriteAlternativeNames(texts)).Item);
        }

        private static Identity Ask(Row row)
        {
            return OrNull(() => Identity.OfNames(row.Octets("names"), Kinds[row["kind"]], row["reference"],
                row["choices"] != "1"));
        }

        [Test]
        public void Identities()
        {
            Row.Each("strict_identity.tsv", row =>
            {
                if (row["names"] == "none") return;
                Identity answer = Ask(row);
                row.Same(row["verdict"], answer == null ? "refused" : Word(answer.Verdict));
                if (answer == null) return;
                row.Same(answer.IsYes, answer.Name != null);
                row.Same(row["why"].Split(',').Count(reason => reason != ""), answer.Mismatches.Count);
            });
            Row.Each("strict_identity_suites.tsv", row =>
            {
                if (row["names"] == "none" || row["names"] == "empty") return;
                Identity answer = Ask(row);
                row.Same(row["verdict"] == "match", answer != null && answer.IsYes);
            });
        }

        /// <summary>Of the chains those of two certificates, by their parts.</summary>
        [Test]
        public void Constraints()
        {
            int judged = 0;
            Row.Each("name_constraints.tsv", row =>
            {
                string[] parts = row["chain"].Split(':', '/');
                if (parts.Length != 8 || parts[2] == "-" || parts[7] == "-" || parts[7] == "") return;
                Permission found = Permission.OfNames(Hex.Octets(parts[7]), Hex.Octets(parts[1]),
                    Hex.Octets(parts[2]));
                row.Same(row["verdict"] == "yes", found.IsYes);
                row.Same(found.IsYes, found.Findings.Count == 0);
                ++judged;
            });
            Assert.That(judged, Is.GreaterThan(400));
            Permission unreadable = Permission.Of(new[] { new byte[] { 0x30 } });
            Assert.AreEqual(Verdict.CannotTell, unreadable.Verdict);
            StringAssert.StartsWith("certificate 1", unreadable.Findings[0].Sentence);
        }

        [Test]
        public void Certificates()
        {
            string pem = File.ReadAllText(Path.Combine(Row.Data, "certificates", "alternative_names.pem"));
            PemBlock block = PemBlock.ReadAll(pem).Single();
            Certificate certificate = Certificate.FromDer(block.Octets);
            Assert.AreEqual("CERTIFICATE", block.Label);
            Assert.AreEqual("CN=Gamma", certificate.Subject.ToString());
            Assert.AreEqual(new byte[] { 1 }, certificate.SerialNumber);
            Assert.Less(certificate.NotBefore, certificate.NotAfter);
            foreach (GeneralName name in certificate.AlternativeNames.Where(each => each.Address != null))
            {
                Assert.AreEqual("IP:" + name.Address, name.ToString());
            }
            Assert.That(certificate.AlternativeNames, Has.Member(GeneralName.Parse("IP:2001:db8::1")));
            Identity answer = certificate.Identify(ReferenceKind.Host, "EXAMPLE.org");
            Assert.AreEqual("DNS:example.org", answer.Name.ToString());
            Refusal(() => PemBlock.ReadAll("-----BEGIN A-----\n"));
        }

        [Test]
        public void Extensions()
        {
            string pem = File.ReadAllText(Path.Combine(Row.Data, "certificates", "typed.pem"));
            Certificate certificate = Certificate.FromDer(PemBlock.ReadAll(pem).Single().Octets);
            foreach (Extension extension in certificate.Extensions)
            {
                string json = extension.ToJson();
                Assert.AreEqual(extension.Value, ExtensionJson.ValueFromJson(extension.Type, json), json);
                StringAssert.EndsWith("\n", extension.ToWords());
            }
            byte[] list = ExtensionJson.ExtensionsFromJson(certificate.ExtensionsToJson());
            StringAssert.Contains(Hex.Digits(list), Hex.Digits(certificate.ToDer()));
            Assert.AreEqual(6,
                Refusal(() => ExtensionJson.ValueFromJson("basicConstraints", "{\"cA\":1}")).Offset);
        }

        [Test]
        public void Checks()
        {
            Row.Each("checks.tsv", row =>
            {
                IReadOnlyList<Fault> faults = OrNull(() => Fault.Check(row.Octets("der")));
                row.Same(row["faults"], faults == null
                    ? "refused" : string.Join(",", faults.Select(fault => fault.Rule)));
            });
        }
    }
}
