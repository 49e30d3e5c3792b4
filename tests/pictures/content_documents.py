"""PDF documents of labels of 4 x 6 inches with codes by three makers, in colours and module widths."""
import re

from code_pictures import drawn, modules, output_of

# zint, zint, zint, qrencode and zint; the last one by barcode.
CODES = ('CODE128:KESTO-4711', 'EAN13:4006381333931', 'ITF:15400141288763', 'QR:https://example.org/kesto',
         'DATAMATRIX:Kesto label 4711', 'CODE39:K-39')
COLOURS = {'black': '0 g', 'K 100': '0 0 0 1 k', '#231F20': '0.137 0.122 0.125 rg', 'grey 30 %': '0.3 g',
           'K 85': '0 0 0 0.85 k', 'blue': '0 0 1 rg', 'red': '1 0 0 rg', 'green': '0 1 0 rg'}
# Upper left corners in points. The reader of Data Matrix begins in the middle of the page.
PLACES = {'CODE128': (20, 20), 'EAN13': (20, 75), 'ITF': (20, 130), 'CODE39': (20, 370), 'QR': (20, 270)}
MIDDLE = (144, 216)
BAR_HEIGHT = 35


def rows_of(code):
    """Rows of modules, 1 where it is dark; one row when the code has bars."""
    kind, text = code.split(':', 1)
    if kind != 'CODE39':
        return modules(code)
    svg = output_of('barcode', '-b', text, '-e', 'code39', '-c', '-S', '-n')
    widths = re.search(r'widths \(space first\): \d(\d+)', svg)[1]
    return [[bit for i, width in enumerate(widths) for bit in [1 - i % 2] * int(width)]]


def runs(row):
    """(start, length) of the dark runs."""
    text = ''.join(map(str, row))
    return [(found.start(), len(found[0])) for found in re.finditer('1+', text)]


def code_at(code, module, height=432):
    """Rectangles of a code whose modules are so many points wide."""
    rows = rows_of(code)
    left, top = PLACES.get(code.split(':')[0]) or [place - len(rows) * module / 2 for place in MIDDLE]
    high = BAR_HEIGHT if len(rows) == 1 else module
    return [f'{left + start * module:.5f} {height - top - (i + 1) * high:.5f} {length * module:.5f} {high:.5f} re'
            for i, row in enumerate(rows) for start, length in runs(row)]


def on_dots(rectangles, dpi):
    """Corners on the printer's grid, from the lower left corner of the page."""
    def snapped(number):
        return f'{round(float(number) * dpi / 72) * 72 / dpi:.5f}'
    return [' '.join(map(snapped, one.split()[:4])) + ' re' for one in rectangles]


def page(codes, module, colour, dpi=None):
    """The drawing of a page; with dpi its edges are those of dots."""
    drawing = [one for code in codes for one in code_at(code, module)]
    return f'{colour} {" ".join(on_dots(drawing, dpi) if dpi else drawing)} f'


def document(pages, width=288, height=432):
    objects = ['<</Type/Catalog/Pages 2 0 R>>', '']
    kids = []
    for content in pages:
        objects.append(f'<</Length {len(content)}>>stream\n{content}\nendstream')
        objects.append(f'<</Type/Page/Parent 2 0 R/MediaBox[0 0 {width} {height}]/Contents {len(objects)} 0 R>>')
        kids.append(f'{len(objects)} 0 R')
    objects[1] = f'<</Type/Pages/Count {len(kids)}/Kids[{" ".join(kids)}]>>'
    body = ''.join(f'{number} 0 obj{text}\nendobj\n' for number, text in enumerate(objects, 1))
    # Without a table: every reader rebuilds it.
    return f'%PDF-1.4\n{body}trailer<</Size {len(objects) + 1}/Root 1 0 R>>\n'.encode()
