"""Colour profiles, written from their definition: three primaries and a curve, or a curve of grey."""
import struct

# What red, green and blue of sRGB are, under the white of profiles.
SRGB_PRIMARIES = ((0.4360, 0.2225, 0.0139), (0.3851, 0.7169, 0.0971), (0.1431, 0.0606, 0.7141))
WHITE = (0.9642, 1.0, 0.8249)


def xyz(values):
    return b'XYZ \0\0\0\0' + b''.join(struct.pack('>i', round(value * 65536)) for value in values)


def gamma(value):
    return b'curv\0\0\0\0' + struct.pack('>IH', 1, round(value * 256)) + b'\0\0'


def profile(space, tags):
    text = b'desc\0\0\0\0' + struct.pack('>I', 2) + b'a\0' + bytes(78)
    tags = [(b'desc', text + bytes(-len(text) % 4)), (b'wtpt', xyz(WHITE)),
            (b'cprt', b'text\0\0\0\0a\0\0\0'), *tags]
    table, data = struct.pack('>I', len(tags)), b''
    start = 128 + 4 + 12 * len(tags)
    for name, content in tags:
        table += name + struct.pack('>II', start + len(data), len(content))
        data += content
    body = table + data
    head = struct.pack('>I4sI4s4s4s6H4s', 128 + len(body), b'lcms', 0x02100000, b'mntr', space,
                       b'XYZ ', 2026, 1, 1, 0, 0, 0, b'acsp')
    head = head.ljust(68, b'\0') + b''.join(struct.pack('>i', round(v * 65536)) for v in WHITE)
    return head.ljust(128, b'\0') + body


def of_primaries(primaries, curve):
    names = (b'rXYZ', b'gXYZ', b'bXYZ')
    return profile(b'RGB ', [*((name, xyz(values)) for name, values in zip(names, primaries)),
                             *((name, gamma(curve)) for name in (b'rTRC', b'gTRC', b'bTRC'))])


def of_grey(curve):
    return profile(b'GRAY', [(b'kTRC', gamma(curve))])


def srgb_of_light(light):
    """The level from 0 to 255 that sRGB has for an amount of light from 0 to 1."""
    return 255 * (12.92 * light if light <= 0.0031308 else 1.055 * light ** (1 / 2.4) - 0.055)
