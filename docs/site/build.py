#!/usr/bin/env python3
"""Writes what Sphinx makes the site from: build.py SOURCES XML OUT

Pages keep their text and their places; links to files that are no pages become code, for the site
does not have them. The page of the program is its manual page, that about speed gets a chart of its
table, and each public header has a page of what Doxygen read in it into XML.
"""
import html
import os
import pathlib
import re
import shutil
import subprocess
import sys

import chart

# In the order that they are read in; a page that nobody named follows.
GUIDES = ["docs/getting-started", "docs/recipes", "docs/identity", "docs/constraints", "docs/extensions",
          "docs/matching", "docs/show", "docs/program", "docs/streams", "docs/x509name", "docs/c-interface", "docs/python",
          "docs/javascript", "docs/languages"]
NAMES = ["docs/name-text", "docs/rfc4514", "docs/der", "docs/structures", "docs/status-codes"]
LINK = re.compile(r"\[([^\]\n]*)\]\(([^)\s]+)\)")


# The page that runs the library, by its source; `make wasm` builds it. Without it nothing leads there.
TRY = "docs/site/try/index.html"
BUILT = pathlib.Path("build/javascript/try")
HOME = '<span class="home">Ortholan</span>'


def tried(words, directory):
    """A link to the page, or its words."""
    if not BUILT.is_dir():
        return words
    return f'<a href="{os.path.relpath("try/index.html", directory or ".")}">{words}</a>'


def copy_try(out):
    """The page, with the way back; Sphinx takes what is in this folder as it is."""
    out.mkdir()
    if BUILT.is_dir():
        shutil.copytree(BUILT, out / "try")
        start = out / "try/index.html"
        start.write_text(start.read_text(encoding="utf-8").replace(
            HOME, '<a class="home" id="home" href="../index.html">Ortholan</a>'), encoding="utf-8")


def prose(text):
    """Lines with whether they stand outside of code blocks."""
    fenced = False
    for line in text.splitlines():
        fence = line.startswith("```")
        yield line, not fenced and not fence
        fenced ^= fence


def page(text, pages, directory):
    """A page with the links that the site can follow."""
    def link(match):
        words, target = match[1], match[2]
        name, hash_, anchor = target.partition("#")
        path = os.path.normpath(os.path.join(directory, name)) if name else ""
        if target.startswith(("http:", "https:")) or not name:
            return match[0]
        if path == "README.md":
            return f"[{words}]({os.path.relpath('index.md', directory or '.')}{hash_}{anchor})"
        if path == TRY:
            return tried(words, directory)
        if path in pages:
            return match[0]
        return words if "`" in words else f"`{words}`"

    return "\n".join(LINK.sub(link, line) if outside else line
                     for line, outside in prose(text)) + "\n"


def contents(caption, entries):
    """A list of pages: below `caption` beside the page, or in it where there is none."""
    options = [":hidden:", f":caption: {caption}"] if caption else [":maxdepth: 1"]
    return "\n".join(["", "```{toctree}", *options, "", *entries, "```", ""])


def tag(markup):
    """The text of a piece of HTML."""
    return html.unescape(re.sub(r"<[^>]*>|¶", "", markup)).strip()


def manual(file):
    """The manual page: headings as a page has them, what is between them as HTML."""
    made = subprocess.run(["mandoc", "-T", "html", "-O", "fragment", file], check=True,
                          capture_output=True, text=True).stdout
    made = re.search(r'<(?:div|main) class="manual-text">(.*)</(?:div|main)>', made, flags=re.S)[1]
    made = re.sub(r"</?section[^>]*>", "", made)
    made = re.sub(r'<a class="permalink"[^>]*>(.*?)</a>', r"\1", made, flags=re.S)
    made = made.replace('<table class="Bl', '<table class="docutils Bl')
    made = re.sub(r"<pre>(.*?)</pre>", r'<div class="highlight"><pre>\1</pre></div>', made,
                  flags=re.S)
    parts = re.split(r"<h([12])[^>]*>(.*?)</h\1>", made, flags=re.S)
    out = ["# The program x509name", "", "Its manual page; `x509name COMMAND --help` has the short form.",
           ""]
    for level, heading, body in zip(parts[1::3], parts[2::3], parts[3::3]):
        heading = tag(heading)
        out += ["#" * (int(level) + 1) + " " + (heading.capitalize() if heading.isupper() else heading),
                ""]
        out += commands(body) if heading == "Commands" else raw(body)
    return "\n".join(out) + "\n"


def raw(body):
    return ["```{raw} html", body.strip(), "```", ""] if tag(body) else []


def commands(body):
    """A heading for each command, which the list of contents and links can name."""
    out = []
    entries = re.split(r'\n  <dt[^>]*>(.*?)</dt>\n', body, flags=re.S)
    for name, text in zip(entries[1::2], entries[2::2]):
        inner = re.sub(r"^\s*<dd>|</dd>\s*(</dl>\s*)?$", "", text.strip())
        out += [f"### {tag(name)}", "", *raw(f"<div>{inner}</div>")]
    return out or raw(body)


def header_pages(sources, out):
    """A page for each public header, and one that leads to them."""
    root = sources / "include/ortholan"
    (out / "headers").mkdir()
    names = []
    for header in sorted([*root.rglob("*.h"), *root.rglob("*.hpp")],
                         key=lambda file: (len(file.relative_to(root).parts), str(file))):
        below = str(header.relative_to(root))
        names.append(re.sub(r"[/.]", "_", below))
        (out / f"headers/{names[-1]}.rst").write_text(
            f"{below}\n{'=' * len(below)}\n\n.. doxygenfile:: ortholan/{below}\n", encoding="utf-8")
    return "# Public headers\n\nEach is included as `<ortholan/...>`.\n" + contents("", names)


def check_headers(log):
    """Fails for what Doxygen warned of. A member of the C++ face that does what its C function does
    needs no comment, and Doxygen knows no std that a hash is specialised in."""
    faults = [line for line in log.read_text(encoding="utf-8").splitlines()
              if not re.search(r"\.hpp:\d+: .*(is not documented|std::hash)", line)]
    if faults:
        raise SystemExit("\n".join(faults))


def main():
    sources, xml, out = (pathlib.Path(argument) for argument in sys.argv[1:])
    check_headers(xml.with_name("doxygen.log"))
    shutil.rmtree(out, ignore_errors=True)
    (out / "docs").mkdir(parents=True)
    shutil.copytree(sources / "docs/site/static", out / "static")
    shutil.copy(sources / "docs/site/conf.py", out)
    shutil.copytree(xml, out / "xml")
    copy_try(out / "extra")

    pages = {str(file.relative_to(sources)): file.read_text(encoding="utf-8")
             for file in [*sources.glob("*.md"), *sources.glob("docs/*.md")]}
    speed = pages["docs/performance.md"]
    drawing = ("Times the library's own time that other libraries take for the same work, in the recorded\n"
               "run below; the scale is logarithmic.\n\n```{raw} html\n" + chart.svg(speed) + "\n```\n\n")
    pages["docs/performance.md"] = speed.replace("## Method", drawing + "## Method", 1)
    texts = {name: page(text, pages, os.path.dirname(name)) for name, text in pages.items()}
    texts["docs/x509name.md"] = manual(sources / "examples/x509name.1")

    texts["headers/index.md"] = header_pages(sources, out)
    named = [name for name in GUIDES + NAMES if name + ".md" in texts]
    rest = sorted((name[:-3] for name in texts if name[:-3] not in [*named, "README", "headers/index"]),
                  key=lambda name: (name.count("/") == 0, name))
    texts["index.md"] = (texts.pop("README.md") +
                         contents("Guides", [name for name in GUIDES if name in named]) +
                         contents("Names and DER", [name for name in NAMES if name in named]) +
                         contents("Reference", ["headers/index"]) + contents("More", rest))
    for name, text in texts.items():
        (out / name).write_text(text, encoding="utf-8")


main()
