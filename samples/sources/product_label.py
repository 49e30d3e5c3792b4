"""A product label of the label queue's 4x6in page size, in colours: a logo, a photograph-like picture,
a table with tints, codes and texts that are not black, and lines as faint as designers draw them.

Everything is laid out in printer dots, 203 to the inch. Needs zint for the codes.
"""

import base64

from sources.shipping_label import (BOLD, CENTRE, DOTS_PER_POINT, INVENTED, PAGE_HEIGHT, PAGE_WIDTH, RIGHT,
                                    bars, grey_png, text, zint_rows)

TEAL, ORANGE, GREY, GREEN, RED = "#00a0a0", "#f08000", "#9a9a9a", "#00b050", "#e00000"
LEFT, RIGHT_EDGE = 40, 768
ROWS = [("Roast", "medium"), ("Origin", "Sidama, 1,900 m"), ("Harvest", "November"), ("Net weight", "250 g")]


def code(symbology, words, x, y, module, height=None):
    """A code of whole dots; of bars when it has a height."""
    rows = zint_rows(f"--barcode={symbology}", "--data", words)
    if height:
        return f'<path d="{bars(rows[0], x, y, module, height)[0]}"/>'
    return "".join(f'<path d="{bars(row, x, y + i * module, module, module)[0]}"/>' for i, row in enumerate(rows))


def logo():
    ring = "".join(f'<circle cx="100" cy="100" r="{r}" fill="{colour}"/>'
                   for r, colour in ((64, TEAL), (50, "#fff"), (40, ORANGE), (14, "#fff")))
    return ring + text(184, 100, 64, "Lumme", f'{BOLD} fill="{TEAL}"') + \
        text(186, 138, 26, "COFFEE ROASTERS", f'fill="{GREY}" letter-spacing="3"')


def table(top):
    parts = []
    for i, (name, value) in enumerate(ROWS):
        y = top + 48 * i
        shade = "#dcdcdc" if i % 2 == 0 else "#fff"
        parts.append(f'<rect x="{LEFT}" y="{y}" width="{RIGHT_EDGE - LEFT}" height="48" fill="{shade}"/>')
        parts.append(text(LEFT + 14, y + 33, 26, name, BOLD) + text(RIGHT_EDGE - 14, y + 33, 26, value, RIGHT))
    for i in range(len(ROWS) + 1):
        parts.append(f'<rect x="{LEFT}" y="{top + 48 * i}" width="{RIGHT_EDGE - LEFT}" height="1" fill="#a0a0a0"/>')
    return "".join(parts)


def product_label():
    picture = base64.b64encode(grey_png(424, 288)).decode()
    parts = [
        logo(),
        f'<rect x="{LEFT}" y="190" width="728" height="64" fill="{TEAL}"/>',
        text(404, 235, 40, "SINGLE ORIGIN  No. 7", f'{BOLD} {CENTRE} fill="#fff"'),
        f'<image x="{LEFT}" y="280" width="424" height="288" image-rendering="pixelated" '
        f'xlink:href="data:image/png;base64,{picture}"/>',
        f'<g fill="{GREEN}">{code("QRCODE", "https://lumme.example.org/7", 520, 292, 8)}</g>',
        text(620, 556, 24, "How to brew it", f'{CENTRE} fill="{GREEN}"'),
        table(600),
        text(LEFT, 840, 30, "10 % off until Sunday!", f'{BOLD} fill="{RED}"'),
        text(LEFT, 872, 22, "Keep cool and dry. Grind just before brewing.", 'fill="#8c8c8c"'),
        text(LEFT, 898, 18, "Packed in a room where nuts are roasted, too.", 'fill="#b4b4b4"'),
        f'<g fill="#231f20">{code("EANX", "4006381333931", 60, 930, 4, 150)}</g>',
        text(250, 1112, 30, "4 006381 333931", f'{CENTRE} fill="#231f20"'),
        f'<g fill="{RED}">{code("DATAMATRIX", "Lumme 7 L1125", 560, 940, 8)}</g>',
        text(640, 1112, 22, "Lot L1125", f'{CENTRE} fill="{RED}"'),
        text(404, 1190, 20, INVENTED, CENTRE),
    ]
    view = f"{PAGE_WIDTH * DOTS_PER_POINT:.6f} {PAGE_HEIGHT * DOTS_PER_POINT:.6f}"
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        f'width="{PAGE_WIDTH}pt" height="{PAGE_HEIGHT}pt" viewBox="0 0 {view}" '
        'font-family="Liberation Sans">'
        + "\n".join(parts)
        + "</svg>\n"
    )
