# SPDX-License-Identifier: MIT
"""Imports the module from the folder that it is installed into."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path


class Install(unittest.TestCase):
    def test_installed_module_finds_its_libraries(self):
        with tempfile.TemporaryDirectory() as prefix:
            for component in 'systeminfo', 'widgets', 'python':
                subprocess.run(['cmake', '--install', os.environ['OLV_BUILD_DIR'], '--prefix', prefix,
                                '--component', component], check=True, stdout=subprocess.DEVNULL)
            modules = Path(prefix, os.environ['OLV_PYTHON_DIR'])
            self.assertEqual(sorted(path.name.partition('.')[0] for path in modules.iterdir()),
                             ['OlvWidgets', 'OlvWidgets-stubs'])
            self.assertTrue((modules / 'OlvWidgets-stubs' / '__init__.pyi').is_file())
            module = subprocess.run([sys.executable, '-c', 'import OlvWidgets; print(OlvWidgets.__file__)'],
                                    cwd=prefix, env=dict(os.environ, PYTHONPATH=str(modules)),
                                    check=True, text=True, stdout=subprocess.PIPE).stdout.strip()
            # not from /proc/self/maps, which a chroot may lack
            needed = subprocess.run(['ldd', module], check=True, text=True, stdout=subprocess.PIPE).stdout
            libraries = [line.split()[2] for line in needed.splitlines() if 'libOlv' in line]
            self.assertEqual(len(libraries), 2, needed)
            for file in module, *libraries:
                self.assertTrue(file.startswith(prefix), file)

    def test_folder_is_one_that_python_searches(self):
        paths = subprocess.run([sys.executable, '-c', 'import sys; print(*sys.path, sep="\\n")'], text=True,
                               stdout=subprocess.PIPE, check=True).stdout.split()
        self.assertTrue({'/usr/' + os.environ['OLV_PYTHON_DIR'],
                         '/usr/local/' + os.environ['OLV_PYTHON_DIR']} & set(paths))


if __name__ == '__main__':
    unittest.main()
