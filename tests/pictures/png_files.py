"""PNG pictures of every kind, written from the format's definition."""
import struct
import zlib

from pixels import packed

GREY, RGB, PALETTE, GREY_ALPHA, RGBA = 0, 2, 3, 4, 6
CHANNELS = {GREY: 1, RGB: 3, PALETTE: 1, GREY_ALPHA: 2, RGBA: 4}
# The passes of interlacing: first column, first row, steps between columns and rows.
ADAM7 = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2),
         (0, 1, 1, 2))


def chunk(kind, data):
    return (struct.pack('>I', len(data)) + kind + data +
            struct.pack('>I', zlib.crc32(kind + data)))


def header(width, height, colour_type, depth, interlaced=0):
    return b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack(
        '>IIBBBBB', width, height, depth, colour_type, 0, 0, interlaced))


def png(rows, colour_type=GREY, depth=8, chunks=(), interlaced=False):
    """Of rows of samples. Chunks, as (kind, data), stand in front of the data."""
    count = CHANNELS[colour_type]
    width = len(rows[0]) // count
    lines = []
    for left, top, across, down in ADAM7 if interlaced else ((0, 0, 1, 1),):
        for row in rows[top::down]:
            part = [sample for x in range(left, width, across)
                    for sample in row[x * count:(x + 1) * count]]
            lines.append(b'\0' + packed(part, depth) if part else b'')
    return (header(width, len(rows), colour_type, depth, int(interlaced)) +
            b''.join(chunk(*one) for one in chunks) +
            chunk(b'IDAT', zlib.compress(b''.join(lines))) + chunk(b'IEND', b''))


def palette_of(colours):
    return b'PLTE', b''.join(bytes(colour[:3]) for colour in colours)


def resolution(across, down=None):
    """Dots per inch as the chunk that says so, in dots per metre."""
    return b'pHYs', struct.pack('>IIB', round(across / 0.0254), round((down or across) / 0.0254), 1)


def profile(icc):
    return b'iCCP', b'a profile\0\0' + zlib.compress(icc)
