"""The table of formats: small pictures whose levels every one of these files must come to."""
import struct

import bmp_files as bmp
import jpeg_files as jpeg
import other_files
import png_files as png
import pixels
import pnm_files as pnm
import tiff_files as tiff
import tool_files
from pixels import at_depth, colours, from_palette, grey, levels_at, samples

WIDTH, HEIGHT = 14, 22
GREY = grey(WIDTH, HEIGHT)
BITS = grey(WIDTH, HEIGHT, (0, 255))
COLOURS = colours(WIDTH, HEIGHT)
ALPHAS = (0, 255, 51, 128, 200)
CLEAR_GREY = grey(WIDTH, HEIGHT, alphas=ALPHAS)
CLEAR_COLOURS = colours(WIDTH, HEIGHT, ALPHAS)
PALETTES = {bits: [pixel for pixel in colours(1 << bits, 1, seed=bits)[0]] for bits in (1, 2, 4, 8)}
INDEXED = {bits: from_palette(WIDTH, HEIGHT, palette) for bits, palette in PALETTES.items()}


def bits_of(rows):
    return at_depth(samples(rows, 'r'), 1)


def inverted(rows, top):
    return [[top - sample for sample in row] for row in rows]


def see_through(rows, indices, hidden):
    """The picture with one colour of the palette seen through."""
    return [[(*pixel[:3], 0 if index == hidden else 255) for pixel, index in zip(row, places)]
            for row, places in zip(rows, indices)]


def png_table():
    for interlaced in (False, True):
        how = ' interlaced' if interlaced else ''
        for bits in (1, 2, 4, 8, 16):
            rows = grey(WIDTH, HEIGHT, levels_at(bits), seed=bits)
            yield (f'PNG grey {bits}{how}',
                   png.png(at_depth(samples(rows, 'r'), bits), png.GREY, bits, (), interlaced), rows)
        for bits in (8, 16):
            for name, kind, rows, channels in (('RGB', png.RGB, COLOURS, 'rgb'),
                                               ('RGBA', png.RGBA, CLEAR_COLOURS, 'rgba'),
                                               ('grey with alpha', png.GREY_ALPHA, CLEAR_GREY, 'ra')):
                yield (f'PNG {name} {bits}{how}',
                       png.png(at_depth(samples(rows, channels), bits), kind, bits, (), interlaced),
                       rows)
        for bits, (rows, indices) in INDEXED.items():
            chunks = [png.palette_of(PALETTES[bits])]
            yield (f'PNG palette {bits}{how}',
                   png.png(indices, png.PALETTE, bits, chunks, interlaced), rows)
            yield (f'PNG palette {bits} with tRNS{how}',
                   png.png(indices, png.PALETTE, bits, [*chunks, (b'tRNS', b'\xff\0')], interlaced),
                   see_through(rows, indices, 1))


def png_chunk_table():
    hidden = GREY[3][4][0]
    yield ('PNG grey with tRNS', png.png(samples(GREY, 'r'), chunks=[(b'tRNS', bytes((0, hidden)))]),
           see_through(GREY, samples(GREY, 'r'), hidden))
    red, green, blue, _ = COLOURS[5][6]
    yield ('PNG RGB with tRNS', png.png(samples(COLOURS, 'rgb'), png.RGB, chunks=[
        (b'tRNS', bytes((0, red, 0, green, 0, blue)))]),
        [[(*pixel[:3], 0 if pixel[:3] == (red, green, blue) else 255) for pixel in row]
         for row in COLOURS])
    deep = at_depth(samples(COLOURS, 'rgb'), 16)
    deep[0][:3] = [257 * red, 257 * green, 257 * blue]
    deep[0][3:6] = [257 * red, 257 * green, 257 * blue + 1]
    yield ('PNG RGB of 16 bits with tRNS', png.png(deep, png.RGB, 16, chunks=[
        (b'tRNS', struct.pack('>HHH', *deep[0][:3]))]),
        [[(255, 255, 255, 255), (red, green, blue, 255), *(
            (255, 255, 255, 255) if pixel[:3] == (red, green, blue) else pixel
            for pixel in COLOURS[0][2:])],
         *[[(*pixel[:3], 0 if pixel[:3] == (red, green, blue) else 255) for pixel in row]
           for row in COLOURS[1:]]])
    for name, chunk in (('that names a black background', (b'bKGD', bytes(6))),
                        ('with a resolution', png.resolution(72)),
                        ('that says that it is sRGB', (b'sRGB', b'\0'))):
        yield (f'PNG RGBA {name}', png.png(samples(CLEAR_COLOURS, 'rgba'), png.RGBA, chunks=[chunk]),
               CLEAR_COLOURS)


def pnm_table():
    yield 'PBM of digits', pnm.pnm(1, bits_of(BITS)), BITS
    yield ('PBM of digits without spaces', b'P1\n14 22\n' + b'\n'.join(
        b''.join(b'%d' % (1 - bit) for bit in row) for row in bits_of(BITS)), BITS)
    yield 'PBM', pnm.pnm(4, bits_of(BITS), comment=b'# a comment\n'), BITS
    for maximum, levels in ((1, (0, 255)), (15, range(0, 256, 17)), (255, range(256)),
                            (1000, range(0, 256, 51)), (65535, range(256))):
        for kind, channels in ((2, 'r'), (5, 'r'), (3, 'rgb'), (6, 'rgb')):
            rows = grey(WIDTH, HEIGHT, levels) if channels == 'r' or maximum != 255 else COLOURS
            numbers = [[sample * maximum // 255 for sample in row] for row in samples(rows, channels)]
            yield f'P{kind} of maximum {maximum}', pnm.pnm(kind, numbers, maximum), rows
    for maximum in (1, 15, 255):
        rows = grey(WIDTH, HEIGHT, range(0, 256, 255 // maximum))
        numbers = [[sample * maximum // 255 for sample in row] for row in samples(rows, 'r')]
        plain = pnm.pnm(5, numbers, maximum).split(b'\n', 3)
        yield (f'P5 of maximum {maximum} with remarks', b'P5# one\n14 # two\n\t22 #three\n#\n%d\n'
               % maximum + plain[3], rows)
    for name, rows, channels in (('GRAYSCALE', GREY, 'r'), ('RGB', COLOURS, 'rgb'),
                                 ('GRAYSCALE_ALPHA', CLEAR_GREY, 'ra'),
                                 ('RGB_ALPHA', CLEAR_COLOURS, 'rgba')):
        for bits in (8, 16):
            yield (f'PAM {name} {bits}', pnm.pam(at_depth(samples(rows, channels), bits),
                                                 name.encode(), len(channels), (1 << bits) - 1), rows)


def bmp_table():
    for top_down in (False, True):
        how = ' from the top' if top_down else ''
        for bits in (1, 4, 8):
            rows, indices = INDEXED[bits]
            yield (f'BMP {bits}{how}', bmp.indexed(indices, PALETTES[bits], bits, top_down), rows)
        for bits in (24, 32):
            yield f'BMP {bits}{how}', bmp.true_colour(COLOURS, bits, top_down), COLOURS
    rows, indices = INDEXED[8]
    yield 'BMP of run lengths', bmp.run_length(indices, PALETTES[8]), rows
    yield 'BMP of OS/2', bmp.of_os2(indices, PALETTES[8], 8), rows
    corners = [(red, green, blue, 255) for red in (0, 255) for green in (0, 255) for blue in (0, 255)]
    rows, _ = from_palette(WIDTH, HEIGHT, corners)
    for green_bits in (5, 6):
        yield f'BMP of 16 bits, {green_bits} of green', bmp.of_16_bits(rows, green_bits), rows
    yield 'BMP 32 of fourths that mean nothing', bmp.true_colour(COLOURS, 32, rest=77), COLOURS
    yield 'BMP with alpha', bmp.with_alpha(CLEAR_COLOURS), CLEAR_COLOURS


def tiff_grey_table(big):
    for bits in (1, 2, 4, 8, 16):
        rows = grey(WIDTH, HEIGHT, levels_at(bits), seed=bits)
        stored = at_depth(samples(rows, 'r'), bits)
        for tile in (None, (16, 16)):
            how = f'{bits}{" big" if big else ""}{" in tiles" if tile else ""}'
            yield (f'TIFF grey {how}', tiff.tiff(tiff.Page(stored, bits=bits, tile=tile), big=big), rows)
            yield (f'TIFF grey {how} where white is 0', tiff.tiff(tiff.Page(
                inverted(stored, (1 << bits) - 1), tiff.WHITE_IS_ZERO, bits, tile=tile), big=big), rows)


def tiff_colour_table():
    for name, rows, channels, tags in (
            ('RGB', COLOURS, 'rgb', {}),
            ('RGBA', CLEAR_COLOURS, 'rgba', {338: (tiff.SHORT, [2])})):
        for bits in (8, 16):
            for tile in (None, (16, 32)):
                for planar in (False, True):
                    page = tiff.Page(at_depth(samples(rows, channels), bits), tiff.RGB, bits,
                                     len(channels), tile=tile, planar=planar, tags=tags)
                    yield (f'TIFF {name} {bits}{" in tiles" if tile else ""}'
                           f'{" in planes" if planar else ""}', tiff.tiff(page), rows)
    yield ('TIFF grey with alpha', tiff.tiff(tiff.Page(
        samples(CLEAR_GREY, 'ra'), count=2, tags={338: (tiff.SHORT, [2])})), CLEAR_GREY)
    for bits in (1, 2, 4, 8):
        rows, indices = INDEXED[bits]
        yield (f'TIFF palette {bits}', tiff.tiff(tiff.Page(
            indices, tiff.PALETTE, bits, tags=tiff.colour_map(PALETTES[bits]))), rows)


def tiff_compression_table():
    for compression in (tiff.DEFLATE, tiff.PACKBITS):
        for bits, rows in ((1, BITS), (8, GREY)):
            yield (f'TIFF grey {bits} of compression {compression}', tiff.tiff(tiff.Page(
                at_depth(samples(rows, 'r'), bits), bits=bits, compression=compression)), rows)
    plain = tiff.tiff(tiff.Page(bits_of(BITS), bits=1))
    for compression in ('g3', 'g3:2d', 'g4'):
        yield f'TIFF {compression}', tool_files.tiff_by(compression, plain), BITS
    yield 'TIFF of turned bytes', tool_files.by(['tiffcp', '-f', 'lsb2msb', '{0}', '{1}'], plain, 'tif',
                                                'tif'), BITS
    colour = tiff.tiff(tiff.Page(samples(COLOURS, 'rgb'), tiff.RGB, count=3))
    for compression in ('lzw', 'lzw:2', 'zip:2'):
        yield f'TIFF {compression}', tool_files.tiff_by(compression, colour), COLOURS


def small_format_table():
    for bits, (rows, indices) in INDEXED.items():
        for interlaced in (False, True):
            yield (f'GIF {bits}{" interlaced" if interlaced else ""}',
                   other_files.gif(indices, PALETTES[bits], interlaced), rows)
        yield (f'GIF {bits} transparent', other_files.gif(indices, PALETTES[bits], transparent=1),
               see_through(rows, indices, 1))
    rows, indices = INDEXED[4]
    yield 'GIF of three frames', other_files.gif(indices, PALETTES[4], frames=3), rows
    yield 'XPM', other_files.xpm(indices, PALETTES[4]), rows
    yield ('XPM transparent', other_files.xpm(indices, PALETTES[4], 2),
           see_through(rows, indices, 2))
    yield ('XPM of named colours', other_files.xpm(bits_of(BITS), [(0, 0, 0), (255, 255, 255)])
           .replace(b'#000000', b'black').replace(b'#FFFFFF', b'white'), BITS)
    yield 'XBM', other_files.xbm(bits_of(BITS)), BITS
    yield 'SGI grey', other_files.sgi(samples(GREY, 'r'), 1), GREY
    yield 'SGI RGB', other_files.sgi(samples(COLOURS, 'rgb'), 3), COLOURS
    yield 'SGI RGBA', other_files.sgi(samples(CLEAR_COLOURS, 'rgba'), 4), CLEAR_COLOURS
    rows, indices = INDEXED[8]
    yield 'Sun raster 1', other_files.sun(inverted(bits_of(BITS), 1), 1), BITS
    yield 'Sun raster 8', other_files.sun(indices, 8, PALETTES[8]), rows
    yield 'Sun raster 24', other_files.sun(samples(COLOURS, 'bgr'), 24), COLOURS
    yield 'X window dump', other_files.xwd(COLOURS), COLOURS


def encoder_table():
    for name, rows in (('', COLOURS), (' with alpha', CLEAR_COLOURS)):
        yield f'WebP{name}', tool_files.webp(rows), rows
    yield 'JPEG XL', tool_files.jpeg_xl(COLOURS), COLOURS
    yield 'JPEG XL grey', tool_files.jpeg_xl(GREY, 'r'), GREY
    yield 'JPEG XL with alpha', tool_files.jpeg_xl(CLEAR_COLOURS, 'rgba'), CLEAR_COLOURS


def jpeg_table():
    """Blocks of 8 x 8, so larger; of colours in the format's own coordinates the first is the
    luminance."""
    rows = pixels.blocks(24, 40)
    planes = jpeg.of_blocks(rows, 'r')
    for name, front in (('', b''), (' with JFIF', jpeg.jfif()), (' with Exif', jpeg.exif(1)),
                        (' with both', jpeg.jfif((72, 72)) + jpeg.exif(1, False))):
        yield f'JPEG grey{name}', jpeg.jpeg(planes, 24, 40, front), rows
    rows = pixels.blocks(20, 37)
    planes = jpeg.of_blocks(rows, 'r')
    yield 'JPEG grey that ends inside blocks', jpeg.jpeg(planes, 20, 37), rows
    rows = pixels.blocks(24, 40, channels=3)
    planes = jpeg.of_blocks(rows, 'rgb')
    yield 'JPEG RGB by name', jpeg.jpeg(planes, 24, 40, numbers=tuple(b'RGB')), rows
    yield 'JPEG RGB by Adobe', jpeg.jpeg(planes, 24, 40, jpeg.adobe(0)), rows


def orientation_table():
    """Every way of storing that says of itself what is up."""
    blocks = pixels.blocks(24, 40)
    for number in pixels.ORIENTATIONS:
        stored = pixels.stored(COLOURS, number)
        size = len(stored[0]), len(stored)
        yield (f'TIFF stored {number}', tiff.tiff(tiff.Page(
            samples(stored, 'rgb'), tiff.RGB, count=3, tags={274: (tiff.SHORT, [number])})), COLOURS)
        yield (f'PNG stored {number}', png.png(samples(stored, 'rgb'), png.RGB, chunks=[
            (b'eXIf', jpeg.exif_data(number, number % 2))]), COLOURS)
        end = len(content := png.png(samples(stored, 'rgb'), png.RGB)) - 12
        yield (f'PNG stored {number}, as is said behind the data', content[:end] + png.chunk(
            b'eXIf', jpeg.exif_data(number, before=3)) + content[end:], COLOURS)
        yield (f'WebP stored {number}', tool_files.webp_with_exif(
            tool_files.webp(stored), *size, jpeg.exif_data(number)), COLOURS)
        stored = pixels.stored(blocks, number)
        planes, size = jpeg.of_blocks(stored, 'r'), (len(stored[0]), len(stored))
        other = jpeg.segment(0xe1, b'http://ns.adobe.com/xap/1.0/\0<x:xmpmeta/>')
        for front in (jpeg.exif(number), jpeg.jfif() + jpeg.exif(number, False),
                      other + jpeg.exif(number), jpeg.segment(0xfe, b'a remark') + other + jpeg.segment(
                          0xe1, b'Exif\0\0' + jpeg.exif_data(number, False, before=5))):
            yield f'JPEG stored {number}', jpeg.jpeg(planes, *size, front), blocks
    stored = pixels.stored(blocks, 6)
    turned = jpeg.jpeg(jpeg.of_blocks(stored, 'r'), 40, 24, jpeg.jfif() + jpeg.exif(6))
    yield 'JPEG XL stored 6', tool_files.jpeg_xl_of_jpeg(turned), blocks


def lossless_table():
    yield from png_table()
    yield from png_chunk_table()
    yield from pnm_table()
    yield from bmp_table()
    for big in (False, True):
        yield from tiff_grey_table(big)
    yield from tiff_colour_table()
    yield from tiff_compression_table()
    yield from small_format_table()
    yield from encoder_table()
    yield from jpeg_table()


def without_black(ink, black):
    """The level of a colour of four inks, each up to 255."""
    return 255 - min(255, ink + black)


def four_inks(seed):
    """(rows of four inks, picture) in blocks of 8 x 8."""
    colour, black = pixels.blocks(24, 40, seed=seed, channels=3), pixels.blocks(24, 40, seed=seed + 1)
    inks = [[(*pixel[:3], dark[0] // 2) for pixel, dark in zip(row, others)]
            for row, others in zip(colour, black)]
    seen = [[tuple(without_black(ink, pixel[3]) for ink in pixel[:3]) + (255,) for pixel in row]
            for row in inks]
    return inks, seen


def ink_table():
    inks, seen = four_inks(11)
    for bits in (8, 16):
        for planar in (False, True):
            page = tiff.Page(at_depth(samples(inks, 'rgba'), bits), tiff.CMYK, bits, 4, planar=planar)
            yield f'TIFF CMYK {bits}{" in planes" if planar else ""}', tiff.tiff(page), seen
    paper = [[tuple(255 - ink for ink in pixel) for pixel in row] for row in inks]
    yield ('JPEG CMYK by Adobe', jpeg.jpeg(jpeg.of_blocks(paper, 'rgba'), 24, 40, jpeg.adobe(0)), seen)


def odd_maximum():
    """Levels that 8 bits do not have."""
    numbers = [[(37 * x + 91 * y) % 1001 for x in range(WIDTH)] for y in range(HEIGHT)]
    return pnm.pnm(5, numbers, 1000), [[number * 255 / 1000 for number in row] for row in numbers]


def lossy_table():
    """(name, file, picture, tolerance): coarse blocks of grey, which encoders keep nearly."""
    rows = pixels.blocks(32, 48, size=16)
    yield 'WebP lossy', tool_files.webp(rows, 95), rows, 12
    yield 'HEIC', tool_files.heic(rows), rows, 12
    yield 'HEIC grey', tool_files.heic(rows, 'r'), rows, 12
    yield 'AVIF', tool_files.avif(rows), rows, 12
    yield 'JPEG XL lossy', tool_files.jpeg_xl(rows, distance=0.5), rows, 12
    yield 'JPEG', tool_files.jpeg(rows, '-quality', '95'), rows, 4
    yield 'JPEG progressive', tool_files.jpeg(rows, '-progressive', '-quality', '95'), rows, 4
    yield 'JPEG grey progressive', tool_files.jpeg(rows, '-grayscale', '-progressive'), rows, 4
    yield 'JPEG of arithmetic code', tool_files.jpeg(rows, '-arithmetic', '-quality', '95'), rows, 4
    grey = tiff.tiff(tiff.Page(samples(rows, 'r'), strip=16))
    yield 'TIFF of JPEG', tool_files.tiff_by('jpeg:95', grey), rows, 4
    luminance = pixels.blocks(24, 40)
    planes = jpeg.of_blocks(luminance, 'r') + [[[120, 140, 128]] * 5, [[130, 128, 118]] * 5]
    yield 'JPEG of luminance and colour', jpeg.jpeg(planes, 24, 40, jpeg.jfif()), luminance, 2
    clear = [[(*pixel[:3], 255 if x < 16 else 0) for x, pixel in enumerate(row)] for row in rows]
    yield 'WebP lossy with alpha', tool_files.webp(clear, 95), clear, 12
    yield 'AVIF with alpha', tool_files.avif(clear, 'rgba'), clear, 12
