# SPDX-License-Identifier: MIT
"""Tells which function went on after it had a widget deleted, from the log of scripts/deletions.

valgrind reports where a deleted widget was read, and where it had been deleted. Below the function that went
on the two stacks are the same, since it called what deleted the widget, and later what read it. When it ended
with that call, only the stack of the deletion has it.
"""

import re
import sys

DELETION = re.compile(r'\*\*\d+\*\* (.*)')
PREFIX = re.compile(r'==\d+== ?')
FRAME = re.compile(r'\s+(?:at|by) (0x[0-9A-F]+): (.*)')
OWN = re.compile(r'/build/dev/\.\./\.\./(?:src|systeminfo|include)/')


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


def went_on(lines):
    """The functions that may have gone on, each with its place; None if nothing deleted was read."""
    start = next((i for i, line in enumerate(lines) if FRAME.match(line)), None)
    if start is None:
        return None
    reading = stack(lines[start:])
    freed = next((i for i, line in enumerate(lines) if line.endswith("free'd")), len(lines))
    deleting = stack(lines[freed + 1:])
    if not deleting: # deleted twice
        return reading[-1][1]
    same = 0
    while same < min(len(reading), len(deleting)) - 1 and reading[same][0] == deleting[same][0]:
        same += 1
    return deleting[same][1] + reading[same][1]


def main():
    with open(sys.argv[1], errors='replace') as log:
        fallen = [(name, went_on(lines)) for name, lines in deletions(log)]
    fallen = [(name, functions) for name, functions in fallen if functions]
    faults = [(name, own) for name, functions in fallen
              if (own := [function for function in functions if OWN.search(function)])]
    print(f'Of {len(fallen)} reads of a deleted widget {len(faults)} were by the library')
    for name, own in faults:
        print(f'  {name}: {own[0]}')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
