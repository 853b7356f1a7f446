using System;
using System.Collections.Generic;

namespace Ortholan
{
    /// <summary>What a certificate is asked for.</summary>
    public enum ReferenceKind
    {
        /// <summary>A host name in letters, digits, hyphens and A-labels.</summary>
        Host = Native.Constants.ORTHOLAN_REFERENCE_HOST,
        /// <summary>An IPv4 or IPv6 address as text, without brackets.</summary>
        Address = Native.Constants.ORTHOLAN_REFERENCE_ADDRESS,
        /// <summary>"joe@example.org"</summary>
        Mailbox = Native.Constants.ORTHOLAN_REFERENCE_MAILBOX,
        /// <summary>A URI, of which scheme and host count.</summary>
        Uri = Native.Constants.ORTHOLAN_REFERENCE_URI,
        /// <summary>"_imaps.example.org" (RFC 4985)</summary>
        Service = Native.Constants.ORTHOLAN_REFERENCE_SERVICE,
    }

    /// <summary>A presented name, and why it is not the one that was asked for.</summary>
    public sealed class Mismatch
    {
        internal Mismatch(byte[] der, int reason)
        {
            Der = der;
            Reason = reason;
        }

        /// <summary>The whole element, which may be malformed inside.</summary>
        public byte[] Der { get; }

        /// <summary>That it is malformed, or else what differs.</summary>
        public int Reason { get; }
    }

    /// <summary>Whether a certificate is for what is asked (RFC 9525); alternative names alone
    /// count.</summary>
    public sealed unsafe class Identity
    {
        private delegate int Asking(Native.Octets der, Native.Reference* reference, Native.Identity* answer,
            Native.Refusal* place);

        private Identity(Native.Identity* answer, Native.Reference* reference)
        {
            Verdict = (Verdict)answer->verdict;
            Reason = answer->reason;
            if (IsYes) Name = GeneralName.FromDer(Call.Copy(answer->name), Reading.Structure);
            var mismatches = new List<Mismatch>();
            Native.PresentedName each;
            UIntPtr offset = UIntPtr.Zero;
            while (Native.Calls.ortholan_identity_explain(answer, reference, &offset, &each) == 0)
            {
                if (each.reason != 0) mismatches.Add(new Mismatch(Call.Copy(each.bytes), each.reason));
            }
            Mismatches = mismatches;
        }

        /// <summary>The verdict; a certificate that cannot be read cannot be told.</summary>
        public Verdict Verdict { get; }

        /// <summary>Whether the verdict is yes.</summary>
        public bool IsYes => Verdict == Verdict.Yes;

        /// <summary>Why not: an ORTHOLAN_REASON_ number.</summary>
        public int Reason { get; }

        /// <summary>The name that matched.</summary>
        public GeneralName Name { get; }

        /// <summary>The other names.</summary>
        public IReadOnlyList<Mismatch> Mismatches { get; }

        /// <summary>Asks a certificate. Hosts with an underscore are host names or not.</summary>
        /// <exception cref="RefusedException">The question is none of its kind.</exception>
        public static Identity Of(byte[] certificate, ReferenceKind kind, string text,
            bool allowsUnderscores = true)
        {
            return Ask(Native.Calls.ortholan_identify, certificate, kind, text, allowsUnderscores);
        }

        /// <summary>The same of the value of an alternative-name extension alone.</summary>
        /// <exception cref="RefusedException">The question is none of its kind.</exception>
        public static Identity OfNames(byte[] names, ReferenceKind kind, string text,
            bool allowsUnderscores = true)
        {
            return Ask(Native.Calls.ortholan_identify_by_names, names, kind, text, allowsUnderscores);
        }

        private static Identity Ask(Asking asking, byte[] der, ReferenceKind kind, string text,
            bool allowsUnderscores)
        {
            using (var call = new Call())
            {
                var reference = (Native.Reference*)call.New(sizeof(Native.Reference));
                reference->kind = (int)kind;
                reference->text = call.Text(text);
                if (!allowsUnderscores)
                {
                    reference->choices = Native.Constants.ORTHOLAN_IDENTIFY_NO_UNDERSCORE;
                }
                var answer = (Native.Identity*)call.New(sizeof(Native.Identity));
                Native.Refusal place = RefusedException.NoPlace;
                RefusedException.ThrowIf(asking(call.Octets(der), reference, answer, &place), place);
                return new Identity(answer, reference);
            }
        }
    }
}
