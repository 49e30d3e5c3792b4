"""Small pictures as plain lists: rows of (red, green, blue, alpha) from 0 to 255."""
import random


def grey(width, height, levels=range(256), alphas=(255,), seed=1):
    """Levels in no order, so that no turn or shift of it is the picture itself."""
    dice = random.Random(seed)
    return [[(level, level, level, dice.choice(alphas)) for level in dice.choices(levels, k=width)]
            for _ in range(height)]


def colours(width, height, alphas=(255,), seed=2):
    dice = random.Random(seed)
    return [[(dice.randrange(256), dice.randrange(256), dice.randrange(256), dice.choice(alphas))
             for _ in range(width)] for _ in range(height)]


def from_palette(width, height, palette, seed=3):
    """(picture, rows of indices)"""
    dice = random.Random(seed)
    indices = [dice.choices(range(len(palette)), k=width) for _ in range(height)]
    return [[palette[index] for index in row] for row in indices], indices


def blocks(width, height, size=8, levels=range(20, 240), seed=4, channels=1):
    """Flat squares, which codings of blocks keep."""
    dice = random.Random(seed)
    squares = [[tuple(dice.choice(levels) for _ in range(channels)) * (3 // channels) + (255,)
                for _ in range(0, width, size)] for _ in range(0, height, size)]
    return [[squares[y // size][x // size] for x in range(width)] for y in range(height)]


def samples(rows, channels):
    """The rows as flat lists of samples. Channels: a word of the letters r, g, b and a."""
    places = ['rgba'.index(letter) for letter in channels]
    return [[pixel[place] for pixel in row for place in places] for row in rows]


def packed(row, bits, big=True):
    """Samples behind one another from the highest bit on, filled up to whole bytes."""
    if bits == 16:
        return b''.join(sample.to_bytes(2, 'big' if big else 'little') for sample in row)
    if bits == 8:
        return bytes(row)
    text = ''.join(f'{sample:0{bits}b}' for sample in row)
    text += '0' * (-len(text) % 8)
    return int(text, 2).to_bytes(len(text) // 8, 'big') if text else b''


def at_depth(rows, bits):
    """Rows of samples of 8 bits as those of other depths, for levels that both have."""
    top = (1 << bits) - 1
    assert all(sample * top % 255 == 0 for row in rows for sample in row), bits
    return [[sample * top // 255 for sample in row] for row in rows]


def levels_at(bits):
    """All levels of a depth, from 0 to 255."""
    return range(0, 256, 255 // ((1 << min(bits, 8)) - 1))


def over_white(rows):
    """The luminance that is seen on paper, exact: Rec. 601, alpha over white."""
    return [[((299 * red + 587 * green + 114 * blue) * alpha + 255000 * (255 - alpha)) / 255000
             for red, green, blue, alpha in row] for row in rows]


# What the first row and the first column of a stored picture are of the one that is seen, by the
# number of the orientation in TIFF and Exif.
ORIENTATIONS = {1: ('top', 'left'), 2: ('top', 'right'), 3: ('bottom', 'right'),
                4: ('bottom', 'left'), 5: ('left', 'top'), 6: ('right', 'top'),
                7: ('right', 'bottom'), 8: ('left', 'bottom')}


def stored(rows, orientation):
    """How a picture is stored that is seen as these rows."""
    row_side, column_side = ORIENTATIONS[orientation]
    if orientation > 4:
        rows = [list(column) for column in zip(*rows)]
    if row_side in ('bottom', 'right'):
        rows = rows[::-1]
    if column_side in ('bottom', 'right'):
        rows = [row[::-1] for row in rows]
    return rows
