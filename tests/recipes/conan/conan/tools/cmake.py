# SPDX-License-Identifier: MIT
import os
import subprocess
from pathlib import Path


def cmake_layout(conanfile):
    conanfile.cpp.build.bindir = conanfile.build_folder


class CMakeDeps:
    """The system's own files for CMake are there already."""

    def __init__(self, conanfile):
        pass

    def generate(self):
        pass


class CMakeToolchain:
    def __init__(self, conanfile, prefixes=()):
        self.cache_variables = {}
        self._file = Path(conanfile.generators_folder, "conan_toolchain.cmake")
        self._lines = [
            f'set(CMAKE_BUILD_TYPE "{conanfile.settings.build_type}" CACHE STRING "" FORCE)',
            f"set(CMAKE_CXX_STANDARD {conanfile.settings.cppstd})",
            'set(CMAKE_INSTALL_LIBDIR "lib" CACHE STRING "")',
        ] + [f'list(PREPEND CMAKE_PREFIX_PATH "{prefix}")' for prefix in prefixes]

    def generate(self):
        for name, value in self.cache_variables.items():
            if isinstance(value, bool):
                value = "ON" if value else "OFF"
            self._lines.append(f'set({name} "{value}" CACHE STRING "" FORCE)')
        self._file.write_text("\n".join(self._lines) + "\n", encoding="utf-8")


class CMake:
    def __init__(self, conanfile):
        self._conanfile = conanfile

    def configure(self):
        toolchain = Path(self._conanfile.generators_folder, "conan_toolchain.cmake")
        self._run(
            *("-G", "Ninja", "-S", self._conanfile.source_folder, "-B", self._conanfile.build_folder),
            *(f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", "-Werror=dev", "--warn-uninitialized"),
            f"-DCMAKE_INSTALL_PREFIX={self._conanfile.package_folder}",
        )

    def build(self):
        self._run("--build", self._conanfile.build_folder, "--parallel", str(os.cpu_count()))

    def install(self):
        self._run("--install", self._conanfile.build_folder)

    def _run(self, *arguments):
        subprocess.run(["cmake", *arguments], check=True)
