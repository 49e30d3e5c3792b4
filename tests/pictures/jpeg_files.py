"""JPEG pictures of flat blocks of 8 x 8, which come out of a decoder as they went in."""
import struct

# Lengths and values of the Huffman code for the differences between blocks: sizes 0 to 11, each of
# 4 bits. Of the code for the waves in a block one word is used: there are none.
SIZES = bytes([0, 0, 0, 12] + [0] * 12) + bytes(range(12))
NO_WAVES = bytes([1] + [0] * 15) + b'\0'


def segment(marker, data):
    return b'\xff' + bytes([marker]) + struct.pack('>H', len(data) + 2) + data


def jfif(dpi=(0, 0)):
    return segment(0xe0, b'JFIF\0\1\1' + struct.pack('>BHHBB', 1 if dpi[0] else 0,
                                                      dpi[0] or 1, dpi[1] or 1, 0, 0))


def exif_data(orientation, big=True, before=0):
    """A directory of the orientation, with other entries before and one behind it."""
    order = '>' if big else '<'
    entries = [(256 + number, 4, 1, 77) for number in range(before)]
    body = b''.join(struct.pack(order + 'HHII', *entry) for entry in entries)
    body += struct.pack(order + 'HHIHH', 274, 3, 1, orientation, 0)
    body += struct.pack(order + 'HHII', 296, 3, 1, 2)
    return ((b'MM\0*' if big else b'II*\0') + struct.pack(order + 'IH', 8, before + 2) + body +
            bytes(4))


def exif(orientation, big=True):
    return segment(0xe1, b'Exif\0\0' + exif_data(orientation, big))


def adobe(transform):
    return segment(0xee, b'Adobe\0\x64\0\0\0\0' + bytes([transform]))


def profile(icc):
    return segment(0xe2, b'ICC_PROFILE\0\1\1' + icc)


def difference(value):
    """The bits of a difference: its size by the code, then its value."""
    size = abs(value).bit_length()
    bits = value if value > 0 else value + (1 << size) - 1
    return f'{size:04b}' + (f'{bits:0{size}b}' if size else '')


def jpeg(planes, width, height, front=b'', numbers=(1, 2, 3, 4)):
    """Of planes of samples, a row of one sample for each block of 8 x 8; front: the segments in
    front of the picture's own."""
    count = len(planes)
    text = ''
    before = [0] * count
    for y in range((height + 7) // 8):
        for x in range((width + 7) // 8):
            for plane in range(count):
                level = 8 * (planes[plane][y][x] - 128)
                text += difference(level - before[plane]) + '0'
                before[plane] = level
    text += '1' * (-len(text) % 8)
    data = int(text, 2).to_bytes(len(text) // 8, 'big').replace(b'\xff', b'\xff\0')
    frame = struct.pack('>BHHB', 8, height, width, count) + b''.join(
        bytes((numbers[plane], 0x11, 0)) for plane in range(count))
    scan = bytes([count]) + b''.join(bytes((numbers[plane], 0)) for plane in range(count))
    return (b'\xff\xd8' + front + segment(0xdb, b'\0' + b'\1' * 64) + segment(0xc0, frame) +
            segment(0xc4, b'\0' + SIZES) + segment(0xc4, b'\x10' + NO_WAVES) +
            segment(0xda, scan + b'\0\x3f\0') + data + b'\xff\xd9')


def of_blocks(rows, channels, size=8):
    """The planes of a picture of flat blocks, one for each letter of the channels."""
    return [[[pixel['rgba'.index(letter)] for pixel in row[::size]] for row in rows[::size]]
            for letter in channels]
