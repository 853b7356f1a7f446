using System;
using System.Collections.Generic;

namespace Ortholan
{
    /// <summary>One reason why names are not permitted, or why that cannot be told.</summary>
    public sealed unsafe class Finding
    {
        internal Finding(Native.Finding* finding)
        {
            Reason = finding->reason;
            Verdict = (Verdict)finding->verdict;
            Certificate = (int)finding->certificate;
            Authority = (int)finding->authority;
            Name = Call.Copy(finding->name);
            Subtree = Call.Copy(finding->subtree);
            Sentence = Call.WriteText((room, size, needs, _) =>
                Native.Calls.ortholan_finding_sentence(finding, room, size, needs));
        }

        /// <summary>What is wrong with the name: an ORTHOLAN_REASON_ number.</summary>
        public int Reason { get; }

        /// <summary>No or CannotTell.</summary>
        public Verdict Verdict { get; }

        /// <summary>Index of the certificate whose name it is, 0 for the leaf.</summary>
        public int Certificate { get; }

        /// <summary>Index of the certificate whose constraints decide.</summary>
        public int Authority { get; }

        /// <summary>The GeneralName, or the subject's Name.</summary>
        public byte[] Name { get; }

        /// <summary>GeneralName that is the base of the subtree that decides; empty where none
        /// does.</summary>
        public byte[] Subtree { get; }

        /// <summary>One English sentence without a full stop; certificates are counted from 1, the
        /// leaf.</summary>
        public string Sentence { get; }
    }

    /// <summary>A verdict about names and name constraints with its reasons (RFC 5280 4.2.1.10 and
    /// 6.1).</summary>
    public sealed unsafe class Permission
    {
        private delegate int Judging(Native.PermitOptions* options, int* verdict, Native.Finding* findings,
            UIntPtr room, UIntPtr* count);

        /// <summary>Comparisons of a name with a subtree, at most, where no budget is chosen.</summary>
        public const ulong DefaultBudget = 16777216;

        private Permission(Verdict verdict, IReadOnlyList<Finding> findings)
        {
            Verdict = verdict;
            Findings = findings;
        }

        /// <summary>The verdict.</summary>
        public Verdict Verdict { get; }

        /// <summary>Whether the verdict is yes.</summary>
        public bool IsYes => Verdict == Verdict.Yes;

        /// <summary>Those of the verdict's kind before others.</summary>
        public IReadOnlyList<Finding> Findings { get; }

        /// <summary>Holds the names of each certificate of a chain, from the leaf up, against the
        /// constraints of those above it. What cannot be read is a finding; with room for one the search
        /// ends at the first refusal.</summary>
        public static Permission Of(IReadOnlyList<byte[]> chain, int mostFindings = 1,
            ulong budget = DefaultBudget)
        {
            using (var call = new Call())
            {
                var given = (Native.Octets*)call.New(sizeof(Native.Octets), chain.Count);
                for (int i = 0; i < chain.Count; ++i) given[i] = call.Octets(chain[i]);
                return Judge(call, mostFindings, budget, (options, verdict, findings, room, count) =>
                    Native.Calls.ortholan_permits(given, (UIntPtr)chain.Count, options, verdict, findings,
                        room, count));
            }
        }

        /// <summary>The same for loose parts: the value of one NameConstraints extension, a subject, the
        /// value of its alternative-name extension; the last two may be empty.</summary>
        public static Permission OfNames(byte[] constraints, byte[] subject, byte[] alternativeNames,
            int mostFindings = 1, ulong budget = DefaultBudget)
        {
            using (var call = new Call())
            {
                Native.Octets first = call.Octets(constraints), second = call.Octets(subject);
                Native.Octets third = call.Octets(alternativeNames);
                return Judge(call, mostFindings, budget, (options, verdict, findings, room, count) =>
                    Native.Calls.ortholan_permits_names(first, second, third, options, verdict, findings,
                        room, count));
            }
        }

        private static Permission Judge(Call call, int most, ulong budget, Judging judging)
        {
            var options = (Native.PermitOptions*)call.New(sizeof(Native.PermitOptions));
            options->budget = budget;
            var findings = (Native.Finding*)call.New(sizeof(Native.Finding), most);
            int verdict = 0;
            UIntPtr count = UIntPtr.Zero;
            int reason = judging(options, &verdict, findings, (UIntPtr)most, &count);
            RefusedException.ThrowIf(reason, RefusedException.NoPlace);
            var found = new List<Finding>();
            for (int i = 0; i < (int)count; ++i) found.Add(new Finding(findings + i));
            return new Permission((Verdict)verdict, found);
        }
    }
}
