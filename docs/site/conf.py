"""Sphinx's settings for the site; docs/site/build.py writes what it reads."""
import logging
import os
import pathlib
import re

project = "Ortholan"
author = copyright = "the Ortholan authors"
release = version = os.environ["ORTHOLAN_VERSION"]

extensions = ["myst_parser", "breathe", "sphinx_copybutton"]
exclude_patterns = ["extra", "xml"]
# Links to headings go by the anchors that web hosts give them.
myst_heading_anchors = 4
myst_enable_extensions = ["deflist"]

breathe_projects = {"ortholan": "xml"}
breathe_default_project = "ortholan"
breathe_show_include = False
# What the C++ domain shall not take for a part of a type.
cpp_id_attributes = ["ORTHOLAN_EXPORT", "ORTHOLAN_C_API"]
c_id_attributes = cpp_id_attributes
html_theme = "furo"
html_title = f"Ortholan {release}"
html_show_sphinx = False
html_copy_source = False
html_static_path = ["static"]
html_extra_path = ["extra"]
html_css_files = ["site.css"]
html_js_files = ["keyboard.js"]
pygments_style = "default"
pygments_dark_style = "one-dark"
highlight_language = "text"
# Sessions of psql have lines that are no SQL; they are shown without colours.
suppress_warnings = ["misc.highlighting_failure"]

# A block of a session is copied without its prompts and answers.
copybutton_prompt_text = r"\$ |\(gdb\) "
copybutton_prompt_is_regexp = True


def no_fault(record):
    """A namespace stands in several headers, a C structure is also a typedef, and a union without a
    name has none."""
    text = record.getMessage()
    return not ("Duplicate C++ declaration" in text or "__unnamed" in text)


logging.getLogger("sphinx.sphinx.domains.cpp").addFilter(no_fault)
logging.getLogger("sphinx.sphinx.directives").addFilter(no_fault)


def plain_script(static):
    """Debian keeps the theme's script as a module with an import, which no browser follows in a file:
    the one that it imports is put in front, where it serves as a plain script."""
    script = static / "scripts/furo.js"
    text = script.read_text(encoding="utf-8")
    imported = re.match(r'import Gumshoe from "\./([\w.-]+)";', text)
    if imported:
        whole = script.with_name(imported[1]).read_text(encoding="utf-8") + text[imported.end():]
        script.write_text(whole, encoding="utf-8")


def dark_by_itself(static):
    """The dark colours also where nothing was chosen and the reader's system is dark, which Debian's
    style sheet of the theme has lost."""
    sheet = static / "styles/furo.css"
    text = sheet.read_text(encoding="utf-8")
    if "prefers-color-scheme" not in text:
        dark = re.search(r'body\[data-theme="dark"\] \{(.*?)\}', text, flags=re.S)[1]
        text += ("\n@media screen and (prefers-color-scheme: dark) {\n"
                 f'body[data-theme="auto"] {{{dark}}} }}\n')
        sheet.write_text(text, encoding="utf-8")


def mend_theme(app, _exception):
    static = pathlib.Path(app.outdir, "_static")
    plain_script(static)
    dark_by_itself(static)


def setup(app):
    app.connect("build-finished", mend_theme)
