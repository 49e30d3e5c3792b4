"""Pages as carriers send them: labels of 4 x 6 inches on sheets of paper, with all that may be around.

Lengths are points, from the lower left corner. The modules of the codes are whole dots of a printer
of 203 dots per inch, when a label is drawn at its own size. Needs zint for the codes.
"""

import subprocess
import textwrap
import zlib
from functools import lru_cache

LETTER = (612, 792)
A4 = (595.2756, 841.8898)
LABEL = (288, 432)
DOT = 72 / 203
# What is coded in what does not belong on a label.
INSTRUCTION = "THROW-THIS-AWAY"


def tracking_number(label):
    return f"KP4820193755{label:04}"


def tracking_url(label):
    return f"https://track.example.org/{tracking_number(label)}"


@lru_cache(maxsize=None)
def modules(kind, data):
    """Rows of a code, True where it is black."""
    done = subprocess.run(["zint", f"--barcode={kind}", "--data", data, "--dump"], check=True,
                          capture_output=True, text=True)
    rows = []
    for line in done.stdout.split("\n"):
        digits = line.replace(" ", "")
        if digits:
            rows.append([bit == "1" for digit in digits for bit in f"{int(digit, 16):04b}"])
    return rows


def bars(kind, data, x, y, module, height=None):
    """A code whose lower left corner is at x, y. One row of it may be as tall as it is told."""
    rows = modules(kind, data)
    tall = height or module
    parts = []
    for down, row in enumerate(reversed(rows[:1] if height else rows)):
        start = 0
        while start < len(row):
            end = start
            while end < len(row) and row[end] == row[start]:
                end += 1
            if row[start]:
                parts.append(f"{x + start * module:.5f} {y + down * tall:.5f} "
                             f"{(end - start) * module:.5f} {tall:.5f} re")
            start = end
    return "\n".join(parts) + " f"


def text(x, y, size, words):
    words = words.replace("\\", r"\\").replace("(", r"\(").replace(")", r"\)")
    return f"BT /F {size} Tf {x} {y} Td ({words}) Tj ET"


def label_drawing(number=1, frame=True):
    """A label of 288 x 432 points: with a frame just within its edge, or with white around it."""
    parts = ["q 0 g 0 G"]
    if frame:
        parts.append("1 w 0.5 0.5 287 431 re S")
    parts += [
        "12 416 264 6 re f",
        text(14, 398, 10, "From: Lindqvist Paper Works, 12 Harbour Lane, Port Ellery"),
        text(14, 370, 22, "Maren Oduya"),
        text(14, 346, 22, "77 Old Mill Road"),
        text(14, 322, 22, "Westbrook 40518"),
        "12 306 264 1.5 re f",
        bars("QRCODE", tracking_url(number), 14, 210, 7 * DOT),
        text(120, 280, 12, "PRIORITY PARCEL"),
        text(120, 260, 12, "Weight 2.4 kg"),
        text(120, 240, 12, "Zone B, route 19"),
        "12 190 264 1.5 re f",
        bars("CODE128", tracking_number(number), 30, 90, 3 * DOT, 84),
        text(60, 66, 16, tracking_number(number)),
        text(14, 36, 9, "Names, addresses and numbers are invented."),
        "12 10 264 6 re f",
        "Q",
    ]
    return "\n".join(parts)


TURNS = {0: (1, 0, 0, 1), 90: (0, 1, -1, 0), 180: (-1, 0, 0, -1), 270: (0, -1, 1, 0)}


def placed(drawing, x, y, turn=0, scale=1.0, size=LABEL):
    """A drawing turned counter-clockwise, the lower left corner of its outline at x, y."""
    a, b, c, d = TURNS[turn]
    corners = [(a * u + c * v, b * u + d * v) for u in (0, size[0]) for v in (0, size[1])]
    left, low = min(u for u, _ in corners), min(v for _, v in corners)
    return (f"q {a * scale} {b * scale} {c * scale} {d * scale} "
            f"{x - left * scale:.5f} {y - low * scale:.5f} cm\n{drawing}\nQ")


def instructions(x, y, width=500, lines=8):
    """What the carrier has to say, from x, y downwards, with a code of its own at the end."""
    words = ("Print this page, cut the label out along its edge and put it on the parcel. Do not cover "
             "the codes with tape. Keep this part of the page as your receipt. ") * 6
    rows = textwrap.wrap(words, int(width / 5))
    parts = ["q 0 g", text(x, y - 14, 14, "How to use this label")]
    for line in range(lines):
        parts.append(text(x, y - 34 - 14 * line, 10, rows[line]))
    parts.append(bars("QRCODE", INSTRUCTION, x, y - 34 - 14 * lines - 60, 6 * DOT))
    return "\n".join([*parts, "Q"])


def cut_marks(x, y, width, height):
    """Lines at the corners of a label, which do not touch it."""
    parts = ["q 0.5 w 0 G"]
    for corner_x, outwards in ((x, -1), (x + width, 1)):
        for corner_y, away in ((y, -1), (y + height, 1)):
            parts.append(f"{corner_x + outwards * 6} {corner_y} m {corner_x + outwards * 18} {corner_y} l S")
            parts.append(f"{corner_x} {corner_y + away * 6} m {corner_x} {corner_y + away * 18} l S")
    return "\n".join([*parts, "Q"])


def label_picture(number):
    """The codes of a label as a picture of 812 x 1218 dots, with a frame, and no text."""
    rows = [bytearray(b"\xff" * 812) for _ in range(1218)]

    def fill(x, y, width, height):
        for row in rows[y:y + height]:
            row[x:x + width] = bytes(width)

    def draw(code, x, y, module, height):
        for down, row in enumerate(code):
            for across, black in enumerate(row):
                if black:
                    fill(x + across * module, y + down * height, module, height)

    for edge in ((0, 0, 812, 4), (0, 1214, 812, 4), (0, 0, 4, 1218), (808, 0, 4, 1218)):
        fill(*edge)
    draw(modules("QRCODE", tracking_url(number)), 60, 100, 8, 8)
    draw(modules("CODE128", tracking_number(number))[:1], 80, 700, 3, 300)
    return b"".join(bytes(row) for row in rows)


class Page:
    """A page of a sheet: its size, what is drawn on it, and other entries of its dictionary."""

    def __init__(self, size, *drawings, box=None, entries="", picture=None):
        self.size, self.drawings, self.entries, self.picture = size, drawings, entries, picture
        self.box = box or (0, 0, *size)


class Layout:
    """Pages, the numbers of the labels on them in the order in which they print (None for a page that
    prints whole), and whether the labels are printed at their own size."""

    def __init__(self, *pages, labels=(1,), scaled=False):
        self.pages, self.labels, self.scaled = pages, labels, scaled


def sheet(size, *drawings, **more):
    return Layout(Page(size, *drawings), **more)


def text_page():
    line = "No label is on this page. It is a letter, with lines and paragraphs as letters have them. "
    parts = [text(72, 700, 18, "Terms of carriage")]
    for paragraph in range(3):
        for row in range(6):
            parts.append(text(72, 660 - 110 * paragraph - 14 * row, 11, line))
    return "\n".join(parts)


def layouts():
    """All layouts by their names."""
    framed = label_drawing
    below = instructions(60, 400)

    def bare(number=1):
        return label_drawing(number, frame=False)

    two_pages = (Page(LETTER, placed(framed(1), 90, 460, 90), below),
                 Page(LETTER, text_page()),
                 Page(A4, placed(bare(2), 80, 500, 270), below))
    wide = f"q 0 g {text(30, 30, 12, 'outside')} 0 0 60 60 re f Q"
    return {
        "letter-top-lying": sheet(LETTER, placed(framed(), 90, 460, 90), below),
        "letter-top-lying-the-other-way": sheet(LETTER, placed(framed(), 90, 460, 270), below),
        "letter-top-bare": sheet(LETTER, placed(bare(), 90, 460, 90), below),
        "a4-top-lying": sheet(A4, placed(framed(), 80, 510, 90), below),
        "a4-top-bare": sheet(A4, placed(bare(), 80, 510, 270), below),
        "letter-bottom-lying": sheet(LETTER, placed(framed(), 90, 40, 90), instructions(60, 740)),
        "a4-bottom-bare": sheet(A4, placed(bare(), 80, 60, 90), instructions(60, 780)),
        "letter-left": sheet(LETTER, placed(framed(), 20, 300), instructions(340, 730, 240)),
        "letter-right": sheet(LETTER, placed(framed(), 304, 300), instructions(30, 730, 250)),
        "a4-left-bare": sheet(A4, placed(bare(), 10, 380), instructions(330, 800, 240)),
        "a4-right-bare": sheet(A4, placed(bare(), 297, 380), instructions(30, 800, 230)),
        "letter-corner": sheet(LETTER, placed(framed(), 18, 342), instructions(340, 760, 240),
                               instructions(60, 300)),
        "letter-middle-bare": sheet(LETTER, placed(bare(), 162, 180)),
        "letter-between": sheet(LETTER, placed(framed(), 90, 260, 90), instructions(60, 770, 500, 4),
                                instructions(60, 230, 500, 4)),
        "letter-upside-down": sheet(LETTER, placed(framed(), 40, 320, 180), instructions(60, 280)),
        "letter-half": sheet(LETTER, placed(framed(), 18, 396, 90, 1.32), instructions(60, 360),
                             scaled=True),
        "a4-half-bare": sheet(A4, placed(bare(), 18, 450, 270, 1.29), below, scaled=True),
        "letter-full": sheet(LETTER, placed(framed(), 54, 18, 0, 1.74), scaled=True),
        "a4-full-bare": sheet(A4, placed(bare(), 30, 20, 0, 1.85), scaled=True),
        "letter-cut-marks": sheet(LETTER, placed(bare(), 90, 460, 90), cut_marks(90, 460, 432, 288), below),
        "letter-cut-line": sheet(LETTER, placed(bare(), 90, 470, 90),
                                 "q [6 4] 0 d 1 w 0 440 m 612 440 l S Q", below),
        "letter-dashed": sheet(LETTER, placed(bare(), 90, 460, 90),
                               "q [6 4] 0 d 1 w 90.5 460.5 431 287 re S Q", below),
        "letter-touched": sheet(
            LETTER, placed(framed(), 90, 440, 90), text(100, 431.1, 12, "FOLD HERE AND HERE TOO"),
            text(520.8, 600, 14, "Touches the frame"), "q 1 w 0 440.5 m 612 440.5 l S Q", below),
        "a4-four": sheet(A4, *(placed(framed(number), x, y, 0, 0.95) for number, x, y in (
            (1, 18, 425), (2, 303, 425), (3, 18, 6), (4, 303, 6))), labels=(1, 2, 3, 4), scaled=True),
        "letter-four-bare": sheet(LETTER, *(placed(bare(number), x, y, 0, 0.85) for number, x, y in (
            (1, 30, 410), (2, 330, 410), (3, 30, 20), (4, 330, 20))), labels=(1, 2, 3, 4), scaled=True),
        "letter-two": sheet(LETTER, placed(framed(1), 90, 460, 90), placed(framed(2), 90, 100, 90),
                            labels=(1, 2)),
        "a4-two-sharing-a-line": sheet(A4, placed(framed(1), 9.6, 380), placed(framed(2), 297.6, 380),
                                       instructions(60, 340), labels=(1, 2)),
        "letter-rotate-90": Layout(Page(LETTER, placed(framed(), 40, 180, 90), instructions(60, 150, 500, 2),
                                        entries="/Rotate 90")),
        "a4-rotate-180": Layout(Page(A4, placed(framed(), 90, 500, 90), below, entries="/Rotate 180")),
        "letter-rotate-270": Layout(Page(LETTER, placed(bare(), 90, 460, 90), below,
                                         entries="/Rotate 270")),
        "letter-crop-box": Layout(Page(LETTER, placed(framed(), -110, 160, 90), wide,
                                       instructions(-140, 90, 500, 4), box=(-300, -300, 900, 900),
                                       entries="/CropBox [-200 -300 412 492]")),
        "letter-user-unit": Layout(Page((306, 396), "q 0.5 0 0 0.5 0 0 cm", placed(framed(), 90, 460, 90),
                                        below, "Q", entries="/UserUnit 2")),
        "letter-picture": Layout(Page(LETTER, "q 0 288 -432 0 530 460 cm /I Do Q", below,
                                      picture=label_picture(1))),
        "letter-text": sheet(LETTER, text_page(), labels=(None,)),
        "label": sheet(LABEL, framed()),
        "label-lying": sheet((432, 288), placed(framed(), 0, 0, 270)),
        "three-pages": Layout(*two_pages, labels=(1, None, 2)),
    }


def pdf(layout):
    """The PDF file of a layout."""
    objects = ["<< /Type /Catalog /Pages 2 0 R >>", None,
               "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"]
    kids = []
    for page in layout.pages:
        first = len(objects) + 1
        kids.append(f"{first} 0 R")
        picture = f"/XObject << /I {first + 2} 0 R >>" if page.picture else ""
        objects.append(
            f"<< /Type /Page /Parent 2 0 R /MediaBox [{' '.join(map(str, page.box))}] {page.entries} "
            f"/Contents {first + 1} 0 R /Resources << /Font << /F 3 0 R >> {picture} >> >>")
        objects.append(("/Filter /FlateDecode", zlib.compress("\n".join(page.drawings).encode(), 9)))
        if page.picture:
            objects.append(("/Type /XObject /Subtype /Image /Width 812 /Height 1218 /BitsPerComponent 8 "
                            "/ColorSpace /DeviceGray /Filter /FlateDecode",
                            zlib.compress(page.picture, 9)))
    objects[1] = f"<< /Type /Pages /Kids [{' '.join(kids)}] /Count {len(kids)} >>"
    return file_of(objects)


def file_of(objects):
    content, offsets = b"%PDF-1.6\n", []
    for number, body in enumerate(objects, 1):
        offsets.append(len(content))
        if isinstance(body, tuple):
            entries, data = body
            stream = b"<< %s /Length %d >>\nstream\n%s\nendstream" % (entries.encode(), len(data), data)
        else:
            stream = body.encode()
        content += b"%d 0 obj\n%s\nendobj\n" % (number, stream)
    table = b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    return content + (b"xref\n0 %d\n0000000000 65535 f \n%strailer\n<< /Size %d /Root 1 0 R >>\n"
                      b"startxref\n%d\n%%%%EOF\n"
                      % (len(offsets) + 1, table, len(offsets) + 1, len(content)))
