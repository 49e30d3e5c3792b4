"""Documents with codes of every colour, and pictures, printed with and without separation of content."""
import itertools
import os
import subprocess

import content_documents
from code_pictures import burnt, grown, label_bits, png_of_bits
from content_documents import CODES, COLOURS, document, page
import document_run
from document_run import filter_folder, printed, raster_of
from picture_run import Faults, write

AS_IT_IS = 'Content=AsItIs HalftoneType=None'
MODELS = {'kstl203': 203, 'kstl300': 300}


def found_on(rows):
    """The codes of a page's dots."""
    path = write(png_of_bits(rows), 'png')
    texts = subprocess.run(['zbarimg', '--quiet', '--nodbus', '--raw', path], capture_output=True,
                           text=True).stdout.split('\n')
    matrix = subprocess.run(['ZXingReader', '-format', 'DataMatrix', '-1', path], capture_output=True, text=True)
    return {code for code in CODES if (text := code.split(':', 1)[1]) in texts or text in matrix.stdout}


def codes_of_every_colour_are_read():
    """Modules of two to four dots, on the dots."""
    cases = [(name, dots) for name in COLOURS for dots in (2, 3, 4)]
    with Faults() as faults:
        for model, dpi in MODELS.items():
            sheet = document(page(CODES, dots * 72 / dpi, COLOURS[name], dpi) for name, dots in cases)
            mixed, before = printed(sheet, model=model), printed(sheet, AS_IT_IS, model=model)
            assert len(mixed) == len(before) == len(cases)
            for (name, dots), label, old in zip(cases, mixed, before):
                with faults.of(f'{name}, {dots} dots, {model}'):
                    found = found_on(burnt(label))
                    assert found == set(CODES), set(CODES) - found
                    if label.data != old.data:
                        lost = found_on(grown(burnt(old))) - found_on(grown(burnt(label)))
                        assert not lost, f'with grown dots: {lost}'


def black_codes_of_any_width_are_the_same_dots():
    """Drawn, whatever the module, and as pictures of any resolution: what a threshold gives."""
    with Faults() as faults:
        for model in MODELS:
            widths = (0.7, 0.75, 0.9, 1, 1.06, 1.1, 1.3, 1.42)
            sheet = document(page(CODES, width, COLOURS['black']) for width in widths)
            same_dots(faults, f'drawn, {model}', sheet, model)
            for dpi in (150, 203, 300, 600):
                same_dots(faults, f'{dpi} dpi, {model}', png_of_bits(label_bits(dpi)), model)


def same_dots(faults, name, sheet, model):
    with faults.of(name):
        mixed, before = printed(sheet, model=model), printed(sheet, AS_IT_IS, model=model)
        assert [label.data for label in mixed] == [label.data for label in before]


def as_it_is_shades_what_is_not_black():
    sheet = document([page(CODES, 3 * 72 / 203, COLOURS['red'], 203)])
    shaded, mixed = printed(sheet, 'Content=AsItIs')[0], printed(sheet)[0]
    assert shaded.burnt_share() < 0.8 * mixed.burnt_share(), (shaded.burnt_share(), mixed.burnt_share())
    for options in ('Content=Mixed', 'Content=Nonsense', 'content=mixed', 'Content'):
        assert printed(sheet, options)[0].data == mixed.data, options
    # Without anything to shade, the halftone makes no difference.
    assert printed(sheet, 'HalftoneType=None')[0].data == mixed.data


def stencils_are_as_they_are():
    sheet = document([page(CODES, 3, COLOURS['red'])])
    assert printed(sheet, model='ksts300')[0].data == printed(sheet, 'Content=AsItIs', model='ksts300')[0].data


def box_sums(rows, reach):
    """Of each row: the sums from so far on the left to so far on the right, where there is something."""
    result = []
    for row in rows:
        ends = [0] + list(itertools.accumulate(row))
        last = len(row)
        result.append([ends[min(x + reach + 1, last)] - ends[max(x - reach, 0)] for x in range(last)])
    return result


def softened(rows, reach):
    """About a Gaussian of a standard deviation of so many dots: three boxes in each direction."""
    for _ in range(3):
        rows = [list(column) for column in zip(*box_sums(rows, reach))]
        rows = [list(column) for column in zip(*box_sums(rows, reach))]
    return rows


def error_of(label, levels, box, reach=16):
    """Of the dots against the levels of K within a box, after softening by 2 mm at 203 dpi."""
    left, top, right, bottom = box
    difference = [[255 * label.burns(x, y) - levels[y][x] for x in range(left, right)]
                  for y in range(top, bottom)]
    return sum(value * value for row in softened(difference, reach) for value in row) ** 0.5


def pictures_keep_their_shades():
    """A drawn portrait: as near to its shades as error diffusion alone, within 5 %."""
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../../samples/portrait.pdf'), 'rb') as file:
        portrait = file.read()
    levels = raster_of(portrait, 'Content=AsItIs')
    mixed, plain = printed(portrait)[0], printed(portrait, 'Content=AsItIs')[0]
    inked = [y for y, row in enumerate(levels) if any(row)]
    columns = [x for x in range(len(levels[0])) if any(levels[y][x] for y in inked)]
    box = columns[0], inked[0], columns[-1] + 1, inked[-1] + 1
    errors = error_of(mixed, levels, box), error_of(plain, levels, box)
    assert errors[0] <= 1.05 * errors[1], errors


def tints_are_shaded_evenly():
    """A row of a table with text on it, and a box: their share of dots is that of their shade."""
    sheet = document(['0.7 g 10 300 268 20 re 30 100 200 100 re f 0 g BT /F 12 Tf 15 305 Td ET '
                      + ' '.join(f'{20 + 8 * i} 303 3 13 re' for i in range(20)) + ' f'])
    label = printed(sheet)[0]
    for left, top, right, bottom in ((100, 670, 640, 900), (560, 320, 740, 365)):
        dots = sum(label.burns(x, y) for y in range(top, bottom) for x in range(left, right))
        share = dots / (right - left) / (bottom - top)
        assert 0.28 < share < 0.32, share


def a_missing_program_is_named():
    """And is not missed where nothing is to be separated."""
    folder = filter_folder()
    os.unlink(f'{folder}/filter/rastertokestocontent')
    sheet = document([page(CODES, 3, COLOURS['red'])])
    status, stream, lines = document_run.document(sheet, server_bin=folder)
    assert status == 1 and stream == b'' and len(lines) == 1 and 'rastertokestocontent' in lines[0], lines
    assert document_run.document(sheet, 'Content=AsItIs', server_bin=folder)[0] == 0


def a_failing_separation_fails_the_job():
    sheet = document([page(CODES, 3, COLOURS['red'])])
    for script, said in (('cat >/dev/null; exit 3', 'status 3'), ('cat; exit 3', 'status 3'),
                         ('head -c 50000; kill -9 $$', 'signal 9')):
        folder = filter_folder()
        os.unlink(f'{folder}/filter/rastertokestocontent')
        with open(f'{folder}/filter/rastertokestocontent', 'w', encoding='ascii') as file:
            file.write(f'#!/bin/sh\n{script}\n')
        os.chmod(f'{folder}/filter/rastertokestocontent', 0o755)
        status, _, lines = document_run.document(sheet, server_bin=folder)
        errors = [line for line in lines if line.startswith('ERROR')]
        assert status == 1 and errors and said in errors[-1], (script, status, lines)
