using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using NUnit.Framework;

namespace Ortholan.Tests
{
    /// <summary>Sizes, offsets and constants as a C compiler has them by the installed headers.</summary>
    [TestFixture]
    public class LayoutTests
    {
        private static readonly Assembly Library = typeof(Name).Assembly;

        /// <summary>"NameView" is ortholan_name_view.</summary>
        private static string NameInC(Type structure)
        {
            return "ortholan" + string.Concat(structure.Name.Select(letter =>
                char.IsUpper(letter) ? "_" + char.ToLowerInvariant(letter) : letter.ToString()));
        }

        /// <summary>Expressions of C, and their values here.</summary>
        private static IEnumerable<KeyValuePair<string, long>> Declared()
        {
            BindingFlags members = BindingFlags.Public | BindingFlags.NonPublic | BindingFlags.Static;
            foreach (FieldInfo field in Library.GetType("Ortholan.Native.Constants").GetFields(members))
            {
                yield return new KeyValuePair<string, long>(field.Name, (int)field.GetRawConstantValue());
            }
            foreach (Type structure in Library.GetTypes().Where(each =>
                each.Namespace == "Ortholan.Native" && each.IsValueType && !each.IsNested))
            {
                string name = NameInC(structure);
                yield return new KeyValuePair<string, long>($"sizeof({name})", Marshal.SizeOf(structure));
                foreach (FieldInfo field in structure.GetFields())
                {
                    yield return new KeyValuePair<string, long>($"offsetof({name}, {field.Name})",
                        (long)Marshal.OffsetOf(structure, field.Name));
                }
            }
        }

        private static string Run(string program, string arguments)
        {
            var start = new ProcessStartInfo(program, arguments)
            {
                UseShellExecute = false,
                RedirectStandardOutput = true,
            };
            using (Process process = Process.Start(start))
            {
                string output = process.StandardOutput.ReadToEnd();
                process.WaitForExit();
                Assert.AreEqual(0, process.ExitCode, program);
                return output;
            }
        }

        [Test]
        public void DeclarationsAreThoseOfTheHeaders()
        {
            List<KeyValuePair<string, long>> declared = Declared().ToList();
            string directory = Directory.CreateDirectory(Path.Combine(Path.GetTempPath(),
                "ortholan-layout-" + Process.GetCurrentProcess().Id)).FullName;
            string source = Path.Combine(directory, "layout.c"), program = Path.Combine(directory, "layout");
            File.WriteAllText(source, "#include <ortholan/strict.h>\n#include <stddef.h>\n" +
                "#include <stdio.h>\nint main(void) {\n" + string.Concat(declared.Select(each =>
                $"  printf(\"%lld\\n\", (long long)({each.Key}));\n")) + "  return 0;\n}\n");
            string flags = Run("pkg-config", "--cflags ortholan").Trim();
            Run("cc", $"{flags} -o {program} {source}");
            string[] compiled = Run(program, "").Trim().Split('\n');
            Directory.Delete(directory, true);
            Assert.AreEqual(declared.Select(each => each.Key + " " + each.Value),
                declared.Zip(compiled, (each, value) => each.Key + " " + value));
        }
    }
}
