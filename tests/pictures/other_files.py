"""Pictures of the smaller formats: GIF, XBM, XPM, SGI, Sun raster, X window dump."""
import struct

from pixels import packed


def lzw(indices, bits):
    """GIF's compression, with codes of one length: the table is cleared before they grow."""
    clear, width = 1 << bits, bits + 1
    numbers = []
    for at, index in enumerate(indices):
        if at % (clear - 2) == 0:
            numbers.append(clear)
        numbers.append(index)
    text = ''.join(f'{number:0{width}b}' for number in reversed(numbers + [clear + 1]))
    return int(text, 2).to_bytes((len(text) + 7) // 8, 'little')


def gif(indices, palette, interlaced=False, transparent=None, frames=1):
    """Palettes are filled up to 256 colours."""
    width, height = len(indices[0]), len(indices)
    colours = b''.join(bytes(colour[:3]) for colour in palette).ljust(768, b'\0')
    out = b'GIF89a' + struct.pack('<HHBBB', width, height, 0xf7, 0, 0) + colours
    order = range(height)
    if interlaced:
        order = [*range(0, height, 8), *range(4, height, 8), *range(2, height, 4),
                 *range(1, height, 2)]
    for frame in range(frames):
        if transparent is not None:
            out += struct.pack('<BBBBHBB', 0x21, 0xf9, 4, 1, 0, transparent, 0)
        out += struct.pack('<BHHHHBB', 0x2c, 0, 0, width, height, 0x40 if interlaced else 0, 8)
        data = lzw([(index + frame) % 256 for y in order for index in indices[y]], 8)
        out += b''.join(bytes([len(data[at:at + 255])]) + data[at:at + 255]
                        for at in range(0, len(data), 255)) + b'\0'
    return out + b';'


def xbm(rows):
    """Of rows of bits that are 1 where it is white; the lowest bit is the leftmost."""
    lines = [packed([1 - bit for bit in row], 1) for row in rows]
    numbers = ', '.join(f'0x{int(f"{byte:08b}"[::-1], 2):02x}' for line in lines for byte in line)
    return (f'#define a_width {len(rows[0])}\n#define a_height {len(rows)}\n'
            f'static unsigned char a_bits[] = {{\n{numbers}}};\n').encode()


def xpm(indices, palette, transparent=None):
    letters = [chr(ord('A') + index) for index in range(len(palette))]
    colours = [f'"{letter} c {"None" if index == transparent else "#%02X%02X%02X" % colour[:3]}"'
               for index, (letter, colour) in enumerate(zip(letters, palette))]
    lines = [f'"{"".join(letters[index] for index in row)}"' for row in indices]
    head = f'"{len(indices[0])} {len(indices)} {len(palette)} 1"'
    return ('/* XPM */\nstatic char *a[] = {\n' + ',\n'.join([head, *colours, *lines]) +
            '\n};\n').encode()


def sgi(rows, count):
    """Of rows of samples: a plane for each channel, from the bottom row up."""
    head = struct.pack('>HBBHHHHII', 474, 0, 1, 3 if count > 1 else 2, len(rows[0]) // count,
                       len(rows), count, 0, 255)
    return head.ljust(512, b'\0') + b''.join(
        bytes(row[plane::count]) for plane in range(count) for row in reversed(rows))


def sun(rows, bits, palette=()):
    """Of rows of samples: bits that are 1 where it is black, indices, or blue, green and red.
    Lines are filled up to 16 bits."""
    width = len(rows[0]) // (3 if bits == 24 else 1)
    lines = [packed(row, 8 if bits == 24 else bits) for row in rows]
    lines = [line + bytes(len(line) % 2) for line in lines]
    colours = bytes(colour[part] for part in range(3) for colour in palette)
    return struct.pack('>8I', 0x59a66a95, width, len(rows), bits, sum(map(len, lines)), 1,
                       1 if palette else 0, len(colours)) + colours + b''.join(lines)


def xwd(rows):
    """A window dump of pictures, of 32 bits for each of its dots, the highest byte first."""
    width, height = len(rows[0]), len(rows)
    name = b'a\0'
    head = struct.pack('>25I', 100 + len(name), 7, 2, 24, width, height, 0, 1, 32, 1, 32, 32,
                       4 * width, 4, 0xff0000, 0xff00, 0xff, 8, 256, 0, width, height, 0, 0, 0)
    return head + name + b''.join(bytes((0, *pixel[:3])) for row in rows for pixel in row)


def photo_cd(picture, thumbnails):
    """A picture of 768 x 512 and its smaller ones: each (level at the left, level at the right),
    luminance in pairs of lines and the colours of grey behind each pair."""
    def plane(width, height, left, right):
        half = width // 2
        pair = (bytes([left]) * half + bytes([right]) * half) * 2
        return (pair + bytes([156]) * half + bytes([137]) * half) * (height // 2)
    out = bytearray(0x30000)
    out[0x800:0x807] = b'PCD_IPI'
    for start, width, height in ((0x2000, 192, 128), (0xb800, 384, 256)):
        small = plane(width, height, *thumbnails)
        out[start:start + len(small)] = small
    return bytes(out) + plane(768, 512, *picture)
