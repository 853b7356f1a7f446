using System.Text;

namespace Ortholan
{
    /// <summary>OBJECT IDENTIFIERs as dotted text, with arcs of any size (X.690 8.19).</summary>
    public static unsafe class ObjectIdentifier
    {
        /// <summary>The content octets.</summary>
        public static byte[] FromText(string text)
        {
            using (var call = new Call())
            {
                Native.Text given = call.Text(text);
                return Call.Write((room, size, needs, _) =>
                    Native.Calls.ortholan_oid_from_text(given, room, size, needs));
            }
        }

        /// <summary>The text of content octets.</summary>
        public static string ToText(byte[] oid)
        {
            using (var call = new Call())
            {
                Native.Octets given = call.Octets(oid);
                return Call.WriteText((room, size, needs, _) =>
                    Native.Calls.ortholan_oid_to_text(given, room, size, needs));
            }
        }
    }
}
