# SPDX-License-Identifier: MIT
import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load
from conan.tools.gnu import PkgConfigDeps

required_conan_version = ">=2.0"


class OlvWidgetsConan(ConanFile):
    name = "olvwidgets"
    description = "Ready-made Qt widgets for desktop applications on Linux"
    license = "MIT"
    topics = ("qt", "widgets", "gui")
    # a static library is built as a part of the program's own project
    package_type = "shared-library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"x11_shortcuts": [True, False], "portal_shortcuts": [True, False]}
    default_options = {
        "x11_shortcuts": True,
        "portal_shortcuts": True,
        "qt/*:shared": True,
        "qt/*:with_dbus": True,
    }

    @property
    def _root(self):
        return os.path.join(self.recipe_folder, os.pardir, os.pardir)

    @property
    def _qt_major(self):
        return str(self.dependencies["qt"].ref.version).split(".", maxsplit=1)[0]

    @property
    def _suffix(self):
        return "" if self._qt_major == "5" else f"-qt{self._qt_major}"

    def set_version(self):
        lists = load(self, os.path.join(self._root, "CMakeLists.txt"))
        self.version = re.search(r"^ +VERSION ([0-9.]+)$", lists, re.MULTILINE).group(1)

    def export_sources(self):
        for pattern in (
            "CMakeLists.txt",
            "LICENSE",
            "cmake/*",
            "include/*",
            "src/*",
            "systeminfo/*",
            "translations/*",
        ):
            copy(self, pattern, src=self._root, dst=self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def requirements(self):
        self.requires("qt/[>=5.15 <7]", transitive_headers=True, transitive_libs=True)
        if self.options.x11_shortcuts:
            self.requires("xorg/system")
        if self.options.x11_shortcuts or self.options.portal_shortcuts:
            self.requires("xkbcommon/[>=1.4 <2]")

    def build_requirements(self):
        self.tool_requires("pkgconf/[>=1.7 <3]")

    def validate(self):
        if self.settings.os != "Linux":
            raise ConanInvalidConfiguration("the library is for desktops on Linux")
        check_min_cppstd(self, 17)
        if not self.dependencies["qt"].options.get_safe("shared", True):
            raise ConanInvalidConfiguration("a shared library takes a shared Qt")

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables.update(
            {
                "BUILD_SHARED_LIBS": True,
                "BUILD_TESTING": False,
                "OLVWIDGETS_QT_MAJOR": self._qt_major,
                "OLVWIDGETS_BUILD_EXAMPLES": False,
                "OLVWIDGETS_BUILD_DESIGNER": False,
                "OLVWIDGETS_X11_SHORTCUTS": bool(self.options.x11_shortcuts),
                "OLVWIDGETS_PORTAL_SHORTCUTS": bool(self.options.portal_shortcuts),
            }
        )
        toolchain.generate()
        CMakeDeps(self).generate()
        PkgConfigDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", src=self.source_folder, dst=os.path.join(self.package_folder, "licenses"))
        CMake(self).install()

    def package_info(self):
        # CMake finds the files that the library installs for it
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = [os.path.join("lib", "cmake", f"OlvWidgets{self._suffix}")]
        include = os.path.join("include", f"OlvWidgets{self._suffix}") if self._suffix else "include"
        self.cpp_info.includedirs = [
            include,
            os.path.join(include, "OlvWidgets"),
            os.path.join(include, "OlvSystemInfo"),
        ]
        self.cpp_info.libs = [f"OlvWidgets{self._suffix}", f"OlvSystemInfo{self._suffix}"]
