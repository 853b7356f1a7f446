#!/usr/bin/env python3
"""What the build uses of CMake though it came later than the version that the build asks for.

    cmake_version.py SOURCE_DIR

The table follows CMake's release notes. Tests and packaging may use more, and say so themselves.
"""
import pathlib
import re
import sys

LATER = [
    ("3.17", r"\bIN ZIP_LISTS\b|\bCMAKE_CURRENT_FUNCTION|\bCHECK_START\b"),
    ("3.18", r"\bfile\((?:CONFIGURE|ARCHIVE_)|\bcmake_language\("),
    ("3.19", r"\bstring\(JSON|\bfile\((?:CHMOD|REAL_PATH)|\bCOMMAND_ERROR_IS_FATAL\b|\$<CONFIG:\w+,"),
    ("3.20", r"\bcmake_path\("),
    ("3.21", r"\bPROJECT_IS_TOP_LEVEL\b|\$<TARGET_RUNTIME_DLLS|\bfile\(COPY_FILE"),
    ("3.23", r"\bFILE_SET\b"),
    ("3.24", r"\$<PATH:|\bFIND_PACKAGE_ARGS\b|\$<LINK_LIBRARY:|\bCOMPILE_WARNING_AS_ERROR\b"),
    ("3.25", r"\bblock\("),
]


def number(version):
    return tuple(int(part) for part in version.split("."))


def main():
    root = pathlib.Path(sys.argv[1])
    asked = re.search(r"cmake_minimum_required\(VERSION ([\d.]+)",
                      (root / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
    files = [root / "CMakeLists.txt", root / "examples/CMakeLists.txt"]
    files += [file for file in (root / "cmake").glob("*.cmake")
              if not file.name.startswith("package")]
    faults = []
    for file in files:
        text = re.sub(r"(?m)^\s*#.*", "", file.read_text(encoding="utf-8"))
        for version, pattern in LATER:
            for found in re.finditer(pattern, text):
                if number(version) > number(asked):
                    faults.append(f"{file.relative_to(root)}: {found[0]} came with CMake {version}, "
                                  f"and {asked} is asked for")
    sys.exit("\n".join(faults) or None)


main()
