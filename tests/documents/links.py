#!/usr/bin/env python3
"""Links of installed pages that lead nowhere: links.py TREE

A link is a path below TREE, with an anchor that one of the page's headings has, or leads to the web.
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
LINK = re.compile(r"\]\(([^)\s]+)\)")
faults, followed = [], 0


def prose(page):
    """The text of a page without its blocks of code."""
    return re.sub(r"^```.*?^```", "", page.read_text(encoding="utf-8"), flags=re.S | re.M)


def anchors(page):
    headings = re.findall(r"^#+ (.*)$", prose(page), flags=re.M)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


for page in root.rglob("*.md"):
    for target in LINK.findall(prose(page)):
        if target.startswith("https:"):
            continue
        followed += 1
        name, _, anchor = target.partition("#")
        file = page.parent / name if name else page
        if not file.exists() or (anchor and anchor not in anchors(file)):
            faults.append(f"{page.relative_to(root)}: no such place: {target}")
if followed < 30:
    faults.append(f"{root}: {followed} links in the pages, which cannot be all")
sys.exit("\n".join(faults) or None)
