"""Whole-label pictures with seven codes, from the scheduler's file to the dots that burn."""
import subprocess

from code_pictures import (CODES, burnt, enlarged, grown, grown_all_around, jpeg_of_bits, label_bits,
                           png_of_bits, read_from, read_from_bits)
import document_run
from document_run import printed
import picture_run
from picture_run import FOLDER, Faults, write

# How many of the seven were read on labels of 203 dots per inch whose dots had grown, when pictures
# were printed by imagetopdf, pdftopdf and gstoraster (cups-filters 1.28.17, Ghostscript 10.0), by the
# resolution of the picture: with dots that grow to the right and downward, and to all sides.
READ_BEFORE = {150: (6, 1), 203: (5, 2), 300: (6, 1), 600: (6, 2)}
WIDTHS = {'kstl203': 808, 'kstl300': 1200}


def page_of(rows, model, options='HalftoneType=None'):
    pages = printed(png_of_bits(rows), options, model=model)
    assert len(pages) == 1 and pages[0].width == WIDTHS[model], (len(pages), pages[0].width)
    return pages[0]


def drawn_by_the_previewer(rows, model):
    """The picture that the previewer draws of the stream."""
    status, stream, lines = document_run.document(png_of_bits(rows), 'HalftoneType=None', model=model)
    assert status == 0, lines
    subprocess.run([picture_run.PREVIEWER, '-o', f'{FOLDER}/drawn', write(stream, 'tspl')], check=True,
                   stdout=subprocess.DEVNULL)
    return f'{FOLDER}/drawn-1.png'


def the_codes_are_read_from_their_own_pictures():
    for dpi in READ_BEFORE:
        missing = set(CODES) - read_from_bits(label_bits(dpi))
        assert not missing, (dpi, missing)


def codes_of_every_resolution_are_read():
    with Faults() as faults:
        for model in WIDTHS:
            for dpi in READ_BEFORE:
                with faults.of(f'{dpi} dpi on {model}'):
                    found = read_from(drawn_by_the_previewer(label_bits(dpi), model))
                    assert found == set(CODES), set(CODES) - found


def codes_in_jpeg_are_read_however_it_is_decoded():
    """Of 500 dpi its decoder may take the half."""
    with Faults() as faults:
        for dpi, model in ((500, 'kstl203'), (600, 'kstl203'), (600, 'kstl300')):
            with faults.of(f'{dpi} dpi on {model}'):
                pages = printed(jpeg_of_bits(label_bits(dpi)), 'HalftoneType=None', model=model)
                found = read_from_bits(burnt(pages[0]))
                assert len(pages) == 1 and found == set(CODES), set(CODES) - found


def no_fewer_codes_are_read_when_dots_grow():
    with Faults() as faults:
        for dpi, before in READ_BEFORE.items():
            dots = burnt(page_of(label_bits(dpi), 'kstl203'))
            for larger, least in zip((grown, grown_all_around), before):
                with faults.of(f'{dpi} dpi, {larger.__name__}'):
                    found = read_from_bits(larger(dots))
                    assert len(found) >= least, set(CODES) - found


def cut_to(rows, width):
    """The middle of them."""
    edge = (len(rows[0]) - width) // 2
    return [row[edge:edge + width] for row in rows]


def whole_multiples_end_as_exact_modules():
    """Dot for dot, but for the four columns that the label is less than 4 inches wide."""
    coarse, middle, fine = label_bits(150), label_bits(203), label_bits(300)
    with Faults() as faults:
        for name, rows, model, expected in (
                ('203 on 203', middle, 'kstl203', cut_to(middle, 808)),
                ('406 on 203', enlarged(middle, 2), 'kstl203', cut_to(middle, 808)),
                ('609 on 203', enlarged(middle, 3), 'kstl203', cut_to(middle, 808)),
                ('300 on 300', fine, 'kstl300', fine),
                ('600 on 300', enlarged(fine, 2), 'kstl300', fine),
                ('150 on 300', coarse, 'kstl300', enlarged(coarse, 2))):
            with faults.of(name):
                dots = burnt(page_of(rows, model))
                wrong = [y for y, (row, other) in enumerate(zip(dots, expected)) if row != other]
                assert len(dots) == len(expected) and not wrong, (len(dots), len(wrong), wrong[:5])


def every_halftone_keeps_codes_of_exact_modules():
    """Black and white have nothing to be mixed of."""
    rows = cut_to(label_bits(203), 808)
    for halftone in '', 'HalftoneType=FloydSteinberg', 'HalftoneType=Burkes':
        assert burnt(page_of(rows, 'kstl203', halftone)) == rows, halftone
