using System;
using System.Collections.Generic;
using System.Text;

namespace Ortholan
{
    /// <summary>A block of PEM text (RFC 7468).</summary>
    public sealed unsafe class PemBlock
    {
        private PemBlock(Native.PemBlock* block)
        {
            Label = Encoding.UTF8.GetString(block->label.data, (int)block->label.size);
            Octets = Call.Write((room, size, needs, _) =>
                Native.Calls.ortholan_pem_octets(block, room, size, needs));
        }

        /// <summary>"CERTIFICATE"</summary>
        public string Label { get; }

        /// <summary>What its base64 stands for.</summary>
        public byte[] Octets { get; }

        /// <summary>All blocks of a text, whatever stands between them.</summary>
        /// <exception cref="RefusedException">A block is out of form.</exception>
        public static IReadOnlyList<PemBlock> ReadAll(string text)
        {
            using (var call = new Call())
            {
                var blocks = new List<PemBlock>();
                Native.Text given = call.Text(text);
                var block = (Native.PemBlock*)call.New(sizeof(Native.PemBlock));
                UIntPtr offset = UIntPtr.Zero;
                while (true)
                {
                    Native.Refusal place = RefusedException.NoPlace;
                    int reason = Native.Calls.ortholan_pem_next(given, &offset, block, &place);
                    if (reason == Native.Constants.ORTHOLAN_REASON_NOT_FOUND) return blocks;
                    RefusedException.ThrowIf(reason, place);
                    blocks.Add(new PemBlock(block));
                }
            }
        }
    }
}
