"""A shipping label of the label queue's 4x6in page size.

Everything is laid out in printer dots, 203 to the inch, so that a module of a barcode and a pixel
of the picture are whole dots of the printer. Needs zint for the barcode patterns.
"""

import base64
import math
import struct
import subprocess
import zlib

DOTS_PER_POINT = 203 / 72
# The 4x6in page of the queue, in points; its dots are a little more than 808 x 1218.
PAGE_WIDTH = 286.625
PAGE_HEIGHT = 432.0625

TRACKING_NUMBER = "KP48201937556208"
INVENTED = "Sample label of kesto-tspl. Names, addresses and numbers are invented."
TRACKING_URL = "https://track.example.org/" + TRACKING_NUMBER


# --- the picture: a lake between mountains at dusk -------------------------------------------


def noise(x, y, seed):
    """Smooth value noise in 0..1 with one lattice point per unit."""

    def lattice(i, j):
        n = (i * 374761393 + j * 668265263 + seed * 974634077) & 0xFFFFFFFF
        n = ((n ^ (n >> 13)) * 1274126177) & 0xFFFFFFFF
        return ((n ^ (n >> 16)) & 0xFFFF) / 0xFFFF

    i, j = math.floor(x), math.floor(y)
    u, v = x - i, y - j
    u, v = u * u * (3 - 2 * u), v * v * (3 - 2 * v)
    top = lattice(i, j) * (1 - u) + lattice(i + 1, j) * u
    bottom = lattice(i, j + 1) * (1 - u) + lattice(i + 1, j + 1) * u
    return top * (1 - v) + bottom * v


def fractal(x, y, seed, octaves):
    """Sum of noise octaves, in 0..1."""
    total = weight = 0.0
    for octave in range(octaves):
        part = 0.5**octave
        total += part * noise(x * 2**octave, y * 2**octave, seed + octave)
        weight += part
    return total / weight


# Base above the horizon, height of the relief, its scale, light of the haze, seed of the noise.
RIDGES = [
    (0.17, 0.34, 2.2, 0.68, 11),
    (0.08, 0.25, 3.1, 0.47, 23),
    (0.02, 0.13, 4.7, 0.22, 37),
]
HORIZON = 0.66
SUN_X, SUN_Y = 0.68, 0.30


def sky_light(x, y):
    """Light of the sky and the sun; x and y in picture heights, y downwards."""
    light = 0.60 + 0.30 * (y / HORIZON) ** 1.4
    clouds = fractal(x * 2.2, y * 9.0, 71, 4)
    light -= 0.30 * max(0.0, clouds - 0.5) * (1.2 - y)
    distance = math.hypot(x - SUN_X * 1.3, y - SUN_Y)
    light += 0.40 * math.exp(-((distance / 0.055) ** 2)) + 0.30 * math.exp(-distance / 0.22)
    return light


def land_light(x, y):
    """Light of sky and mountains above the horizon."""
    light = sky_light(x, y)
    for base, relief, scale, haze, seed in RIDGES:
        crest = HORIZON - base - relief * (fractal(x * scale, 0.5, seed, 5) - 0.35)
        if y >= crest:
            depth = (y - crest) / (HORIZON - crest + 1e-9)
            slope = fractal(x * scale * 5, y * scale * 9, seed + 5, 4) - 0.5
            light = haze * (1 - 0.25 * (1 - depth)) + 0.16 * slope * (1 - haze)
            light += 0.10 * depth * haze
    return light


def picture_light(x, y):
    if y < HORIZON:
        return land_light(x, y)
    depth = (y - HORIZON) / (1 - HORIZON)
    ripple = (noise(x * 6, y * 70, 91) - 0.5) * (0.006 + 0.05 * depth)
    mirrored = HORIZON - (y - HORIZON) * 1.15 + ripple
    shimmer = (noise(x * 9, y * 110, 97) - 0.5) * 0.10 * (0.3 + depth)
    return 0.80 * land_light(x + ripple, max(0.0, mirrored)) * (1 - 0.25 * depth) + shimmer


def grey_png(width, height):
    rows = bytearray()
    for row in range(height):
        rows.append(0)
        for column in range(width):
            light = picture_light(column / height, row / height)
            rows.append(max(0, min(255, round(255 * light))))

    def chunk(kind, data):
        return (
            struct.pack(">I", len(data))
            + kind
            + data
            + struct.pack(">I", zlib.crc32(kind + data))
        )

    header = struct.pack(">IIBBBBB", width, height, 8, 0, 0, 0, 0)
    return (
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", header)
        + chunk(b"IDAT", zlib.compress(bytes(rows), 9))
        + chunk(b"IEND", b"")
    )


# --- drawing, in dots --------------------------------------------------------------------------


def zint_rows(*arguments):
    """Rows of a symbol as text of 0 (space) and 1 (bar), padded at the end with 0."""
    command = ["zint", *arguments, "--dump"]
    dump = subprocess.run(command, check=True, capture_output=True, text=True)
    return [
        "".join(f"{int(digit, 16):04b}" for digit in line if digit != " ")
        for line in dump.stdout.splitlines()
    ]


def bars(row, x, y, module, height):
    """One rectangle per run of bars, and the width of the symbol."""
    path = []
    row = row.rstrip("0")
    start = 0
    while start < len(row):
        end = start
        while end < len(row) and row[end] == row[start]:
            end += 1
        if row[start] == "1":
            left, width = x + start * module, (end - start) * module
            path.append(f"M{left} {y}h{width}v{height}h{-width}z")
        start = end
    return "".join(path), len(row) * module


def code128(x_centre, y, module, height):
    (row,) = zint_rows("--barcode=CODE128", "--data", TRACKING_NUMBER)
    width = bars(row, 0, 0, module, height)[1]
    path, _ = bars(row, x_centre - width // 2, y, module, height)
    return f'<path d="{path}"/>'


def qr_code(x, y, module):
    rows = zint_rows("--barcode=QRCODE", "--secure=2", "--data", TRACKING_URL)
    paths = [bars(row, x, y + i * module, module, module)[0] for i, row in enumerate(rows)]
    return f'<path d="{"".join(paths)}"/>'


def text(x, y, size, words, extra=""):
    return f'<text x="{x}" y="{y}" font-size="{size}" {extra}>{words}</text>'


def line(x1, y1, x2, y2, width=3):
    return f'<path d="M{x1} {y1}L{x2} {y2}" stroke="#000" stroke-width="{width}"/>'


BOLD = 'font-weight="bold"'
RIGHT = 'text-anchor="end"'
CENTRE = 'text-anchor="middle"'


def shipping_label():
    left, right, top, bottom = 24, 784, 24, 1194
    picture_width, picture_height = 424, 288
    picture = base64.b64encode(grey_png(picture_width, picture_height)).decode()
    spaced = " ".join([TRACKING_NUMBER[:2]] + [TRACKING_NUMBER[i : i + 4] for i in range(2, 16, 4)])

    parts = [
        f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" '
        'fill="none" stroke="#000" stroke-width="4"/>',
        # Carrier and service.
        f'<rect x="{left}" y="{top}" width="{right - left}" height="96"/>',
        text(48, 89, 54, "KESTO PARCEL", f'{BOLD} fill="#fff"'),
        text(760, 70, 34, "EXPRESS", f'{BOLD} {RIGHT} fill="#fff"'),
        text(760, 102, 24, "Next working day", f'{RIGHT} fill="#fff"'),
        # Sender and parcel.
        text(48, 153, 20, "FROM", BOLD),
        text(48, 183, 26, "Lumme Photo Works"),
        text(48, 213, 26, "14 Harbour Lane"),
        text(48, 243, 26, "SM4 2QX Saltmere"),
        line(494, 120, 494, 262),
        text(516, 153, 20, "SHIPPED", BOLD),
        text(760, 153, 26, "12 May 25", RIGHT),
        text(516, 198, 20, "WEIGHT", BOLD),
        text(760, 198, 26, "1.85 kg", RIGHT),
        text(516, 243, 20, "PARCEL", BOLD),
        text(760, 243, 26, "1 of 1", RIGHT),
        line(left, 262, right, 262),
        # Recipient.
        text(48, 301, 20, "TO", BOLD),
        text(48, 349, 44, "Mira Lindqvist", BOLD),
        text(48, 397, 38, "128 Juniper Street, Apt 7"),
        text(48, 445, 38, "Willowbrook"),
        text(48, 509, 58, "WB7 4ND", BOLD),
        '<rect x="640" y="282" width="120" height="120" fill="none" stroke="#000" '
        'stroke-width="4"/>',
        text(700, 372, 84, "E", f"{BOLD} {CENTRE}"),
        text(760, 509, 44, "07-214", f"{BOLD} {RIGHT}"),
        text(760, 457, 20, "ROUTE", f"{BOLD} {RIGHT}"),
        line(left, 530, right, 530),
        # Tracking code and contents.
        qr_code(58, 564, 8),
        text(174, 832, 21, "Scan to follow this parcel", CENTRE),
        line(324, 530, 324, 850),
        f'<image x="342" y="546" width="{picture_width}" height="{picture_height}" '
        f'image-rendering="pixelated" xlink:href="data:image/png;base64,{picture}"/>',
        line(left, 850, right, 850),
        # Parcel number.
        text(404, 893, 24, "PARCEL NUMBER", f"{BOLD} {CENTRE}"),
        code128(404, 910, 4, 190),
        text(404, 1141, 38, spaced, f"{BOLD} {CENTRE}"),
        text(404, 1178, 20, INVENTED, CENTRE),
    ]
    view = f"{PAGE_WIDTH * DOTS_PER_POINT:.6f} {PAGE_HEIGHT * DOTS_PER_POINT:.6f}"
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        f'width="{PAGE_WIDTH}pt" height="{PAGE_HEIGHT}pt" viewBox="0 0 {view}" '
        'font-family="Liberation Sans">'
        + "\n".join(parts)
        + "</svg>\n"
    )
