using System;
using System.Runtime.InteropServices;

namespace Ortholan
{
    /// <summary>What was decided. Only Yes is a yes.</summary>
    public enum Verdict
    {
        /// <summary>The input does not let anybody decide: never to be taken for a yes.</summary>
        CannotTell = Native.Constants.ORTHOLAN_VERDICT_CANNOT_TELL,
        /// <summary>Yes.</summary>
        Yes = Native.Constants.ORTHOLAN_VERDICT_YES,
        /// <summary>No.</summary>
        No = Native.Constants.ORTHOLAN_VERDICT_NO,
    }

    /// <summary>How closely an encoding is read; verdicts never take Lenient.</summary>
    public enum Reading
    {
        /// <summary>DER, with the alphabets and encodings of string types.</summary>
        Der = Native.Constants.ORTHOLAN_READ_DER,
        /// <summary>Any definite form of a length, SETs in any order, strings outside their
        /// alphabet.</summary>
        Lenient = Native.Constants.ORTHOLAN_READ_LENIENT,
        /// <summary>DER but for what changes no meaning, and without a look at strings.</summary>
        Structure = Native.Constants.ORTHOLAN_READ_STRUCTURE,
    }

    /// <summary>Why something was refused or decided: an ORTHOLAN_REASON_ number.</summary>
    public static class Reason
    {
        /// <summary>One English sentence; empty for 0.</summary>
        public static unsafe string Sentence(int reason)
        {
            return Marshal.PtrToStringAnsi((IntPtr)Native.Calls.ortholan_reason_sentence(reason));
        }
    }

    /// <summary>An input that was refused; the message is one English sentence without a full
    /// stop.</summary>
    public sealed unsafe class RefusedException : Exception
    {
        private RefusedException(Native.Refusal place, int? item, string message) : base(message)
        {
            Reason = place.reason;
            Offset = place.offset == NoPlace.offset ? (long?)null : (long)place.offset;
            Met = place.met;
            Expected = place.expected;
            Item = item;
        }

        /// <summary>Why: an ORTHOLAN_REASON_ number.</summary>
        public int Reason { get; }

        /// <summary>Octets of the input before the place, where there is one; of text those of its
        /// UTF-8.</summary>
        public long? Offset { get; }

        /// <summary>Octet or character at the place; 0xFFFFFFFF where the input ended.</summary>
        public uint Met { get; }

        /// <summary>Identifier octet that the structure has there, or a bound; 0 where none.</summary>
        public uint Expected { get; }

        /// <summary>Which of several inputs was refused, from 0.</summary>
        public int? Item { get; }

        internal static Native.Refusal NoPlace
        {
            get
            {
                var place = new Native.Refusal();
                place.offset = UIntPtr.Size == 8 ? (UIntPtr)ulong.MaxValue : (UIntPtr)uint.MaxValue;
                return place;
            }
        }

        internal static void ThrowIf(int reason, Native.Refusal place, int? item = null, string message = null)
        {
            if (reason == Native.Constants.ORTHOLAN_REASON_NONE) return;
            if (reason == Native.Constants.ORTHOLAN_REASON_MEMORY) throw new OutOfMemoryException();
            place.reason = reason;
            Native.Refusal* refusal = &place;
            throw new RefusedException(place, item, message ?? Call.WriteText(
                (room, size, needs, _) => Native.Calls.ortholan_refusal_sentence(refusal, room, size, needs)));
        }
    }
}
