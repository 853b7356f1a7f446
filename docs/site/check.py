#!/usr/bin/env python3
"""What the finished site has to have: check.py SOURCES HTML

Every command of the manual page has a heading, and the search finds words of the pages.
"""
import json
import pathlib
import re
import sys

sources, html = (pathlib.Path(argument) for argument in sys.argv[1:])
faults = []

page = (html / "docs/x509name.html").read_text(encoding="utf-8")
manual = (sources / "examples/x509name.1").read_text(encoding="utf-8")
commands = re.findall(r"^\.Nm\n\.Cm ([\w-]+)$", manual, flags=re.M)
faults += [f"the program's page has no heading {command}" for command in commands
           if f'<section id="{command}">' not in page]
if len(commands) < 9:
    faults.append(f"no more than {commands} in the manual page's synopsis")

index = (html / "searchindex.js").read_text(encoding="utf-8")
terms = json.loads(index[index.index("(") + 1:index.rindex(")")])["terms"]
# Stems, as the search makes them of sort, PEM, escape and certificates.
faults += [f"the search does not find {stem}" for stem in ("sort", "pem", "escap", "certif")
           if not terms.get(stem)]
sys.exit("\n".join(faults) or None)
