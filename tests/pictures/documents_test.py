"""Pictures as documents of a job: every one is a label, and none is sent raw or set as text."""
import subprocess

import bad_pictures_test
import bmp_files as bmp
from code_pictures import burnt, enlarged, png_of_bits
import document_run
from document_run import document, printed
import format_table
import other_files
import picture_run
from picture_run import Faults, write
import pixels
import png_files as png
import pnm_files as pnm
import tiff_files as tiff
import tool_files

ACROSS = (480, 320)
SIZE = 'PageSize=60x40mm'
BITS = pixels.grey(*ACROSS, (0, 255))
BIT_ROWS = format_table.bits_of(BITS)


def text_of(bit_rows):
    """Rows of text, '1' where it is black."""
    return [''.join('01'[1 - bit] for bit in row) for row in bit_rows]


BLACK = text_of(BIT_ROWS)


def bit_files():
    """(name, file) of the same picture of a whole label."""
    indices, palette = BIT_ROWS, [(0, 0, 0, 255), (255, 255, 255, 255)]
    plain_tiff = tiff.tiff(tiff.Page(BIT_ROWS, bits=1))
    yield 'PNG', png_of_bits(BLACK)
    yield 'PBM', pnm.pnm(4, BIT_ROWS)
    yield 'PBM of digits', pnm.pnm(1, BIT_ROWS)
    yield 'PGM of 16 bits', pnm.pnm(5, pixels.at_depth(pixels.samples(BITS, 'r'), 16), 65535)
    yield 'PPM of 16 bits', pnm.pnm(6, pixels.at_depth(pixels.samples(BITS, 'rgb'), 16), 65535)
    yield 'PAM', pnm.pam(pixels.samples(BITS, 'ra'), b'GRAYSCALE_ALPHA', 2)
    yield 'PNG of grey with alpha', png.png(pixels.samples(BITS, 'ra'), png.GREY_ALPHA)
    yield 'PNG of 16 bits', png.png(pixels.at_depth(pixels.samples(BITS, 'rgba'), 16), png.RGBA, 16)
    yield 'TIFF', plain_tiff
    yield 'TIFF g4', tool_files.tiff_by('g4', plain_tiff)
    yield 'GIF', other_files.gif(indices, palette)
    yield 'BMP', bmp.indexed(indices, palette, 1)
    yield 'XBM', other_files.xbm(BIT_ROWS)
    yield 'XPM', other_files.xpm(indices, palette)
    yield 'SGI', other_files.sgi(pixels.samples(BITS, 'r'), 1)
    yield 'Sun raster', other_files.sun([[1 - bit for bit in row] for row in BIT_ROWS], 1)
    yield 'X window dump', other_files.xwd(BITS)
    yield 'WebP', tool_files.webp(BITS)
    yield 'JPEG XL', tool_files.jpeg_xl(BITS)


def whole_labels_keep_their_dots_in_every_format():
    with Faults() as faults:
        for name, content in bit_files():
            with faults.of(name):
                pages = printed(content, SIZE)
                assert len(pages) == 1, len(pages)
                assert burnt(pages[0]) == BLACK


def pictures_of_every_format_are_one_label():
    """Small ones, by the default label."""
    with Faults() as faults:
        for name, content in bad_pictures_test.whole_pictures():
            with faults.of(name):
                pages = printed(content)
                assert [(page.width, page.height) for page in pages] == [(808, 1218)]
                assert pages[0].burnt_share() > 0.01


def the_printers_resolution_keeps_a_whole_label():
    """It used to become two halves."""
    for options in f'{SIZE} ppi=203', f'{SIZE} print-scaling=none', f'{SIZE} ppi=203 fitplot=false':
        pages = printed(png_of_bits(BLACK), options)
        assert [burnt(page) for page in pages] == [BLACK], options


def options_come_as_users_write_them():
    upside_down = [row[::-1] for row in BLACK[::-1]]
    turned = [''.join(column) for column in zip(*BLACK)][::-1]
    upright = png_of_bits(turned)
    clockwise = [''.join(column) for column in zip(*turned[::-1])]
    counter_clockwise = [''.join(column) for column in zip(*turned)][::-1]
    for content, options, expected in (
            (png_of_bits(BLACK), 'mirror', [row[::-1] for row in BLACK]),
            (png_of_bits(BLACK), 'orientation-requested=6', upside_down),
            (png_of_bits(BLACK), 'fit-to-page', BLACK), (png_of_bits(BLACK), 'fill', BLACK),
            (png_of_bits(BLACK), 'noscaling print-scaling=fit', BLACK),
            (upright, '', counter_clockwise), (upright, 'landscape', counter_clockwise),
            (upright, 'orientation-requested=5', clockwise)):
        pages = printed(content, f'{SIZE} {options}')
        assert [burnt(page) for page in pages] == [expected], options


def parts_of_a_picture_are_labels_too():
    """Two by two, from the top down and then to the right; each half of the picture doubled."""
    halves = [(0, 0), (0, 160), (240, 0), (240, 160)]
    expected = [enlarged([row[left:left + 240] for row in BLACK[top:top + 160]], 2)
                for left, top in halves]
    for options, chosen in (('scaling=200', expected), ('ppi=101.5', expected),
                            ('natural-scaling=200', expected),
                            ('scaling=200 page-ranges=2-3', expected[1:3])):
        pages = printed(png_of_bits(BLACK), f'{SIZE} {options}', copies=2)
        assert [burnt(page) for page in pages] == chosen, (options, len(pages))
        assert {page.sets * page.copies for page in pages} == {2}, options


def stencils_take_pictures_too():
    rows = pixels.blocks(240, 340, size=20)
    pages = printed(png.png(pixels.samples(rows, 'r')), 'PageSize=Tattoo_A6', model='ksts300')
    assert len(pages) == 1 and pages[0].burnt_share() > 0.01


def pages_of_tiff_are_labels_with_copies():
    others = [format_table.bits_of(pixels.grey(*ACROSS, (0, 255), seed=seed)) for seed in (5, 6, 7)]
    content = tiff.tiff(*(tiff.Page(rows, bits=1) for rows in others))
    expected = [text_of(rows) for rows in others]
    pages = printed(content, f'{SIZE} HalftoneType=None', copies=3)
    assert [burnt(page) for page in pages] == expected
    assert [page.sets * page.copies for page in pages] == [3, 3, 3]
    pages = printed(content, f'{SIZE} page-ranges=2-3')
    assert [burnt(page) for page in pages] == expected[1:]
    pages = printed(content, f'{SIZE} page-set=odd')
    assert [burnt(page) for page in pages] == expected[::2]


def several_pictures_on_a_label_are_laid_out_as_documents_are():
    """Two black pages become two black squares with paper between them."""
    black = tiff.tiff(*[tiff.Page([[0] * 320] * 320)] * 2)
    pages = printed(black, f'{SIZE} number-up=2')
    assert len(pages) == 1, len(pages)
    assert 0.2 < pages[0].burnt_share() < 0.7, pages[0].burnt_share()
    middle = burnt(pages[0])[pages[0].height // 2]
    assert middle.strip('0').count('01') >= 1, middle
    assert len(printed(tiff.tiff(*[tiff.Page([[0] * 320] * 320)] * 3), f'{SIZE} number-up=2')) == 2


def pictures_come_by_standard_input_too():
    environment = dict(document_run.os.environ, PPD=f'{picture_run.PPD_FOLDER}/kstl203.ppd',
                       TMPDIR=picture_run.FOLDER, CUPS_SERVERBIN=document_run.SERVER_BIN)
    environment.pop('CUPS_SERVER', None)
    done = subprocess.run([picture_run.INTAKE, '1', 'anna', 'title', '1', SIZE], env=environment,
                          input=png_of_bits(BLACK), capture_output=True, timeout=60)
    assert done.returncode == 0, done.stderr[-500:]
    pages = document_run.label_stream.pages_of(done.stdout)
    assert [burnt(page) for page in pages] == [BLACK]


def refused(content):
    status, stream, lines = document(content)
    assert status == 1 and stream == b'', (status, len(stream), lines)
    errors = [line for line in lines if line.startswith('ERROR: ')]
    assert len(errors) == 1 and len(errors[0]) > 25, lines
    return errors[0]


def bad_pictures_send_nothing():
    with Faults() as faults:
        for name, content in bad_pictures_test.whole_pictures():
            with faults.of(f'cut {name}'):
                refused(content[:max(9, len(content) // 2)])
        with faults.of('60000 x 60000'):
            refused(png.header(60000, 60000, png.RGB, 8) + bytes(900))


def formats_that_are_not_printed_are_refused():
    with Faults() as faults:
        for name, content in (
                ('SVG', b'<?xml version="1.0"?>\n<svg xmlns="http://www.w3.org/2000/svg"/>\n'),
                ('JPEG 2000', b'\0\0\0\x0cjP  \r\n\x87\n\0\0\0\x14ftypjp2 \0\0\0\0jp2 ' + bytes(90)),
                ('Photoshop', b'8BPS\0\1' + bytes(6) + b'\0\3' + bytes(90))):
            with faults.of(name):
                refused(content)


def good_pages_before_a_damaged_one_stay_printed():
    rows = format_table.bits_of(pixels.grey(*ACROSS, (0, 255), seed=8))
    made = [tiff.Page(rows, bits=1, compression=tiff.DEFLATE) for _ in range(3)]
    made[2].pieces = lambda big: iter([b'no zlib at all'] * 64)
    status, stream, lines = document(write(tiff.tiff(*made)), SIZE)
    assert status == 1 and sum(line.startswith('ERROR: ') for line in lines) == 1, lines
    pages = document_run.label_stream.pages_of(stream)
    assert [burnt(page) for page in pages] == [text_of(rows)] * 2, len(pages)
