"""Recipe for Conan 2: conan create packaging/conan

Builds the checkout that it lies in.
"""

import os

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rm, rmdir


class OrtholanConan(ConanFile):
    name = "ortholan"
    version = "1.0.0"
    description = "Names and extensions of X.509 certificates: text to DER and back"
    license = "MIT"
    topics = ("x509", "distinguished-name", "asn1", "der", "certificate")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False]}
    default_options = {"shared": True}

    def validate(self):
        check_min_cppstd(self, 17)

    def export_sources(self):
        root = os.path.join(self.recipe_folder, "..", "..")
        copy(self, "*", root, self.export_sources_folder,
             excludes=("build/*", ".git/*", "bench/*", "examples/*", "fuzz/*", "tests/*"))

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.variables["ORTHOLAN_BUILD_EXAMPLES"] = False
        toolchain.variables["ORTHOLAN_BUILD_TESTS"] = False
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        # Both libraries are installed; the linker shall not find the one that was not asked for.
        libraries = os.path.join(self.package_folder, "lib")
        if self.options.shared:
            rm(self, "libortholan.a", libraries)
            rm(self, "ortholan_static.lib", libraries)
        else:
            rm(self, "libortholan.so*", libraries)
            rm(self, "libortholan.dll.a", libraries)
            rm(self, "ortholan.lib", libraries)
            rmdir(self, os.path.join(self.package_folder, "bin"))
        # Conan writes itself what CMake and pkg-config find.
        for directory in ("lib/cmake", "lib/pkgconfig", "share"):
            rmdir(self, os.path.join(self.package_folder, directory))

    def package_info(self):
        shared = bool(self.options.shared)
        target = "Ortholan::ortholan" if shared else "Ortholan::ortholan_static"
        self.cpp_info.set_property("cmake_file_name", "Ortholan")
        self.cpp_info.set_property("cmake_target_name", target)
        self.cpp_info.set_property("pkg_config_name", "ortholan")
        self.cpp_info.libs = ["ortholan"]
        if not shared:
            self.cpp_info.defines = ["ORTHOLAN_STATIC"]
            if self.settings.compiler == "msvc":
                self.cpp_info.libs = ["ortholan_static"]
            if self.settings.os == "Windows":
                self.cpp_info.system_libs = ["crypt32", "user32"]
