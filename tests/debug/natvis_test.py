#!/usr/bin/env python3
"""Visual Studio's view of the classes: well-formed, and about members that there are.

  natvis_test.py NATVIS ROOT

The expressions are C++ that only Visual Studio evaluates; here their names are looked up in the
declarations of the classes below ROOT.
"""
import re
import sys
import xml.etree.ElementTree as tree

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"
# What an element holds.
EXPRESSIONS = ["Item", "Size", "ValuePointer", "ExpandedItem", "StringView"]
TEXTS = ["DisplayString"]
GROUPS = ["Expand", "ArrayItems"]
# Where the members of each class are declared.
SOURCES = {
    "IdentObj": ["include/ortholan/platform.h"],
    "X509Name": ["include/ortholan/platform.h"],
    "CZEPString": ["include/ortholan/zep_string.h", "foundation/zep_string.cpp"],
    "RDNAttr": ["include/ortholan/rdn.h"],
    "SimpleRDN": ["include/ortholan/rdn.h"],
    "GeneralName": ["include/ortholan/general_name.h"],
    "CertExtension": ["include/ortholan/cert_extension.h", "include/ortholan/platform.h"],
}
WORDS = {"nullptr", "this", "char", "Ortholan", "IdentObj"}
SPECIFIER = re.compile(r",(\[.*\])?(nvoXb|Xb|na|d|en)?$")

failures = []


def names(expression):
    """What a format specifier follows, and its length, which is an expression as well."""
    found = SPECIFIER.search(expression)
    length = found.group(1) or "" if found else ""
    return set(re.findall(r"[A-Za-z_]\w*", SPECIFIER.sub("", expression) + " " + length))


def expressions(element):
    kind = element.tag.removeprefix(NAMESPACE)
    if kind in TEXTS:
        text = element.text
        if text.count("{") != text.count("}"):
            failures.append(f"braces: {text}")
        yield from re.findall(r"\{([^{}]*)\}", text)
    elif kind in EXPRESSIONS:
        yield element.text
    elif kind not in GROUPS:
        failures.append(f"element {kind}")
    if "Condition" in element.attrib:
        yield element.attrib["Condition"]
    for child in element:
        yield from expressions(child)


def declarations(root, name):
    text = ""
    for path in SOURCES[name]:
        with open(f"{root}/{path}", encoding="utf-8") as file:
            # A declared member: its type in front of it, and what ends the declaration behind it.
            text += re.sub(r"//.*", "", file.read())
    return set(re.findall(r"[\w>*&]\s+\*?(\w+)\s*(?:=[^;]*)?;", text))


def main():
    root = sys.argv[2]
    types = tree.parse(sys.argv[1]).getroot()
    if types.tag != NAMESPACE + "AutoVisualizer":
        failures.append(f"root {types.tag}")
    seen = set()
    for each in types.findall(NAMESPACE + "Type"):
        name = each.attrib["Name"].removeprefix("Ortholan::")
        seen.add(name)
        known = declarations(root, name)
        used = set().union(*(names(text) for child in each for text in expressions(child)))
        if not used - WORDS:
            failures.append(f"{name}: shows no member")
        failures.extend(f"{name}: there is no {word}" for word in sorted(used - WORDS - known))
    if seen != set(SOURCES):
        failures.append(f"types: {sorted(seen)}")
    for failure in failures:
        print(failure, file=sys.stderr)
    print(f"natvis_test.py: {len(seen)} types, {len(failures)} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
