"""Programs of the pages and of the package's docstrings print what stands behind them."""

import doctest
import importlib
import pkgutil
import re
import subprocess
import sys

import ortholan
import pytest

# A program, and what it prints where a block of text follows at once.
EXAMPLE = re.compile(r"```python\n(.*?)```\n(?:\n```text\n(.*?)```)?", re.DOTALL)
# One that prints what its twin in front of it does.
TWIN = re.compile(r"```text\n([^`]*)```\n\nThe same in \[Python\][^`]*```python\n(.*?)```",
                  re.DOTALL)


def run(program, *arguments, **options):
    return subprocess.run([sys.executable, program, *arguments], capture_output=True,
                          encoding="utf-8", env={"PYTHONUTF8": "1"}, **options)


@pytest.mark.parametrize("page", ["bindings/python/README.md", "docs/python.md",
                                  "docs/c-interface.md", "docs/recipes.md"])
def test_pages(root, certificates, tmp_path, page):
    text = (root / page).read_text(encoding="utf-8")
    twins = [(code, printed) for printed, code in TWIN.findall(text)]
    examples = EXAMPLE.findall(TWIN.sub("", text)) + twins
    assert examples
    for code, printed in examples:
        program = tmp_path / "example.py"
        program.write_text(code, encoding="utf-8")
        done = run(program, certificates, cwd=certificates)
        assert (done.stdout, done.stderr) == (printed, ""), code


@pytest.mark.parametrize("module", [each.name for each in pkgutil.iter_modules(ortholan.__path__)])
def test_docstrings(module):
    module = importlib.import_module("ortholan." + module)
    assert doctest.testmod(module, optionflags=doctest.ELLIPSIS).failed == 0
    assert doctest.testmod(ortholan).attempted > 3


def test_the_example_program(root, certificates, tmp_path):
    block = "-----BEGIN CERTIFICATE-----\n%s\n-----END CERTIFICATE-----\n"
    bundle = tmp_path / "bundle.pem"
    bundle.write_text(block % "MAA=" + (certificates / "bmp.pem").read_text())
    alternative = str(certificates / "alternative_names.pem")
    rows = [
        (["CN=\u0410"], 0, ["subject: CN=\u0410", "  CN (2.5.4.3): CN=\u0410"], ""),
        ([alternative], 0, ["subject: CN=Gamma", "extension 2.5.29.17", "  DNS: DNS:example.org",
                            "  ADDRESS: IP:2001:db8::1"], ""),
        ([str(bundle)], 1, ["subject: CN=\u0410\u043b\u044c\u0444\u0430,C=RU"],
         f"{bundle}: certificate 1: at offset "),
        (["CN=\\1B[31m"], 0, ["  CN (2.5.4.3): CN=\\1B[31m"], ""),
        (["C=R_"], 1, [], 'C=R_: "_" at character 4: expected '),
        ([], 2, [], "Shows names"),
    ]
    for arguments, status, lines, error in rows:
        done = run(root / "bindings" / "python" / "examples" / "show.py", *arguments)
        assert done.returncode == status and done.stderr.startswith(error), done.stderr
        assert bool(done.stderr) == bool(error)
        assert [line for line in lines if line not in done.stdout.splitlines()] == []
