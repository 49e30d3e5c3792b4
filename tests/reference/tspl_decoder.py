#!/usr/bin/python3
"""tspl_decoder.py [--dpi N] [--pbm PREFIX] FILE: a plain second account of what a TSPL printer prints.

It shares no code with the previewer and draws only what is exact to the dot: BITMAP, BAR, BOX with square corners,
ERASE, REVERSE, and pictures of 1 bit by PUTBMP and PUTPCX. Other commands leave no dot. Without --pbm it prints for
each label its number, size, sets and copies and the SHA-256 of its rows, else it writes PREFIX-1.pbm and so on.

A canvas is a list of rows, and a row is a whole number: its bit of weight 2^x is the dot in column x, 1 for burnt.
It grows to the right and downwards as far as it is drawn on; a label is cut from it when it is printed.
"""
import argparse
import hashlib
import re
import struct
import sys
import zlib
from dataclasses import dataclass, field
from fractions import Fraction

FURTHEST = 1 << 15  # columns and rows that are kept; no head is as wide
SWAPPED_BITS = bytes(int(f'{byte:08b}'[::-1], 2) for byte in range(256))
WORD = re.compile(rb'[ \t]*([A-Za-z]+)')
STORED = re.compile(rb'[ \t]*(?:[FfEe]\w*[ \t]*,)?[ \t]*"([^"]*)"[ \t]*,[ \t]*(\d+)[ \t]*,')
PROGRAM = re.compile(rb'[ \t]*(?:[FfEe]\w*[ \t]*,)?[ \t]*"([^"]*)"[ \t]*(?=[\r\n])')
LAST_LINE = re.compile(rb'[\r\n](?:\x1b!.)*[ \t]*EOP[ \t]*(?=[\r\n]|$)', re.IGNORECASE)
PASSED = re.compile(rb'[\r\n]+|\x1b!.')  # blank lines, and questions to the printer, which have no end of line
BITMAP_HEAD = re.compile(rb'((?:[^,\r\n]*,){4}[ \t]*([012])[ \t]*,|(?:[^,\r\n]*,){4}[ \t]*3[ \t]*,[ \t]*\d+[ \t]*,)')
LENGTH = re.compile(r'([0-9]+)(?:\.([0-9]*))?\s*([a-z]*)$')


@dataclass
class Command:
    """A word of TSPL, what follows it, split at commas, and the bytes that belong to it."""
    name: str
    arguments: list
    data: bytes = b''


def split_arguments(text):
    """The arguments of a line; commas within quotation marks divide nothing."""
    parts = re.findall(r'((?:"[^"]*"?|[^",])*)(?:,|$)', text)[:-1] if text.strip() else []
    return [part.strip() for part in parts]


def bitmap_command(stream, at):
    """A BITMAP, whose data may hold any byte, and where it ends."""
    head = BITMAP_HEAD.match(stream, at)
    if not head:
        return None
    arguments = split_arguments(head[1].decode('latin-1').rstrip(','))
    compressed = len(arguments) == 6
    size = int(arguments[5]) if compressed else int(arguments[2]) * int(arguments[3])
    end = head.end() + size
    return Command('BITMAP', arguments, stream[head.end():end]), end


def download_command(stream, at):
    """A DOWNLOAD of so many bytes, or of a program, which ends at EOP; and where it ends."""
    head = STORED.match(stream, at)
    if head:
        end = head.end() + int(head[2])
        return Command('DOWNLOAD', [head[1].decode('latin-1')], stream[head.end():end]), end
    head = PROGRAM.match(stream, at)
    if head:
        last = LAST_LINE.search(stream, head.end())
        end = last.end() if last else len(stream)
        return Command('DOWNLOAD', [head[1].decode('latin-1')]), end
    return None


WITH_DATA = {'BITMAP': bitmap_command, 'DOWNLOAD': download_command}


def line_command(name, stream, at):
    """A command that ends with its line, and where that is."""
    line = re.compile(rb'[^\r\n]*').match(stream, at)
    return Command(name, split_arguments(line[0].decode('latin-1'))), line.end()


def commands_in(stream):
    """The commands of a stream, one after the other; lines that begin with no word are passed over."""
    at = 0
    while at < len(stream):
        passed = PASSED.match(stream, at)
        if passed:
            at = passed.end()
            continue
        word = WORD.match(stream, at)
        name = word[1].decode().upper() if word else ''
        after = word.end() if word else at
        reader = WITH_DATA.get(name)
        command, at = (reader and reader(stream, after)) or line_command(name, stream, after)
        yield command


def numbers(arguments):
    return [int(argument) for argument in arguments]


class Canvas:
    """Dots that are burnt, from column and row 0 on."""

    def __init__(self):
        self.rows = {}

    def clear(self):
        self.rows = {}

    def change_row(self, x, y, width, change):
        """Replaces the dots of a row from x on by change(mask, row), where the mask has the columns meant."""
        if 0 <= y < FURTHEST:
            first, end = min(max(x, 0), FURTHEST), min(max(x + width, 0), FURTHEST)
            mask = (1 << end) - (1 << first) if first < end else 0
            self.rows[y] = change(mask, self.rows.get(y, 0))

    def change_area(self, x, y, width, height, change):
        for row in range(max(y, 0), min(y + height, FURTHEST)):
            self.change_row(x, row, width, change)

    def burn(self, x, y, width, height):
        self.change_area(x, y, width, height, lambda mask, row: row | mask)

    def erase(self, x, y, width, height):
        self.change_area(x, y, width, height, lambda mask, row: row & ~mask)

    def reverse(self, x, y, width, height):
        self.change_area(x, y, width, height, lambda mask, row: row ^ mask)

    def lay(self, x, y, width, rows, how):
        """Lays rows of a picture on the canvas, by how(row, dots, mask)."""
        for line, dots in enumerate(rows):
            placed = dots << x if x >= 0 else dots >> -x
            self.change_row(x, y + line, width,
                            lambda mask, row, placed=placed: how(row, placed & mask, mask))


def overwrite(row, dots, mask):
    return (row & ~mask) | dots


def add(row, dots, _mask):
    return row | dots


def exclude(row, dots, _mask):
    return row ^ dots


def packed_rows(data, row_bytes, height, burning):
    """Rows of bits, the first one in the highest place; `burning` is the bit that burns a dot. Bytes that are
    missing burn nothing."""
    paper = b'\x00' if burning else b'\xff'
    full = data[:row_bytes * height].ljust(row_bytes * height, paper)
    all_dots = (1 << 8 * row_bytes) - 1
    for row in range(height):
        bits = full[row * row_bytes:(row + 1) * row_bytes].translate(SWAPPED_BITS)
        dots = int.from_bytes(bits, 'little')
        yield dots if burning else dots ^ all_dots


def bmp_picture(data):
    """Width and rows of a BMP file of 1 bit; the darker one of its two colours burns."""
    start, header, width, height = struct.unpack_from('<IIii', data, 10)
    assert struct.unpack_from('<H', data, 28)[0] == 1, 'only 1 bit is exact'
    dark = [sum(data[14 + header + 4 * entry:][:3]) for entry in range(2)]
    stride = (width + 31) // 32 * 4
    rows = list(packed_rows(data[start:], stride, abs(height), 1 if dark[1] < dark[0] else 0))
    return width, rows[::-1] if height > 0 else rows


def pcx_bytes(data):
    """The bytes that a PCX file's runs stand for."""
    at, out = 128, bytearray()
    while at < len(data):
        run = data[at] >= 0xC0
        out += data[at + 1:at + 2] * (data[at] & 0x3F) if run else data[at:at + 1]
        at += 2 if run else 1
    return bytes(out)


def pcx_picture(data):
    """Width and rows of a PCX file of 1 bit, of which the zeros are black."""
    left, top, right, bottom = struct.unpack_from('<4H', data, 4)
    assert data[3] == 1 and data[65] == 1, 'only 1 bit is exact'
    stride = struct.unpack_from('<H', data, 66)[0]
    return right - left + 1, list(packed_rows(pcx_bytes(data), stride, bottom - top + 1, 0))


def nearest(value):
    return int(value + Fraction(1, 2))


@dataclass
class Length:
    """A length of SIZE in dots, how far off it may be for its decimals, and, where a head of 203 dpi has 8 dots to
    the millimetre, as many of these."""
    dots: Fraction
    doubt: Fraction
    metric: Fraction = None

    def __eq__(self, other):
        """The same size may be written in several ways."""
        return isinstance(other, Length) and self.dots == other.dots

    def ends(self, end):
        """Where the label ends whose furthest bitmap ends there: as near to the edge as decimals tell is at it."""
        at_edge = abs(end - nearest(self.dots)) < 8
        if self.metric is not None and (end == self.metric or not at_edge):
            return nearest(self.metric)
        return end if abs(end - self.dots) <= self.doubt else nearest(self.dots)

    def columns(self, end):
        """The same for a width: a bitmap has whole bytes, so the page in it may end up to 7 dots before. No column
        that the decimals allow is cut off."""
        columns, most = self.ends(end), int(self.dots + self.doubt)
        return min(max(most, columns), end) if columns < end < most + 8 else columns


def decimals_doubt(decimals, unit):
    """Half of the last decimal. Whole numbers and tenths of an inch are exact."""
    exact = not decimals or unit.startswith('dot') or (unit != 'mm' and len(decimals) == 1)
    return Fraction(0) if exact else Fraction(1, 2 * 10 ** len(decimals))


def length(text, dpi):
    """A length of SIZE: millimetres, dots, or inches without a unit."""
    whole, decimals, unit = LENGTH.match(text.lower()).groups()
    decimals = decimals or ''
    scale = {'mm': Fraction(dpi * 10, 254), 'dot': Fraction(1), 'dots': Fraction(1)}.get(unit, Fraction(dpi))
    value = Fraction(int(whole + decimals), 10 ** len(decimals))
    metric = 8 * value if dpi == 203 and unit == 'mm' and (8 * value).denominator == 1 else None
    return Length(value * scale, decimals_doubt(decimals, unit) * scale, metric)


@dataclass
class PrintedLabel:
    """A label as it leaves the printer, its upper edge first."""
    number: int
    width: int
    height: int
    sets: int
    copies: int
    turned: bool
    rows: list

    def packed(self):
        """The rows in bytes, as a PBM file has them."""
        row_bytes = (self.width + 7) // 8
        return [row.to_bytes(row_bytes, 'little').translate(SWAPPED_BITS) for row in self.rows]

    def upright(self):
        """The label as it is read: not turned, whatever edge leaves the printer first."""
        return upside_down(self.rows, self.width) if self.turned else self.rows


def mirrored(rows, width):
    return [int(f'{row:0{width}b}'[::-1], 2) for row in rows]


def upside_down(rows, width):
    return mirrored(rows[::-1], width)


def shifted(rows, width, right, down):
    """Moves rows on paper of the same size; what leaves it is lost."""
    paper = (1 << width) - 1
    moved = [(row << right if right >= 0 else row >> -right) & paper for row in rows]
    height = len(rows)
    return [moved[y - down] if 0 <= y - down < height else 0 for y in range(height)]


@dataclass
class Printer:
    """What a printer knows between two commands."""
    dpi: int
    size: tuple = (None, None)
    reference: tuple = (0, 0)
    direction: tuple = (0, 0)
    shift: tuple = (0, 0)
    canvas: Canvas = field(default_factory=Canvas)
    ends: tuple = (0, 0)
    files: dict = field(default_factory=dict)
    printed: int = 0

    def obey(self, command):
        """Does what a command says; a PRINT gives a label, all others nothing."""
        action = getattr(self, 'do_' + command.name.lower(), None)
        return action(command) if action else None

    def place(self, arguments):
        x, y = numbers(arguments[:2])
        return x + self.reference[0], y + self.reference[1]

    def forget(self):
        self.canvas.clear()
        self.ends = (0, 0)

    def do_size(self, command):
        lengths = [length(argument, self.dpi) for argument in command.arguments]
        size = tuple((lengths + [None])[:2])
        if size != self.size:
            self.forget()
            self.size = size

    def do_cls(self, _command):
        self.forget()

    def do_reference(self, command):
        self.reference = tuple(numbers(command.arguments))

    def do_direction(self, command):
        self.direction = tuple((numbers(command.arguments) + [0])[:2])

    def do_shift(self, command):
        self.shift = tuple(([0] + numbers(command.arguments))[-2:])

    def do_bar(self, command):
        self.canvas.burn(*self.place(command.arguments), *numbers(command.arguments[2:4]))

    def do_erase(self, command):
        self.canvas.erase(*self.place(command.arguments), *numbers(command.arguments[2:4]))

    def do_reverse(self, command):
        self.canvas.reverse(*self.place(command.arguments), *numbers(command.arguments[2:4]))

    def do_box(self, command):
        """A frame, whose lines lie within the corners that are named."""
        left, top = self.place(command.arguments)
        right, bottom = self.place(command.arguments[2:])
        thick = int(command.arguments[4])
        across, down = min(thick, right - left), min(thick, bottom - top)
        self.canvas.burn(left, top, right - left, down)
        self.canvas.burn(left, bottom - down, right - left, down)
        self.canvas.burn(left, top, across, bottom - top)
        self.canvas.burn(right - across, top, across, bottom - top)

    def do_bitmap(self, command):
        """Zeros burn, but in mode 3, whose data zlib has made shorter, ones do."""
        x, y = self.place(command.arguments)
        row_bytes, height, mode = numbers(command.arguments[2:5])
        data = zlib.decompress(command.data) if mode == 3 else command.data
        rows = packed_rows(data, row_bytes, height, 1 if mode == 3 else 0)
        self.canvas.lay(x, y, 8 * row_bytes, rows, (overwrite, add, exclude, overwrite)[mode])
        self.ends = (max(self.ends[0], x + 8 * row_bytes), max(self.ends[1], y + height))

    def do_download(self, command):
        self.files[command.arguments[0]] = command.data

    def put(self, command, reader):
        """Draws a file's dark dots; nothing that TSPL says of it names an erasing of the others."""
        width, rows = reader(self.files[command.arguments[2].strip('"')])
        self.canvas.lay(*self.place(command.arguments), width, rows, add)

    def do_putbmp(self, command):
        self.put(command, bmp_picture)

    def do_putpcx(self, command):
        self.put(command, pcx_picture)

    def do_print(self, command):
        sets, copies = (numbers(command.arguments) + [1, 1][len(command.arguments):])
        if sets < 1 or copies < 1:
            return None
        self.printed += 1
        width, height = self.width(), self.height()
        if not width or not height:
            return None
        return PrintedLabel(self.printed, width, height, sets, copies, self.direction[0] == 1,
                            self.on_paper(width, height))

    def width(self):
        """That of SIZE; without one the label ends where the drawing does."""
        if self.size[0]:
            return self.size[0].columns(self.ends[0])
        return max([self.ends[0]] + [row.bit_length() for row in self.canvas.rows.values()])

    def height(self):
        if self.size[1]:
            return self.size[1].ends(self.ends[1])
        return max([self.ends[1]] + [y + 1 for y, row in self.canvas.rows.items() if row])

    def on_paper(self, width, height):
        """Cuts the label from the canvas, mirrors, turns and shifts it, in this order."""
        rows = [self.canvas.rows.get(y, 0) & ((1 << width) - 1) for y in range(height)]
        if self.direction[1]:
            rows = mirrored(rows, width)
        if self.direction[0]:
            rows = upside_down(rows, width)
        return shifted(rows, width, *self.shift)


def labels_of(stream, dpi=203):
    """The labels that a stream prints, one for each PRINT."""
    printer = Printer(dpi)
    for command in commands_in(stream):
        label = printer.obey(command)
        if label:
            yield label


def show(label):
    digest = hashlib.sha256(b''.join(label.packed())).hexdigest()
    print(f'{label.number}: {label.width} x {label.height} dots, {label.sets} sets of {label.copies} copies, {digest}')


def write_pbm(label, prefix):
    with open(f'{prefix}-{label.number}.pbm', 'wb') as file:
        file.write(b'P4\n%d %d\n' % (label.width, label.height) + b''.join(label.packed()))


def main():
    parser = argparse.ArgumentParser(description='Draws what a TSPL stream prints, plainly.')
    parser.add_argument('--dpi', type=int, default=203)
    parser.add_argument('--pbm', metavar='PREFIX', help='write pictures')
    parser.add_argument('file')
    options = parser.parse_args()
    with open(options.file, 'rb') as file:
        for label in labels_of(file.read(), options.dpi):
            write_pbm(label, options.pbm) if options.pbm else show(label)


if __name__ == '__main__':
    sys.exit(main())
