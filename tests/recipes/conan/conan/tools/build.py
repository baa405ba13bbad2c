# SPDX-License-Identifier: MIT
from conan.errors import ConanInvalidConfiguration


def can_run(conanfile):
    return True


def check_min_cppstd(conanfile, standard):
    if int(conanfile.settings.cppstd) < standard:
        raise ConanInvalidConfiguration(f"it takes C++{standard}")
