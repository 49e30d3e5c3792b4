"""Every format, depth and orientation prints the same as its plain PNG."""
import format_table
import icc_profiles
import jpeg_files as jpeg
import other_files
import pixels
import png_files as png
import pnm_files
import tiff_files as tiff
from picture_run import Faults, assert_equal, label, labels, write
from pixels import samples

# Neither of them is a whole multiple of a picture of the table.
OTHER_SIZE = (20, 33)
PRINTED = {}


def plain_png(rows):
    """The picture in the plainest PNG that can say it."""
    clear = any(pixel[3] != 255 for row in rows for pixel in row)
    return png.png(samples(rows, 'rgba' if clear else 'rgb'), png.RGBA if clear else png.RGB)


def plain_print(rows, dots):
    key = str(rows), dots
    if key not in PRINTED:
        PRINTED[key] = label(plain_png(rows), dots)
    return PRINTED[key]


def size_of(rows):
    return len(rows[0]), len(rows)


def whole_levels(rows):
    return all(pixel[0] == pixel[1] == pixel[2] and pixel[3] in (0, 255) for row in rows for pixel in row)


def all_print_as_plain_png(table):
    """At their own size and at another one; a plain PNG prints what it says."""
    count = 0
    with Faults() as faults:
        for name, content, rows in table:
            count += 1
            for dots in (size_of(rows), OTHER_SIZE):
                with faults.of(f'{name} at {dots[0]} x {dots[1]}'):
                    assert_equal(label(content, dots), plain_print(rows, dots), 'not as plain PNG')
    return count


def plain_pngs_print_their_levels():
    """Grey exactly, colours and what is seen through to the nearest level or its neighbour."""
    with Faults() as faults:
        for rows in (format_table.GREY, format_table.BITS, format_table.COLOURS,
                     format_table.CLEAR_GREY, format_table.CLEAR_COLOURS, pixels.blocks(24, 40)):
            tolerance = 0 if whole_levels(rows) else 1
            with faults.of('plain PNG'):
                assert_equal(label(plain_png(rows), size_of(rows)), pixels.over_white(rows),
                             'not the levels', tolerance)


def primary_colours_have_their_luminance():
    """By hand: 0.299, 0.587 and 0.114 of 255, and their sums."""
    colours = [(255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0), (0, 255, 255), (255, 0, 255),
               (255, 255, 255), (0, 0, 0)]
    row = [(*colour, 255) for colour in colours]
    assert_equal(label(plain_png([row] * 12), (8, 12)),
                 [[76, 150, 29, 226, 179, 105, 255, 0]] * 12, 'luminance')


def lossless_formats_print_as_plain_png():
    assert all_print_as_plain_png(format_table.lossless_table()) > 120


def orientations_print_as_plain_png():
    assert all_print_as_plain_png(format_table.orientation_table()) == 65


def inks_print_as_the_colours_that_they_are():
    with Faults() as faults:
        for name, content, rows in format_table.ink_table():
            with faults.of(name):
                assert_equal(label(content, size_of(rows)), pixels.over_white(rows), 'inks', 1)


def lossy_formats_print_nearly_as_plain_png():
    with Faults() as faults:
        for name, content, rows, tolerance in format_table.lossy_table():
            with faults.of(name):
                assert_equal(label(content, size_of(rows)), pixels.over_white(rows), 'levels',
                             tolerance)


def alpha_that_is_in_the_colours_already_is_known():
    """Where TIFF calls it associated, colours are what they add to the paper's share."""
    rows = [[(*(level * pixel[3] // 255 for level in pixel[:3]), pixel[3]) for pixel in row]
            for row in format_table.CLEAR_COLOURS]
    content = tiff.tiff(tiff.Page(samples(rows, 'rgba'), tiff.RGB, count=4,
                                  tags={338: (tiff.SHORT, [1])}))
    seen = [[(*(level + 255 - pixel[3] for level in pixel[:3]), 255) for pixel in row] for row in rows]
    assert_equal(label(content, (14, 22)), pixels.over_white(seen), 'levels', 2)


def maxima_that_8_bits_do_not_have_are_scaled():
    content, levels = format_table.odd_maximum()
    assert_equal(label(content, (14, 22)), levels, 'levels', 1)


def grey_with_alpha_prints_the_same_every_time():
    """Converters have been seen to read what they never wrote."""
    content = png.png(samples(format_table.CLEAR_GREY, 'ra'), png.GREY_ALPHA)
    first = label(content, (14, 22))
    for _ in range(9):
        assert_equal(label(content, (14, 22)), first, 'another time')


def every_page_of_a_tiff_file_is_a_label():
    pages = [pixels.grey(14, 22, seed=seed) for seed in range(5)]
    content = tiff.tiff(*(tiff.Page(samples(page, 'r')) for page in pages))
    found = labels(content, (14, 22))
    assert len(found) == 5
    for page, one in zip(pages, found):
        assert_equal(one.rows, samples(page, 'r'), 'a page')


def a_tiff_file_may_have_very_many_pages():
    pages = [tiff.Page([[0] * 4] * 6)] * 1200 + [tiff.Page([[80] * 4] * 6)]
    found = labels(tiff.tiff(*pages), (4, 6), 'page-ranges=1200-1201')
    assert [one.rows for one in found] == [[[0] * 4] * 6, [[80] * 4] * 6], len(found)


def remarks_may_be_long():
    rows = samples(format_table.GREY, 'r')
    for kind, levels in ((5, rows), (4, format_table.bits_of(format_table.BITS))):
        for length in (1000, 5000, 100000):
            content = pnm_files.pnm(kind, levels, comment=b'#' + b'x' * length + b'\n')
            seen = rows if kind == 5 else samples(format_table.BITS, 'r')
            assert_equal(label(content, (14, 22)), seen, f'P{kind} with {length}')


def digits_may_be_the_last_bytes():
    rows = samples(format_table.GREY, 'r')
    content = pnm_files.pnm(2, rows)
    assert_equal(label(content.rstrip(), (14, 22)), rows, 'P2 without a line end')


def pages_of_a_tiff_file_may_differ_in_all():
    bits, colours = pixels.grey(14, 22, (0, 255)), pixels.colours(22, 14)
    content = tiff.tiff(tiff.Page(format_table.bits_of(bits), bits=1),
                        tiff.Page(samples(colours, 'rgb'), tiff.RGB, count=3),
                        tiff.Page([[0] * 7] * 11))
    first, second, third = labels(content, (14, 22))
    assert_equal(first.rows, samples(bits, 'r'), 'bits')
    assert_equal(second.rows, label(plain_png(colours), (14, 22)), 'colours across')
    assert_equal(third.rows, [[0] * 14] * 22, 'half as large')


def linear(level):
    """What a level of a profile with a straight curve is in sRGB."""
    return icc_profiles.srgb_of_light(level / 255)


def profiles_become_srgb():
    """A straight curve is much darker in numbers than sRGB; red, green and blue that changed their
    places must change back."""
    straight = icc_profiles.of_primaries(icc_profiles.SRGB_PRIMARIES, 1)
    red, green, blue = icc_profiles.SRGB_PRIMARIES
    swapped = icc_profiles.of_primaries((green, blue, red), 1)
    rows = pixels.blocks(24, 40, channels=3)
    lit = [[(*map(linear, pixel[:3]), 255) for pixel in row] for row in rows]
    back = [[(pixel[2], pixel[0], pixel[1], 255) for pixel in row] for row in lit]
    levels, grey = pixels.blocks(24, 40), icc_profiles.of_grey(1)
    lit_grey = [[(linear(pixel[0]),) * 3 + (255,) for pixel in row] for row in levels]
    planes = jpeg.of_blocks(rows, 'rgb')
    icc_tag = lambda data: {34675: (tiff.UNDEFINED, data)}
    table = (('PNG', png.png(samples(rows, 'rgb'), png.RGB, chunks=[png.profile(straight)]), lit),
             ('PNG swapped', png.png(samples(rows, 'rgb'), png.RGB, chunks=[png.profile(swapped)]), back),
             ('PNG 16', png.png(pixels.at_depth(samples(rows, 'rgb'), 16), png.RGB, 16,
                                chunks=[png.profile(straight)]), lit),
             ('PNG grey', png.png(samples(levels, 'r'), chunks=[png.profile(grey)]), lit_grey),
             ('JPEG', jpeg.jpeg(planes, 24, 40, jpeg.adobe(0) + jpeg.profile(straight)), lit),
             ('JPEG swapped', jpeg.jpeg(planes, 24, 40, jpeg.adobe(0) + jpeg.profile(swapped)), back),
             ('JPEG grey', jpeg.jpeg(jpeg.of_blocks(levels, 'r'), 24, 40, jpeg.profile(grey)), lit_grey),
             ('TIFF swapped', tiff.tiff(tiff.Page(samples(rows, 'rgb'), tiff.RGB, count=3,
                                                  tags=icc_tag(swapped))), back))
    with Faults() as faults:
        for name, content, seen in table:
            with faults.of(name):
                assert_equal(label(content, (24, 40)), pixels.over_white(seen), 'colours', 2)


def nonsense_for_a_profile_is_left_out():
    rows = pixels.blocks(24, 40)
    for chunk in png.profile(b'nonsense' * 30), (b'iCCP', b'a\0\0nonsense'):
        content = png.png(samples(rows, 'rgb'), png.RGB, chunks=[chunk])
        assert_equal(label(content, (24, 40)), samples(rows, 'r'), 'levels')


def photo_cd_prints_its_picture_and_no_thumbnail():
    content = other_files.photo_cd((180, 40), thumbnails=(40, 180))
    for dots in (24, 16), (768, 512):
        rows = label(content, dots)
        left = {level for row in rows for level in row[:dots[0] // 2 - 2]}
        right = {level for row in rows for level in row[dots[0] // 2 + 2:]}
        assert min(left) > 200 and max(right) < 80, (dots, left, right)


def a_picture_of_one_dot_fills_a_square_of_the_label():
    dot = png.png([[0]])
    assert_equal(label(dot, (16, 16)), [[0] * 16] * 16, 'a square label')
    assert_equal(label(dot, (16, 24)), [[255] * 16] * 4 + [[0] * 16] * 16 + [[255] * 16] * 4, 'upright')


def names_mean_nothing():
    """What a file is, its first bytes say."""
    rows = format_table.GREY
    for ending in ('jpg', 'tif', 'txt', 'svg', 'pdf', 'mvg', 'gz'):
        path = write(pnm_files.pnm(5, samples(rows, 'r')), ending)
        assert_equal(label(path, (14, 22)), samples(rows, 'r'), ending)
