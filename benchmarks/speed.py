#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts what the library costs beside its floors, and compares that with the figures kept.

usage: speed.py [--renew] TREE BUILD

figures.txt beside this file keeps the counts, exceptions.txt says which targets are missed and why.
--renew writes the former, and the tables in docs/performance.md.
"""

import argparse
import glob
import os
import re
import subprocess
import sys
import tempfile
from typing import NamedTuple

import load
import tables

MOST_GROWTH = 1.05
NAME_WIDTH = 60
MOST_BYTES = 160 * 1024
FILE_ROW = 'libHMIDevice.so, stripped'

# What is judged by time, as its floor is system calls, which are no instructions of the program.
TIMED_ROW = '"v" after "" (0 rows), beside the query'


class Figure(NamedTuple):
    """A figure of the library and its floor, which is 1 where the target is an absolute one."""
    unit: str
    library: float
    floor: float
    most: float

    def ratio(self):
        return self.library / self.floor

    # By two digits after the point, as more of them do not repeat.
    def misses(self):
        return 0 < self.most < round(self.ratio(), 2)


def fail(message):
    sys.exit(f'scripts/prove speed: {message}')


def run(program, *arguments):
    environment = {**os.environ, 'QT_QPA_PLATFORM': 'offscreen', 'LC_ALL': 'C.UTF-8'}
    environment.setdefault('XDG_RUNTIME_DIR', tempfile.gettempdir())
    result = subprocess.run([program, *arguments], env=environment, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    if result.returncode != 0:
        fail(f'{program} {" ".join(arguments)} failed:\n{result.stdout}{result.stderr}')
    return result.stdout


def read_dump(text):
    """Of one file of callgrind's: what was counted, on which side, and a Figure's numbers."""
    found = re.search(r'Client Request: (.*)\|(.*)\|(\d+)\|(library|floor)$', text, re.M)
    if not found:
        return None
    name, most, rounds, side = found.groups()
    total = int(re.search(r'^(?:summary|totals): (\d+)', text, re.M)[1])
    return name, side, total / int(rounds), float(most)


def count_instructions(program):
    """The conditions of the counts, and the figures by their names."""
    with tempfile.TemporaryDirectory() as folder:
        printed = run(program, '--instructions', folder)
        dumps = [open(path, encoding='utf-8').read()
                 for path in glob.glob(os.path.join(folder, 'callgrind.out.*'))]
    sides = {}
    for name, side, count, most in filter(None, map(read_dump, dumps)):
        sides.setdefault(name, {'most': most})[side] = count
    names = re.findall(r'^counted: (.*)$', printed, re.M)
    if not names or set(names) != set(sides):
        fail(f'callgrind has not counted everything:\n{printed}')
    return re.search(r'^conditions: (.*)$', printed, re.M)[1], {
        name: Figure('instructions', sides[name]['library'], sides[name]['floor'],
                     sides[name]['most']) for name in names}


def read_table(printed, unit):
    """The figures of a table that hmi-benchmarks has printed."""
    figures = {}
    for line in printed.splitlines():
        numbers = re.fullmatch(r' +([\d.]+) +([\d.]+) +[\d.]+(?: +([\d.]+)(?:  missed)?)?',
                               line[NAME_WIDTH:])
        if numbers:
            figures[line[:NAME_WIDTH].strip()] = Figure(unit, float(numbers[1]), float(numbers[2]),
                                                        float(numbers[3] or 0))
    return figures


def measure(build):
    """The conditions, the figures that are judged, and the times."""
    program = os.path.join(build, 'benchmarks', 'hmi-benchmarks')
    conditions, figures = count_instructions(program)
    times = read_table(run(program, '--times'), 'µs')
    figures[TIMED_ROW] = times[TIMED_ROW]
    for name, figure in read_table(run(program, '--heap'), 'KiB').items():
        figures[f'{name}, heap'] = figure
    size = load.stripped_size(os.path.join(build, 'libHMIDevice.so'))
    figures[FILE_ROW] = Figure('bytes', size, 1, MOST_BYTES)
    return conditions, figures, times


def read_lines(path):
    """The fields of the lines that are no comments."""
    with open(path, encoding='utf-8') as file:
        return [line.rstrip('\n').split('|') for line in file
                if line.strip() and not line.startswith('#')]


def read_kept(path):
    lines = read_lines(path)
    return lines[0][0], {name: Figure(unit, float(library), float(floor), float(most))
                         for name, unit, library, floor, most in lines[1:]}


def write_kept(path, conditions, figures):
    with open(path, 'w', encoding='utf-8') as file:
        file.write('# What the library costs, and its floor, as scripts/prove speed --renew has '
                   'found it.\n# First the conditions; then name|unit|library|floor|at most.\n'
                   f'{conditions}\n')
        for name, figure in figures.items():
            file.write(f'{name}|{figure.unit}|{figure.library:.1f}|{figure.floor:.1f}|'
                       f'{figure.most:g}\n')


def growth(figure, kept, same_conditions):
    """Times the kept figure: the ratio, and under the same conditions the library alone."""
    ratio = figure.ratio() / kept.ratio()
    return max(ratio, figure.library / kept.library) if same_conditions else ratio


def print_table(figures, grown):
    print(f'{"":{NAME_WIDTH}}      library        floor    ratio  at most    growth')
    for name, figure in figures.items():
        ratio = f'{figure.ratio():8.2f}' if figure.floor != 1 else f'{"":8}'
        most = f'{figure.most:8g}' if figure.most else f'{"":8}'
        floor = f'{figure.floor:12.0f}' if figure.floor != 1 else f'{"":12}'
        change = f'{100 * (grown[name] - 1):+8.1f} %' if name in grown else f'{"new":>10}'
        print(f'{name:{NAME_WIDTH}} {figure.library:12.0f} {floor} {ratio} {most}{change}'
              f'{"  missed" if figure.misses() else ""}')
    print()


def is_meant(name, figure, pattern, unit):
    return figure.unit == unit and re.fullmatch(pattern, name)


def judge_targets(figures, exceptions):
    """Complaints about targets that are missed without a stated reason; prints stated ones."""
    complaints = []
    for name, figure in figures.items():
        reasons = [reason for pattern, unit, most, reason in exceptions
                   if is_meant(name, figure, pattern, unit) and figure.ratio() <= float(most)]
        if figure.misses() and not reasons:
            complaints.append(f'{name}: above its target')
        elif figure.misses():
            print(f'missed: {name}: {reasons[0]}')
    unused = [pattern for pattern, unit, _, _ in exceptions
              if not any(is_meant(name, figure, pattern, unit) and figure.misses()
                         for name, figure in figures.items())]
    return complaints + [f'exceptions.txt: nothing misses its target as {pattern}'
                         for pattern in unused]


def main():
    parser = argparse.ArgumentParser(prog='scripts/prove speed')
    parser.add_argument('--renew', action='store_true')
    parser.add_argument('tree')
    parser.add_argument('build')
    options = parser.parse_args()
    kept_path = os.path.join(options.tree, 'benchmarks', 'figures.txt')
    conditions, figures, times = measure(options.build)
    kept_conditions, kept = read_kept(kept_path) if os.path.exists(kept_path) else ('', {})
    grown = {name: growth(figure, kept[name], conditions == kept_conditions)
             for name, figure in figures.items() if name in kept and name != TIMED_ROW}
    print(f'conditions: {conditions}\n')
    print_table(figures, grown)
    complaints = load.compare(os.path.join(options.build, 'benchmarks', 'load'),
                              os.path.join(options.build, 'libHMIDevice.so'))
    exceptions = read_lines(os.path.join(options.tree, 'benchmarks', 'exceptions.txt'))
    complaints += judge_targets(figures, exceptions)
    if options.renew:
        write_kept(kept_path, conditions, figures)
        tables.renew_speed(options.tree, figures, times, FILE_ROW, exceptions)
    else:
        complaints += [f'{name}: {100 * (factor - 1):.1f} % more than the figure kept'
                       for name, factor in grown.items() if factor > MOST_GROWTH]
        complaints += [f'{name}: is not measured any more' for name in kept if name not in figures]
    if complaints:
        fail('\n'.join(['', *complaints]))


if __name__ == '__main__':
    main()
