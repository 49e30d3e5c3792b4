"""Which label a job is printed on. Dots are worked out by hand: across, the most multiples of 8
that reach over the label's edge by no more than 0.15 mm; down, the nearest number."""
import glob
import re

from intake_run import CONVERTERS, INSTALLED, printed, read, server_bin, sizes
import test_documents

LABEL_4X6 = (808, 1218)
LABEL_60X40 = (480, 320)
LABEL_50X30 = (400, 240)
DEFAULT = "The label is 4 x 6 in, the queue's default; "

# Options, the label's dots and what is said of it.
OFFERED = [
    ('', LABEL_4X6, None),
    ('PageSize=60x40mm', LABEL_60X40, None),
    ('media=60x40mm', LABEL_60X40, None),
    ('PageRegion=60x40mm', LABEL_60X40, None),
    ('media=60X40MM', LABEL_60X40, None),
    ('media=4x6in,auto', LABEL_4X6, None),
    ('media=auto,60x40mm', LABEL_60X40, None),
    ('PageSize= media=60x40mm', LABEL_60X40, None),
    ('PageSize=nonsense media=60x40mm', LABEL_60X40, None),
    ('PageSize=100x100mm', (800, 800), None),
    ('PageSize=2x1in', (400, 203), None),
    ('media=50x30mm PageSize=60x40mm', LABEL_60X40, None),
]
SPELT = [
    ('PageSize=w288h432', LABEL_4X6, None),
    ('PageSize=4x6', LABEL_4X6, None),
    ('PageSize=4x6.Borderless', LABEL_4X6, None),
    ('PageSize=4x6in.FullBleed', LABEL_4X6, None),
    ('PageSize=101.11x152.4mm.Borderless', LABEL_4X6, None),
    ('media=custom_101.11x152.4mm_101.11x152.4mm', LABEL_4X6, None),
    ('media=oe_4x6-label_4x6in', LABEL_4X6, None),
    ('media=na_index-4x6_4x6in', LABEL_4X6, None),
    ('media=Custom.4x6in', LABEL_4X6, None),
    ('PageSize=Custom.288x432', LABEL_4X6, None),
    # 170.08 and 113.39 points, without what is behind the point.
    ('PageSize=Custom.170x113', LABEL_60X40, None),
    ('media=custom_60x40mm_60x40mm PageSize=Custom.170x113', LABEL_60X40, None),
    ('media=59.2x40mm', LABEL_60X40, 'The label is 60 x 40 mm; 59.2 x 40 mm was asked for'),
]
TURNED = [
    ('media=custom_1x2in_1x2in', (400, 203),
     'The label is 2 x 1 in, turned; 1 x 2 in was asked for'),
    ('PageSize=50x30mm.Transverse', LABEL_50X30,
     'The label is 50 x 30 mm, turned; 30 x 50 mm was asked for'),
    ('PageSize=150x50mm', (400, 1199),
     'The label is 50 x 150 mm, turned; 150 x 50 mm was asked for'),
]
OF_ITS_OWN = [
    ('PageSize=Custom.73x41mm', (584, 328), None),
    ('media=custom_73x41mm', (584, 328), None),
    ('media=custom_73x41mm_73x41mm PageSize=Custom.206x116', (584, 328), None),
    # Nobody says what was behind the point: 72.67 x 40.92 mm.
    ('PageSize=Custom.206x116', (576, 327), None),
    ('PageSize=21x13mm', (168, 104), None),
    ('PageSize=62x41.5mm', (496, 332), None),
    ('media=A6', (840, 1183), None),
    ('media=iso_a6_105x148mm', (840, 1183), None),
    ('media=a6', (840, 1183), None),
]
DEFAULTED = [
    ('media=A4', LABEL_4X6,
     DEFAULT + '210 x 297 mm was asked for, which is larger than the printer takes'),
    ('PageSize=Letter', LABEL_4X6,
     DEFAULT + '215.9 x 279.4 mm was asked for, which is larger than the printer takes'),
    ('PageSize=nonsense', LABEL_4X6,
     DEFAULT + '"nonsense" was asked for, which is no known size'),
    ('PageSize=5x60mm', LABEL_4X6,
     DEFAULT + '5 x 60 mm was asked for, which is smaller than the printer takes'),
    ('PageSize=', LABEL_4X6, None),
]
STENCIL = [
    ('', (2480, 3507), None),
    ('PageSize=A4', (2480, 3507), None),
    ('media=iso_a4_210x297mm', (2480, 3507), None),
    ('PageSize=Letter', (2544, 3300), None),
    ('PageSize=Tattoo_A5', (2480, 1748), None),
    ('PageSize=Tattoo_A6', (1240, 1748), None),
    ('media=A6', (1240, 1748), None),
]


def faults_of(model, rows):
    for converter in CONVERTERS:
        folder = server_bin(converter)
        for options, expected, said in rows:
            done = printed(test_documents.PDF, options, model=model, bin_folder=folder)
            found = [size[:2] for size in sizes(done.stream)]
            if found != [expected] or done.labels_said() != ([said] if said else []):
                yield converter, options, found, done.labels_said()


def assert_labels(model, rows):
    faults = list(faults_of(model, rows))
    assert not faults, faults


def offered_sizes_are_found_by_name():
    assert_labels('kstl203', OFFERED)


def offered_sizes_are_found_by_dimensions():
    assert_labels('kstl203', SPELT)


def turned_sizes_are_found():
    assert_labels('kstl203', TURNED)


def other_sizes_are_labels_of_their_own():
    assert_labels('kstl203', OF_ITS_OWN)


def what_cannot_be_printed_comes_on_the_default_label():
    assert_labels('kstl203', DEFAULTED)


def stencils_keep_their_dots():
    assert_labels('ksts300', STENCIL)


def every_width_is_exact_at_300_dpi():
    """Sizes of which a description that is installed loses dots."""
    rows = [(f'PageSize={width}x{width + 3}mm', None, None) for width in (12, 15, 20, 23, 33)]
    expected = {12: (136, 177), 15: (176, 213), 20: (232, 272), 23: (272, 307), 33: (384, 425)}
    rows = [(options, expected[int(options[9:11])], said) for options, _, said in rows]
    assert_labels('kstl300', rows)


def every_description_prints_its_default():
    """Those that are installed, whatever their sizes are."""
    names = sorted(glob.glob(f'{INSTALLED}/*.ppd'))
    assert len(names) >= 3, names
    for name in names:
        text = read(name).decode()
        default = re.search(r'^\*DefaultPageSize: (\S+)', text, re.M)[1]
        points = re.search(rf'^\*PaperDimension {re.escape(default)}/[^"]*"(\S+) (\S+)"', text, re.M)
        dpi = int(re.search(r'^\*DefaultResolution: (\d+)dpi', text, re.M)[1])
        [(width, height, _)] = sizes(printed(test_documents.PDF, model=name).stream)
        assert width % 8 == 0, (name, width)
        assert abs(width - float(points[1]) / 72 * dpi) <= 8, (name, width, points[0])
        assert abs(height - float(points[2]) / 72 * dpi) <= 2, (name, height, points[0])
