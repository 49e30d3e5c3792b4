"""Pictures of whole labels with seven codes, made by zint and qrencode, and their readers."""
import subprocess
import zlib

import png_files as png
import tool_files
from picture_run import write

# What each code says, and the width of its narrowest module in millimetres.
CODES = {'CODE128:KESTO-4711': 0.375, 'CODE128:narrow 203': 0.25, 'EAN13:4006381333931': 0.33,
         'ITF:15400141288763': 0.5, 'CODE39:K-39': 0.25, 'QR:https://example.org/kesto': 0.5,
         'DATAMATRIX:Kesto label 4711': 0.5}
# zbarimg's names for them; what is not there ZXingReader reads.
KINDS = {'CODE-128': 'CODE128', 'EAN-13': 'EAN13', 'I2/5': 'ITF', 'CODE-39': 'CODE39',
         'QR-Code': 'QR'}
SYMBOLS = {'CODE128': 'CODE128', 'EAN13': 'EANX', 'ITF': 'C25INTER', 'CODE39': 'CODE39',
           'DATAMATRIX': 'DATAMATRIX'}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def modules(code):
    """Rows of modules, 1 where it is dark; one row when the code has bars."""
    kind, text = code.split(':', 1)
    if kind == 'QR':
        lines = output_of('qrencode', '-t', 'ASCII', '-m', '0', text).splitlines()
        return [[int(letter == '#') for letter in line[::2]] for line in lines]
    dump = output_of('zint', '-b', SYMBOLS[kind], '-d', text, '--dump').split('\n')
    if kind == 'DATAMATRIX':
        rows = [''.join(f'{int(byte, 16):08b}' for byte in line.split()) for line in dump if line]
        return [list(map(int, row[:len(rows)])) for row in rows]
    bits = ''.join(f'{int(byte, 16):08b}' for byte in ' '.join(dump).split())
    return [list(map(int, bits.rstrip('0')))]


def drawn(code, size, height):
    """Rows of dots of a code whose modules are so many dots wide; bars are so high."""
    rows = modules(code)
    across = [''.join('01'[bit] * size for bit in row) for row in rows]
    return across * height if len(rows) == 1 else [row for row in across for _ in range(size)]


def module_dots(width_mm, dpi):
    """Nobody makes codes of single dots."""
    return max(2, round(width_mm / 25.4 * dpi))


# Where the codes' left upper corners are, in inches; the middle of the label for the one whose
# reader starts there.
PLACES = ((0.3, 0.3), (0.3, 1.1), (0.3, 1.9), (0.3, 5.0), (0.3, 4.2), (2.6, 0.4), (1.8, 2.85))


def label_bits(dpi):
    """Rows of a label of 4 x 6 inches as text, '1' where it is black."""
    page = ['0' * (4 * dpi)] * (6 * dpi)
    for (code, wide), (left, top) in zip(CODES.items(), PLACES):
        x, y = round(left * dpi), round(top * dpi)
        for line, row in enumerate(drawn(code, module_dots(wide, dpi), round(0.5 * dpi)), y):
            assert x + len(row) < 4 * dpi, code
            page[line] = page[line][:x] + row + page[line][x + len(row):]
    return page


def png_of_bits(rows, *chunks):
    """Of rows of text, '1' where it is black."""
    width = len(rows[0])
    flip = str.maketrans('01', '10')
    filled = -width % 8
    data = b''.join(b'\0' + int(row.translate(flip) + '0' * filled, 2).to_bytes(
        (width + filled) // 8, 'big') for row in rows)
    return (png.header(width, len(rows), png.GREY, 1) + b''.join(png.chunk(*one) for one in chunks) +
            png.chunk(b'IDAT', zlib.compress(data, 1)) + png.chunk(b'IEND', b''))


def jpeg_of_bits(rows):
    levels = {ord('0'): '\xff', ord('1'): '\0'}
    body = b'P5 %d %d 255\n' % (len(rows[0]), len(rows)) + ''.join(rows).translate(levels).encode('latin-1')
    return tool_files.by(['cjpeg', '-quality', '90', '-outfile', '{1}', '{0}'], body, 'jpg', 'pgm')


def enlarged(rows, factor):
    one, none = '1' * factor, '0' * factor
    wide = {row: ''.join(one if letter == '1' else none for letter in row) for row in set(rows)}
    return [wide[row] for row in rows for _ in range(factor)]


def burnt(page):
    """The dots of a page of the stream as rows of text, '1' where it burns."""
    row_bytes = page.width // 8
    flip = str.maketrans('01', '10')
    return [f'{int.from_bytes(page.data[at:at + row_bytes], "big"):0{page.width}b}'.translate(flip)
            for at in range(0, len(page.data), row_bytes)]


def grown(rows):
    """As a head prints it that is too hot: every dot burns its right and its lower neighbour."""
    numbers = [int(row, 2) for row in rows]
    wide = [number | number >> 1 for number in numbers]
    return [f'{one | above:0{len(rows[0])}b}' for one, above in zip(wide, [0] + wide)]


def grown_all_around(rows):
    """Every dot burns its eight neighbours."""
    width = len(rows[0])
    wide = [(int(row, 2) | int(row, 2) >> 1 | int(row, 2) << 1) & (1 << width) - 1 for row in rows]
    return [f'{one | above | below:0{width}b}'
            for one, above, below in zip(wide, [0] + wide, wide[1:] + [0])]


def read_from(path):
    """The codes on a picture, as the keys of CODES."""
    done = subprocess.run(['zbarimg', '--quiet', '--nodbus', path], capture_output=True, text=True)
    found = set()
    for line in done.stdout.splitlines():
        kind, _, text = line.partition(':')
        if kind in KINDS:
            found.add(f'{KINDS[kind]}:{text}')
    done = subprocess.run(['ZXingReader', '-format', 'DataMatrix', '-1', path], capture_output=True,
                          text=True)
    found.update(code for code in CODES if code.startswith('DATAMATRIX:') and
                 code.split(':', 1)[1] in done.stdout)
    return found & set(CODES)


def read_from_bits(rows):
    return read_from(write(png_of_bits(rows), 'png'))
