"""A swallow over a compass rose, in lines and black areas, for the stencil queue's A6 page.

Laid out in dots of a 300 dpi printer; the page is 1240 x 1748 dots.
"""

import math

# In points, as the queue has it.
PAGE_SIZE = (297.625, 419.5625)
DOTS_PER_POINT = 300 / 72


def number(value):
    return f"{value:.1f}".removesuffix(".0")


def path(points, closed=False):
    words = " ".join(f"{number(x)},{number(y)}" for x, y in points)
    return f"M{words}" + ("z" if closed else "")


def shape(d, stroke=6, fill="#fff", extra=""):
    return f'<path d="{d}" fill="{fill}" stroke="#000" stroke-width="{stroke}" {extra}/>'


def line(d, stroke):
    return shape(d, stroke, "none")


def polar(radius, degrees):
    """Degrees run clockwise from the top."""
    turn = math.radians(degrees)
    return radius * math.sin(turn), -radius * math.cos(turn)


# --- the compass rose ----------------------------------------------------------------------------


def star_point(degrees, tip, root, half_angle, gap):
    """A point of the star: one half black, or hatched with lines `gap` apart, one half white."""
    outer, side = polar(tip, degrees), polar(root, degrees + half_angle)
    other = polar(root, degrees - half_angle)
    parts = [shape(path([(0, 0), other, outer], True), 5)]
    parts.append(shape(path([(0, 0), side, outer], True), 5, "#fff" if gap else "#000"))
    if gap:
        # Lines across, from the spine to the edge that leads to the tip.
        count = int((tip - root) / gap)
        for i in range(1, count):
            share = i / count
            edge = tuple(s + share * (o - s) for s, o in zip(side, outer))
            spine_length = root + share * (tip - root) * 0.93 - gap
            parts.append(line(path([polar(spine_length, degrees), edge]), 3))
    return "".join(parts)


def rope(radius, thickness, twists):
    parts = [
        f'<circle r="{radius + thickness / 2}" fill="#fff" stroke="#000" stroke-width="5"/>'
        f'<circle r="{radius - thickness / 2}" fill="#fff" stroke="#000" stroke-width="5"/>'
    ]
    step = 360 / twists
    strands = []
    for i in range(twists):
        start, middle_in, middle_out, end = (
            polar(radius + across * thickness / 2, (i + along) * step)
            for along, across in ((0, -1), (0.75, -0.8), (0.55, 0.8), (1.3, 1))
        )
        strands.append(
            path([start])
            + "C"
            + " ".join(f"{number(x)},{number(y)}" for x, y in (middle_in, middle_out, end))
        )
    parts.append(line("".join(strands), 4))
    return "".join(parts)


def compass():
    parts = [rope(392, 34, 64)]
    parts.append('<circle r="300" fill="none" stroke="#000" stroke-width="4"/>')
    parts.append('<circle r="262" fill="none" stroke="#000" stroke-width="7"/>')
    for degrees in range(0, 360, 5):
        inner, width = (268, 5) if degrees % 15 == 0 else (282, 3)
        parts.append(line(path([polar(inner, degrees), polar(300, degrees)]), width))
    for quarter in range(0, 360, 45):
        parts.append(star_point(quarter + 22.5, 214, 74, 16, 7))
    for quarter in range(0, 360, 90):
        parts.append(star_point(quarter + 45, 284, 78, 22, 9))
    for quarter in range(0, 360, 90):
        parts.append(star_point(quarter, 336, 70, 45, 0))
    parts.append('<circle r="26" fill="#fff" stroke="#000" stroke-width="6"/><circle r="9"/>')
    return "".join(parts)


# --- the swallow ---------------------------------------------------------------------------------


def bezier(points, t):
    """The point at `t`, in 0..1, of the curve that the points control."""
    while len(points) > 1:
        points = [
            (a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])) for a, b in zip(points, points[1:])
        ]
    return points[0]


def smooth(points):
    """A curve through the points."""
    words = f"M{number(points[0][0])},{number(points[0][1])}"
    for i in range(len(points) - 1):
        before, start = points[max(0, i - 1)], points[i]
        end, behind = points[i + 1], points[min(len(points) - 1, i + 2)]
        leave = [s + (e - b) / 6 for s, e, b in zip(start, end, before)]
        arrive = [e - (b - s) / 6 for s, e, b in zip(start, end, behind)]
        words += "C" + " ".join(f"{number(x)},{number(y)}" for x, y in (leave, arrive, end))
    return words


# Half the width of a feather along its length, as parts of its widest half.
FEATHER_OUTLINE = [(0.0, 0.45), (0.25, 0.9), (0.55, 1.0), (0.8, 0.75), (0.93, 0.38), (1.0, 0.0)]


def feather(root, tip, width, bend, shade):
    """A blade from `root` to a pointed tip, with its shaft and, when shaded, a black half."""
    dx, dy = tip[0] - root[0], tip[1] - root[1]
    length = math.hypot(dx, dy)

    def at(along, across):
        across = (across + bend * length * 4 * along * (1 - along)) / length
        return root[0] + along * dx - across * dy, root[1] + along * dy + across * dx

    def area(one, other):
        return smooth(one) + smooth(other[::-1]).replace("M", "L", 1) + "z"

    left = [at(along, -width * share) for along, share in FEATHER_OUTLINE]
    right = [at(along, width * share) for along, share in FEATHER_OUTLINE]
    middle = [at(along, 0) for along, _ in FEATHER_OUTLINE]
    parts = [shape(area(left, right), 5)]
    if shade:
        parts.append(shape(area(middle, right), 2, "#000"))
    parts.append(line(smooth(middle[:-1]), 3))
    # Barbs on the light half.
    for i in range(3, 10):
        along = i / 11
        reach = width * (0.55 if along < 0.75 else 0.35)
        parts.append(line(path([at(along, -2), at(min(0.97, along + 0.06), -reach)]), 2))
    return "".join(parts)


def mirrored(parts):
    return f'<g transform="scale(-1,1)">{parts}</g>'


def wing(turn, left):
    """The right wing of a bird that flies upwards, or the left one, turned by some degrees."""
    arm = [(18, -48), (90, -190), (210, -215), (300, -120)]
    edge = [(40, 60), (120, 90), (300, 110), (455, 190)]
    parts = []
    # Long feathers from the tip inwards, so that each lies on the next one outside.
    count = 13
    for i in range(count):
        t = 1 - i / (count - 1)
        root = bezier(arm, 0.12 + 0.86 * t)
        tip = bezier(edge, t)
        parts.append(feather(root, tip, 17 + 5 * (1 - t), -0.07 * t, True))
    # A row of short feathers that covers their roots.
    for i in range(11):
        t = 1 - i / 10
        root = bezier(arm, 0.06 + 0.88 * t)
        far = bezier(edge, t)
        tip = root[0] + 0.40 * (far[0] - root[0]), root[1] + 0.40 * (far[1] - root[1])
        parts.append(feather(root, tip, 15, -0.03, False))
    # The leading edge.
    crest = [bezier(arm, i / 12) for i in range(13)]
    upper = [(x + 5, y - 10) for x, y in crest]
    lower = [(x + 2, y + 26 - 16 * i / 12) for i, (x, y) in enumerate(crest)]
    parts.append(shape(path(upper + lower[::-1], True), 5, "#000"))
    turned = f'<g transform="rotate({turn})">{"".join(parts)}</g>'
    return mirrored(turned) if left else turned


def swallow():
    feathers = [(14, 250, 0.0), (34, 285, 0.02), (56, 330, 0.04), (92, 400, 0.06)]
    half_tail = "".join(feather((8, 120), (x, y), 15, -bend, True) for x, y, bend in feathers)
    body = (
        "M0,-178C-16,-172 -34,-160 -40,-132C-46,-106 -52,-70 -50,-20C-48,50 -30,110 -14,168"
        "L0,190L14,168C30,110 48,50 50,-20C52,-70 46,-106 40,-132C34,-160 16,-172 0,-178z"
    )
    hood = (
        "M0,-178C-16,-172 -34,-160 -40,-132C-44,-110 -30,-92 -20,-70C-12,-52 -8,-20 0,30"
        "C8,-20 12,-52 20,-70C30,-92 44,-110 40,-132C34,-160 16,-172 0,-178z"
    )
    scales = []
    for row in range(7):
        y = 10 + row * 20
        half = 2 - row // 3
        for column in range(-half, half + 1):
            x = (column + (0.5 if row % 2 else 0)) * 18
            scales.append(f"M{number(x - 8)},{y}q8,13 16,0")
    eye = '<circle cx="19" cy="-143" r="7" fill="#fff"/><circle cx="19" cy="-143" r="3"/>'
    return "".join(
        [
            half_tail,
            mirrored(half_tail),
            wing(-6, True),
            wing(4, False),
            shape(body, 6),
            shape(hood, 4, "#000"),
            line("".join(scales), 3),
            shape("M-11,-170L0,-206L11,-170z", 5, "#000"),
            eye,
            mirrored(eye),
        ]
    )


def line_drawing():
    width, height = PAGE_SIZE
    view = f"{width * DOTS_PER_POINT:.6f} {height * DOTS_PER_POINT:.6f}"
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}pt" height="{height}pt" '
        f'viewBox="0 0 {view}" stroke-linejoin="round" stroke-linecap="round">'
        f'<g transform="translate(620,1205)">{compass()}</g>'
        f'<g transform="translate(640,400) rotate(20) scale(1.12)">{swallow()}</g>'
        "</svg>\n"
    )
