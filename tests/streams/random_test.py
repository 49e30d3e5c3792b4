#!/usr/bin/python3
"""random_test.py TSPLPREVIEW [--seed N] [--streams M]: random streams, drawn by the previewer and by a second
decoder, are the same pictures, dot for dot. Of a stream on which they differ the shortest part that does it is left
in a file."""
import argparse
import json
import os
import random
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [f'{HERE}/../support', f'{HERE}/../reference']

from png_dots import burnt_rows
from random_stream import RandomStream
from tspl_decoder import commands_in, labels_of

NUMBERS = ('number', 'width', 'height', 'dpi', 'sets', 'copies', 'burntDots')


def previewed(previewer, stream, dpi, feed, folder):
    """What the previewer says of the labels, and their pictures as rows of dots. It ends with 1 when a label
    cannot be drawn."""
    command = [previewer, '--json', '--dpi', str(dpi), '-o', f'{folder}/label']
    run = subprocess.run(command + ['--feed-direction'] * feed, input=stream, capture_output=True, check=False)
    if run.returncode not in (0, 1):
        return [f'exit status {run.returncode}'], []
    objects = [json.loads(line) for line in run.stdout.splitlines()]
    labels = [tuple(thing[name] for name in NUMBERS) for thing in objects if thing['type'] == 'label']
    return labels, [burnt_rows(f'{folder}/label-{label[0]}.png') for label in labels]


def expected(stream, dpi, feed):
    """The same by the second decoder."""
    labels, pictures = [], []
    for label in labels_of(stream, dpi):
        burnt = sum(row.bit_count() for row in label.rows)
        labels.append((label.number, label.width, label.height, dpi, label.sets, label.copies, burnt))
        pictures.append((label.width, label.rows if feed else label.upright()))
    return labels, pictures


def first_difference(number, ours, theirs):
    """Where two pictures of a label differ first, or nothing."""
    if (ours[0], len(ours[1])) != (theirs[0], len(theirs[1])):
        return f'label {number} is {theirs[0]} x {len(theirs[1])} dots, not {ours[0]} x {len(ours[1])}'
    for y, (own, their) in enumerate(zip(ours[1], theirs[1])):
        if own != their:
            x = ((own ^ their) & -(own ^ their)).bit_length() - 1
            return f'label {number}: row {y}, column {x} is {"white" if own >> x & 1 else "black"}'
    return ''


def difference(previewer, stream, dpi, feed):
    """The first difference between the previewer's account of a stream and the second decoder's, or nothing; and how
    many labels and dots these are."""
    with tempfile.TemporaryDirectory() as folder:
        labels, pictures = previewed(previewer, stream, dpi, feed, folder)
    ours, our_pictures = expected(stream, dpi, feed)
    found = [first_difference(label[0], own, their) for label, own, their in zip(ours, our_pictures, pictures)]
    said = f'labels are {labels}, not {ours}' if labels != ours else ''
    return next(filter(None, found), said), len(ours), sum(label[1] * label[2] for label in ours)


def shortest(parts, differs):
    """Leaves out of a stream what makes no difference to there being one."""
    for at in reversed(range(len(parts))):
        fewer = parts[:at] + parts[at + 1:]
        if differs(b''.join(fewer)):
            parts = fewer
    return b''.join(parts)


def report(previewer, seed, stream, feed):
    """Names the first difference, in a stream that is as short as it can be, and leaves this in a file."""
    def differs(shorter):
        return difference(previewer, shorter, stream.dpi, feed)[0]
    short = shortest(stream.parts, differs)
    path = os.path.abspath(f'differing-{seed}.tspl')
    with open(path, 'wb') as file:
        file.write(short)
    for command in commands_in(short):
        print(command.name, ','.join(command.arguments), f'[{len(command.data)} bytes]' if command.data else '')
    print(short.decode('latin-1').encode('unicode_escape').decode())
    sys.exit(f'Seed {seed}, {stream.dpi} dpi{", --feed-direction" * feed}: {differs(short)}\nThe stream is in {path}')


def compare(previewer, seed, streams):
    """Compares so many streams, each of a seed of its own; gives the number of labels and of dots."""
    all_labels = all_dots = 0
    for number in range(seed, seed + streams):
        dice = random.Random(number)
        stream, feed = RandomStream(dice), dice.random() < 0.7
        found, labels, dots = difference(previewer, b''.join(stream.parts), stream.dpi, feed)
        if found:
            report(previewer, number, stream, feed)
        all_labels += labels
        all_dots += dots
    return all_labels, all_dots


def main():
    parser = argparse.ArgumentParser(description='Compares the previewer with a second decoder on random streams.')
    parser.add_argument('previewer')
    parser.add_argument('--seed', type=int, default=1, help='of the first stream')
    parser.add_argument('--streams', type=int, default=400)
    options = parser.parse_args()
    labels, dots = compare(options.previewer, options.seed, options.streams)
    print(f'{options.streams} streams, {labels} labels, {dots} dots are the same')
    assert labels >= options.streams, 'too few labels were compared'


if __name__ == '__main__':
    main()
