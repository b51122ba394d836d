# SPDX-License-Identifier: MIT
"""What a program pays that links the library and never uses a keypad."""

import os
import re
import subprocess
import tempfile

PAGE = os.sysconf('SC_PAGE_SIZE')
WIDTH = 44


def output(*command, **environment):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, env={**os.environ, 'LC_ALL': 'C', **environment}).stdout


def stripped_size(library):
    with tempfile.NamedTemporaryFile() as copy:
        output('strip', '-o', copy.name, library)
        return os.path.getsize(copy.name)


def relocations(library):
    """The address and the addend, or None, of everything that the loader writes."""
    entries = re.findall(r'^([0-9a-f]{8,}) +[0-9a-f]+ +(R_\S+)(.*)$',
                         output('readelf', '-rW', library), re.M)
    return [(int(place, 16), int(rest.strip(), 16) if kind.endswith('_RELATIVE') else None)
            for place, kind, rest in entries]


def section(library, name):
    """Address and size."""
    found = re.search(r'\] ' + re.escape(name) + r' +\S+ +([0-9a-f]+) [0-9a-f]+ ([0-9a-f]+)',
                      output('readelf', '-SW', library))
    return (int(found[1], 16), int(found[2], 16)) if found else (0, 0)


def started_functions(library):
    """What the loader calls, by name: of the compiler's own start-up alone frame_dummy."""
    names = {int(place, 16): name for place, _, name in
             (line.split(' ', 2) for line in output('nm', library).splitlines()
              if re.match(r'[0-9a-f]+ [tTW] ', line))}
    start, size = section(library, '.init_array')
    return [names.get(addend, hex(addend or 0)) for place, addend in relocations(library)
            if start <= place < start + size]


def extent(library):
    """How many pages the library takes in memory."""
    ends = [int(place, 16) + int(size, 16) for place, size in re.findall(
        r'LOAD +\S+ (\S+) \S+ \S+ (\S+)', output('readelf', '-lW', library))]
    return -(-max(ends) // PAGE)


def written_pages(smaps, library):
    """How many pages of the library this process has written; .bss may lie behind its file.

    Those are anonymous now. A page of a file that was just made is dirty, and not written here.
    """
    total = 0
    start = end = None
    for mapping in re.split(r'^(?=[0-9a-f]+-[0-9a-f]+ )', smaps, flags=re.M)[1:]:
        first, last, name = re.match(r'(\S+)-(\S+) \S+ \S+ \S+ \S+ *(.*)', mapping).groups()
        first, last = int(first, 16) // PAGE, int(last, 16) // PAGE
        if os.path.basename(name) == os.path.basename(library):
            start = first if start is None else start
        elif name or first != end:
            continue
        end = last
        pages = int(re.search(r'Anonymous: +(\d+) kB', mapping)[1]) * 1024 // PAGE
        total += max(0, min(pages, start + extent(library) - first))
    return total


def all_written(smaps):
    return sum(map(int, re.findall(r'Anonymous: +(\d+) kB', smaps)))


def statistics(program):
    text = output(program, LD_DEBUG='statistics', LD_BIND_NOW='1')
    return {name: int(re.search(name + r': (\d+)', text)[1]) for name in
            ('number of relocations', 'number of relocations from cache',
             'number of relative relocations')}


def compare(folder, library):
    """Prints the figures; answers what is not as promised."""
    library = os.path.realpath(library)
    bare, linked = (os.path.join(folder, name) for name in ('hmi-load-bare', 'hmi-load-linked'))
    counts = [statistics(program) for program in (bare, linked)]
    smaps = [output(program) for program in (bare, linked)]
    heaps = [int(re.search(r'^heap (\d+)', text)[1]) for text in smaps]
    started = started_functions(library)
    relocated = len({place // PAGE for place, _ in relocations(library)})
    written = written_pages(smaps[1], library)
    print(f'{"a program that uses no keypad":{WIDTH}}   linked      bare  difference')
    rows = [(name, *(count[name] for count in counts)) for name in counts[0]]
    rows += [('heap, bytes', *heaps), ('written memory, KiB', *map(all_written, smaps))]
    for name, without, with_library in rows:
        print(f'{name:{WIDTH}} {with_library:8} {without:9} {with_library - without:11}')
    print(f'run at load: {", ".join(started)}; .data {section(library, ".data")[1]} bytes, '
          f'.bss {section(library, ".bss")[1]} bytes')
    print(f'pages of the library that are written: {written}, all by the loader: {relocated} '
          'have relocations\n')
    return [complaint for complaint, is_so in (
        (f'code of the library is run at load: {", ".join(started)}', started != ['frame_dummy']),
        (f'{written} pages are written, {relocated} of them by the loader', written > relocated),
        ('the heap of a program grows that only links the library', heaps[0] != heaps[1]),
    ) if is_so]
