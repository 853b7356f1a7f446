namespace Ortholan
{
    /// <summary>Values of extensions as JSON and as plain words, and back; the header
    /// ortholan/strict/extensions.h says what the JSON looks like.</summary>
    public static unsafe class ExtensionJson
    {
        /// <summary>The value in one line: {"cA":true,"pathLenConstraint":0}. Of an extension that is not
        /// known it is its octets.</summary>
        /// <exception cref="RefusedException">The value is not of the extension's structure.</exception>
        public static string ToJson(this Extension extension)
        {
            using (var call = new Call())
            {
                Native.Octets oid = call.Octets(ObjectIdentifier.FromText(extension.Type));
                Native.Octets value = call.Octets(extension.Value);
                return Call.WriteText((room, size, needs, place) => Native.Calls.ortholan_extension_json(
                    oid, value, (int)Reading.Der, room, size, needs, place));
            }
        }

        /// <summary>The same in plain words, a line for each fact; safe to show.</summary>
        /// <exception cref="RefusedException">The value is not of the extension's structure.</exception>
        public static string ToWords(this Extension extension)
        {
            using (var call = new Call())
            {
                Native.Octets oid = call.Octets(ObjectIdentifier.FromText(extension.Type));
                Native.Octets value = call.Octets(extension.Value);
                return Call.WriteText((room, size, needs, place) => Native.Calls.ortholan_extension_text(
                    oid, value, (int)Reading.Der, System.UIntPtr.Zero, room, size, needs, place));
            }
        }

        /// <summary>All extensions of a certificate as a JSON array of objects with oid, name, critical and
        /// value. A value that is refused stands there by its octets, with a refusal behind it.</summary>
        public static string ExtensionsToJson(this Certificate certificate)
        {
            using (var call = new Call())
            {
                Native.Octets der = call.Octets(certificate.ToDer());
                return Call.WriteText((room, size, needs, place) => Native.Calls.ortholan_extensions_json(
                    der, (int)Reading.Der, room, size, needs, place));
            }
        }

        /// <summary>The value of an extension in DER from its JSON, by the extension's name or dotted
        /// digits.</summary>
        /// <exception cref="RefusedException">A place of the JSON is wrong.</exception>
        public static byte[] ValueFromJson(string name, string json)
        {
            using (var call = new Call())
            {
                Native.Text known = call.Text(name), given = call.Text(json);
                return Call.Write((room, size, needs, place) =>
                    Native.Calls.ortholan_extension_from_json(known, given, room, size, needs, place));
            }
        }

        /// <summary>Extensions in DER from JSON: an array as ExtensionsToJson puts it becomes SEQUENCE OF
        /// Extension, a single object of it one Extension.</summary>
        /// <exception cref="RefusedException">A place of the JSON is wrong.</exception>
        public static byte[] ExtensionsFromJson(string json)
        {
            using (var call = new Call())
            {
                Native.Text given = call.Text(json);
                return Call.Write((room, size, needs, place) =>
                    Native.Calls.ortholan_extensions_from_json(given, room, size, needs, place));
            }
        }
    }
}
