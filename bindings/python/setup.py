"""Builds the shared library into the package, and calls the wheel by what the library needs.

The wheel holds no code for one version of Python alone: it is py3-none, and its platform's tag
tells the lowest C library that its one binary runs with (PEP 600). The C++ runtime is linked in.
"""

import pathlib
import re
import shutil
import subprocess

from setuptools import setup
from setuptools.command.build_py import build_py
from setuptools.dist import Distribution
from wheel.bdist_wheel import bdist_wheel

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "python"
LIBRARY = "libortholan.so.1"


def version() -> str:
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"^  VERSION ([\d.]+)$", text, flags=re.MULTILINE)[1]


def build_library() -> pathlib.Path:
    subprocess.run(["cmake", "--preset", "python"], cwd=ROOT, check=True)
    subprocess.run(["cmake", "--build", "--preset", "python"], cwd=ROOT, check=True)
    return BUILD / LIBRARY


def platform_tag(library: pathlib.Path) -> str:
    """ "manylinux_2_34_x86_64": the highest version of the C library that a symbol asks for."""
    told = subprocess.run(["readelf", "--version-info", "--file-header", "--wide", library],
                          check=True, capture_output=True, text=True, env={"LC_ALL": "C"}).stdout
    versions = {tuple(map(int, found)) for found in re.findall(r"Name: GLIBC_(\d+)\.(\d+)", told)}
    machine = "x86_64" if "X86-64" in told else "aarch64" if "AArch64" in told else "s390x"
    return "manylinux_{}_{}_{}".format(*max(versions), machine)


class BuildWithLibrary(build_py):
    def run(self):
        super().run()
        package = pathlib.Path(self.build_lib) / "ortholan"
        package.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(build_library(), package / LIBRARY)
        shutil.copyfile(ROOT / "LICENSE", package / "LICENSE")


class WheelOfOneBinary(bdist_wheel):
    def get_tag(self):
        return "py3", "none", platform_tag(BUILD / LIBRARY)


class WithBinary(Distribution):
    """Goes where code of one platform goes."""

    def has_ext_modules(self):
        return True


setup(
    version=version(),
    distclass=WithBinary,
    cmdclass={"build_py": BuildWithLibrary, "bdist_wheel": WheelOfOneBinary},
    options={
        "build": {"build_base": str(BUILD / "wheel")},
        "egg_info": {"egg_base": str(BUILD)},
    },
)
