# SPDX-License-Identifier: MIT
"""Tells which falls in the log of scripts/deletions are the library's.

valgrind reports where a deleted widget was read, and where it had been deleted. Below the function that went
on the two stacks are the same, since it called what deleted the widget, and later what read it. When it ended
with that call, only the stack of the deletion has it. A crash comes without a stack of the deletion, and is the
library's if a function of the library led to it.
"""

import functools
import itertools
import os
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
OWN_FOLDERS = ('src', 'systeminfo', 'include')
DELETION = re.compile(r'\*\*\d+\*\* (.*)')
PREFIX = re.compile(r'==\d+== ?')
FRAME = re.compile(r'\s+(?:at|by) (0x[0-9A-F]+): (.*)')
SOURCE = re.compile(r'.* \((.+):\d+\)$')
LISTENER_OR_PARENT = re.compile(r'\bhear\b.*/deletiontable\.cpp:|QObjectPrivate::deleteChildren\(')


@functools.lru_cache(maxsize=None)
def is_own_file(path):
    """Whether the project has it. Its root may have another name in the path, because an object that a compiler
    cache shares between checkouts has the paths of the first one."""
    parts = os.path.normpath(path).split('/')
    return any(part in OWN_FOLDERS and ROOT.joinpath(*parts[i:]).is_file() for i, part in enumerate(parts))


def is_own(function):
    source = SOURCE.match(function)
    return bool(source) and is_own_file(source.group(1))


def deletions(log):
    """The name of each deletion, and the lines that valgrind wrote of it."""
    found = []
    for line in log:
        line = PREFIX.sub('', line.rstrip('\n'))
        name = DELETION.match(line)
        if name:
            found.append((name.group(1), []))
        elif found:
            found[-1][1].append(line)
    return found


def stack(lines):
    """The frames that the lines begin with, the outermost first: address and functions, since those that were
    inlined have the address of the function that they are in."""
    frames = []
    for line in lines:
        frame = FRAME.match(line)
        if not frame:
            break
        address, function = frame.groups()
        if frames and frames[-1][0] == address:
            frames[-1][1].append(function)
        else:
            frames.append((address, [function]))
    return frames[::-1]


def led_to_crash(crashed):
    """The functions that a crash may be blamed on, the innermost first. A crash within the deletion is not that
    of the functions that the listener was called by, and Qt deletes the children of a widget whatever the
    widget's own destructor does."""
    functions = [function for _, frame in crashed[::-1] for function in frame]
    return list(itertools.takewhile(lambda function: not LISTENER_OR_PARENT.search(function), functions))


def fall(lines):
    """What the functions did that may be at fault, and these, each with its place; None if nothing fell."""
    start = next((i for i, line in enumerate(lines) if FRAME.match(line)), None)
    if not start: # a stack without an error above it was printed on request
        return None
    reading = stack(lines[start:])
    freed = next((i for i, line in enumerate(lines) if line.endswith("free'd")), len(lines))
    deleting = stack(lines[freed + 1:])
    if not deleting:
        return 'crashed in', led_to_crash(reading)
    same = 0
    while same < min(len(reading), len(deleting)) - 1 and reading[same][0] == deleting[same][0]:
        same += 1
    return 'went on in', deleting[same][1] + reading[same][1]


def main():
    with open(sys.argv[1], errors='replace') as log:
        found = deletions(log)
    frames = {frame.group(2) for _, lines in found for line in lines if (frame := FRAME.match(line))}
    if not any(is_own(function) for function in frames):
        print(f'No stack in {sys.argv[1]} shows a source of the library: its falls cannot be told from those of Qt',
              file=sys.stderr)
        return 1
    falls = [(name, *what) for name, lines in found if (what := fall(lines))]
    faults = [(name, deed, own) for name, deed, functions in falls
              if (own := next(filter(is_own, functions), None))]
    print(f'Of {len(falls)} falls {len(faults)} are those of the library')
    for name, deed, own in faults:
        print(f'  {name}: {deed} {own}')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
