#!/usr/bin/python3
"""read_codes_test.py TSPLPREVIEW FUNCTION: the previewer draws codes, and readers of codes read them from its
pictures. zbarimg knows the bar codes and QR codes, ZXingReader the other matrix codes."""
import os
import subprocess
import sys
import tempfile

PREVIEWER = sys.argv[1]
MODULES = (2, 3, 4)
QUIET = 20  # modules of paper about a code

# What a type of BARCODE is given, and what zbarimg says of it.
BARS = {
    '128': ('Code-128 $%', 'CODE-128:Code-128 $%'),
    '128M': ('!105!102!100Ab!09912', 'CODE-128:Ab12'),
    'EAN128': ('(01)12345678901231(10)A1', 'CODE-128:011234567890123110A1'),
    'EAN14': ('1234567890123', 'CODE-128:0112345678901231'),
    '25': ('12345678', 'I2/5:12345678'),
    '25C': ('1234567', 'I2/5:12345670'),
    'ITF14': ('1234567890123', 'I2/5:12345678901231'),
    'DPI': ('12345678901', 'I2/5:123456789016'),
    'DPL': ('1234567890123', 'I2/5:12345678901236'),
    '39': ('AB$12', 'CODE-39:AB$12'),
    '39C': ('AB12', 'CODE-39:AB12O'),
    '39S': ('AB12', 'CODE-39:AB12'),
    'LOGMARS': ('AB12', 'CODE-39:AB12O'),
    '93': ('Ab12', 'CODE-93:Ab12'),
    'EAN13': ('590123412345', 'EAN-13:5901234123457'),
    'EAN13+2': ('59012341234512', 'EAN-13:5901234123457'),
    'EAN13+5': ('59012341234512345', 'EAN-13:5901234123457'),
    'EAN8': ('1234567', 'EAN-8:12345670'),
    'EAN8+2': ('123456712', 'EAN-8:12345670'),
    'EAN8+5': ('123456712345', 'EAN-8:12345670'),
    'UPCA': ('01234567890', 'EAN-13:0012345678905'),
    'UPCA+2': ('0123456789012', 'EAN-13:0012345678905'),
    'UPCA+5': ('0123456789012345', 'EAN-13:0012345678905'),
    'UPCE': ('123456', 'EAN-13:0012345000065'),
    'UPCE+2': ('12345612', 'EAN-13:0012345000065'),
    'UPCE+5': ('12345612345', 'EAN-13:0012345000065'),
    'CODA': ('A1234B', 'Codabar:A1234B'),
}


def picture_of(folder, command, width, height):
    """The picture of a label of so many dots with one command, which must be nothing to speak of."""
    stream = f'SIZE {width} dot,{height} dot\nCLS\n{command}\nPRINT 1\n'
    prefix = os.path.join(folder, 'code')
    run = subprocess.run([PREVIEWER, '-o', prefix, '--dpi', '203'], input=stream.encode('latin-1'),
                         capture_output=True, check=True)
    said = [line for line in run.stderr.decode().splitlines()
            if ', byte ' in line and 'hexagons of MAXICODE' not in line]
    assert not said, said
    return prefix + '-1.png'


def read(reader, command, width, height):
    with tempfile.TemporaryDirectory() as folder:
        return reader(picture_of(folder, command, width, height))


def zbar(path):
    return subprocess.run(['zbarimg', '--quiet', '--nodbus', path], capture_output=True,
                          text=True).stdout.splitlines()


def zxing(kind):
    def reader(path):
        out = subprocess.run(['ZXingReader', '-format', kind, path], capture_output=True, text=True).stdout
        return [line.split('"')[1] for line in out.split('\n') if line.startswith('Text:')]
    return reader


def check(cases):
    """Reads every (name, command, width, height, reader, expected)."""
    faults = []
    for name, command, width, height, reader, expected in cases:
        found = read(reader, command, width, height)
        if found != [expected]:
            faults.append(f'{name}: {command}: {found}, not {expected}')
    assert not faults, '\n'.join(faults)


def bars(rotation, place):
    """Cases of every type; `place` gives x and y on a square label with this side."""
    for name, (content, expected) in BARS.items():
        for module in MODULES:
            side = module * 260
            x, y = place(side, module)
            # The widths that go with two: 2.5 or 3 times the narrow ones.
            wide = module * 3 if module % 2 else module * 5 // 2
            command = f'BARCODE {x},{y},"{name}",60,0,{rotation},{module},{wide},"{content}"'
            yield f'{name} at {module} dots', command, side, side, zbar, expected


def bar_codes_are_read_at_every_module():
    check(bars(0, lambda side, module: (QUIET * module, 100)))


def turned_bar_codes_are_read():
    check(bars(90, lambda side, module: (200, QUIET * module)))
    check(bars(180, lambda side, module: (side - QUIET * module, 200)))
    check(bars(270, lambda side, module: (200, side - QUIET * module)))


def bar_codes_are_read_at_every_wide_element():
    """From two to three times the narrow element, to the dot."""
    check((f'{name}, {narrow} and {wide} dots', f'BARCODE 60,60,"{name}",80,0,0,{narrow},{wide},"{BARS[name][0]}"',
           1400, 200, zbar, BARS[name][1])
          for name in ('25', '39', 'CODA', 'ITF14') for narrow in (2, 3, 4)
          for wide in range(2 * narrow, 3 * narrow + 1) if narrow < wide)


def qr_codes_are_read_at_every_cell():
    for level in 'LMQH':
        for cell in (2, 3, 4, 10):
            side = cell * 70
            check([(f'{level} at {cell}', f'QRCODE {6 * cell},{6 * cell},{level},{cell},A,0,"Hello, {level}{cell}"',
                    side, side, zbar, f'QR-Code:Hello, {level}{cell}')])


def turned_and_masked_qr_codes_are_read():
    cases = []
    for rotation in (0, 90, 180, 270):
        cases.append((f'{rotation}', f'QRCODE 150,150,M,3,A,{rotation},"Hello"', 300, 300, zbar, 'QR-Code:Hello'))
    for mask in range(9):
        cases.append((f'mask {mask}', f'QRCODE 150,150,M,3,A,0,J5,M2,S{mask},"Hello"', 300, 300, zbar, 'QR-Code:Hello'))
    cases.append(('parts', 'QRCODE 50,50,M,3,M,0,"N12!AAB C!B0003a!b"', 300, 300, zbar, 'QR-Code:12AB Ca!b'))
    check(cases)


def data_matrix_codes_are_read():
    """ZXingReader looks for them in the middle of a picture."""
    cases = []
    for module in (3, 4, 6):
        for name, options, rows, columns, content, expected in (
                ('square', '', 14, 14, 'DMATRIX', 'DMATRIX'),
                ('of a size', '26,26,', 26, 26, 'DMATRIX', 'DMATRIX'),
                ('of GS1', 'c126,', 16, 16, '~10112345678901231', '0112345678901231')):
            left, top = 10 * module, 10 * module
            width, height = (columns + 20) * module, (rows + 20) * module
            for rotation, x, y in ((0, left, top), (90, width - left, top), (180, width - left, height - top),
                                   (270, left, height - top)):
                command = f'DMATRIX {x},{y},100,100,x{module},r{rotation},{options}"{content}"'
                cases.append((f'{name}, {rotation}', command, width, height, zxing('DataMatrix'), expected))
    check(cases)


def turned(width, height, quiet):
    """Angles, and where the upper left corner of a code of this size is to be, for a picture with it in its middle."""
    return ((0, quiet, quiet, width, height), (90, quiet + height, quiet, height, width),
            (180, quiet + width, quiet + height, width, height), (270, quiet, quiet + width, height, width))


def pdf417_codes_are_read():
    cases = []
    for module, row in ((2, 6), (3, 9), (4, 12)):
        for options, columns, rows in (('C4,', 4, 5), ('C2,E3,', 2, 13), ('T1,C4,', 2.3, 5)):
            width, height = int((17 * columns + 69) * module), rows * row
            for angle, x, y, across, down in turned(width, height, 20 * module):
                command = f'PDF417 {x},{y},100,100,{angle},W{module},H{row},{options}"Hello PDF417"'
                cases.append((f'{options} {angle}', command, across + 40 * module, down + 40 * module,
                              zxing('PDF417'), 'Hello PDF417'))
    check(cases)


def aztec_codes_are_read():
    cases = []
    for size in (3, 4, 6):
        for correction, modules in ((0, 15), (50, 15), (102, 19), (104, 27), (204, 31)):
            side = modules * size
            for angle, x, y, across, down in turned(side, side, 10 * size):
                cases.append((f'{correction}, {angle}', f'AZTEC {x},{y},{angle},{size},{correction},"Hello"',
                              across + 20 * size, down + 20 * size, zxing('Aztec'), 'Hello'))
    check(cases)


def maxi_codes_are_read():
    check((options, f'MAXICODE 50,50,{options}"Hello MaxiCode"', 320, 320, zxing('MaxiCode'), expected)
          for options, expected in (('4,', 'Hello MaxiCode'), ('5,', 'Hello MaxiCode'),
                                    ('2,1,840,06810,7317,', '068107317\x1d840\x1d001\x1dHello MaxiCode'),
                                    ('2,1,840,068107317,', '068107317\x1d840\x1d001\x1dHello MaxiCode'),
                                    ('3,1,863,"B1050",', 'B1050 \x1d863\x1d001\x1dHello MaxiCode')))


def data_bars_are_read_at_every_module():
    """Of the linear part of a composite code, which readers know alone."""
    number, short = '1234567890123', 'DataBar:0112345678901231'
    types = [(name, '', number, short) for name in ('RSS14', 'RSS14T', 'RSS14S', 'RSS14SO')]
    types += [('RSSEXP', '22,', '(01)12345678901231', 'DataBar-Exp:0112345678901231'),
              ('RSSEXP', '4,', '(01)98898765432106(3202)012345(15)991231',
               'DataBar-Exp:0198898765432106320201234515991231'),
              ('UCC128CCA', '50,', '0112345678901231|21abc', 'CODE-128:0112345678901231'),
              ('UCC128CCC', '50,', '(01)12345678901231|(21)abc', 'CODE-128:0112345678901231'),
              ('EAN13', '', '331234567890|(21)abc', 'EAN-13:3312345678903')]
    check((f'{name}, {module} dots', f'RSS 60,60,"{name}",0,{module},1,{extra}"{content}"', 800, 500, zbar, expected)
          for module in MODULES for name, extra, content, expected in types)


globals()[sys.argv[2]]()
