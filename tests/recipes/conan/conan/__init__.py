# SPDX-License-Identifier: MIT
"""Stands in for the client of conan 2 as far as packaging/conan uses it, with the system's libraries for
those of a server. It is strict: a name that it does not know is an error."""
import subprocess
from pathlib import Path
from types import SimpleNamespace

from conan.errors import ConanException


class Options:
    def __init__(self, allowed, defaults):
        for name, values in allowed.items():
            if defaults[name] not in values:
                raise ConanException(f"the default of {name} is none of its values")
            setattr(self, name, defaults[name])
        for name in defaults:
            if "/*:" not in name and name not in allowed:
                raise ConanException(f"a default of an option that does not exist: {name}")

    def get_safe(self, name, default=None):
        return getattr(self, name, default)


class CppInfo:
    __slots__ = ("builddirs", "includedirs", "libs", "properties")

    def __init__(self):
        self.builddirs, self.includedirs, self.libs, self.properties = [], ["include"], [], {}

    def set_property(self, name, value):
        self.properties[name] = value


class ConanFile:
    options = {}
    default_options = {}

    def __init__(self, recipe_folder, settings=None):
        self.recipe_folder = str(recipe_folder)
        self.settings = SimpleNamespace(**(settings or {}))
        self.options = Options(type(self).options, type(self).default_options)
        self.required = []
        self.dependencies = {}
        self.cpp_info = CppInfo()
        self.cpp = SimpleNamespace(build=SimpleNamespace(bindir=None))

    def requires(self, reference, transitive_headers=None, transitive_libs=None):
        self.required.append(reference)

    def tool_requires(self, reference):
        self.required.append(reference)

    def resolve(self, system):
        """Finds what is required among the libraries of the system, a version for each name."""
        for reference in self.required:
            name, version = reference.split("/")
            if not _in_range(system[name], version):
                raise ConanException(f"{name} {system[name]} is not {version}")
            self.dependencies[name] = SimpleNamespace(
                ref=SimpleNamespace(name=name, version=system[name]), options=Options({}, {})
            )

    def use_folder(self, folder):
        """Where the package is built, as layout() and the recipe's methods expect it."""
        self.source_folder = str(Path(folder, "source"))
        self.package_folder = str(Path(folder, "package"))
        self.build_folder = str(Path(folder, "build"))
        self.generators_folder = str(Path(folder, "build", "generators"))
        Path(self.generators_folder).mkdir(parents=True)

    def run(self, command, env=None):
        subprocess.run(command, shell=True, check=True)


def _in_range(version, wanted):
    if not wanted.startswith("["):
        return version == wanted
    holds = {
        ">=": lambda bound: _numbers(version) >= _numbers(bound),
        "<": lambda bound: _numbers(version) < _numbers(bound),
    }
    for condition in wanted.strip("[]").split():
        operator = condition.rstrip("0123456789.")
        if not holds[operator](condition[len(operator) :]):
            return False
    return True


def _numbers(version):
    return [int(number) for number in version.split(".")]
