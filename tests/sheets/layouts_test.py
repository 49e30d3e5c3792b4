"""Every layout of samples/make-sheets, from the file to the dots that burn."""
from functools import lru_cache

from sheet_run import Faults, printed, sheet_layouts
from sources.sheet_layouts import INSTRUCTION, Layout, Page, label_drawing, pdf, tracking_number, tracking_url

# Rounding the edges of a cut to dots of its own moves a label by no more on the paper.
MOST_MOVED = 4


def codes_of(number):
    return {tracking_number(number), tracking_url(number)}


@lru_cache(maxsize=None)
def expected_page(number, frame):
    """The label printed by itself: a document of its size, which nobody looks for labels in."""
    labels, _ = printed(pdf(Layout(Page((288, 432), label_drawing(number, frame)))), '')
    return labels[0].page


def rows_of(page):
    """Each row as a number, a bit for each dot, set where it burns."""
    row_bytes = page.width // 8
    paper = (1 << page.width) - 1
    return [int.from_bytes(page.data[at:at + row_bytes], 'big') ^ paper
            for at in range(0, len(page.data), row_bytes)]


def moved(rows, right, down):
    shifted = [row >> right if right >= 0 else row << -right for row in rows]
    return [shifted[y - down] if 0 <= y - down < len(rows) else 0 for y in range(len(rows))]


def grown(rows):
    wide = [row | row << 1 | row >> 1 for row in rows]
    return [above | row | below for above, row, below in zip([0, *wide], wide, [*wide[1:], 0])]


def foreign_dots(rows, others):
    """Dots that are not within a dot of any of the others."""
    return sum((row & ~other).bit_count() for row, other in zip(rows, grown(others)))


def inside(page):
    """Without the dots at the edge, which a cut and a page of the label's size may lose."""
    rows = rows_of(page)
    mask = ((1 << page.width - 16) - 1) << 8
    return [row & mask if 8 <= y < len(rows) - 8 else 0 for y, row in enumerate(rows)]


def foreign_share(page, expected):
    """The share of dots that are only in one of two pages, in the place where they agree best."""
    ours, theirs = inside(page), inside(expected)
    ink = sum(row.bit_count() for row in theirs)
    reach = range(-MOST_MOVED, MOST_MOVED + 1)
    best = min(((right, down) for right in reach for down in reach),
               key=lambda by: sum((row ^ other).bit_count()
                                  for row, other in zip(moved(ours, *by)[::16], theirs[::16])))
    placed = moved(ours, *best)
    return (foreign_dots(placed, theirs) + foreign_dots(theirs, placed)) / ink


def check_label(label, number, name, layout):
    if number is None:
        assert not label.codes & codes_of(1), label.codes
        return
    assert label.codes == codes_of(number), (number, label.codes)
    share = label.page.burnt_share()
    if layout.scaled or layout.pages[0].picture:
        assert 0.07 < share < 0.19, f'{share:.3f} of the dots burn'
        return
    frame = 'bare' not in name and name not in ('letter-cut-marks', 'letter-cut-line', 'letter-rotate-270')
    if name == 'letter-dashed' or (name, number) == ('three-pages', 2):
        frame = False
    foreign = foreign_share(label.page, expected_page(number, frame))
    assert foreign < 0.004, f'{foreign:.4f} of the ink is elsewhere'


def check(names):
    layouts = sheet_layouts.layouts()
    with Faults() as faults:
        for name in names:
            with faults.of(name):
                layout = layouts[name]
                labels, infos = printed(pdf(layout))
                assert len(labels) == len(layout.labels), (len(labels), infos)
                for label, number in zip(labels, layout.labels):
                    assert INSTRUCTION not in label.codes or number is None, label.codes
                    check_label(label, number, name, layout)


def names(start):
    found = [name for name in sheet_layouts.layouts() if name.startswith(start)]
    assert found
    return found


def labels_come_out_of_letter_pages():
    check(names('letter-'))


def labels_come_out_of_a4_pages():
    check(names('a4-'))


def label_pages_and_several_pages_are_printed():
    check([name for name in sheet_layouts.layouts() if not name.startswith(('letter-', 'a4-'))])


def the_layouts_are_thirty_and_more():
    assert len(sheet_layouts.layouts()) >= 30
