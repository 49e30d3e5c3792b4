"""TIFF pictures of rows of samples, of several pages, with strips and tiles."""
import struct
import zlib

from pixels import packed

WHITE_IS_ZERO, BLACK_IS_ZERO, RGB, PALETTE, CMYK = 0, 1, 2, 3, 5
NO_COMPRESSION, DEFLATE, PACKBITS = 1, 8, 32773
SHORT, LONG, RATIONAL, UNDEFINED = 3, 4, 5, 7
LETTERS = {SHORT: 'H', LONG: 'I', RATIONAL: 'I', UNDEFINED: 'B'}


def pack_bits(line):
    """Bytes as literal runs of at most 128."""
    parts = [line[at:at + 128] for at in range(0, len(line), 128)]
    return b''.join(bytes([len(part) - 1]) + part for part in parts)


COMPRESSIONS = {NO_COMPRESSION: lambda lines: b''.join(lines),
                DEFLATE: lambda lines: zlib.compress(b''.join(lines)),
                PACKBITS: lambda lines: b''.join(map(pack_bits, lines))}


class Page:
    """A page of rows of samples; tags are added to those that the picture has of itself."""

    def __init__(self, rows, photometric=BLACK_IS_ZERO, bits=8, count=1, compression=1, strip=5,
                 tile=None, planar=False, dpi=None, tags=()):
        self.width, self.height = len(rows[0]) // count, len(rows)
        self.rows, self.bits, self.count, self.planar = rows, bits, count, planar
        self.compress = COMPRESSIONS[compression]
        self.tags = {256: (LONG, [self.width]), 257: (LONG, [self.height]),
                     258: (SHORT, [bits] * count), 259: (SHORT, [compression]),
                     262: (SHORT, [photometric]), 277: (SHORT, [count]),
                     284: (SHORT, [2 if planar else 1])}
        if dpi:
            self.tags.update({282: (RATIONAL, dpi[0]), 283: (RATIONAL, dpi[1]), 296: (SHORT, [2])})
        self.tile, self.strip = tile, strip
        self.tags.update(tags)

    def planes(self):
        if not self.planar:
            return [(self.rows, self.count)]
        return [([row[plane::self.count] for row in self.rows], 1) for plane in range(self.count)]

    def pieces(self, big):
        """The compressed strips or tiles."""
        for rows, count in self.planes():
            if self.tile:
                yield from self.tiles_of(rows, count, big)
            else:
                for top in range(0, self.height, self.strip):
                    yield self.compress([packed(row, self.bits, big)
                                         for row in rows[top:top + self.strip]])

    def tiles_of(self, rows, count, big):
        across, down = self.tile
        for top in range(0, self.height, down):
            for left in range(0, self.width, across):
                part = [row[left * count:(left + across) * count] for row in rows[top:top + down]]
                part += [[]] * (down - len(part))
                yield self.compress([packed(row + [0] * (across * count - len(row)), self.bits, big)
                                     for row in part])


def value_bytes(kind, values, order):
    return struct.pack(f'{order}{len(values)}{LETTERS[kind]}', *values)


def tiff(*pages, big=False, next_of_last=0):
    order = '>' if big else '<'
    out = bytearray(b'MM\0*' if big else b'II*\0') + bytes(4)
    link = 4
    for page in pages:
        places = []
        pieces = list(page.pieces(big))
        for piece in pieces:
            out += bytes(len(out) % 2)
            places.append(len(out))
            out += piece
        tags = dict(page.tags)
        sizes = list(map(len, pieces))
        if page.tile:
            tags.update({322: (LONG, [page.tile[0]]), 323: (LONG, [page.tile[1]]),
                         324: (LONG, places), 325: (LONG, sizes)})
        else:
            tags.update({273: (LONG, places), 278: (LONG, [page.strip]), 279: (LONG, sizes)})
        entries = b''
        for number, (kind, values) in sorted(tags.items()):
            data = value_bytes(kind, values, order)
            length = len(values) // 2 if kind == RATIONAL else len(values)
            if len(data) > 4:
                out += bytes(len(out) % 2)
                data, place = struct.pack(order + 'I', len(out)), data
                out += place
            entries += struct.pack(order + 'HHI', number, kind, length) + data.ljust(4, b'\0')
        out += bytes(len(out) % 2)
        struct.pack_into(order + 'I', out, link, len(out))
        out += struct.pack(order + 'H', len(tags)) + entries
        link = len(out)
        out += struct.pack(order + 'I', next_of_last)
    return bytes(out)


def colour_map(palette):
    """The tag of a palette: all reds, all greens, all blues, of 16 bits."""
    return {320: (SHORT, [257 * colour[part] for part in range(3) for colour in palette])}
