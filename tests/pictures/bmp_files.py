"""BMP pictures of rows of samples or of indices into a palette."""
import struct

from pixels import packed


def file_of(width, height, bits, data, palette=(), compression=0, dots_per_metre=0, masks=b''):
    """A height below zero stands for rows from the top."""
    colours = b''.join(bytes((blue, green, red, 0)) for red, green, blue, *_ in palette)
    start = 14 + 40 + len(masks) + len(colours)
    return (struct.pack('<2sIHHI', b'BM', start + len(data), 0, 0, start) +
            struct.pack('<IiiHHIIiiII', 40, width, height, 1, bits, compression, len(data),
                        dots_per_metre, dots_per_metre, len(palette), 0) + masks + colours + data)


def padded(line):
    return line + bytes(-len(line) % 4)


def indexed(indices, palette, bits, top_down=False):
    lines = [padded(packed(row, bits)) for row in indices]
    return file_of(len(indices[0]), -len(lines) if top_down else len(lines), bits,
                   b''.join(lines if top_down else lines[::-1]), palette)


def true_colour(rows, bits, top_down=False, dots_per_metre=0, rest=0):
    """Of pictures; 24 or 32 bits, of which the last 8 mean nothing."""
    lines = [padded(b''.join(bytes((blue, green, red) + (rest,) * (bits // 8 - 3))
                             for red, green, blue, _ in row)) for row in rows]
    return file_of(len(rows[0]), -len(lines) if top_down else len(lines), bits,
                   b''.join(lines if top_down else lines[::-1]), dots_per_metre=dots_per_metre)


def run_length(indices, palette):
    """RLE8: runs, literal bytes (at least three, filled up to an even number), ends of lines."""
    data = b''
    for row in reversed(indices):
        for x in range(0, len(row), 5):
            part = row[x:x + 5]
            if len(part) > 2 and x % 2:
                data += b'\0' + bytes([len(part)]) + bytes(part) + bytes(len(part) % 2)
            else:
                data += b''.join(bytes((1, index)) for index in part)
        data += b'\0\0'
    return file_of(len(indices[0]), len(indices), 8, data + b'\0\1', palette, compression=1)


def of_os2(indices, palette, bits):
    """The oldest header, with sizes of 16 bits and colours of three bytes."""
    colours = b''.join(bytes((blue, green, red)) for red, green, blue, *_ in palette)
    data = b''.join(padded(packed(row, bits)) for row in indices[::-1])
    start = 14 + 12 + len(colours)
    return (struct.pack('<2sIHHI', b'BM', start + len(data), 0, 0, start) +
            struct.pack('<IHHHH', 12, len(indices[0]), len(indices), 1, bits) + colours + data)


def of_16_bits(rows, green_bits):
    """Red, green and blue of 5 bits, or 5, 6 and 5 with masks that say so."""
    number = lambda pixel: ((pixel[0] >> 3) << 5 + green_bits | (pixel[1] >> 8 - green_bits) << 5 |
                            pixel[2] >> 3)
    data = b''.join(padded(b''.join(struct.pack('<H', number(pixel)) for pixel in row))
                    for row in rows[::-1])
    masks = struct.pack('<III', 0xf800, 0x7e0, 0x1f) if green_bits == 6 else b''
    return file_of(len(rows[0]), len(rows), 16, data, compression=3 if masks else 0, masks=masks)


def with_alpha(rows):
    """32 bits under a header of version 5, which says where alpha is."""
    data = b''.join(bytes((blue, green, red, alpha)) for row in rows[::-1]
                    for red, green, blue, alpha in row)
    head = struct.pack('<IiiHHIIiiIIIIII4s', 124, len(rows[0]), len(rows), 1, 32, 3, len(data), 0, 0, 0,
                       0, 0xff0000, 0xff00, 0xff, 0xff000000, b'BGRs').ljust(124, b'\0')
    return struct.pack('<2sIHHI', b'BM', 14 + 124 + len(data), 0, 0, 14 + 124) + head + data
