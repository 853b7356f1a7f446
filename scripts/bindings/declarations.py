#!/usr/bin/env python3
"""Writes what bindings declare of <ortholan/strict.h>, from the headers.

    declarations.py          writes bindings/rust/ortholan-sys/... and bindings/csharp/...
    declarations.py --check  fails where they are not what the headers say

The C compiler's preprocessor (CC, or cc) strips comments and macros; what is left is read by regular
expressions, for which the headers are plain enough: one declarator a member and a parameter.
"""

import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOTE = "From <ortholan/strict.h>, by scripts/bindings/declarations.py: do not edit."
FIXED = {"ORTHOLAN_MET_END": "uint32_t", "ORTHOLAN_NO_PLACE": "size_t",
         "ORTHOLAN_DEFAULT_BUDGET": "uint64_t"}
VALUES = {"uint32_t": 2**32 - 1, "uint64_t": 16777216}

RUST = {"uint8_t": "u8", "uint16_t": "u16", "int32_t": "i32", "uint32_t": "u32", "int64_t": "i64",
        "uint64_t": "u64", "size_t": "usize", "char": "c_char",
        "ortholan_reason": "ortholan_reason", "ortholan_verdict": "ortholan_verdict"}
CSHARP = {"uint8_t": "byte", "uint16_t": "ushort", "int32_t": "int", "uint32_t": "uint",
          "int64_t": "long", "uint64_t": "ulong", "size_t": "UIntPtr", "char": "byte",
          "ortholan_reason": "int", "ortholan_verdict": "int"}
# Names of members and parameters that are words of the language.
RUST_WORDS = {"box", "in", "match", "mod", "ref", "type", "use", "where"}
CSHARP_WORDS = {"base", "event", "in", "is", "object", "out", "params", "ref", "string"}


class Declarator:
    """`const uint8_t* data` or `uint8_t address[16]`."""

    def __init__(self, text):
        found = re.fullmatch(r"(const )?(\w+)(?: |(?=\*))(\*?) ?(\w+)(?:\[(\d+)\])?", " ".join(text.split()))
        if not found:
            raise ValueError(f"not understood: {text}")
        self.const, self.base, self.pointer, self.name, self.count = found.groups()

    def rust(self):
        base = RUST.get(self.base, self.base)
        if self.count:
            return f"[{base}; {self.count}]"
        return f"*{'const' if self.const else 'mut'} {base}" if self.pointer else base

    def csharp(self):
        base = CSHARP.get(self.base, camel(self.base))
        return f"{base}*" if self.pointer else base


def camel(name):
    return "".join(part.capitalize() for part in name.removeprefix("ortholan_").split("_"))


def read():
    """Structures, constants and functions: {name: declarators}, {name: number}, {name: (result, ...)}."""
    command = [*os.environ.get("CC", "cc").split(), "-E", "-P", "-I", ROOT / "include",
               ROOT / "include/ortholan/strict.h"]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    structures = {name: [Declarator(each) for each in body.split(";") if each.strip()]
                  for body, name in re.findall(r"typedef struct \w+ \{([^}]*)\} (ortholan_\w+);", text)}
    constants = dict((name, int(number, 0)) for name, number in
                     re.findall(r"\b(ORTHOLAN_\w+) = (0x[0-9a-fA-F]+|\d+)", text))
    functions = {}
    pattern = r'visibility\("default"\)\)\)\s+((?:const )?\w+\*?)\s+(ortholan_\w+)\s*\(([^)]*)\);'
    for result, name, parameters in re.findall(pattern, text):
        listed = [] if parameters == "void" else parameters.split(",")
        functions[name] = (Declarator(result + " result"), [Declarator(each) for each in listed])
    return structures, constants, functions


def rust(structures, constants, functions):
    yield f"// {NOTE}\n\nuse std::os::raw::c_char;\n\n"
    yield "pub type ortholan_reason = i32;\npub type ortholan_verdict = i32;\n\n"
    for name, number in constants.items():
        yield f"pub const {name}: i32 = {number};\n"
    for name, kind in FIXED.items():
        number = VALUES.get(kind, f"{RUST[kind]}::MAX")
        yield f"pub const {name}: {RUST[kind]} = {number};\n"
    for name, members in structures.items():
        yield f"\n#[repr(C)]\n#[derive(Clone, Copy, Debug)]\npub struct {name} {{\n"
        yield from (f"    pub {escaped(each.name)}: {each.rust()},\n" for each in members)
        yield "}\n"
    yield '\nextern "C" {\n'
    for name, (result, parameters) in functions.items():
        yield f"    pub fn {name}(\n"
        yield from (f"        {escaped(each.name)}: {each.rust()},\n" for each in parameters)
        yield f"    ) -> {result.rust()};\n"
    yield "}\n"


def rust_layout(structures, constants, _):
    yield f"// {NOTE}\n// An expression of C, and its value here.\n\nuse ortholan_sys::*;\n\n"
    yield "pub fn layout() -> Vec<(&'static str, u64)> {\n    vec![\n"
    for name, members in structures.items():
        yield f'        ("sizeof({name})", size!({name})),\n'
        for each in members:
            yield (f'        ("offsetof({name}, {each.name})", '
                   f"offset!({name}, {escaped(each.name)})),\n")
    for name in [*constants, *FIXED]:
        yield f'        ("{name}", {name} as u64),\n'
    yield "    ]\n}\n"


def escaped(name):
    return f"r#{name}" if name in RUST_WORDS else name


def csharp(structures, constants, functions):
    yield f"// {NOTE}\n\nusing System;\nusing System.Runtime.InteropServices;\n\n"
    yield "namespace Ortholan.Native\n{\n"
    for name, members in structures.items():
        yield f"    [StructLayout(LayoutKind.Sequential)]\n    internal unsafe struct {camel(name)}\n    {{\n"
        for each in members:
            fixed = f"fixed {each.csharp()} {each.name}[{each.count}]" if each.count else (
                f"{each.csharp()} {csharp_name(each.name)}")
            yield f"        public {fixed};\n"
        yield "    }\n\n"
    yield "    internal static class Constants\n    {\n"
    for name, number in constants.items():
        yield f"        public const int {name} = {number};\n"
    yield "    }\n\n    internal static unsafe class Calls\n    {\n"
    yield '        private const string Library = "ortholan";\n'
    for name, (result, parameters) in functions.items():
        listed = ", ".join(f"{each.csharp()} {csharp_name(each.name)}" for each in parameters)
        yield "\n        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]\n"
        yield f"        public static extern {result.csharp()} {name}({listed});\n"
    yield "    }\n}\n"


def csharp_name(name):
    return "@" + name if name in CSHARP_WORDS else name


FILES = {
    "bindings/rust/ortholan-sys/src/declarations.rs": rust,
    "bindings/rust/ortholan-sys/tests/layout/table.rs": rust_layout,
    "bindings/csharp/Ortholan/Native.cs": csharp,
}


def main():
    declared, stale = read(), []
    for file, write in FILES.items():
        path, text = ROOT / file, "".join(write(*declared))
        if path.exists() and path.read_text(encoding="utf-8") == text:
            continue
        if sys.argv[1:] == ["--check"]:
            stale.append(file)
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    if stale:
        sys.exit(f"declarations.py: not as the headers have it, run it: {' '.join(stale)}")


if __name__ == "__main__":
    main()
