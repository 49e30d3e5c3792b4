#!/usr/bin/python3
"""labels_test.py TSPLPREVIEW FUNCTION | --update [NAME...]: what the previewer draws of the streams in labels/ and
complains of is what is kept beside them.

NAME.tspl is a stream, NAME-1.png and so on are the pictures of its labels, and NAME.json holds

    complaints   byte and text of each, as --json gives them
    labels       number, size, resolution, sets and copies of each, and its lettering: areas (x, y, width, height)
                 that fonts of the system draw

Dots outside of the lettering must be the same; lettering.py says what may be otherwise in it. --update keeps what the
previewer draws now, of all streams or of those named: look at the pictures before they are committed. A stream with
pictures in it comes from make_data_streams, all others are written by hand.
"""
import glob
import json
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, f'{HERE}/../support')

import lettering
from png_dots import burnt_rows

FOLDER = f'{HERE}/labels'
NUMBERS = ('number', 'width', 'height', 'dpi', 'sets', 'copies')


def names():
    return sorted(os.path.basename(path)[:-len('.tspl')] for path in glob.glob(f'{FOLDER}/*.tspl'))


def stream_of(name):
    with open(f'{FOLDER}/{name}.tspl', 'rb') as file:
        return file.read()


def expectation(name):
    with open(f'{FOLDER}/{name}.json', encoding='utf-8') as file:
        return json.load(file)


class Preview:
    """What the previewer says of a stream, and the rows of its pictures."""

    def __init__(self, previewer, stream, prefix=None):
        with tempfile.TemporaryDirectory() as folder:
            prefix = prefix or f'{folder}/label'
            run = subprocess.run([previewer, '--json', '-o', prefix], input=stream, capture_output=True, check=False)
            assert run.returncode in (0, 1), run.returncode
            self.objects = [json.loads(line) for line in run.stdout.splitlines()]
            self.pictures = [burnt_rows(f'{prefix}-{label["number"]}.png')[1] for label in self.labels()]

    def of_type(self, kind):
        return [thing for thing in self.objects if thing['type'] == kind]

    def labels(self):
        return [{name: label[name] for name in NUMBERS} for label in self.of_type('label')]

    def complaints(self):
        """Byte and text of each; of letters that are cut off, how many dots they have is the font's affair."""
        letters = {command['offset'] for command in self.of_type('command') if command['command'] in ('TEXT', 'BLOCK')}
        return sorted([at, re.sub('^[0-9]+ dots', 'dots', text) if at in letters else text]
                      for at, text in ((thing['offset'], thing['text']) for thing in self.of_type('complaint')))


def lettering_areas(previewer, stream, preview):
    """For each label the extents of what commands of lettering add to it."""
    areas = [[] for _ in preview.pictures]
    for command in preview.of_type('command'):
        bare = lettering.without(stream, command)
        pictures = Preview(previewer, bare).pictures if bare is not None else preview.pictures
        for found, rows, others in zip(areas, preview.pictures, pictures):
            area = lettering.extent([row ^ other for row, other in zip(rows, others)])
            found.extend([area] if area else [])
    return areas


def update(previewer, name):
    for path in glob.glob(f'{FOLDER}/{name}-[0-9]*.png'):
        os.remove(path)
    stream = stream_of(name)
    preview = Preview(previewer, stream, f'{FOLDER}/{name}')
    labels = preview.labels()
    for label, areas in zip(labels, lettering_areas(previewer, stream, preview)):
        label['lettering'] = areas
    lines = ',\n'.join(f'  {json.dumps(label)}' for label in labels)
    complaints = ',\n'.join(f'  {json.dumps(complaint)}' for complaint in preview.complaints())
    with open(f'{FOLDER}/{name}.json', 'w', encoding='utf-8') as file:
        file.write('{"complaints": [%s],\n "labels": [\n%s]}\n' % (complaints and f'\n{complaints}', lines))


def differences_of_picture(label, kept, drawn):
    """What is otherwise in two pictures of a label."""
    areas = label['lettering']
    exact = zip(lettering.erased(kept, areas), lettering.erased(drawn, areas))
    rows = [y for y, (own, other) in enumerate(exact) if own != other]
    if rows:
        yield f'rows {rows[0]} to {rows[-1]} differ'
    yield from filter(None, (lettering.difference(kept, drawn, area) for area in areas))


def kept_pictures(name, labels):
    return [burnt_rows(f'{FOLDER}/{name}-{label["number"]}.png')[1] for label in labels]


def differences(previewer, name):
    """What the previewer draws or says otherwise than is kept of a stream."""
    kept, preview = expectation(name), Preview(previewer, stream_of(name))
    numbers = [{key: label[key] for key in NUMBERS} for label in kept['labels']]
    if preview.complaints() != kept['complaints']:
        yield f'complaints are {preview.complaints()}, not {kept["complaints"]}'
    if preview.labels() != numbers:
        yield f'labels are {preview.labels()}, not {numbers}'
        return
    for label, own, drawn in zip(kept['labels'], kept_pictures(name, numbers), preview.pictures):
        yield from (f'label {label["number"]}: {what}' for what in differences_of_picture(label, own, drawn))


def every_stream_is_drawn_as_it_is_kept(previewer):
    faults = [f'{name}: {what}' for name in names() for what in differences(previewer, name)]
    assert not faults, '\n'.join(faults)


def every_stream_has_its_expectation(_previewer):
    """And nothing is kept of a stream that is not there."""
    assert len(names()) >= 40, len(names())
    files = {f'{name}.{ending}' for name in names() for ending in ('tspl', 'json')}
    for name in names():
        labels = expectation(name)['labels']
        assert labels or expectation(name)['complaints'], f'{name} shows nothing'
        assert all(map(lettering.ink, kept_pictures(name, labels))) or expectation(name)['complaints'], name
        files |= {f'{name}-{label["number"]}.png' for label in labels}
    assert files == set(os.listdir(FOLDER)), files ^ set(os.listdir(FOLDER))


def with_letters_moved(rows, area, right):
    """A picture in which what is in an area is as many columns to the right."""
    bare = lettering.erased(rows, [area])
    left, _, top, bottom = lettering.surroundings(area)
    moved = lettering.cut(rows, area)
    return bare[:top] + [row | (dots << left + right) for row, dots in zip(bare[top:bottom], moved)] + bare[bottom:]


def one_dot_and_lost_letters_are_found(_previewer):
    """What the comparison is for, on a picture that has both."""
    label = expectation('shelf-label')['labels'][0]
    rows, area = kept_pictures('shelf-label', [label])[0], label['lettering'][0]
    one_more = rows[:-1] + [rows[-1] ^ 1]
    assert list(differences_of_picture(label, rows, one_more)) == [f'rows {len(rows) - 1} to {len(rows) - 1} differ']
    assert not list(differences_of_picture(label, rows, rows))
    assert not list(differences_of_picture(label, rows, with_letters_moved(rows, area, 1)))
    assert list(differences_of_picture(label, rows, with_letters_moved(rows, area, 2 * lettering.slack(area))))
    assert list(differences_of_picture(label, rows, lettering.erased(rows, [area])))


def main():
    previewer, what, *rest = sys.argv[1:]
    if what == '--update':
        for name in rest or names():
            update(previewer, name)
    else:
        globals()[what](previewer)


if __name__ == '__main__':
    main()
