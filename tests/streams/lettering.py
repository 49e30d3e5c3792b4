"""Which parts of a label are lettering, and what may be otherwise in them.

Lettering is drawn by fonts of the system, whose releases set dots a little otherwise, so it is only compared in how
far it reaches and how much ink it has. All other dots must be the same.
"""
import re

LINE = re.compile(rb'[^\r\n]*')
READABLE = re.compile(rb'(BARCODE [^,]*,[^,]*,"[^"]*",[^,]*,)[1-9]')


def without(stream, command):
    """The stream without the lettering of a command at some byte, or nothing when it has none."""
    line = LINE.match(stream, command['offset'])
    if command['command'] in ('TEXT', 'BLOCK'):
        return stream[:line.start()] + stream[line.end():]
    bare = READABLE.sub(rb'\g<1>0', line[0])
    return stream[:line.start()] + bare + stream[line.end():] if bare != line[0] else None


def left_and_right(rows):
    """The first column of dots that are set, and the one behind the last."""
    dots = 0
    for row in rows:
        dots |= row
    return (dots & -dots).bit_length() - 1, dots.bit_length()


def extent(rows):
    """[x, y, width, height] of the dots that are set, or nothing when there are none."""
    inked = [y for y, row in enumerate(rows) if row]
    if not inked:
        return None
    left, right = left_and_right(rows)
    return [left, inked[0], right - left, inked[-1] + 1 - inked[0]]


def slack(area):
    """How many dots lettering may reach farther or less far: magnified letters lose and win several at once."""
    return 3 + min(area[2:]) // 8


def surroundings(area):
    """Columns and rows of an area and of what its slack adds."""
    x, y, width, height = area
    more = slack(area)
    return max(x - more, 0), x + width + more, max(y - more, 0), y + height + more


def cut(rows, area):
    left, right, top, bottom = surroundings(area)
    return [(row >> left) & ((1 << (right - left)) - 1) for row in rows[top:bottom]]


def erased(rows, areas):
    """The rows without what is in the areas."""
    rows = list(rows)
    for area in areas:
        left, right, top, bottom = surroundings(area)
        for y in range(top, min(bottom, len(rows))):
            rows[y] &= ~((1 << right) - (1 << left))
    return rows


def ink(rows):
    return sum(row.bit_count() for row in rows)


def in_ink(rows, area, white):
    """What is in an area, with ones for the letters, which are white on a black ground."""
    left, right, _, _ = surroundings(area)
    paper = (1 << (right - left)) - 1
    return [row ^ paper if white else row for row in cut(rows, area)]


def difference(kept, drawn, area):
    """What is said of lettering that is not alike in two pictures of the same size, or nothing."""
    dots = (area[2] + 2 * slack(area)) * (area[3] + 2 * slack(area))
    white = ink(cut(kept, area)) > dots / 2
    ours, theirs = in_ink(kept, area, white), in_ink(drawn, area, white)
    if not ink(ours) * 2 // 3 <= ink(theirs) <= ink(ours) * 3 // 2:
        return f'lettering at {area}: {ink(theirs)} dots of ink, not about {ink(ours)}'
    far = [sides(extent(rows)) for rows in (ours, theirs)]
    if any(abs(side - other) > slack(area) for side, other in zip(*far)):
        return f'lettering at {area} reaches from and to {far[1]}, not {far[0]}'
    return ''


def sides(area):
    x, y, width, height = area
    return x, y, x + width, y + height
