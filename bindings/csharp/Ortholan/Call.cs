using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

namespace Ortholan
{
    /// <summary>Calls a function that writes into room.</summary>
    internal unsafe delegate int Writing(byte* room, UIntPtr size, UIntPtr* needs, Native.Refusal* place);

    /// <summary>Memory that lasts as long as a call: what goes in, pinned, and structures. Views that come
    /// out point into what went in, and are copied before the end.</summary>
    internal sealed unsafe class Call : IDisposable
    {
        private readonly List<GCHandle> pinned = new List<GCHandle>();
        private readonly List<NativeMemory> blocks = new List<NativeMemory>();

        public void Dispose()
        {
            foreach (GCHandle handle in pinned) handle.Free();
            foreach (NativeMemory block in blocks) block.Dispose();
        }

        public Native.Octets Octets(byte[] octets)
        {
            if (octets == null) throw new ArgumentNullException(nameof(octets));
            if (octets.Length == 0) return default(Native.Octets);
            GCHandle handle = GCHandle.Alloc(octets, GCHandleType.Pinned);
            pinned.Add(handle);
            return new Native.Octets
            {
                data = (byte*)handle.AddrOfPinnedObject(),
                size = (UIntPtr)octets.Length,
            };
        }

        public Native.Text Text(string text)
        {
            Native.Octets octets = Octets(Encoding.UTF8.GetBytes(text));
            return new Native.Text { data = octets.data, size = octets.size };
        }

        /// <summary>Room for structures of a size, of zeros.</summary>
        public void* New(int size, int count = 1)
        {
            var block = new NativeMemory(checked(Math.Max(1, count) * size));
            blocks.Add(block);
            return (void*)block.DangerousGetHandle();
        }

        public static byte[] Copy(Native.Octets view)
        {
            return new ReadOnlySpan<byte>(view.data, checked((int)view.size)).ToArray();
        }

        /// <summary>What a function writes, or the reason why it does not.</summary>
        public static int TryWrite(Writing writing, Native.Refusal* place, out byte[] written)
        {
            var room = new byte[256];
            while (true)
            {
                UIntPtr needs = UIntPtr.Zero;
                int reason;
                fixed (byte* start = room) reason = writing(start, (UIntPtr)room.Length, &needs, place);
                if (reason == Native.Constants.ORTHOLAN_REASON_ROOM && (ulong)needs > (ulong)room.Length)
                {
                    room = new byte[checked((int)needs)];
                    continue;
                }
                written = reason == 0 ? room.AsSpan(0, (int)needs).ToArray() : null;
                return reason;
            }
        }

        /// <summary>The same; a reason is thrown.</summary>
        public static byte[] Write(Writing writing)
        {
            Native.Refusal place = RefusedException.NoPlace;
            int reason = TryWrite(writing, &place, out byte[] written);
            RefusedException.ThrowIf(reason, place);
            return written;
        }

        public static string WriteText(Writing writing) => Encoding.UTF8.GetString(Write(writing));
    }

    /// <summary>Memory of zeros outside the managed heap, released once.</summary>
    internal sealed class NativeMemory : SafeHandle
    {
        public NativeMemory(int size) : base(IntPtr.Zero, true)
        {
            SetHandle(Marshal.AllocHGlobal(size));
            Marshal.Copy(new byte[size], 0, handle, size);
        }

        public override bool IsInvalid => handle == IntPtr.Zero;

        protected override bool ReleaseHandle()
        {
            Marshal.FreeHGlobal(handle);
            return true;
        }
    }
}
