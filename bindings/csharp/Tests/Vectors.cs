using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using NUnit.Framework;

namespace Ortholan.Tests
{
    /// <summary>A row of a file of tests/data/vectors/: CONTRIBUTING.md tells their form.</summary>
    internal sealed class Row
    {
        private readonly Dictionary<string, string> cells = new Dictionary<string, string>();
        private readonly string line;

        private Row(string[] columns, string line)
        {
            this.line = line;
            string[] found = line.Split('\t');
            for (int i = 0; i < found.Length; ++i) cells[columns[i]] = Cell(found[i]);
        }

        /// <summary>Hands each row to a test.</summary>
        public static void Each(string file, Action<Row> test)
        {
            string[] lines = File.ReadAllText(Path.Combine(Data, "vectors", file)).Split('\n');
            lines = lines.Where(line => line != "" && line[0] != '#').ToArray();
            Assert.That(lines.Length, Is.GreaterThan(1));
            string[] columns = lines[0].Split('\t');
            foreach (Row row in lines.Skip(1).Select(line => new Row(columns, line))) test(row);
        }

        public static string Data => Environment.GetEnvironmentVariable("ORTHOLAN_TEST_DATA");

        public string this[string column] => cells.TryGetValue(column, out string cell) ? cell : "";

        public byte[] Octets(string column) => Hex.Octets(this[column]);

        public void Same(object expected, object found) => Assert.AreEqual(expected, found, line);

        private static string Cell(string cell)
        {
            if (!cell.StartsWith("\"", StringComparison.Ordinal)) return cell;
            return Regex.Replace(cell.Substring(1, cell.Length - 2), @"\\(u....|.)", escape =>
            {
                string name = escape.Groups[1].Value;
                if (name.Length > 1) return ((char)Convert.ToInt32(name.Substring(1), 16)).ToString();
                int known = "nrtbf".IndexOf(name, StringComparison.Ordinal);
                return known < 0 ? name : "\n\r\t\b\f".Substring(known, 1);
            });
        }
    }

    internal static class Hex
    {
        public static byte[] Octets(string digits)
        {
            return Enumerable.Range(0, digits.Length / 2)
                .Select(i => Convert.ToByte(digits.Substring(2 * i, 2), 16)).ToArray();
        }

        public static string Digits(byte[] octets) => BitConverter.ToString(octets).Replace("-", "");
    }
}
