#!/usr/bin/python3
"""raster_test.py RASTERTOKESTOCONTENT FUNCTION: runs a test of the real program on small rasters."""
import os
import resource
import signal
import struct
import subprocess
import sys
import time

PROGRAM = sys.argv[1]
SYNC = 0x52615333                       # of raster that is not compressed, in this machine's order
K, W = 3, 0                             # colour spaces
HEADER = 1796
# Where the numbers are in a header.
RESOLUTION, SIZE, BITS, SPACE = 276, 372, 384, 400


def header(width, height, space=K, bits=8, row_bytes=None):
    """cupsWidth, cupsHeight, then depths, length of a row, order and space of colours."""
    page = bytearray(HEADER)
    struct.pack_into('=II', page, RESOLUTION, 203, 203)
    struct.pack_into('=II', page, SIZE, width, height)
    struct.pack_into('=IIIII', page, BITS, bits, bits, row_bytes or width * bits // 8, 0, space)
    struct.pack_into('=I', page, 420, 1)  # cupsNumColors
    return bytes(page)


def raster(*pages):
    return struct.pack('=I', SYNC) + b''.join(pages)


def run(content):
    return subprocess.run([PROGRAM], input=content, capture_output=True, timeout=30)


def red_bars(width, height, level=179):
    row = bytes(level if x // 3 % 2 else 0 for x in range(width))
    return row * height


def expect(content, wanted):
    done = run(content)
    assert done.returncode == 0 and done.stderr == b'', (done.returncode, done.stderr)
    assert done.stdout == wanted, (len(done.stdout), len(wanted))


def pages_of_k_are_separated():
    shapes = (100, 50), (8, 8), (1, 1), (812, 30)
    pages = [(header(*shape), red_bars(*shape)) for shape in shapes]
    expect(raster(*(one for page in pages for one in page)),
           raster(*(one for head, dots in pages for one in (head, dots.replace(b'\xb3', b'\xff')))))


def other_pages_pass_as_they_are():
    grey = header(40, 20, W), red_bars(40, 20)
    bits = header(40, 20, K, 1), bytes(range(100))
    black = header(40, 20), red_bars(40, 20)
    expect(raster(*grey, *bits, *black), raster(*grey, *bits, black[0], black[1].replace(b'\xb3', b'\xff')))


def rows_may_be_longer_than_the_page():
    row = red_bars(40, 1)
    expect(raster(header(40, 20, row_bytes=50), (row + bytes([100]) * 10) * 20),
           raster(header(40, 20, row_bytes=50), (row.replace(b'\xb3', b'\xff') + bytes(10)) * 20))


def a_raster_that_ends_early_is_told_of():
    first, second = (header(40, 100), red_bars(40, 100)), (header(40, 200), red_bars(40, 200)[:-30])
    done = run(raster(*first, *second))
    assert done.returncode == 1, done.returncode
    [line] = done.stderr.decode().splitlines()
    assert line.startswith('ERROR: Unable to read page 2'), line
    wanted = raster(first[0], first[1].replace(b'\xb3', b'\xff'), second[0])
    assert done.stdout.startswith(wanted) and len(done.stdout) < len(raster(*first, *second))


def a_raster_without_a_page_stays_one():
    for content in raster(), b'', b'no raster at all':
        expect(content, raster())


def it_ends_with_its_reader():
    process = subprocess.Popen([PROGRAM], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    process.stdout.close()
    try:
        process.stdin.write(raster(header(800, 5000), red_bars(800, 5000)))
        process.stdin.close()
    except BrokenPipeError:
        pass
    assert process.wait(10) != 0


def sigterm_ends_it():
    process = subprocess.Popen([PROGRAM], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL)
    process.stdin.write(raster(header(800, 5000), red_bars(800, 100)))
    process.stdin.flush()
    time.sleep(0.1)
    process.send_signal(signal.SIGTERM)
    assert process.wait(5) == -signal.SIGTERM


def a_long_page_takes_little_memory():
    """100 inches of a label, 16 MB, in 24 MB with all that a process needs."""
    reader, writer = os.pipe()
    if os.fork() == 0:
        os.close(reader)
        with os.fdopen(writer, 'wb') as pipe:
            pipe.write(raster(header(812, 20300)))
            for _ in range(2030):
                pipe.write(red_bars(812, 10))
        os._exit(0)
    os.close(writer)
    subprocess.run([PROGRAM], stdin=reader, stdout=subprocess.DEVNULL, check=True)
    peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
    limit = 24 << 10
    assert os.environ.get('KESTO_SANITIZED') or peak < limit, peak


globals()[sys.argv[2]]()
