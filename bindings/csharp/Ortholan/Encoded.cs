using System;

namespace Ortholan
{
    /// <summary>Something that is its octets: equality, order and hash are theirs.</summary>
    public abstract class Encoded<T> : IEquatable<T>, IComparable<T> where T : Encoded<T>
    {
        /// <summary>Octets that nobody else holds.</summary>
        private protected readonly byte[] octets;

        /// <summary>Takes octets that nobody else holds.</summary>
        private protected Encoded(byte[] octets)
        {
            this.octets = octets;
        }

        /// <inheritdoc/>
        public bool Equals(T other)
        {
            return !ReferenceEquals(other, null) && octets.AsSpan().SequenceEqual(other.octets);
        }

        /// <inheritdoc/>
        public override bool Equals(object other) => Equals(other as T);

        /// <inheritdoc/>
        public int CompareTo(T other)
        {
            return ReferenceEquals(other, null) ? 1 : octets.AsSpan().SequenceCompareTo(other.octets);
        }

        /// <inheritdoc/>
        public override int GetHashCode()
        {
            uint hash = 2166136261;
            foreach (byte octet in octets) hash = unchecked((hash ^ octet) * 16777619);
            return unchecked((int)hash);
        }

        /// <summary>Whether both hold the same octets.</summary>
        public static bool operator ==(Encoded<T> a, Encoded<T> b)
        {
            return ReferenceEquals(a, b) || (!ReferenceEquals(a, null) && a.Equals(b as T));
        }

        /// <summary>Whether they hold different octets.</summary>
        public static bool operator !=(Encoded<T> a, Encoded<T> b) => !(a == b);
    }
}
