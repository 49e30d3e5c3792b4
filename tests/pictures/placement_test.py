"""Every option of placement against dots worked out by hand, or by exact fractions.

Labels are of 16 x 24 dots at 200 dots per inch where nothing else is said. All directions are those
that imagetopdf has: turned pictures lie counter-clockwise, and a position is that of the picture as
it is read."""
import bmp_files as bmp
import jpeg_files as jpeg
import pixels
import png_files as png
import pnm_files as pnm
import tiff_files as tiff
import tool_files
from area_average import (clockwise, counter_clockwise, cropped, mirrored, placed, scaled,
                          upside_down)
from picture_run import Faults, Run, assert_equal, command, label, labels

LABEL = (16, 24)
# A mean is rounded to the nearest whole level.
ROUNDED = 0.5


def picture(width, height, seed=1):
    """Rows of levels."""
    return pixels.samples(pixels.grey(width, height, seed=100 * width + height + seed), 'r')


def enlarged(rows, factor, down=None):
    return [[level for level in row for _ in range(factor)] for row in rows
            for _ in range(down or factor)]


def middle(rows, dots=LABEL):
    return placed(rows, *dots, (dots[0] - len(rows[0])) // 2, (dots[1] - len(rows)) // 2)


def fitted(rows, dots=LABEL):
    return scaled(rows, *dots)


def check(table):
    """Of (options, rows of the picture, dots of the label, expected dots)."""
    with Faults() as faults:
        for options, rows, dots, expected in table:
            with faults.of(f'{len(rows[0])} x {len(rows)} on {dots[0]} x {dots[1]}: {options}'):
                assert_equal(label(png.png(rows), dots, *options.split()), expected, 'dots', ROUNDED)


def without_options_a_picture_is_fitted():
    table = [('', rows, LABEL, fitted(rows)) for rows in
             (picture(16, 24), picture(8, 12), picture(32, 48), picture(64, 96), picture(24, 36),
              picture(12, 18), picture(10, 15), picture(2, 3), picture(160, 240), picture(50, 75))]
    square, tall = picture(8, 8), picture(4, 24)
    table.append(('', square, LABEL, middle(enlarged(square, 2))))
    table.append(('', tall, LABEL, middle(tall)))
    table += [(option, rows, LABEL, expected) for _, rows, _, expected in table[:3]
              for option in ('print-scaling=fit', 'fit-to-page=true', 'fitplot=true', 'fit-to-page=yes',
                             'print-scaling=nonsense', 'position=nonsense', 'scaling=100')]
    check(table)


def whole_levels_are_means_of_their_squares():
    """Worked out by hand: rounded halves, and a step in the middle of a dot."""
    rows = [[0, 255, 10, 11], [255, 0, 10, 11], [0, 0, 0, 1], [0, 0, 0, 0]]
    # 510 / 4 = 127.5, 42 / 4 = 10.5, 1 / 4.
    found = label(png.png(rows), (2, 2))
    assert found[0][0] in (127, 128) and found[0][1] in (10, 11) and found[1] == [0, 0], found
    # Each dot is a sample and a half: the first one all of 0 and half of 90, of 30 and of 60 behind.
    check([('', [[0, 90, 30, 0, 60, 120]] * 3, (4, 2), [[30, 50, 20, 100]] * 2)])


def a_picture_of_exactly_the_labels_dots_keeps_them():
    table = []
    for dots in (16, 24), (24, 16), (16, 16), (13, 31), (808, 40):
        rows = picture(*dots)
        table.append(('', rows, dots, rows))
        if abs(dots[0] - dots[1]) >= 8:
            table.append(('', rows, dots[::-1], counter_clockwise(rows)))
    check(table)
    rows = picture(16, 24)
    for resolution in (72, 72), (96, 100), (200, 100):
        assert_equal(label(png.png(rows, chunks=[png.resolution(*resolution)]), LABEL), rows, resolution)
    content, blocks = jpeg_of_blocks((96, 96), 16, 24)
    assert_equal(label(content, LABEL), blocks, 'JPEG')


def jpeg_of_blocks(dpi, width, height):
    rows = pixels.blocks(width, height)
    return (jpeg.jpeg(jpeg.of_blocks(rows, 'r'), width, height, jpeg.jfif(dpi)),
            pixels.samples(rows, 'r'))


def a_picture_turns_with_the_label_counter_clockwise():
    across, upright = picture(48, 32), picture(16, 24)
    check([('', across, LABEL, scaled(counter_clockwise(across), 16, 24)),
           ('', picture(24, 12), LABEL, middle(counter_clockwise(picture(24, 12)))),
           ('', upright, (24, 16), counter_clockwise(upright)),
           ('print-scaling=fill', picture(24, 16), LABEL, counter_clockwise(picture(24, 16))),
           ('print-scaling=none', picture(20, 8), LABEL, middle(counter_clockwise(picture(20, 8))))])


def nothing_turns_on_a_square_label():
    tall, wide = picture(12, 24), picture(24, 12)
    check([('', tall, (24, 24), middle(tall, (24, 24))), ('', wide, (24, 24), middle(wide, (24, 24))),
           # Less than a byte is no difference: the width is cut to whole bytes.
           ('', tall, (31, 24), placed(tall, 31, 24, 9, 0)),
           ('', wide, (24, 30), middle(wide, (24, 30))),
           ('', wide, (24, 32), middle(scaled(counter_clockwise(wide), 16, 32), (24, 32)))])


def almost_exact_ratios_are_exact():
    """Within a hundredth: the edge is cut at both sides alike, or paper stays there."""
    dots = (200, 300)
    larger, smaller = picture(202, 302), picture(198, 298)
    half, double, third = picture(101, 151), picture(404, 604), picture(606, 906)
    check([('', larger, dots, cropped(larger, 1, 1, *dots)),
           ('', smaller, dots, middle(smaller, dots)),
           ('', counter_clockwise(larger), (300, 200), cropped(counter_clockwise(larger), 1, 1, 300, 200)),
           ('', half, dots, cropped(enlarged(half, 2), 1, 1, *dots)),
           ('', double, dots, cropped(by_squares(double, 2), 1, 1, *dots)),
           ('', third, dots, cropped(by_squares(third, 3), 1, 1, *dots)),
           ('', picture(812, 20), (808, 20), cropped(picture(812, 20), 2, 0, 808, 20))])


def by_squares(rows, size):
    """The means of squares of whole samples."""
    return [[sum(rows[y + dy][x + dx] for dy in range(size) for dx in range(size)) / size ** 2
             for x in range(0, len(rows[0]), size)] for y in range(0, len(rows), size)]


def other_ratios_are_not():
    rows = picture(102, 153)
    check([('', rows, (100, 150), scaled(rows, 100, 150))])


def positions_of(rows, dots=LABEL):
    """(name, dots) for all nine places, paper around or cropped."""
    free, above = dots[0] - len(rows[0]), dots[1] - len(rows)
    places = {'top': 0, 'bottom': above, 'left': 0, 'right': free}
    for name in ('center', 'top', 'bottom', 'left', 'right', 'top-left', 'top-right', 'bottom-left',
                 'bottom-right'):
        words = name.split('-')
        left = next((places[word] for word in words if word in ('left', 'right')), free // 2)
        top = next((places[word] for word in words if word in ('top', 'bottom')), above // 2)
        if free >= 0 and above >= 0:
            yield name, placed(rows, *dots, left, top)
        else:
            yield name, placed(cropped(rows, max(0, -left), max(0, -top), *dots), *dots,
                               max(0, left), max(0, top))


def positions_hold_for_all_that_is_smaller_or_larger():
    small, large, square = picture(8, 12), picture(20, 30), picture(8, 8)
    full = picture(16, 24)
    check([(f'{options} position={name}', rows, LABEL, expected)
           for options, rows, seen in (('print-scaling=none', small, small),
                                       ('print-scaling=none', large, large),
                                       ('print-scaling=auto', small, small),
                                       ('crop-to-fit=true', large, large),
                                       ('ppi=200', small, small),
                                       ('print-scaling=fit', square, enlarged(square, 2)),
                                       ('print-scaling=fill', square, enlarged(square, 3)),
                                       ('fill=true', square, enlarged(square, 3)),
                                       ('scaling=50', full, by_squares(full, 2)))
           for name, expected in positions_of(seen)])


def positions_turn_with_the_picture():
    """At the top of a label that is read lying on its side."""
    rows = picture(24, 8)
    small = picture(8, 12)
    table = []
    for name, expected in positions_of(rows, (24, 16)):
        table.append((f'position={name}', rows, LABEL, counter_clockwise(expected)))
    for turn, turned, dots in (('landscape=true', counter_clockwise, (24, 16)),
                               ('orientation-requested=4', counter_clockwise, (24, 16)),
                               ('orientation-requested=5', clockwise, (24, 16)),
                               ('orientation-requested=6', upside_down, (16, 24)),
                               ('orientation-requested=3', lambda levels: levels, (16, 24))):
        for name, expected in positions_of(small, dots):
            table.append((f'{turn} print-scaling=none position={name}', small, LABEL, turned(expected)))
    check(table)


def print_scaling_fill_covers_the_label():
    square, across, tall = picture(48, 48), picture(24, 8), picture(8, 24)
    check([('print-scaling=fill', square, LABEL, cropped(by_squares(square, 2), 4, 0, 16, 24)),
           ('fill=true', square, LABEL, cropped(by_squares(square, 2), 4, 0, 16, 24)),
           ('print-scaling=fill', across, LABEL,
            cropped(enlarged(counter_clockwise(across), 2), 0, 12, 16, 24)),
           ('print-scaling=fill', tall, LABEL, cropped(enlarged(tall, 2), 0, 12, 16, 24)),
           ('print-scaling=fill orientation-requested=3', picture(12, 8), LABEL,
            cropped(enlarged(picture(12, 8), 3), 10, 0, 16, 24))])


def print_scaling_none_keeps_the_natural_size():
    small, large = picture(8, 12), picture(20, 30)
    check([('print-scaling=none', small, LABEL, middle(small)),
           ('print-scaling=none', large, LABEL, cropped(large, 2, 3, 16, 24)),
           ('crop-to-fit=true', large, LABEL, cropped(large, 2, 3, 16, 24)),
           ('print-scaling=none ppi=100', small, LABEL, enlarged(small, 2)),
           ('print-scaling=none ppi=400', picture(16, 24), LABEL, middle(by_squares(picture(16, 24), 2)))])


def print_scaling_auto_looks_at_the_natural_size():
    small, square, large = picture(8, 12), picture(32, 32), picture(32, 48)
    check([('print-scaling=auto', small, LABEL, middle(small)),
           ('print-scaling=auto', square, LABEL, cropped(scaled(square, 24, 24), 4, 0, 16, 24)),
           ('print-scaling=auto ipp-attribute-fidelity=true', small, LABEL, enlarged(small, 2)),
           ('print-scaling=auto-fit', small, LABEL, middle(small)),
           ('print-scaling=auto-fit', large, LABEL, by_squares(large, 2)),
           ('print-scaling=auto-fit', square, LABEL, middle(by_squares(square, 2))),
           ('print-scaling=auto-fit ipp-attribute-fidelity=true', picture(8, 8), LABEL,
            middle(enlarged(picture(8, 8), 2)))])


def print_scaling_wins_over_the_older_options():
    small = picture(8, 12)
    check([('print-scaling=fit scaling=50 ppi=50 natural-scaling=300 fit-to-page=false', small, LABEL,
            enlarged(small, 2)),
           ('scaling=50 print-scaling=none fill=true', small, LABEL, middle(small)),
           ('fitplot=true print-scaling=none', small, LABEL, middle(small))])


def resolutions_give_the_natural_size():
    small, tall = picture(8, 12), picture(8, 6)
    check([('ppi=200', picture(16, 24), LABEL, picture(16, 24)), ('ppi=200', small, LABEL, middle(small)),
           ('ppi=100', small, LABEL, enlarged(small, 2)),
           ('ppi=100x50', tall, LABEL, enlarged(tall, 2, 4)),
           ('ppi=400', picture(32, 48), LABEL, by_squares(picture(32, 48), 2)),
           ('fit-to-page=false', small, LABEL, middle(small)),
           ('fitplot=no', small, LABEL, middle(small)),
           ('natural-scaling=200', small, LABEL, enlarged(small, 2)),
           ('natural-scaling=50', picture(16, 24), LABEL, middle(by_squares(picture(16, 24), 2))),
           ('natural-scaling=50 ppi=50', small, LABEL, enlarged(small, 2))])


def every_format_may_say_its_resolution():
    """100 dots per inch; files that count in metres are as near as they can be."""
    rows = picture(8, 12)
    grey = [[(level,) * 3 + (255,) for level in row] for row in rows]
    blocks, levels = jpeg_of_blocks((100, 100), 8, 16)
    centimetres = jpeg.jpeg(jpeg.of_blocks(pixels.blocks(8, 16), 'r'), 8, 16, jpeg.segment(
        0xe0, b'JFIF\0\1\1\2\0\x28\0\x28\0\0'))  # 40 dots per cm are 101.6 per inch
    inch = tiff.tiff(tiff.Page(rows, dpi=([100, 1], [100, 1])))
    metric = tiff.tiff(tiff.Page(rows, dpi=([10000, 254], [10000, 254]),
                                 tags={296: (tiff.SHORT, [3])}))
    with Faults() as faults:
        for name, content, expected, dots, dpi in (
                ('PNG', png.png(rows, chunks=[png.resolution(100)]), enlarged(rows, 2), LABEL, 200),
                ('BMP', bmp.true_colour(grey, 24, dots_per_metre=3937), enlarged(rows, 2), LABEL, 200),
                ('TIFF', inch, enlarged(rows, 2), LABEL, 200),
                ('TIFF in cm', metric, enlarged(rows, 2), LABEL, 200),
                ('JPEG', blocks, enlarged(levels, 2), (16, 32), 200),
                ('JPEG in cm', centimetres, enlarged(levels, 2), (16, 32), 203),
                ('PNM', pnm.pnm(5, rows), middle(rows), LABEL, 200)):
            for option in 'print-scaling=none', 'natural-scaling=100', 'fit-to-page=false':
                with faults.of(f'{name}: {option}'):
                    assert_equal(label(content, dots, option, dpi=dpi), expected, 'dots')
    other = png.png(rows, chunks=[png.resolution(50)])
    assert_equal(label(other, LABEL, 'ppi=100'), enlarged(rows, 2), 'the option counts')


def samples_that_are_not_square_are_no_squares_on_the_label():
    rows = picture(8, 6)
    flat = png.png(rows, chunks=[png.resolution(100, 50)])
    for options in 'print-scaling=none', 'print-scaling=fit', '', 'natural-scaling=100':
        assert_equal(label(flat, LABEL, *options.split()), enlarged(rows, 2, 4), options)
    # Twice as wide as tall in samples, but a square.
    square = png.png(picture(16, 8), chunks=[png.resolution(200, 100)])
    assert_equal(label(square, LABEL), middle(enlarged(picture(16, 8), 1, 2)), 'a square')


def lines_of_one_sample_do_not_vanish():
    for rows in [[0] * 4000], [[0]] * 4000:
        dots = label(png.png(rows), LABEL)
        assert any(level == 0 for row in dots for level in row), len(rows)


def whole_labels_keep_their_dots_with_the_printers_resolution():
    rows = picture(16, 24)
    for options in ('ppi=203',), ('ppi=203', 'natural-scaling=100'), ('print-scaling=none',):
        found = labels(png.png(rows), LABEL, *options, dpi=203)
        assert len(found) == 1, len(found)
        assert_equal(found[0].rows, rows, options)


def tiles_of(rows, width, height):
    """In imagetopdf's order: from the top down, then to the right."""
    return [cropped(rows, left, top, width, height) for left in range(0, len(rows[0]), width)
            for top in range(0, len(rows), height)]


def check_tiles(options, rows, expected, dots=LABEL):
    found = labels(png.png(rows), dots, *options.split())
    assert len(found) == len(expected), (options, len(found), len(expected))
    for number, (one, other) in enumerate(zip(found, expected)):
        assert_equal(one.rows, other, f'{options}: label {number + 1}', ROUNDED)


def pictures_larger_than_the_label_go_on_several():
    rows, small = picture(16, 24), picture(8, 12)
    check_tiles('scaling=200', rows, tiles_of(enlarged(rows, 2), 16, 24))
    check_tiles('scaling=300', rows, tiles_of(enlarged(rows, 3), 16, 24))
    check_tiles('ppi=50', small, tiles_of(enlarged(small, 4), 16, 24))
    check_tiles('natural-scaling=200', rows, tiles_of(enlarged(rows, 2), 16, 24))
    parts = tiles_of(enlarged(small, 3), 12, 18)
    check_tiles('scaling=150', small, [middle(part) for part in parts])
    check_tiles('scaling=150 position=top-left', small, [placed(part, 16, 24, 0, 0) for part in parts])
    wide = picture(32, 24)
    check_tiles('orientation-requested=3 ppi=200', wide, tiles_of(wide, 16, 24))


def tiles_of_a_turned_picture_are_turned_each():
    rows = picture(24, 16)
    parts = tiles_of(enlarged(rows, 2), 24, 16)
    check_tiles('scaling=200', rows, list(map(counter_clockwise, parts)))
    check_tiles('scaling=200 orientation-requested=5', rows, list(map(clockwise, parts)))
    upright = picture(16, 24)
    check_tiles('scaling=200 orientation-requested=6', upright,
                list(map(upside_down, tiles_of(enlarged(upright, 2), 16, 24))))
    check_tiles('scaling=200 mirror=true', upright,
                list(map(mirrored, tiles_of(enlarged(upright, 2), 16, 24))))


def a_share_below_all_stays_on_the_label():
    rows = picture(16, 24)
    check([('scaling=50', rows, LABEL, middle(by_squares(rows, 2))),
           ('scaling=25', rows, LABEL, middle(by_squares(rows, 4))),
           ('scaling=75', rows, LABEL, middle(scaled(rows, 12, 18)))])


def orientations_turn_as_they_are_told():
    upright, across, long = picture(16, 24), picture(24, 16), picture(16, 32)
    dots = (16, 32)
    check([('orientation-requested=3', upright, LABEL, upright),
           ('orientation-requested=6', upright, LABEL, upside_down(upright)),
           ('orientation-requested=4', across, LABEL, counter_clockwise(across)),
           ('orientation-requested=5', across, LABEL, clockwise(across)),
           ('landscape=yes', across, LABEL, counter_clockwise(across)),
           ('landscape=true', across, LABEL, counter_clockwise(across)),
           ('orientation-requested=3', picture(32, 16), dots,
            middle(by_squares(picture(32, 16), 2), dots)),
           ('orientation-requested=4', long, dots, middle(by_squares(counter_clockwise(long), 2), dots)),
           ('orientation-requested=5', long, dots, middle(by_squares(clockwise(long), 2), dots)),
           ('landscape=on', long, dots, middle(by_squares(counter_clockwise(long), 2), dots)),
           ('orientation-requested=6', picture(32, 16), dots,
            middle(by_squares(upside_down(picture(32, 16)), 2), dots)),
           ('orientation-requested=4', upright, (24, 16), counter_clockwise(upright)),
           ('orientation-requested=5', upright, (24, 16), clockwise(upright)),
           ('orientation-requested=5', picture(8, 24), (24, 24),
            middle(clockwise(picture(8, 24)), (24, 24)))])


def mirrored_labels_are_mirrored_behind_all_else():
    upright, across, small = picture(16, 24), picture(24, 16), picture(8, 12)
    check([('mirror=true', upright, LABEL, mirrored(upright)),
           ('mirror=true', across, LABEL, mirrored(counter_clockwise(across))),
           ('mirror=true orientation-requested=5', across, LABEL, mirrored(clockwise(across))),
           ('mirror=true orientation-requested=6', upright, LABEL, mirrored(upside_down(upright))),
           ('mirror=true print-scaling=none position=top-left', small, LABEL, 
            placed(mirrored(small), *LABEL, 8, 0)),
           ('mirror=false', upright, LABEL, upright)])


def turned_files_are_placed_as_they_are_seen():
    """The turn that a file asks for comes before all that the job asks for."""
    seen = picture(16, 24)
    rows = [[(level,) * 3 + (255,) for level in row] for row in seen]
    for number in pixels.ORIENTATIONS:
        stored = pixels.samples(pixels.stored(rows, number), 'r')
        content = tiff.tiff(tiff.Page(stored, tags={274: (tiff.SHORT, [number])}, dpi=([100, 1], [200, 1])))
        turned = number > 4
        assert_equal(label(content, LABEL, 'orientation-requested=6'), upside_down(seen), number)
        assert_equal(label(content, LABEL, 'mirror=true'), mirrored(seen), number)
        natural = enlarged(seen, 1, 2) if turned else enlarged(seen, 2, 1)
        assert_equal(label(content, (32, 24) if not turned else (16, 48), 'print-scaling=none',
                           'orientation-requested=3'), natural, f'{number} at its resolution')


def copies_stand_in_the_header():
    pages = tiff.tiff(tiff.Page(picture(16, 24)), tiff.Page(picture(16, 24, 2)))
    assert [one.copies for one in labels(pages, LABEL, more=['--copies', '7'])] == [7, 7]
    assert [one.copies for one in labels(pages, LABEL)] == [1, 1]
    found = labels(pages, LABEL, more=['--size-name', '4x6in'])
    assert [one.name for one in found] == ['4x6in', '4x6in'], found[0].name


def labels_are_chosen_by_their_numbers():
    pages = [picture(16, 24, seed) for seed in range(1, 7)]
    content = tiff.tiff(*map(tiff.Page, pages))
    for options, expected in (('page-ranges=2-3', (2, 3)), ('page-ranges=1,4-5', (1, 4, 5)),
                              ('page-ranges=5-', (5, 6)), ('page-ranges=-2', (1, 2)),
                              ('page-ranges=3', (3,)), ('page-ranges=6-99', (6,)),
                              ('page-set=even', (2, 4, 6)), ('page-set=odd', (1, 3, 5)),
                              ('page-ranges=2-5 page-set=even', (2, 4)), ('page-set=all', range(1, 7))):
        found = labels(content, LABEL, *options.split())
        assert [pages.index(one.rows) + 1 for one in found] == list(expected), (options, len(found))


def nothing_chosen_is_told_of():
    content = tiff.tiff(tiff.Page(picture(16, 24)))
    for option in 'page-ranges=2', 'page-ranges=7-9', 'page-set=even':
        done = Run(command(content, LABEL, option))
        assert done.status == 1 and done.raster == b'', (option, done.status, len(done.raster))
        assert [line[:7] for line in done.lines] == ['ERROR: '], done.lines


def far_too_many_labels_are_taken_for_a_mistake():
    done = Run(command(png.png(picture(16, 24)), LABEL, 'ppi=1'))
    assert done.status == 1 and done.raster == b'', (done.status, len(done.raster))
    assert len(done.lines) == 1 and 'labels' in done.lines[0], done.lines


def collated_copies_are_sets():
    pages = [picture(16, 24, seed) for seed in (1, 2)]
    content = tiff.tiff(*map(tiff.Page, pages))
    found = labels(content, LABEL, 'Collate=true', more=['--copies', '3'])
    assert [one.rows for one in found] == pages * 3, len(found)
    assert {one.copies for one in found} == {1}
    found = labels(content, LABEL, 'Collate=false', more=['--copies', '3'])
    assert [(one.rows, one.copies) for one in found] == [(page, 3) for page in pages], len(found)


def options_of_others_are_left_alone():
    rows = picture(16, 24)
    check([(options, rows, LABEL, rows) for options in
           ('HalftoneType=None Darkness=8', 'landscape=false', 'media=4x6in', 'ppi=nonsense',
            'scaling=nonsense', 'orientation-requested=9', 'ppi=-5', 'scaling=0', 'natural-scaling=nan',
            'print-scaling=', 'page-ranges=', 'position=', 'fill=false', 'crop-to-fit=false')])


def tiles_are_chosen_by_their_numbers_too():
    rows = picture(16, 24)
    parts = tiles_of(enlarged(rows, 2), 16, 24)
    check_tiles('scaling=200 page-ranges=2', rows, parts[1:2])
    check_tiles('scaling=200 page-ranges=2-3', rows, parts[1:3])
    check_tiles('scaling=200 page-set=even', rows, parts[1::2])


def a_jpeg_that_its_decoder_may_reduce_is_averaged_all_the_same():
    """Of blocks of 8 x 8, whose means are what a decoder makes of them at an eighth."""
    rows = pixels.samples(pixels.grey(80, 120, range(20, 240)), 'r')
    content = jpeg.jpeg([rows], 640, 960, jpeg.jfif((600, 600)))
    for dots in LABEL, (80, 120), (100, 150), (48, 72):
        assert_equal(label(content, dots), scaled(rows, *dots), dots, 1)
    natural = label(content, (40, 60), 'print-scaling=none', dpi=75)
    assert_equal(natural, cropped(rows, 20, 30, 40, 60), 'natural size')


def a_jpeg_is_not_reduced_to_nearly_its_dots():
    """An eighth would be 1.3 samples for each dot, of stripes that had become grey: dots
    would be means of more than lies under them."""
    stripes = [[(255 * (x // 4 % 2),) * 3 + (255,) for x in range(168)]] * 252
    content = tool_files.jpeg(stripes, '-grayscale', '-quality', '100')
    expected = scaled(pixels.samples(stripes, 'r'), *LABEL)
    assert max(expected[0]) - min(expected[0]) > 40, expected[0]
    assert_equal(label(content, LABEL), expected, 'stripes', 3)


def a_jpeg_that_is_turned_and_reduced_is_both():
    rows = pixels.samples(pixels.grey(48, 72, range(20, 240)), 'r')
    colours = [[(level,) for level in row] for row in rows]
    for number in pixels.ORIENTATIONS:
        stored = [[pixel[0] for pixel in row] for row in pixels.stored(colours, number)]
        content = jpeg.jpeg([stored], 8 * len(stored[0]), 8 * len(stored), jpeg.exif(number))
        assert_equal(label(content, (24, 36)), by_squares(rows, 2), number, 1)
