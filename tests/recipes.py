"""Checks the recipes for package managers as far as it goes without them and without a network.

    recipes.py SOURCE_DIR VERSION CMAKE

The version is the project's everywhere; the Conan recipe runs against stand-ins of Conan's modules,
and it exports all of the library's sources; the vcpkg port runs against stand-ins of
vcpkg's functions, and the options that it passes exist.
"""

import fnmatch
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import types

source, version, cmake = pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3]
faults = []


def check(condition, text):
    if not condition:
        faults.append(text)


def configure(directory, build, *options):
    """Configures the library; a warning such as that of an unknown option is a fault."""
    run = subprocess.run(
        [cmake, "-G", "Ninja", "-S", directory, "-B", build, *options], capture_output=True, text=True)
    check(run.returncode == 0 and "Warning" not in run.stderr, f"{directory}: {run.stderr}")


def conan_copy(_recipe, pattern, src, dst, excludes=()):
    """Copies as Conan does: the pattern is matched with the whole path below `src`."""
    src = pathlib.Path(src).resolve()
    for directory, directories, files in os.walk(src):
        directories[:] = [name for name in directories if f"{name}/*" not in excludes]
        for path in (pathlib.Path(directory, name) for name in files):
            below = path.relative_to(src)
            if fnmatch.fnmatch(str(below), pattern):
                target = dst / below
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(path, target)


def load_conan_recipe():
    modules = {
        "conan": {"ConanFile": object},
        "conan.tools": {},
        "conan.tools.build": {"check_min_cppstd": None},
        "conan.tools.cmake": dict.fromkeys(["CMake", "CMakeDeps", "CMakeToolchain", "cmake_layout"]),
        "conan.tools.files": {"copy": conan_copy, "rm": None, "rmdir": None},
    }
    for name, contents in modules.items():
        sys.modules[name] = types.ModuleType(name)
        vars(sys.modules[name]).update(contents)
    path = source / "packaging/conan/conanfile.py"
    recipe = {}
    exec(compile(path.read_text(), str(path), "exec"), recipe)
    return recipe["OrtholanConan"]()


def check_conan(scratch):
    recipe = load_conan_recipe()
    check(recipe.version == version, f"conanfile.py: version {recipe.version}, not {version}")
    recipe.recipe_folder = source / "packaging/conan"
    recipe.export_sources_folder = scratch / "exported"
    recipe.export_sources()
    apart = {"bench", "build", "examples", "fuzz", "packaging", "scripts", "tests", ".git"}
    for top in {path.name for path in source.iterdir() if path.is_dir()} - apart:
        for path in (source / top).rglob("*"):
            below = path.relative_to(source)
            if path.suffix in {".cpp", ".h", ".in", ".inc", ".rc", ".cmake", ".map"}:
                check((recipe.export_sources_folder / below).exists(),
                      f"conanfile.py does not export {below}")
    configure(scratch / "exported", scratch / "conan",
              "-DORTHOLAN_BUILD_EXAMPLES=OFF", "-DORTHOLAN_BUILD_TESTS=OFF")


def check_vcpkg(scratch):
    port = source / "packaging/vcpkg"
    manifest = json.loads((port / "vcpkg.json").read_text())
    found = manifest["version-semver"]
    check(found == version, f"vcpkg.json: version {found}, not {version}")

    functions = ["vcpkg_cmake_install", "vcpkg_copy_pdbs", "vcpkg_cmake_config_fixup",
                 "vcpkg_fixup_pkgconfig", "vcpkg_copy_tools", "vcpkg_install_copyright"]
    lines = [f"function({name})\nendfunction()" for name in functions]
    lines += [
        "cmake_minimum_required(VERSION 3.25)",
        "function(vcpkg_check_features)\nendfunction()",
        "function(vcpkg_cmake_configure)",
        "  cmake_parse_arguments(PARSE_ARGV 0 arg \"\" SOURCE_PATH OPTIONS)",
        f"  file(WRITE {scratch}/port.txt \"${{arg_SOURCE_PATH}};${{arg_OPTIONS}}\")",
        "endfunction()",
        "set(PORT ortholan)",
        "set(FEATURES tools)",
        f"set(CURRENT_PACKAGES_DIR {scratch}/vcpkg-packages)",
        f"include({port}/portfile.cmake)",
    ]
    script = scratch / "port.cmake"
    script.write_text("\n".join(lines))
    run = subprocess.run([cmake, "-P", script], capture_output=True, text=True)
    check(run.returncode == 0, run.stderr)
    if run.returncode == 0:
        directory, *options = (scratch / "port.txt").read_text().split(";")
        check(pathlib.Path(directory) == source, f"portfile.cmake builds {directory}")
        configure(directory, scratch / "vcpkg", *options)


with tempfile.TemporaryDirectory() as scratch_name:
    check_conan(pathlib.Path(scratch_name))
    check_vcpkg(pathlib.Path(scratch_name))
for fault in faults:
    print(fault, file=sys.stderr)
sys.exit(bool(faults))
