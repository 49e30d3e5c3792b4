"""Documents that are raster already."""
from intake_run import printed, read, refused, run, sizes, write
import label_stream
import test_documents
from test_documents import raster

WHITE_HIGH, BLACK, STANDARD_GREY = 0, 3, 18


def burnt(done):
    return [round(page.burnt_share(), 2) for page in label_stream.pages_of(done.stream)]


def pages_of_the_queues_kind_are_passed_through():
    done = printed(raster('k', 808, 600, BLACK, pages=2, level=255))
    assert sizes(done.stream) == [(808, 600, 1)] * 2 and burnt(done) == [1, 1]
    assert burnt(printed(raster('paper', 808, 600, BLACK, level=0))) == [0]


def widths_become_whole_bytes():
    """At 203 dpi 799 dots are 99.97 mm and fit a label of 100 mm; 812 are 4 inches."""
    for width, expected in ((799, 800), (812, 808), (808, 808), (801, 800), (7, 8), (1, 8)):
        for space, level in ((BLACK, 0), (WHITE_HIGH, 255)):
            done = printed(raster('w', width, 300, space, level=level))
            assert sizes(done.stream) == [(expected, 300, 1)], (width, sizes(done.stream))
            assert burnt(done) == [0], 'what is added or left is paper'


def what_stands_behind_a_line_is_not_printed():
    for space, level in ((BLACK, 0), (WHITE_HIGH, 255)):
        for behind in b'\0' * 9, b'\xff' * 9:
            done = printed(raster('w', 799, 300, space, level=level, behind=behind))
            [page] = label_stream.pages_of(done.stream)
            assert page.width == 800 and page.burnt_share() == 0, page.burnt_share()


def pages_where_white_is_high_are_inverted():
    for space in WHITE_HIGH, STANDARD_GREY:
        assert burnt(printed(raster('w', 800, 300, space, level=255))) == [0]
        assert burnt(printed(raster('w', 800, 300, space, level=0))) == [1]


def other_rasters_are_refused_in_one_line():
    cases = {
        'have 300 dpi, and the printer 203': dict(dpi=300),
        'not grey': dict(space=1),
        '16 bits per dot, and not 8': dict(bits=16),
        '1 bits per dot, and not 8': dict(bits=1),
        'bits per dot': dict(order=1),
    }
    for reason, fields in cases.items():
        arguments = dict(width=808, height=100, space=BLACK) | fields
        done = refused('^The raster cannot be printed: .*' + reason, raster('r', **arguments))
        assert len(done.lines) == 1, done.lines


def a_bad_page_behind_good_ones_is_told_of():
    good = read(raster('good', 808, 300, BLACK))
    bad = read(raster('bad', 808, 300, BLACK, dpi=300))[4:]
    done = run(write('both', good + bad))
    assert done.status == 1 and '300 dpi' in done.own_error(), done.lines
    assert sizes(done.stream) == [(808, 300, 1)]


def a_cut_raster_is_told_of():
    done = run(raster('cut', 808, 300, BLACK, cut=1000))
    assert done.status == 1, done.lines
    assert 'Unable to read page 1: the raster ends inside it' in done.own_error(), done.lines
    assert sizes(done.stream) == []


def copies_count_once():
    one = raster('one', 808, 300, BLACK, copies=1)
    none = raster('none', 808, 300, BLACK, copies=0)
    three = raster('three', 808, 300, BLACK, copies=3)
    assert sizes(printed(one, copies=4).stream) == [(808, 300, 4)]
    assert sizes(printed(none, copies=4).stream) == [(808, 300, 4)]
    assert sizes(printed(three, copies=3).stream) == [(808, 300, 3)]
    # Behind another filter, which has seen to the copies.
    assert sizes(printed(None, given=read(one), copies=4).stream) == [(808, 300, 1)]


def rasters_of_clients_are_read():
    pwg = test_documents.by_ghostscript(
        'page.pwg', 'pwgraster', '-r203', '-dcupsColorSpace=18', '-dcupsBitsPerColor=8',
        '-dcupsColorOrder=0', '-dDEVICEWIDTHPOINTS=288', '-dDEVICEHEIGHTPOINTS=432', '-dFIXEDMEDIA')
    urf = test_documents.by_ghostscript(
        'page.urf', 'urf', '-r203', '-dcupsColorSpace=18', '-dcupsBitsPerColor=8',
        '-dDEVICEWIDTHPOINTS=288', '-dDEVICEHEIGHTPOINTS=432', '-dFIXEDMEDIA')
    for path in pwg, urf:
        done = printed(path)
        assert sizes(done.stream) == [(808, 1218, 1)], (path, sizes(done.stream))
        assert burnt(done)[0] < 0.1, 'the paper burns'
