using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Ortholan
{
    /// <summary>The order of RDNs in a text.</summary>
    public enum RdnOrder
    {
        /// <summary>The last RDN of the encoding first (RFC 4514 2.1).</summary>
        Reversed = Native.Constants.ORTHOLAN_RDNS_REVERSED,
        /// <summary>As they stand in the encoding.</summary>
        AsEncoded = Native.Constants.ORTHOLAN_RDNS_AS_ENCODED,
    }

    /// <summary>The string type of free text; types that prescribe one get theirs.</summary>
    public enum StringPolicy
    {
        /// <summary>PrintableString where its alphabet allows, else UTF8String.</summary>
        PrintableOrUtf8 = Native.Constants.ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8,
        /// <summary>UTF8String.</summary>
        Utf8 = Native.Constants.ORTHOLAN_STRINGS_UTF8,
    }

    /// <summary>What text looks like; by itself that of RFC 4514. Text that was written is read back with
    /// the same options.</summary>
    public sealed class TextOptions
    {
        /// <summary>The order of RDNs.</summary>
        public RdnOrder Order { get; set; }

        /// <summary>The string type of free text.</summary>
        public StringPolicy Strings { get; set; }

        /// <summary>commonName, not CN.</summary>
        public bool LongNames { get; set; }

        /// <summary>Digits of the encoding where a plain value would not be read as the same
        /// octets.</summary>
        public bool Exact { get; set; }

        /// <summary>Names of the caller's own for types, each with its dotted identifier; they come before
        /// those that the library knows.</summary>
        public IDictionary<string, string> Types { get; } = new Dictionary<string, string>();

        internal unsafe Native.Rfc4514Options* Plain(Call call)
        {
            var names = (Native.TypeName*)call.New(sizeof(Native.TypeName), Types.Count);
            int count = 0;
            foreach (KeyValuePair<string, string> type in Types)
            {
                names[count].name = call.Text(type.Key);
                names[count++].oid = call.Octets(ObjectIdentifier.FromText(type.Value));
            }
            var plain = (Native.Rfc4514Options*)call.New(sizeof(Native.Rfc4514Options));
            plain->order = (int)Order;
            plain->strings = (int)Strings;
            plain->long_names = LongNames ? 1 : 0;
            plain->exact = Exact ? 1 : 0;
            plain->names = names;
            plain->name_count = (UIntPtr)count;
            return plain;
        }
    }

    /// <summary>One attribute of a name.</summary>
    public sealed class NameAttribute
    {
        internal NameAttribute(string type, string text, byte[] value, int rdn)
        {
            Type = type;
            Text = text;
            Value = value;
            Rdn = rdn;
        }

        /// <summary>Dotted text of the type: "2.5.4.3".</summary>
        public string Type { get; }

        /// <summary>The value of a string, as it stands there, not escaped; null for a value that is no
        /// text.</summary>
        public string Text { get; }

        /// <summary>The whole element.</summary>
        public byte[] Value { get; }

        /// <summary>Index of its RDN.</summary>
        public int Rdn { get; }
    }

    /// <summary>A distinguished name (RFC 5280 4.1.2.4), held as its DER. Names that RFC 5280 holds for the
    /// same have the same key.</summary>
    public sealed unsafe class Name : Encoded<Name>
    {
        private readonly Reading reading;

        private Name(byte[] der, Reading reading) : base(der)
        {
            this.reading = reading;
            using (var call = new Call()) View(call);
        }

        /// <summary>Reads text of RFC 4514. The message of the exception says what is expected at which
        /// character.</summary>
        /// <exception cref="RefusedException"/>
        public static Name Parse(string text, TextOptions options = null)
        {
            using (var call = new Call())
            {
                Native.Text given = call.Text(text);
                Native.Rfc4514Options* plain = options == null ? null : options.Plain(call);
                Native.Refusal place = RefusedException.NoPlace;
                int reason = Call.TryWrite((room, size, needs, where) =>
                    Native.Calls.ortholan_rfc4514_read(given, plain, room, size, needs, where),
                    &place, out byte[] der);
                if (reason == 0) return new Name(der, Reading.Structure);
                var refusal = (Native.Refusal*)call.New(sizeof(Native.Refusal));
                *refusal = place;
                Call.TryWrite((room, size, needs, _) =>
                    Native.Calls.ortholan_rfc4514_sentence(given, refusal, room, size, needs),
                    &place, out byte[] sentence);
                RefusedException.ThrowIf(reason, place, null,
                    sentence == null ? null : Encoding.UTF8.GetString(sentence));
                return null;
            }
        }

        /// <summary>Makes a name of types and values, an RDN each, the most significant first. A type is a
        /// name such as CN or dotted digits; the exception's Item says which attribute was
        /// refused.</summary>
        /// <exception cref="RefusedException"/>
        public static Name Build(params (string Type, string Value)[] attributes)
        {
            using (var call = new Call())
            {
                var plain = (Native.NewAttribute*)call.New(sizeof(Native.NewAttribute), attributes.Length);
                for (int i = 0; i < attributes.Length; ++i)
                {
                    plain[i].type = call.Text(attributes[i].Type);
                    plain[i].text = call.Text(attributes[i].Value);
                }
                Native.Refusal where = RefusedException.NoPlace;
                int reason = Call.TryWrite((room, size, needs, place) => Native.Calls.ortholan_name_build(
                    plain, (UIntPtr)attributes.Length, null, room, size, needs, place), &where, out byte[] der);
                RefusedException.ThrowIf(reason, where, unchecked((int)where.met));
                return new Name(der, Reading.Structure);
            }
        }

        /// <summary>Reads a Name that is the whole of the octets.</summary>
        /// <exception cref="RefusedException"/>
        public static Name FromDer(ReadOnlySpan<byte> der, Reading reading = Reading.Der)
        {
            return new Name(der.ToArray(), reading);
        }

        /// <summary>A copy of the whole encoding.</summary>
        public byte[] ToDer() => (byte[])octets.Clone();

        private Native.NameView* View(Call call)
        {
            var view = (Native.NameView*)call.New(sizeof(Native.NameView));
            Native.Refusal place = RefusedException.NoPlace;
            int reason = Native.Calls.ortholan_name_view_read(call.Octets(octets), (int)reading, view, &place);
            RefusedException.ThrowIf(reason, place);
            return view;
        }

        /// <summary>The text of RFC 4514, safe to show and to log.</summary>
        public override string ToString() => ToText(null);

        /// <summary>The same with options.</summary>
        /// <exception cref="RefusedException"/>
        public string ToText(TextOptions options)
        {
            using (var call = new Call())
            {
                Native.NameView* view = View(call);
                Native.Rfc4514Options* plain = options == null ? null : options.Plain(call);
                return Call.WriteText((room, size, needs, place) =>
                    Native.Calls.ortholan_rfc4514_write(view, plain, room, size, needs, place));
            }
        }

        /// <summary>The attributes in the order of the encoding, the most significant RDN first.</summary>
        public IReadOnlyList<NameAttribute> Attributes
        {
            get
            {
                using (var call = new Call())
                {
                    Native.NameView* view = View(call);
                    var cursor = (Native.NameCursor*)call.New(sizeof(Native.NameCursor));
                    var found = (Native.AttributeView*)call.New(sizeof(Native.AttributeView));
                    var attributes = new NameAttribute[(int)view->attribute_count];
                    for (int i = 0; i < attributes.Length; ++i)
                    {
                        Native.Calls.ortholan_name_view_attribute(view, (UIntPtr)i, cursor, found);
                        attributes[i] = Read(found);
                    }
                    return attributes;
                }
            }
        }

        private static NameAttribute Read(Native.AttributeView* found)
        {
            Native.Refusal place = RefusedException.NoPlace;
            int reason = Call.TryWrite((room, size, needs, _) =>
                Native.Calls.ortholan_attribute_view_text(found, room, size, needs), &place, out byte[] text);
            return new NameAttribute(ObjectIdentifier.ToText(Call.Copy(found->type)),
                reason == 0 ? Encoding.UTF8.GetString(text) : null, Call.Copy(found->value), (int)found->rdn);
        }

        /// <summary>The texts of all attributes of a type: "2.5.4.3" is commonName.</summary>
        public IEnumerable<string> Values(string type)
        {
            return Attributes.Where(each => each.Type == type && each.Text != null).Select(each => each.Text);
        }

        /// <summary>Whether another name is the same; by itself as RFC 5280 7.1 has it.</summary>
        public Match Matches(Name other, MatchRule rule = MatchRule.Rfc5280)
        {
            return Match.Names(octets, other.octets, rule);
        }

        /// <summary>Whether the name begins with the RDNs of another.</summary>
        public Match IsWithin(Name subtree, MatchRule rule = MatchRule.Rfc5280)
        {
            return Match.Within(subtree.octets, octets, rule);
        }

        /// <summary>What the name is found by in dictionaries and databases.</summary>
        public MatchKey Key(MatchRule rule = MatchRule.Rfc5280) => MatchKey.Of(octets, rule);
    }
}
