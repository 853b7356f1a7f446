"""What was installed is what its name says, and needs nothing but Python and the C library."""

import pathlib
import re
import subprocess
import sys
import zipfile

import ortholan
import pytest

LIBRARY = pathlib.Path(ortholan.__file__).with_name("libortholan.so.1")


@pytest.fixture
def wheel(root):
    found = list((root / "build" / "python" / "dist").glob("*.whl"))
    assert len(found) == 1
    return found[0]


def readelf(*options):
    return subprocess.run(["readelf", "--wide", *options, LIBRARY], check=True, text=True,
                          capture_output=True, env={"LC_ALL": "C"}).stdout


def test_the_library_is_the_wheels(wheel, root):
    assert ortholan._library.library._name == str(LIBRARY)
    assert root / "bindings" not in pathlib.Path(ortholan.__file__).parents
    with zipfile.ZipFile(wheel) as archive:
        assert archive.read("ortholan/libortholan.so.1") == LIBRARY.read_bytes()
        assert {"ortholan/py.typed", "ortholan/LICENSE"} <= set(archive.namelist())


def test_the_tag_is_honest(wheel):
    """PEP 600: no newer C library than the tag says, and no other library than it lists."""
    tag = re.search(r"-py3-none-manylinux_(\d+)_(\d+)_\w+\.whl$", wheel.name)
    least = tuple(map(int, tag.groups()))
    symbols = readelf("--dyn-syms")
    versions = {tuple(map(int, found)) for found in re.findall(r"@GLIBC_(\d+)\.(\d+)", symbols)}
    assert max(versions) == least
    needed = set(re.findall(r"NEEDED.*\[(.*)\]", readelf("--dynamic")))
    assert needed - {"libc.so.6", "libm.so.6", "libgcc_s.so.1"} <= {
        each for each in needed if each.startswith("ld-")}
    assert "GLIBCXX_" not in symbols and "RPATH" not in readelf("--dynamic")


def test_nothing_but_python_is_needed():
    code = ("import ortholan; print(ortholan.Name('CN=Alpha').der.hex(), ortholan.__version__)")
    told = subprocess.run([sys.executable, "-I", "-S", "-c",
                           f"import sys; sys.path.insert(0, {str(LIBRARY.parents[1])!r}); {code}"],
                          check=True, capture_output=True, text=True, env={"PATH": ""}).stdout
    assert told.split()[0] == "3010310e300c06035504031305416c706861" and "." in told
