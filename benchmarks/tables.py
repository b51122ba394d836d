# SPDX-License-Identifier: MIT
"""Writes measured tables into docs/performance.md, between two comments each."""

import os
import re


def renew(tree, name, lines):
    path = os.path.join(tree, 'docs', 'performance.md')
    with open(path, encoding='utf-8') as file:
        text = file.read()
    table, found = re.subn(f'(<!-- {name} -->\n).*?(<!-- end of {name} -->)',
                           lambda match: match[1] + ''.join(f'{line}\n' for line in lines) + match[2],
                           text, flags=re.S)
    if found != 1:
        raise ValueError(f'{path} has no place for the table {name}')
    with open(path, 'w', encoding='utf-8') as file:
        file.write(table)


def shown(value):
    return f'{value:,.0f}' if value >= 100 else f'{value:.1f}'


def renew_comparison(tree, rows, figures_of):
    lines = ['| | Keypad | Qt Virtual Keyboard | Part |', '|---|---|---|---|']
    for title, figures in figures_of.items():
        lines.append(f'| **{title}** | | | |')
        for name, what, _, _ in rows:
            keypad, keyboard = figures[name]
            lines.append(f'| {what} | {shown(keypad)} | {shown(keyboard)} | {keypad / keyboard:.2f} |')
    renew(tree, 'comparison', lines)


def renew_speed(tree, counted, timed, file_row, exceptions):
    """Of counted the ratios, and heap and file; of timed, which has no heap, the times."""
    renew(tree, 'exceptions', ['| What | Up to | Made of |', '|---|---|---|',
                               *(f'| `{name}` | {most} | {reason} |'
                                 for name, _, most, reason in exceptions)])
    lines = ['| What | Library, µs | Floor, µs | Ratio of times | of instructions | At most |',
             '|---|---|---|---|---|---|']
    for name, figure in timed.items():
        most = f'{figure.most:g}' if figure.most else ''
        instructions = f'{counted[name].ratio():.2f}' if counted[name].unit == 'instructions' else ''
        lines.append(f'| {name} | {figure.library:.1f} | {figure.floor:.1f} | {figure.ratio():.2f} | '
                     f'{instructions} | {most} |')
    renew(tree, 'speed', lines)
    lines = ['| What | Library, KiB | Floor, KiB | Ratio | At most |', '|---|---|---|---|---|']
    for name, figure in counted.items():
        if figure.unit == 'KiB':
            lines.append(f'| {name} | {figure.library:.0f} | {figure.floor:.0f} | '
                         f'{figure.ratio():.2f} | {figure.most:g} |')
    file = counted[file_row]
    lines.append(f'| {file_row} | {file.library / 1024:.1f} | | | {file.most / 1024:g} |')
    renew(tree, 'memory', lines)
