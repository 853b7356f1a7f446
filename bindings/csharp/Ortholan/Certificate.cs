using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;

namespace Ortholan
{
    /// <summary>What was read.</summary>
    public enum CertificateKind
    {
        /// <summary>A certificate.</summary>
        Certificate = Native.Constants.ORTHOLAN_CERTIFICATE,
        /// <summary>A certificate request (RFC 2986).</summary>
        Request = Native.Constants.ORTHOLAN_CERTIFICATE_REQUEST,
        /// <summary>A CRL.</summary>
        RevocationList = Native.Constants.ORTHOLAN_REVOCATION_LIST,
    }

    /// <summary>One extension.</summary>
    public sealed unsafe class Extension
    {
        internal Extension(Native.ExtensionView* view)
        {
            Type = ObjectIdentifier.ToText(Call.Copy(view->oid));
            IsCritical = view->critical != 0;
            Value = Call.Copy(view->value);
        }

        /// <summary>Dotted text of the type.</summary>
        public string Type { get; }

        /// <summary>Whether it is critical.</summary>
        public bool IsCritical { get; }

        /// <summary>What is inside the OCTET STRING.</summary>
        public byte[] Value { get; }
    }

    /// <summary>A certificate, a request or a CRL (RFC 5280 4.1 and 5.1, RFC 2986 4). Parts that the kind has
    /// not are null. Keys and signatures are not looked at.</summary>
    public sealed unsafe class Certificate
    {
        private const string AlternativeNamesType = "2.5.29.17";
        private readonly Reading reading;
        private readonly byte[] der, subject, issuer, serial, notBefore, notAfter;

        private Certificate(Native.CertificateView* view, Reading reading)
        {
            this.reading = reading;
            Kind = (CertificateKind)view->kind;
            der = Call.Copy(view->der);
            subject = Call.Copy(view->subject);
            issuer = Call.Copy(view->issuer);
            serial = Call.Copy(view->serial);
            notBefore = Call.Copy(view->not_before);
            notAfter = Call.Copy(view->not_after);
            var extensions = new List<Extension>();
            Native.ExtensionView each;
            UIntPtr offset = UIntPtr.Zero;
            while (Native.Calls.ortholan_certificate_view_next_extension(view, &offset, &each) == 0)
            {
                extensions.Add(new Extension(&each));
            }
            Extensions = extensions;
        }

        /// <summary>Reads one that is the whole of the octets. The outer shape is checked; names, times and
        /// the values of extensions are where they are asked for.</summary>
        /// <exception cref="RefusedException"/>
        public static Certificate FromDer(byte[] der, Reading reading = Reading.Der)
        {
            using (var call = new Call())
            {
                var view = (Native.CertificateView*)call.New(sizeof(Native.CertificateView));
                Native.Refusal place = RefusedException.NoPlace;
                int reason = Native.Calls.ortholan_certificate_view_read(call.Octets(der), (int)reading,
                    view, &place);
                RefusedException.ThrowIf(reason, place);
                return new Certificate(view, reading);
            }
        }

        /// <summary>The kind.</summary>
        public CertificateKind Kind { get; }

        /// <summary>A copy of the whole encoding.</summary>
        public byte[] ToDer() => (byte[])der.Clone();

        /// <summary>The subject; a CRL has none.</summary>
        public Name Subject => subject.Length == 0 ? null : Name.FromDer(subject, reading);

        /// <summary>The issuer; a request has none.</summary>
        public Name Issuer => issuer.Length == 0 ? null : Name.FromDer(issuer, reading);

        /// <summary>Content octets of the serial number; a certificate alone has one.</summary>
        public byte[] SerialNumber => serial.Length == 0 ? null : (byte[])serial.Clone();

        /// <summary>The start of its validity; of a CRL thisUpdate.</summary>
        public DateTimeOffset? NotBefore => Moment(notBefore);

        /// <summary>The end of its validity; of a CRL nextUpdate.</summary>
        public DateTimeOffset? NotAfter => Moment(notAfter);

        /// <summary>The extensions; of a request those that it asks for.</summary>
        public IReadOnlyList<Extension> Extensions { get; }

        /// <summary>The subject's alternative names; none without that extension.</summary>
        /// <exception cref="RefusedException">The list is out of form, or stands there twice.</exception>
        public IReadOnlyList<GeneralName> AlternativeNames
        {
            get
            {
                List<Extension> found = Extensions.Where(each => each.Type == AlternativeNamesType).ToList();
                if (found.Count == 0) return Array.Empty<GeneralName>();
                if (found.Count > 1)
                {
                    RefusedException.ThrowIf(Native.Constants.ORTHOLAN_REASON_DUPLICATE_EXTENSION,
                        RefusedException.NoPlace);
                }
                return GeneralName.ListFromDer(found[0].Value, reading);
            }
        }

        /// <summary>Whether the certificate is for a host, an address, a mailbox, a URI or a
        /// service.</summary>
        public Identity Identify(ReferenceKind kind, string text) => Identity.Of(der, kind, text);

        private static DateTimeOffset? Moment(byte[] element)
        {
            if (element.Length == 0) return null;
            using (var call = new Call())
            {
                Native.Octets given = call.Octets(element);
                return DateTimeOffset.Parse(Call.WriteText((room, size, needs, _) =>
                    Native.Calls.ortholan_time_to_text(given, room, size, needs)),
                    CultureInfo.InvariantCulture);
            }
        }
    }
}
