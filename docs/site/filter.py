#!/usr/bin/env python3
"""Hands a public header to Doxygen: filter.py FILE.

Doxygen does not notice a filter that fails: filter.py --check FILE... tells beforehand.

Headers are written for people who read them in an editor, with plain // comments. Here they become
what Doxygen takes for documentation:

- The comment that opens a header describes the file. Any other describes the declaration on the
  next line, and the overloads and the Try form that follow without a comment of their own.
- "// ---- Title ---" opens a group of declarations.
- Lines set in by three blanks or more explain parameters ("name  text"), or are kept as they stand.
- A comment behind a field or an enumerator describes it.
- Copying, moving and releasing need no words where they do what their names say.
"""
import re
import sys

COMMENT = re.compile(r"^(\s*)//(?!/)(.*)$")
TRAILING = re.compile(r"^(.*\S)\s+// (.*)$")
SECTION = re.compile(r"^ -+ (.*?) -+$")
SET_IN = re.compile(r"^ {3,}\S")
ENTRY = re.compile(r"^ {3}(\w+)  +(\S.*)$")
HEADED = re.compile(r"^ (\w+)\. +(\S.*)$")
HANGING = re.compile(r"^ {8,}\S")
SCOPE = re.compile(r"^\s*(?:typedef )?(class|struct|enum|union|namespace|extern)\b[^;]*\{$")
NAME = re.compile(r"(~?\w+|operator\s*(?:\(\)|[^\s(]+))\s*\(")


def escape(text):
    """Text in which Doxygen sees no commands; code between backquotes stays."""
    parts = text.split("`")
    for i in range(0, len(parts), 2):
        parts[i] = re.sub(r"([\\@#*|]|\b_|_\b)", r"\\\1", parts[i])
        parts[i] = parts[i].replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
    return "`".join(parts)


def render(lines, parameters=(), opening=False):
    """The documentation lines for the comment `lines` (without their slashes)."""
    out = []
    if opening:
        out.append("@file")
    i = 0
    while i < len(lines):
        line = lines[i]
        headed = HEADED.match(line)
        if headed and i + 1 < len(lines) and HANGING.match(lines[i + 1]):
            out.append(f"- **{headed[1]}.** {escape(headed[2])}")
            i += 1
            while i < len(lines) and SET_IN.match(lines[i]):
                out.append("  " + escape(lines[i].strip()))
                i += 1
            continue
        if not SET_IN.match(line):
            out.append(escape(line.strip()))
            i += 1
            continue
        block = []
        while i < len(lines) and (SET_IN.match(lines[i]) or
                                  (not lines[i].strip() and i + 1 < len(lines) and
                                   SET_IN.match(lines[i + 1]))):
            block.append(lines[i])
            i += 1
        entry = ENTRY.match(block[0])
        if entry and entry[1] in parameters:
            for text in block:
                entry = ENTRY.match(text)
                if entry and entry[1] in parameters:
                    out.append(f"@param {entry[1]} {escape(entry[2])}")
                else:
                    out.append("  " + escape(text.strip()))
            # What follows belongs to the function again.
            out.append("@par")
            continue
        fence = ("code{.cpp}", "endcode") if opening else ("code{.unparsed}", "endcode")
        out.append("@" + fence[0])
        out.extend(text[3:] for text in block)
        out.append("@" + fence[1])
    while out and out[-1] in ("", "@par"):
        out.pop()
    return out


def declared_name(text):
    """What a declaration declares, "" where it is none that can be overloaded."""
    text = re.sub(r"\bnoexcept\b|\bORTHOLAN_\w+ ", "", text)
    if re.match(r"\s*operator CERT", text):
        return "operator"
    match = NAME.search(text)
    return re.sub(r"\s", "", match[1]) if match else ""


def family(name):
    """Overloads, operators, and the forms whose names start with Try or end with _n are one."""
    if name.startswith("operator") and name != "operator=":
        return "operator " + ("order" if name[8:] in ("<", ">") else name[8:])
    return re.sub(r"_n$", "", re.sub(r"^Try", "", name))


# Members that are known by their names from the standard library.
KNOWN = {
    "A container's.": {"data", "size", "empty", "begin", "end", "operator[]"},
    "As std::optional has it.": {"has_value", "value", "operator->", "operator*"},
    "As std::exception has it.": {"what"},
    "Why there is no value.": {"refusal"},
    "Whether both hold the same.": {"operator==", "operator!="},
}


def special(text, name, scope):
    """Words for the member functions that every class has."""
    argument = re.search(r"\((.*)\)", text)
    argument = argument[1] if argument else ""
    own = re.match(rf"(const )?{scope}\s*(&&?)", argument) if scope else None
    if "= delete" in text:
        return "Not to be copied."
    if name == scope and argument in ("", "void"):
        return "An object that holds nothing yet."
    if name == "~" + scope:
        return "Releases what the object holds."
    if own and name == scope:
        return "Takes over what the other one holds." if own[2] == "&&" else "A copy."
    if own and name == "operator=":
        return "Takes over what the other one holds." if own[2] == "&&" else "Becomes a copy."
    if scope and name == scope:
        return "Made of what it is given."
    if scope and name == "operatorbool":
        return "As std::optional has it."
    if scope and re.match(r"operator\w{5,}$", name):
        return "As the type that it is named for."
    return next((words for words, names in KNOWN.items() if scope and name in names), "")


class Header:
    def __init__(self, lines):
        self.lines = lines
        self.out = []
        self.scopes = []
        self.group = False
        self.previous = ([], "")  # documentation and family of the declaration before

    def put(self, indent, documentation):
        self.out.extend(f"{indent}/// {line}".rstrip() for line in documentation)

    def run(self):
        i = 0
        opened = False
        while i < len(self.lines):
            line = self.lines[i]
            comment = COMMENT.match(line)
            if not comment:
                i = self.code(i, [])
                continue
            block = []
            while i < len(self.lines) and COMMENT.match(self.lines[i]):
                block.append(COMMENT.match(self.lines[i])[2])
                i += 1
            section = SECTION.match(block[0])
            following = self.lines[i].strip() if i < len(self.lines) else ""
            if not opened:
                opened = True
                self.put("", render(block, opening=True))
                self.out.append("")
            elif section:
                self.close_group()
                self.put("", [f"@name {escape(section[1])}", "@{"])
                self.group = True
                self.out.append("")
            elif following:
                i = self.code(i, block)
            else:
                self.out.extend(f"//{text}" for text in block)
        return self.out

    def close_group(self):
        if self.group:
            self.put("", ["@}"])
            self.group = False

    def code(self, i, comment):
        """Passes one declaration or line on, behind the documentation `comment`."""
        line = self.lines[i]
        indent = re.match(r"\s*", line)[0]
        if re.match(r"#ifdef __cplusplus", line) and self.group:
            self.close_group()
        if re.match(r"\s*template <", line) and SCOPE.match(self.lines[i + 1]):
            self.put(indent, render(comment))
            self.out.append(line)
            return self.code(i + 1, [])
        if line.endswith("\\") or line.startswith("#define") or SCOPE.match(line):
            self.put(indent, render(comment))
            while line.endswith("\\"):
                self.out.append(line)
                i += 1
                line = self.lines[i]
            if SCOPE.match(line):
                kind = re.match(r"^\s*(?:typedef )?(\w+)(?: ORTHOLAN_EXPORT| \[\[\w+\]\])?\s*(\w*)", line)
                self.scopes.append((kind[1], kind[2]))
                self.previous = ([], "")
            self.out.append(line)
            return i + 1
        if not line.strip() or line.startswith(("#", "ORTHOLAN_CLASSES_")) or re.match(r"^\s*(\}|public:|private:|protected:)",
                                                                line):
            self.put(indent, render(comment))
            if line.strip().startswith("}") and self.scopes:
                self.scopes.pop()
            self.previous = ([], "")
            self.out.append(line)
            return i + 1
        return self.declaration(i, comment, indent)

    def declaration(self, i, comment, indent):
        scope = self.scopes[-1] if self.scopes else ("", "")
        ends = (",", ";") if scope[0] == "enum" else (";",)
        first = i
        while True:
            text = re.sub(r"\s*//.*$", "", self.lines[i])
            last = scope[0] == "enum" and self.lines[i + 1].strip().startswith("}")
            if text.endswith("{") and scope[0] != "enum":
                # A body of several lines ends where its brace stands as far in as the declaration.
                while not self.lines[i].startswith(indent + "}"):
                    i += 1
                break
            if text.endswith(ends) or last or text.endswith("}"):
                break
            i += 1
        lines = self.lines[first:i + 1]
        i += 1
        trailing = TRAILING.match(lines[-1])
        notes = []
        if trailing:
            notes = [" " + trailing[2]]
            lines[-1] = trailing[1]
            column = len(self.lines[i - 1]) - len(trailing[2]) - 3
            while (i < len(self.lines) and COMMENT.match(self.lines[i]) and
                   len(COMMENT.match(self.lines[i])[1]) == column):
                notes.append(COMMENT.match(self.lines[i])[2])
                i += 1
        whole = " ".join(lines)
        name = declared_name(whole)
        parameters = set(re.findall(r"(\w+)\s*(?=[,)=])", whole))
        documentation = render(comment, parameters) + render(notes)
        if not documentation:
            documented, kin = self.previous
            constants = re.match(r"^\s*(inline const|using )", lines[0])
            if documented and (constants or (name and family(name) == kin)):
                documentation = documented
            else:
                words = special(whole, name, scope[1])
                documentation = [words] if words else []
        self.put(indent, documentation)
        self.out.extend(lines)
        kin = "" if name and special(whole, name, scope[1]) else family(name)
        self.previous = (documentation, kin)
        return i


def convert(path):
    with open(path, encoding="utf-8") as file:
        text = file.read()
    return "\n".join(Header(text.splitlines()).run()) + "\n"


def main():
    if sys.argv[1] == "--check":
        for path in sys.argv[2:]:
            convert(path)
    else:
        sys.stdout.write(convert(sys.argv[1]))


main()
