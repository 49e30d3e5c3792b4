"""Cut, lying and hostile files: a clear line, status 1, nothing printed, bounded memory and time,
nothing left behind."""
import os
import signal
import struct
import subprocess
import tempfile
import time
import zlib

import bmp_files as bmp
import format_table
import jpeg_files as jpeg
import other_files
import pixels
import png_files as png
import pnm_files as pnm
import tiff_files as tiff
import tool_files
from picture_run import (FOLDER, HEADER_SIZE, Faults, Run, assert_equal, command, labels_of, write)
from pixels import samples

LABEL = (808, 1218)
# Kilobytes that a bad file may make the program take at most, and seconds of the processor.
MOST_MEMORY = 128 << 10
MOST_SECONDS = 5
# Sanitizers keep a copy of the memory's state, and look at every access.
SANITIZED = 'KESTO_SANITIZED' in os.environ
if SANITIZED:
    MOST_MEMORY, MOST_SECONDS = 8 * MOST_MEMORY, 8 * MOST_SECONDS


def run_bounded(content, dots=LABEL, *options):
    done = Run(command(content, dots, *options), seconds=30)
    done.assert_nothing_left()
    assert done.status in (0, 1), f'status {done.status}: {done.lines[-3:]}'
    assert done.usage.ru_maxrss <= MOST_MEMORY, f'{done.usage.ru_maxrss} KB'
    seconds = done.usage.ru_utime + done.usage.ru_stime
    assert seconds <= MOST_SECONDS, f'{seconds:.1f} s'
    return done


def one_clear_line(done):
    """Of an error, and nothing else."""
    said = [line for line in done.lines if not line.startswith('DEBUG')]
    errors = [line for line in said if line.startswith('ERROR: ')]
    assert len(errors) == 1 and said[-1] == errors[0], said
    assert 20 < len(errors[0]) < 400 and errors[0].isprintable(), errors[0]
    assert FOLDER not in errors[0] or 'Is a directory' in errors[0], errors[0]
    return errors[0]


def refused(content, *options):
    done = run_bounded(content, LABEL, *options)
    assert done.status == 1, f'status {done.status}'
    assert done.raster == b'', f'{len(done.raster)} bytes on standard output'
    return one_clear_line(done)


def whole_pictures():
    """(name, file): one of each format, large enough for cuts to hit its data."""
    grey, colours = pixels.grey(40, 60), pixels.colours(40, 60)
    rows, indices = pixels.from_palette(40, 60, format_table.PALETTES[8])
    blocks = pixels.blocks(40, 64)
    yield 'PNG', png.png(samples(colours, 'rgb'), png.RGB)
    yield 'PNG interlaced', png.png(samples(grey, 'r'), interlaced=True)
    yield 'PNM', pnm.pnm(6, samples(colours, 'rgb'))
    yield 'PNM of digits', pnm.pnm(3, samples(colours, 'rgb'))
    yield 'PBM', pnm.pnm(4, [[sample & 1 for sample in row] for row in samples(grey, 'r')])
    yield 'PAM', pnm.pam(samples(colours, 'rgb'), b'RGB', 3)
    yield 'BMP', bmp.true_colour(colours, 24)
    yield 'BMP of run lengths', bmp.run_length(indices, format_table.PALETTES[8])
    yield 'TIFF', tiff.tiff(tiff.Page(samples(colours, 'rgb'), tiff.RGB, count=3))
    yield 'TIFF big', tiff.tiff(tiff.Page(samples(grey, 'r'), compression=tiff.DEFLATE), big=True)
    yield 'TIFF in tiles', tiff.tiff(tiff.Page(samples(grey, 'r'), tile=(16, 16)))
    yield 'TIFF g4', tool_files.tiff_by('g4', tiff.tiff(tiff.Page(
        [[sample & 1 for sample in row] for row in samples(grey, 'r')], bits=1)))
    yield 'GIF', other_files.gif(indices, format_table.PALETTES[8])
    yield 'XBM', other_files.xbm([[sample & 1 for sample in row] for row in samples(grey, 'r')])
    yield 'XPM', other_files.xpm(format_table.INDEXED[4][1], format_table.PALETTES[4])
    yield 'SGI', other_files.sgi(samples(colours, 'rgb'), 3)
    yield 'Sun raster', other_files.sun(samples(colours, 'bgr'), 24)
    yield 'X window dump', other_files.xwd(colours)
    yield 'Photo CD', other_files.photo_cd((40, 180), (40, 180))
    yield 'JPEG', jpeg.jpeg(jpeg.of_blocks(blocks, 'r'), 40, 64, jpeg.jfif())
    yield 'JPEG progressive', tool_files.jpeg(colours, '-progressive')
    yield 'WebP', tool_files.webp(colours)
    yield 'WebP lossy', tool_files.webp(colours, 80)
    yield 'HEIC', tool_files.heic(colours)
    yield 'AVIF', tool_files.avif(colours)
    yield 'JPEG XL', tool_files.jpeg_xl(colours)


def cut_files_are_refused():
    """Inside the header, behind it, in the middle and shortly before the end of the data."""
    with Faults() as faults:
        for name, content in whole_pictures():
            for share in (0.02, 0.1, 0.5, 0.9):
                cut = content[:max(9, int(len(content) * share))]
                with faults.of(f'{name} cut to {len(cut)} of {len(content)}'):
                    refused(cut)


def a_first_byte_or_more_is_no_picture():
    with Faults() as faults:
        for name, content in whole_pictures():
            for length in (1, 4, 12):
                with faults.of(f'{length} bytes of {name}'):
                    refused(content[:length])


def what_is_no_picture_is_refused():
    with Faults() as faults:
        for name, content in (
                ('empty', b''), ('a line end', b'\n'), ('text', b'Hello, this is no picture\n' * 40),
                ('zeros', bytes(100000)), ('PDF', b'%PDF-1.4\n%%EOF\n'),
                ('PostScript', b'%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\nshowpage\n'),
                ('SVG', b'<?xml version="1.0"?>\n<svg xmlns="http://www.w3.org/2000/svg" width="9" '
                        b'height="9"><rect width="9" height="9"/></svg>\n'),
                ('a drawing program', b'push graphic-context\nviewbox 0 0 9 9\n'
                                      b'image over 0,0 0,0 "/etc/passwd"\npop graphic-context\n'),
                ('a pseudo format', b'label:/etc/passwd\n'), ('HTML', b'<html><body></body></html>\n'),
                ('JPEG 2000', b'\0\0\0\x0cjP  \r\n\x87\n\0\0\0\x14ftypjp2 \0\0\0\0jp2 ' + bytes(90)),
                ('Photoshop', b'8BPS\0\1' + bytes(6) + struct.pack('>HIIHH', 3, 9, 9, 8, 3) + bytes(90))):
            for ending in ('png', 'svg', 'mvg'):
                with faults.of(f'{name} named .{ending}'):
                    refused(write(content, ending))
        with faults.of('nothing'):
            refused('/nonexistent/picture.png')
        with faults.of('a folder'):
            refused(tempfile.mkdtemp(dir=FOLDER))


def damaged_pictures():
    """(name, file) of lies in headers and data."""
    line = b'\0' * 70
    data = png.chunk(b'IDAT', zlib.compress(line * 10)) + png.chunk(b'IEND', b'')
    for size in ((60000, 60000), (0, 10), (10, 0), (1 << 31, 1 << 31), (0x7fffffff, 1), (1, 0x7fffffff)):
        yield f'PNG of {size}', png.header(*size, png.RGB, 8) + data
    yield 'PNG of 60000 x 60000 bits', png.header(60000, 60000, png.GREY, 1) + data
    yield 'PNG interlaced of 60000 x 60000', png.header(60000, 60000, png.RGBA, 16, 1) + data
    whole = bytearray(png.png([[0] * 64] * 64))
    whole[20] ^= 0xff
    yield 'PNG of a wrong sum', bytes(whole)
    yield 'PNG of a wrong depth', png.header(9, 9, png.RGB, 3) + data
    yield 'PNG without data', png.header(9, 9, png.GREY, 8) + png.chunk(b'IEND', b'')
    yield 'PNG of a palette without one', png.header(9, 9, png.PALETTE, 8) + data
    for width, height in ((60000, 60000), (-10, 10), (0x7fffffff, 0x7fffffff), (10, -0x7fffffff),
                          (0, 0), (1, 0x7fffffff), (10, -(1 << 31))):
        for bits in (1, 24):
            yield f'BMP of {width} x {height}, {bits} bits', bmp.file_of(width, height, bits, bytes(90))
    for size in (b'60000 60000', b'99999999999 2', b'-5 -5', b'0 0', b'2147483647 2147483647',
                 b'4294967297 4294967297', b'x y'):
        for kind in (1, 2, 3, 4, 5, 6):
            for maximum in (b'15\n', b'255\n') if kind % 3 != 1 else (b'',):
                yield (f'P{kind} of {size}, {maximum}',
                       b'P%d\n%s\n' % (kind, size) + maximum + b'\1' * 90)
    for maximum in (b'0', b'-1', b'65536', b'4294967296', b''):
        yield f'PNM of maximum {maximum}', b'P5\n4 4\n%s\n' % maximum + bytes(8)
    for fields in (b'WIDTH 60000\nHEIGHT 60000\nDEPTH 4', b'WIDTH 4\nHEIGHT 4\nDEPTH 4294967295',
                   b'WIDTH 4\nHEIGHT 4\nDEPTH 0', b'HEIGHT 4\nDEPTH 1', b'WIDTH 4'):
        yield f'PAM of {fields}', b'P7\n' + fields + b'\nMAXVAL 255\nTUPLTYPE RGB\nENDHDR\n' + bytes(9)
    yield 'GIF of 65535 x 65535', (b'GIF89a\xff\xff\xff\xff\xf7\0\0' + bytes(768) +
                                   b',\0\0\0\0\xff\xff\xff\xff\0\x08\x02\x44\x01\0;')
    yield 'GIF without a picture', b'GIF89a\4\0\4\0\0\0\0;'
    yield 'GIF of 0 x 0', b'GIF89a\0\0\0\0\0\0\0,\0\0\0\0\0\0\0\0\0\x02\x02\x44\x01\0;'
    yield from damaged_tiffs()
    yield from damaged_others()


def damaged_tiffs():
    def with_tags(**changed):
        numbers = {'width': 256, 'height': 257, 'bits': 258, 'places': 273, 'strip': 278, 'sizes': 279,
                   'count': 277}
        page = tiff.Page([[0] * 16] * 16, strip=16)
        content = bytearray(tiff.tiff(page))
        start, = struct.unpack_from('<I', content, 4)
        entries, = struct.unpack_from('<H', content, start)
        for at in range(start + 2, start + 2 + 12 * entries, 12):
            number, kind = struct.unpack_from('<HH', content, at)
            for name, value in changed.items():
                if numbers[name] == number:
                    struct.pack_into('<I' if kind == tiff.LONG else '<H', content, at + 8, value)
        return bytes(content)
    yield 'TIFF of 60000 x 60000', with_tags(width=60000, height=60000, strip=60000, sizes=256)
    yield 'TIFF of 4294967295 columns', with_tags(width=0xffffffff)
    yield 'TIFF of 4294967295 rows', with_tags(height=0xffffffff, strip=0xffffffff)
    yield 'TIFF of 0 x 0', with_tags(width=0, height=0)
    yield 'TIFF of 65535 bits', with_tags(bits=65535)
    yield 'TIFF of 65535 samples', with_tags(count=65535)
    yield 'TIFF whose data lies behind its end', with_tags(places=1 << 30)
    yield 'TIFF that begins with its end', b'II*\0\0\0\0\0'
    yield 'TIFF whose directory lies behind its end', b'II*\0\xff\xff\xff\x7f'
    yield 'TIFF of a directory of 65535 entries', b'II*\0\x08\0\0\0\xff\xff' + bytes(1200)
    yield 'TIFF of nothing but a directory', b'II*\0\x08\0\0\0\0\0' + bytes(4)
    bomb = zlib.compress(bytes(30 << 20), 9)
    page = tiff.Page([[0] * 16] * 16, compression=tiff.DEFLATE, strip=16)
    page.pieces = lambda big: iter([bomb])
    page.tags[256] = page.tags[257] = tiff.LONG, [100000]
    yield 'TIFF of 100000 x 100000 in 30 KB', tiff.tiff(page)


def damaged_others():
    sgi = struct.pack('>HBBHHHHII', 474, 0, 1, 3, 65535, 65535, 65535, 0, 255)
    yield 'SGI of 65535 x 65535 x 65535', sgi.ljust(512, b'\0') + bytes(90)
    for size in ((60000, 60000), (0xffffffff, 0xffffffff), (0, 0), (1 << 31, 1)):
        yield f'Sun raster of {size}', struct.pack('>8I', 0x59a66a95, *size, 24, 90, 1, 0, 0) + bytes(90)
    yield 'Sun raster of a palette of 4 GB', struct.pack('>8I', 0x59a66a95, 9, 9, 8, 90, 1, 1,
                                                          0xffffffff) + bytes(90)
    yield 'XBM of 60000 x 60000', (b'#define a_width 60000\n#define a_height 60000\n'
                                   b'static char a_bits[] = { 0x00 };\n')
    yield 'XBM below zero', b'#define a_width -8\n#define a_height -8\nstatic char a_bits[] = { 0x00 };\n'
    for head in (b'60000 60000 2 1', b'-1 -1 2 1', b'4 4 2000000000 1', b'4 4 2 2000000000', b'4 4 0 0'):
        yield f'XPM of {head}', (b'/* XPM */\nstatic char *a[] = {\n"' + head +
                                 b'",\n"A c #000000",\n"B c #FFFFFF",\n"AAAA"};\n')
    window = bytearray(other_files.xwd(pixels.colours(4, 4)))
    struct.pack_into('>II', window, 16, 60000, 60000)
    yield 'X window dump of 60000 x 60000', bytes(window)
    blocks = pixels.blocks(16, 16)
    lying = bytearray(jpeg.jpeg(jpeg.of_blocks(blocks, 'r'), 16, 16))
    at = lying.index(b'\xff\xc0') + 5
    for size in ((65500, 65500), (0, 16), (16, 0)):
        struct.pack_into('>HH', lying, at, *size)
        yield f'JPEG of {size}', bytes(lying)
    webp = bytearray(tool_files.webp(pixels.colours(9, 9)))
    webp[25] ^= 0xff
    yield 'WebP with a wrong bit', bytes(webp[:40])
    heic = tool_files.heic(pixels.colours(16, 16))
    place = heic.index(b'ispe') + 8
    yield 'HEIC of 60000 x 60000', heic[:place] + struct.pack('>II', 60000, 60000) + heic[place + 8:]
    yield 'HEIC of nothing', heic[:40] + bytes(100)
    yield 'JPEG XL of noise', b'\xff\x0a' + bytes(range(1, 200))


def lies_are_refused():
    with Faults() as faults:
        for name, content in damaged_pictures():
            with faults.of(name):
                refused(content)


def packed_zeros(length, times):
    """So many times so many zeros, packed: of blocks that are all the same."""
    packer = zlib.compressobj(9, wbits=-15)
    block = packer.compress(bytes(length)) + packer.flush(zlib.Z_FULL_FLUSH)
    checksum = (length * times % 65521) << 16 | 1
    return b'\x78\xda' + block * times + b'\3\0' + struct.pack('>I', checksum)


def black(width, height, depth):
    """A whole PNG; its height is counted in hundreds."""
    data = packed_zeros(100 * (1 + width * depth // 8), height // 100)
    return (png.header(width, height, png.GREY, depth) + png.chunk(b'IDAT', data) +
            png.chunk(b'IEND', b''))


def a_whole_picture_of_60000_by_60000_is_refused_at_once():
    """All of it is there, in half a megabyte."""
    content = black(60000, 60000, 1)
    assert len(content) < 1 << 20
    refused(content)


def chunks_that_unpack_to_much_take_little():
    """A profile and a text of 200 MB of zeros in a good picture."""
    zeros = packed_zeros(1 << 20, 200)
    rows = pixels.grey(80, 120, (0, 255))
    for chunk in (b'iCCP', b'a\0\0' + zeros), (b'zTXt', b'a\0\0' + zeros):
        done = run_bounded(png.png(samples(rows, 'r'), chunks=[chunk]), (80, 120))
        if done.status == 0:
            assert_equal(labels_of(done.raster)[0].rows, samples(rows, 'r'), chunk[0])
        else:
            assert done.raster == b''
            one_clear_line(done)


def an_endless_chain_of_directories_ends():
    """The last directory's next one is the first one, or itself."""
    first, second = tiff.Page([[0] * 16] * 16), tiff.Page([[80] * 16] * 16)
    for pages in (first,), (first, second):
        content = tiff.tiff(*pages)
        starts = [struct.unpack_from('<I', content, 4)[0]]
        if len(pages) == 2:
            end = starts[0] + 2 + 12 * entries_of(content, starts[0])
            starts.append(struct.unpack_from('<I', content, end)[0])
        for start in starts:
            done = run_bounded(tiff.tiff(*pages, next_of_last=start), (16, 16))
            found = labels_of(done.raster) if done.raster else []
            if done.status == 0:
                assert len(found) == len(pages), len(found)
            else:
                assert len(found) <= len(pages), len(found)
                one_clear_line(done)


def entries_of(content, directory):
    """The number of a directory's entries."""
    return struct.unpack_from('<H', content, directory)[0]


def pages_before_a_damaged_one_are_printed():
    pages = [pixels.samples(pixels.grey(16, 24, seed=seed), 'r') for seed in range(4)]
    made = [tiff.Page(rows, compression=tiff.DEFLATE) for rows in pages]
    made[2].pieces = lambda big: iter([b'no zlib at all'] * 5)
    done = run_bounded(tiff.tiff(*made), (16, 24))
    assert done.status == 1
    one_clear_line(done)
    found = labels_of(done.raster)
    assert [one.rows for one in found] == pages[:2], len(found)
    whole = tiff.tiff(*(tiff.Page(rows) for rows in pages[:2]))
    start = len(whole)
    done = run_bounded(tiff.tiff(*(tiff.Page(rows) for rows in pages[:2]), next_of_last=start + 999),
                       (16, 24))
    assert done.status == 1, done.lines
    one_clear_line(done)
    assert [one.rows for one in labels_of(done.raster)] == pages[:2]


def a_page_that_is_damaged_is_no_matter_when_it_is_not_asked_for():
    pages = [pixels.samples(pixels.grey(16, 24, seed=seed), 'r') for seed in range(3)]
    made = [tiff.Page(rows, compression=tiff.DEFLATE) for rows in pages]
    made[2].pieces = lambda big: iter([b'no zlib at all'] * 5)
    done = run_bounded(tiff.tiff(*made), (16, 24), 'page-ranges=1-2')
    assert done.status == 0, done.lines
    assert [one.rows for one in labels_of(done.raster)] == pages[:2]


def large_pictures_take_bounded_memory():
    """A hundred million dots are the most."""
    done = Run(command(black(10000, 10000, 8), (48, 48)), seconds=60)
    done.assert_nothing_left()
    assert done.status == 0, done.lines
    assert done.usage.ru_maxrss < (400 << 10) * (8 if SANITIZED else 1), f'{done.usage.ru_maxrss} KB'
    assert_equal(labels_of(done.raster)[0].rows, [[0] * 48] * 48, 'black')
    refused(black(10000, 10100, 8))


def a_photograph_of_50_megapixels_takes_little_memory():
    squares = [[(x * y) % 200 + 20 for x in range(1020)] for y in range(770)]
    content = jpeg.jpeg([squares], 8160, 6160, jpeg.jfif())
    done = Run(command(content, (1218, 808)), seconds=60)
    assert done.status == 0, done.lines
    assert done.usage.ru_maxrss < (64 << 10) * (8 if SANITIZED else 1), f'{done.usage.ru_maxrss} KB'


def progressive_photographs_are_printed():
    """Of which a decoder keeps all waves until it has read the last one."""
    squares = [[(x * y) % 200 + 20 for x in range(750)] for y in range(500)]
    content = tool_files.by(['jpegtran', '-progressive', '-outfile', '{1}', '{0}'],
                            jpeg.jpeg([squares] * 3, 6000, 4000, jpeg.jfif()), 'jpg', 'jpg')
    done = Run(command(content, (750, 500)), seconds=60)
    assert done.status == 0, done.lines
    assert len(labels_of(done.raster)) == 1


def a_full_disk_or_a_missing_folder_is_told_of():
    """Only where it is needed at all."""
    content = png.png(samples(pixels.grey(16, 24), 'r'))
    for folder in '/nonexistent', '/proc':
        done = subprocess.run(command(content, (16, 24)), env=dict(os.environ, TMPDIR=folder),
                              capture_output=True, timeout=30)
        if done.returncode == 0:
            assert len(labels_of(done.stdout)) == 1
        else:
            assert done.returncode == 1 and done.stdout == b'', done.stderr
            assert done.stderr.count(b'ERROR: ') == 1, done.stderr


def a_reader_that_goes_away_ends_it():
    content = tiff.tiff(*[tiff.Page([[0] * 16] * 24)] * 40)
    process = subprocess.Popen(command(content, (1600, 2400)), stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE)
    assert len(process.stdout.read(HEADER_SIZE)) == HEADER_SIZE
    process.stdout.close()
    errors = process.stderr.read().decode(errors='replace')
    process.stderr.close()
    assert process.wait(20) != 0
    assert errors.count('ERROR: ') <= 1, errors


def sigterm_leaves_nothing():
    """At moments all over its work."""
    large = write(png.png([list(range(240)) * 10] * 3600))
    many = write(tiff.tiff(*[tiff.Page([[0] * 64] * 96)] * 200))
    for path, dots in ((large, (1200, 1800)), (many, (808, 1218))):
        for milliseconds in (0, 5, 10, 20, 40, 80, 160):
            temporary = tempfile.mkdtemp(dir=FOLDER)
            process = subprocess.Popen(command(path, dots), env=dict(os.environ, TMPDIR=temporary),
                                       stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
            time.sleep(milliseconds / 1000)
            process.send_signal(signal.SIGTERM)
            errors = process.stderr.read().decode(errors='replace')
            status = process.wait(10)
            process.stderr.close()
            assert status in (0, 1, -signal.SIGTERM), (status, errors)
            assert os.listdir(temporary) == [], (milliseconds, os.listdir(temporary))
