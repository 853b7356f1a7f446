using System;
using System.Collections.Generic;
using System.Net;

namespace Ortholan
{
    /// <summary>The nine kinds, by the number of their tag (RFC 5280 4.2.1.6).</summary>
    public enum NameKind
    {
        /// <summary>An other name.</summary>
        Other = Native.Constants.ORTHOLAN_NAME_OTHER,
        /// <summary>A mailbox, rfc822Name.</summary>
        Mail = Native.Constants.ORTHOLAN_NAME_MAIL,
        /// <summary>A DNS name.</summary>
        Dns = Native.Constants.ORTHOLAN_NAME_DNS,
        /// <summary>An X.400 address.</summary>
        X400 = Native.Constants.ORTHOLAN_NAME_X400,
        /// <summary>A distinguished name.</summary>
        Directory = Native.Constants.ORTHOLAN_NAME_DIRECTORY,
        /// <summary>An EDIPartyName.</summary>
        EdiParty = Native.Constants.ORTHOLAN_NAME_EDI_PARTY,
        /// <summary>A URI.</summary>
        Uri = Native.Constants.ORTHOLAN_NAME_URI,
        /// <summary>An address, in name constraints with its mask.</summary>
        Address = Native.Constants.ORTHOLAN_NAME_ADDRESS,
        /// <summary>An OBJECT IDENTIFIER.</summary>
        RegisteredId = Native.Constants.ORTHOLAN_NAME_REGISTERED_ID,
    }

    /// <summary>What alternative names come out as.</summary>
    public enum AlternativeNames
    {
        /// <summary>The value of the extension.</summary>
        Value = Native.Constants.ORTHOLAN_ALTERNATIVE_NAMES_VALUE,
        /// <summary>A whole Extension, critical, as a subject without names needs it.</summary>
        Critical = Native.Constants.ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL,
        /// <summary>A whole Extension that is not critical.</summary>
        Extension = Native.Constants.ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION,
    }

    /// <summary>One general name, held as its DER.</summary>
    public sealed unsafe class GeneralName : Encoded<GeneralName>
    {
        private readonly byte[] content;

        private GeneralName(Native.GeneralNameView* view) : base(Call.Copy(view->bytes))
        {
            Kind = (NameKind)view->kind;
            content = Call.Copy(view->content);
        }

        /// <summary>The kind.</summary>
        public NameKind Kind { get; }

        /// <summary>A copy of the whole element.</summary>
        public byte[] ToDer() => (byte[])octets.Clone();

        /// <summary>A copy of what it holds: characters, octets of an address, content of an identifier, the
        /// whole Name of a directory name; of other kinds what is inside the tag.</summary>
        public byte[] ToContent() => (byte[])content.Clone();

        /// <summary>The address of a name that is one without a mask, else null.</summary>
        public IPAddress Address
        {
            get
            {
                bool isAddress = Kind == NameKind.Address && (content.Length == 4 || content.Length == 16);
                return isAddress ? new IPAddress(content) : null;
            }
        }

        /// <summary>Makes a name of its text: "DNS:example.org", "IP:192.0.2.1", "UPN:joe@example.org". An
        /// address may have a mask.</summary>
        /// <exception cref="RefusedException"/>
        public static GeneralName Parse(string text)
        {
            using (var call = new Call())
            {
                Native.Text given = call.Text(text);
                return FromDer(Call.Write((room, size, needs, place) =>
                    Native.Calls.ortholan_general_name_from_text(given, 1, room, size, needs, place)),
                    Reading.Structure);
            }
        }

        /// <summary>Reads one name that is the whole of the octets.</summary>
        /// <exception cref="RefusedException"/>
        public static GeneralName FromDer(byte[] der, Reading reading = Reading.Der)
        {
            using (var call = new Call())
            {
                var view = (Native.GeneralNameView*)call.New(sizeof(Native.GeneralNameView));
                Native.Refusal place = RefusedException.NoPlace;
                int reason = Native.Calls.ortholan_general_name_view_read(call.Octets(der), (int)reading,
                    view, &place);
                RefusedException.ThrowIf(reason, place);
                return new GeneralName(view);
            }
        }

        /// <summary>Reads the value of an alternative-name extension.</summary>
        /// <exception cref="RefusedException"/>
        public static IReadOnlyList<GeneralName> ListFromDer(byte[] der, Reading reading = Reading.Der)
        {
            using (var call = new Call())
            {
                var list = (Native.GeneralNamesView*)call.New(sizeof(Native.GeneralNamesView));
                Native.Refusal place = RefusedException.NoPlace;
                int reason = Native.Calls.ortholan_general_names_view_read(call.Octets(der), (int)reading,
                    list, &place);
                RefusedException.ThrowIf(reason, place);
                var names = new List<GeneralName>();
                var each = (Native.GeneralNameView*)call.New(sizeof(Native.GeneralNameView));
                UIntPtr offset = UIntPtr.Zero;
                while (Native.Calls.ortholan_general_names_view_next(list, &offset, each) == 0)
                {
                    names.Add(new GeneralName(each));
                }
                return names;
            }
        }

        /// <summary>Writes alternative names, of one text each; the exception's Item says which was
        /// refused.</summary>
        /// <exception cref="RefusedException"/>
        public static byte[] WriteAlternativeNames(IReadOnlyList<string> texts,
            AlternativeNames form = AlternativeNames.Value)
        {
            using (var call = new Call())
            {
                var given = (Native.Text*)call.New(sizeof(Native.Text), texts.Count);
                for (int i = 0; i < texts.Count; ++i) given[i] = call.Text(texts[i]);
                UIntPtr* wrong = (UIntPtr*)call.New(sizeof(UIntPtr));
                Native.Refusal where = RefusedException.NoPlace;
                int reason = Call.TryWrite((room, size, needs, place) =>
                    Native.Calls.ortholan_alternative_names_from_text(given, (UIntPtr)texts.Count, (int)form,
                        room, size, needs, wrong, place), &where, out byte[] der);
                RefusedException.ThrowIf(reason, where, (int)*wrong);
                return der;
            }
        }

        /// <summary>"DNS:example.org"; what cannot be seen is escaped.</summary>
        public override string ToString()
        {
            using (var call = new Call())
            {
                Native.Octets given = call.Octets(octets);
                return Call.WriteText((room, size, needs, place) =>
                    Native.Calls.ortholan_general_name_to_text(given, room, size, needs, place));
            }
        }
    }
}
