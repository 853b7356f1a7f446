using System;

namespace Ortholan
{
    /// <summary>By which rule attribute values are the same.</summary>
    [Flags]
    public enum MatchRule
    {
        /// <summary>caseIgnoreMatch after the preparation of RFC 4518, as RFC 5280 7.1 demands it.</summary>
        Rfc5280 = Native.Constants.ORTHOLAN_MATCH_RFC5280,
        /// <summary>ASCII case and white space alone.</summary>
        AsciiCase = Native.Constants.ORTHOLAN_MATCH_ASCII_CASE,
        /// <summary>The octets.</summary>
        Octets = Native.Constants.ORTHOLAN_MATCH_OCTETS,
        /// <summary>Added to one of them: RDNs in any order, for lists that people write by hand; never for
        /// a verdict about certificates.</summary>
        AnyOrder = Native.Constants.ORTHOLAN_MATCH_ANY_ORDER,
    }

    /// <summary>A verdict about two names with its reason.</summary>
    public sealed unsafe class Match
    {
        private delegate int Asking(Native.Octets first, Native.Octets second, int rule, Native.Match* match);

        private Match(Native.Match* match)
        {
            Verdict = (Verdict)match->verdict;
            Reason = match->reason;
            Side = match->side;
            bool isPlace = match->first.rdn != RefusedException.NoPlace.offset;
            Rdn = isPlace ? (int?)match->first.rdn : null;
            Sentence = Call.WriteText((room, size, needs, _) =>
                Native.Calls.ortholan_match_sentence(match, room, size, needs));
        }

        /// <summary>The verdict.</summary>
        public Verdict Verdict { get; }

        /// <summary>Whether the verdict is yes.</summary>
        public bool IsYes => Verdict == Verdict.Yes;

        /// <summary>Why not: an ORTHOLAN_REASON_ number.</summary>
        public int Reason { get; }

        /// <summary>Which name the reason is about, 1 or 2; 0 for both.</summary>
        public int Side { get; }

        /// <summary>The RDN of the first name that the reason is about, from 0.</summary>
        public int? Rdn { get; }

        /// <summary>One English sentence without a full stop.</summary>
        public string Sentence { get; }

        /// <summary>Whether two encoded Names are the same. A name that cannot be read cannot be
        /// told.</summary>
        public static Match Names(byte[] first, byte[] second, MatchRule rule = MatchRule.Rfc5280)
        {
            return Ask(Native.Calls.ortholan_match_names, first, second, rule);
        }

        /// <summary>Whether a name begins with the RDNs of a subtree; every name is within the empty
        /// one.</summary>
        public static Match Within(byte[] subtree, byte[] name, MatchRule rule = MatchRule.Rfc5280)
        {
            return Ask(Native.Calls.ortholan_name_within, subtree, name, rule);
        }

        private static Match Ask(Asking asking, byte[] first, byte[] second, MatchRule rule)
        {
            using (var call = new Call())
            {
                var match = (Native.Match*)call.New(sizeof(Native.Match));
                asking(call.Octets(first), call.Octets(second), (int)rule, match);
                return new Match(match);
            }
        }
    }

    /// <summary>The same exactly for names that are the same under a rule. Keys do not change within a major
    /// version of the library.</summary>
    public sealed unsafe class MatchKey : Encoded<MatchKey>
    {
        private MatchKey(byte[] key) : base(key)
        {
        }

        /// <summary>The key of an encoded Name.</summary>
        /// <exception cref="RefusedException">The name is unreadable.</exception>
        public static MatchKey Of(byte[] name, MatchRule rule = MatchRule.Rfc5280)
        {
            using (var call = new Call())
            {
                Native.Octets given = call.Octets(name);
                return new MatchKey(Call.Write((room, size, needs, place) =>
                    Native.Calls.ortholan_match_key(given, (int)rule, room, size, needs, place)));
            }
        }

        /// <summary>A copy of the octets, for databases.</summary>
        public byte[] ToBytes() => (byte[])octets.Clone();

        /// <summary>Whether the name of another key is within the name of this one; both without
        /// MatchRule.AnyOrder.</summary>
        public bool Holds(MatchKey other) => other.octets.AsSpan().StartsWith(octets);
    }
}
