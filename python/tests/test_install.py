# SPDX-License-Identifier: MIT
"""Imports the module from the folder that it is installed into."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = '''
import OlvWidgets
print(OlvWidgets.__file__)
print(*sorted({line.split()[-1] for line in open('/proc/self/maps') if '/libOlv' in line}), sep='\\n')
'''


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
            result = subprocess.run([sys.executable, '-c', PROGRAM], cwd=prefix, check=True, text=True,
                                    env=dict(os.environ, PYTHONPATH=str(modules)), stdout=subprocess.PIPE)
            files = result.stdout.split()
            self.assertEqual(len(files), 3, files)
            for file in files:
                self.assertTrue(file.startswith(prefix), file)

    def test_folder_is_one_that_python_searches(self):
        paths = subprocess.run([sys.executable, '-c', 'import sys; print(*sys.path, sep="\\n")'], text=True,
                               stdout=subprocess.PIPE, check=True).stdout.split()
        self.assertTrue({'/usr/' + os.environ['OLV_PYTHON_DIR'],
                         '/usr/local/' + os.environ['OLV_PYTHON_DIR']} & set(paths))


if __name__ == '__main__':
    unittest.main()
