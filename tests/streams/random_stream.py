"""Random streams of TSPL, of commands that are exact to the dot."""
import re
import struct
import zlib

RESOLUTIONS = (203, 300, 600)
WORST_CASES = (0, 1, 7, 8, 9, 63, 64, 65)


def millimetres(dice, dots, dpi):
    return f'{dots * 25.4 / dpi:.{dice.choice((0, 1, 1, 1, 2))}f} mm'


def inches(dice, dots, dpi):
    return f'{dots / dpi:.{dice.choice((1, 2, 3))}f}'


def whole_dots(dice, dots, _dpi):
    return f'{dots} {dice.choice(("dot", "dots"))}'


def rle(data):
    """Bytes as a PCX file has them: runs of up to 63."""
    out, at = bytearray(), 0
    while at < len(data):
        run = 1
        while run < 63 and data[at + run:at + run + 1] == data[at:at + 1]:
            run += 1
        out += bytes((0xC0 | run,)) * (run > 1 or data[at] >= 0xC0) + data[at:at + 1]
        at += run
    return bytes(out)


class RandomStream:
    """One stream: a head, drawing commands on several labels, and what changes between them."""

    def __init__(self, dice):
        self.dice = dice
        self.dpi = dice.choice(RESOLUTIONS)
        self.end = dice.choice((b'\r\n', b'\r\n', b'\n', b'\n', b'\r'))
        self.files = 0
        self.width, self.height, self.size = 200, 100, '200 dot,100 dot'
        self.parts = list(self.all_parts())

    def side(self):
        """Dots of a label: no size that rounds to nothing in inches of one decimal, and some so long that eight dots
        to the millimetre are others than 203 to the inch."""
        return self.dpi // 8 + self.dice.randint(0, 150 if self.dice.random() < 0.8 else 900)

    def line(self, text):
        name, _, arguments = text.partition(' ')
        name = name.lower() if self.dice.random() < 0.1 else name
        comma = self.dice.choice((',', ',', ', ', ' , '))
        before = self.dice.choice((b'',) * 15 + (b' ', b'\t', b'\x1b!?', b'\x1b!S', b'\r\n'))
        return before + f'{name} {arguments.replace(",", comma)}'.strip().encode('latin-1') + self.end

    def all_parts(self):
        yield b'\r\n' * self.dice.randrange(3)
        yield self.other_size() if self.dice.random() < 0.95 else b''
        yield self.line('CLS') if self.dice.random() < 0.9 else b''
        for _ in range(self.dice.randint(1, 4)):
            yield from self.label()

    def label(self):
        if self.dice.random() < 0.3:
            yield self.line('CLS')
        for _ in range(self.dice.randint(1, 10)):
            yield self.dice.choice(self.SETTINGS if self.dice.random() < 0.2 else self.COMMANDS)(self)
        yield self.print()

    def other_size(self):
        self.width, self.height = self.side(), self.side()
        write = self.dice.choice((whole_dots, millimetres, inches))
        self.size = f'{write(self.dice, self.width, self.dpi)},{write(self.dice, self.height, self.dpi)}'
        return self.same_size()

    def same_size(self):
        """As before, which erases nothing, also where its decimals have one more zero."""
        zero = '0' if self.dice.random() < 0.3 else ''
        return self.line('SIZE ' + re.sub(r'(\.\d+)', rf'\g<1>{zero}', self.size))

    def print(self):
        sets, copies = self.dice.choice((0, 1, 1, 1, 1, 2, 30)), self.dice.choice((1, 1, 1, 5, 0))
        return self.line(f'PRINT {sets},{copies}' if self.dice.random() < 0.7 else f'PRINT {max(sets, 1)}')

    def reference(self):
        return self.line(f'REFERENCE {self.dice.randint(-10, 40)},{self.dice.randint(-10, 40)}')

    def direction(self):
        return self.line(self.dice.choice(('DIRECTION 0', 'DIRECTION 1', 'DIRECTION 0,0', 'DIRECTION 0,1',
                                           'DIRECTION 1,0', 'DIRECTION 1,1')))

    def shift(self):
        right, down = self.dice.randint(-30, 30), self.dice.randint(-30, 30)
        return self.line(f'SHIFT {right},{down}' if self.dice.random() < 0.6 else f'SHIFT {down}')

    def no_dots(self):
        return self.line(self.dice.choice(('GAP 2 mm,0 mm', 'SPEED 4', 'DENSITY 8', 'SET TEAR ON', 'OFFSET 1 mm',
                                           'SET RIBBON OFF', 'HOME', 'FORMFEED', 'FEED 20', 'BACKFEED 20')))

    def program(self):
        """Stored by the printer, not obeyed."""
        inside = (self.line('CLS'), self.bar(), self.print(), self.line('FOR I=1 TO 9'), self.line('NEXT'))
        lines = self.dice.choices(inside, k=self.dice.randrange(5))
        return self.line('DOWNLOAD "P.BAS"') + b''.join(lines) + self.line('EOP')

    SETTINGS = (reference, direction, shift, other_size, same_size, no_dots, program)

    def position(self, side):
        """Mostly on the label, sometimes before or behind it."""
        return self.dice.randint(-30, side + 20) if self.dice.random() < 0.3 else self.dice.randrange(side)

    def place(self):
        return f'{self.position(self.width)},{self.position(self.height)}'

    def extent(self, side):
        return self.dice.choice(WORST_CASES) if self.dice.random() < 0.4 else self.dice.randint(1, side)

    def area(self, name):
        return self.line(f'{name} {self.place()},{self.extent(self.width)},{self.extent(self.height)}')

    def bar(self):
        return self.area('BAR')

    def erase(self):
        return self.area('ERASE')

    def reverse(self):
        return self.area('REVERSE')

    def box(self):
        left, top = self.position(self.width), self.position(self.height)
        right, bottom = left + self.extent(self.width), top + self.extent(self.height)
        return self.line(f'BOX {left},{top},{right},{bottom},{self.dice.choice((1, 2, 3, 8, 50))}')

    def dots(self, size):
        """Bytes of a picture: noise, or runs, which hold line ends and words of TSPL at times."""
        if self.dice.random() < 0.5:
            return self.dice.randbytes(size)
        lures = (b'\x00', b'\xff', b'\r\n', b'\r\nCLS\r\n', b'PRINT 1\r\n', b'"', b',', b'\xf0')
        runs = b''
        while len(runs) < size:
            runs += self.dice.choice(lures) * self.dice.randint(1, 20)
        return runs[:size]

    def after_data(self):
        """Data end by their length: a line end behind them is usual and may be missing."""
        return self.end if self.dice.random() < 0.9 else b''

    def bitmap(self):
        row_bytes, height, mode = self.dice.randint(1, 12), self.dice.randint(1, 50), self.dice.randrange(4)
        data, more = self.dots(row_bytes * height), ''
        if mode == 3:
            data = zlib.compress(data, self.dice.randrange(10))
            more = f'{len(data)},'
        # Data have no blanks before them: the blank would be the first byte.
        return f'BITMAP {self.place()},{row_bytes},{height},{mode},{more}'.encode() + data + self.after_data()

    def download(self, ending, data):
        self.files += 1
        name = f'F{self.files}.{ending}'
        head = self.dice.choice(('', 'F,', 'E,'))
        stored = f'DOWNLOAD {head}"{name}",{len(data)},'.encode() + data + self.after_data()
        places = range(self.dice.randint(1, 2))
        return stored + b''.join(self.line(f'PUT{ending} {self.place()},"{name}"') for _ in places)

    def putbmp(self):
        width, height = self.dice.randint(1, 70), self.dice.randint(1, 40)
        colours = [b'\x00\x00\x00\x00', b'\xff\xff\xff\x00']
        self.dice.shuffle(colours)
        data = self.dots((width + 31) // 32 * 4 * height)
        lines = self.dice.choice((1, -1)) * height
        head = struct.pack('<IiiHHIIiiII', 40, width, lines, 1, 1, 0, len(data), 0, 0, 2, 2) + b''.join(colours)
        return self.download('BMP', struct.pack('<2sIII', b'BM', 62 + len(data), 0, 62) + head + data)

    def putpcx(self):
        width, height = self.dice.randint(1, 70), self.dice.randint(1, 40)
        row_bytes = (width + 15) // 16 * 2
        head = struct.pack('<4B4H2H', 10, 5, 1, 1, 0, 0, width - 1, height - 1, 300, 300)
        head += (b'\x00\x00\x00\xff\xff\xff').ljust(48, b'\x00') + struct.pack('<2BH', 0, 1, row_bytes)
        rows = (rle(self.dots(row_bytes)) for _ in range(height))
        return self.download('PCX', head.ljust(128, b'\x00') + b''.join(rows))

    COMMANDS = (bar, box, erase, reverse, reverse, bitmap, bitmap, bitmap, putbmp, putpcx)
