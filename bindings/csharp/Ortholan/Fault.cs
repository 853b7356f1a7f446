using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Ortholan
{
    /// <summary>One thing that RFC 5280 forbids in a certificate, a request or a CRL.</summary>
    public sealed unsafe class Fault
    {
        private Fault(Native.Fault* fault)
        {
            Rule = Marshal.PtrToStringAnsi((IntPtr)fault->rule);
            Section = Marshal.PtrToStringAnsi((IntPtr)fault->section);
            Sentence = Marshal.PtrToStringAnsi((IntPtr)fault->sentence);
            Extension = Call.Copy(fault->extension);
            Part = Call.Copy(fault->part);
        }

        /// <summary>"path-length-without-ca"; stays the same.</summary>
        public string Rule { get; }

        /// <summary>Of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6".</summary>
        public string Section { get; }

        /// <summary>What is wrong, without a full stop; may change.</summary>
        public string Sentence { get; }

        /// <summary>Content octets of the identifier of the extension that it is about, be it
        /// missing.</summary>
        public byte[] Extension { get; }

        /// <summary>Where in the input; empty where something is missing.</summary>
        public byte[] Part { get; }

        /// <summary>Everything that RFC 5280 forbids in a certificate, a request or a CRL: as a whole, in its
        /// names, in each extension. Keys, signatures and times are not looked at.</summary>
        /// <exception cref="RefusedException">The octets are none of the three.</exception>
        public static IReadOnlyList<Fault> Check(byte[] der)
        {
            using (var call = new Call())
            {
                Native.Octets given = call.Octets(der);
                UIntPtr count = (UIntPtr)16;
                int room = 0;
                Native.Fault* found = null;
                while (room < (int)count)
                {
                    room = (int)count;
                    found = (Native.Fault*)call.New(sizeof(Native.Fault), room);
                    Native.Refusal place = RefusedException.NoPlace;
                    int reason = Native.Calls.ortholan_check(given, found, (UIntPtr)room, &count, &place);
                    RefusedException.ThrowIf(reason, place);
                }
                var faults = new List<Fault>();
                for (int i = 0; i < (int)count; ++i) faults.Add(new Fault(found + i));
                return faults;
            }
        }
    }
}
