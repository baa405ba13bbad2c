# SPDX-License-Identifier: MIT
import fnmatch
import shutil
from pathlib import Path

from conan.errors import ConanException


def load(conanfile, path):
    return Path(path).read_text(encoding="utf-8")


def copy(conanfile, pattern, src, dst):
    """Copies the files below src whose relative paths match; * matches slashes as well."""
    top = pattern.split("/", maxsplit=1)[0]
    files = [path for path in Path(src, top).rglob("*") if path.is_file()]
    if Path(src, top).is_file():
        files = [Path(src, top)]
    copied = 0
    for path in files:
        relative = path.relative_to(src)
        if fnmatch.fnmatchcase(relative.as_posix(), pattern):
            target = Path(dst, relative)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(path, target)
            copied += 1
    if not copied:
        raise ConanException(f"{pattern} matches nothing in {src}")
