"""PDF documents of one page, from a drawing (SVG) or from a grey picture."""

import os
import subprocess
import tempfile
import zlib

# Fixed, so that the same drawing gives the same file: 12 May 2025.
CREATED = "1747008000"


def write_drawing(path, svg):
    """Fonts are embedded, lines and areas stay lines and areas."""
    with tempfile.NamedTemporaryFile("w", suffix=".svg", encoding="utf-8") as source:
        source.write(svg)
        source.flush()
        subprocess.run(
            ["rsvg-convert", "--format=pdf", "--dpi-x=72", "--dpi-y=72", "-o", path, source.name],
            check=True,
            env=os.environ | {"SOURCE_DATE_EPOCH": CREATED},
        )


def predicted_rows(pixels):
    """The rows of a picture as PNG would compress them, each by the best of three predictors."""
    above = bytes(len(pixels[0]))
    for row in pixels:
        left = bytes(1) + row[:-1]
        candidates = [
            (1, bytes((a - b) & 255 for a, b in zip(row, left))),
            (2, bytes((a - b) & 255 for a, b in zip(row, above))),
            (3, bytes((a - (b + c) // 2) & 255 for a, b, c in zip(row, left, above))),
        ]
        kind, data = min(candidates, key=lambda c: sum(min(v, 256 - v) for v in c[1]))
        yield bytes([kind]) + data
        above = row


def write_picture(path, rows, page_size, corner, dots_per_inch):
    """A picture (rows of grey bytes) whose pixels are dots of the printer.

    `page_size` is in points; `corner` is the distance in dots of the picture's upper left corner
    from the page's.
    """
    width, height = len(rows[0]), len(rows)
    point = 72 / dots_per_inch
    x, bottom = corner[0] * point, page_size[1] - (corner[1] + height) * point
    content = f"{width * point:.4f} 0 0 {height * point:.4f} {x:.4f} {bottom:.4f} cm /Im Do"
    content = f"q {content} Q\n".encode()
    data = zlib.compress(b"".join(predicted_rows(rows)), 9)
    image = (
        f"/Type /XObject /Subtype /Image /Width {width} /Height {height} /BitsPerComponent 8 "
        "/ColorSpace /DeviceGray /Filter /FlateDecode "
        f"/DecodeParms << /Predictor 15 /Columns {width} >>"
    )
    objects = [
        (b"/Type /Catalog /Pages 2 0 R", None),
        (b"/Type /Pages /Kids [3 0 R] /Count 1", None),
        (
            f"/Type /Page /Parent 2 0 R /MediaBox [0 0 {page_size[0]} {page_size[1]}] "
            "/Contents 4 0 R /Resources << /XObject << /Im 5 0 R >> >>".encode(),
            None,
        ),
        (b"", content),
        (image.encode(), data),
    ]
    pdf = bytearray(b"%PDF-1.5\n%\xb5\xb5\xb5\xb5\n")
    places = []
    for number, (entries, stream) in enumerate(objects, 1):
        places.append(len(pdf))
        length = b"" if stream is None else b" /Length %d" % len(stream)
        pdf += b"%d 0 obj\n<< %s%s >>\n" % (number, entries, length)
        if stream is not None:
            pdf += b"stream\n" + stream + b"\nendstream\n"
        pdf += b"endobj\n"
    start = len(pdf)
    pdf += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    pdf += b"".join(b"%010d 00000 n \n" % place for place in places)
    pdf += b"trailer\n<< /Size %d /Root 1 0 R >>\n" % (len(objects) + 1)
    pdf += b"startxref\n%d\n%%%%EOF\n" % start
    with open(path, "wb") as file:
        file.write(pdf)
