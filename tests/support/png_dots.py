"""Reads PNG files of 1 bit per dot, with nothing but zlib: what the previewer writes."""
import struct
import zlib

SIGNATURE = b'\x89PNG\r\n\x1a\n'


def chunks(data):
    """(kind, content) of every chunk, whose checksums must be right."""
    assert data.startswith(SIGNATURE), 'no PNG file'
    at = len(SIGNATURE)
    while at < len(data):
        size, kind = struct.unpack_from('>I4s', data, at)
        content = data[at + 8:at + 8 + size]
        assert struct.unpack_from('>I', data, at + 8 + size)[0] == zlib.crc32(kind + content), 'checksum'
        yield kind, content
        at += 12 + size


def paeth(left, above, corner):
    """The one of three neighbours that is nearest to left + above - corner."""
    guess = left + above - corner
    return min((left, above, corner), key=lambda neighbour: abs(guess - neighbour))


# What each filter type adds to a byte, by the bytes on the left, above and above on the left.
PREDICTIONS = (lambda left, above, corner: 0,
               lambda left, above, corner: left,
               lambda left, above, corner: above,
               lambda left, above, corner: (left + above) // 2,
               paeth)


def unfiltered(kind, line, before):
    if kind == 0:
        return line
    predict, row = PREDICTIONS[kind], bytearray()
    for column, byte in enumerate(line):
        left, corner = (row[-1], before[column - 1]) if column else (0, 0)
        row.append((byte + predict(left, before[column], corner)) & 0xFF)
    return bytes(row)


def read_png(path):
    """(width, height, rows): rows of bytes, 8 dots in each, the first one in the highest bit and 1 for white."""
    with open(path, 'rb') as file:
        parts = list(chunks(file.read()))
    width, height, *kind = struct.unpack('>IIBBBBB', dict(parts)[b'IHDR'])
    assert kind == [1, 0, 0, 0, 0], f'not 1 bit of grey: {kind}'
    data = zlib.decompress(b''.join(content for name, content in parts if name == b'IDAT'))
    stride = (width + 7) // 8
    assert len(data) == height * (stride + 1), 'size of the picture'
    rows, before = [], bytes(stride)
    for start in range(0, len(data), stride + 1):
        before = unfiltered(data[start], data[start + 1:start + 1 + stride], before)
        rows.append(before)
    return width, height, rows


def burnt_rows(path):
    """(width, rows): rows as whole numbers, whose bit of weight 2^x is the dot in column x, 1 for black."""
    width, _, rows = read_png(path)
    unused = -width % 8
    white = (1 << width) - 1
    return width, [int(f'{(int.from_bytes(row, "big") >> unused) ^ white:0{width}b}'[::-1], 2) for row in rows]
