"""Runs of the real picturetokestolabel."""
import atexit
import itertools
import os
import shutil
import signal
import struct
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
PICTURE, INTAKE, FILTER, PREVIEWER, PPD_FOLDER = map(os.path.abspath, sys.argv[1:6])
FOLDER = tempfile.mkdtemp(prefix='picture-test-')
atexit.register(shutil.rmtree, FOLDER)
NUMBERS = itertools.count()
HEADER_SIZE = 1796


class Label:
    """A page of the program's raster. Levels are 0 where it burns and 255 where paper stays."""

    def __init__(self, header, dots):
        self.fields = lambda offset: struct.unpack_from('=I', header, offset)[0]
        self.width, self.height, self.copies = map(self.fields, (372, 376, 340))
        self.name = header[1732:1796].split(b'\0')[0].decode()
        assert [self.fields(offset) for offset in (384, 388, 392, 396, 400)] == \
            [8, 8, self.width, 0, 3], 'not chunky black of 8 bits'
        self.rows = [[255 - dot for dot in dots[at:at + self.width]]
                     for at in range(0, len(dots), self.width)]


def labels_of(raster):
    """Of a whole stream, which must end with the last dot of a page."""
    assert raster[:4] == struct.pack('=I', 0x52615333), raster[:4]
    found, at = [], 4
    while at < len(raster):
        header = raster[at:at + HEADER_SIZE]
        width, height = struct.unpack_from('=II', header, 372)
        at += HEADER_SIZE + width * height
        assert at <= len(raster), 'a page is cut'
        found.append(Label(header, raster[at - width * height:at]))
    return found


def write(content, ending='picture'):
    path = f'{FOLDER}/{next(NUMBERS)}.{ending}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


def read(path):
    with open(path, 'rb') as file:
        return file.read()


def command(content, dots, *options, dpi=200, more=()):
    """For the content of a picture, or the path of one."""
    path = content if isinstance(content, str) else write(content)
    return [PICTURE, '--dots', f'{dots[0]}x{dots[1]}', '--dpi', str(dpi), *more,
            *(word for option in options for word in ('-o', option)), path]


class Run:
    """A run to its end, with what it has taken and left."""

    def __init__(self, arguments, seconds=60):
        self.temporary = tempfile.mkdtemp(dir=FOLDER)
        with tempfile.TemporaryFile(dir=FOLDER) as output, \
                tempfile.TemporaryFile(dir=FOLDER) as errors:
            process = subprocess.Popen(arguments, env=dict(os.environ, TMPDIR=self.temporary),
                                       stdin=subprocess.DEVNULL, stdout=output, stderr=errors)
            self.status, self.usage = wait(process, seconds)
            output.seek(0)
            self.raster = output.read()
            errors.seek(0)
            self.lines = errors.read().decode(errors='replace').splitlines()

    def assert_nothing_left(self):
        assert os.listdir(self.temporary) == [], os.listdir(self.temporary)


def wait(process, seconds):
    """(status, usage) of a process that ends by itself."""
    alarm = signal.signal(signal.SIGALRM, lambda *_: process.kill())
    signal.alarm(seconds)
    _, status, usage = os.wait4(process.pid, 0)
    signal.alarm(0)
    signal.signal(signal.SIGALRM, alarm)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode, usage


def labels(content, dots, *options, **more):
    """The labels of a picture that must be printed, without a word."""
    done = Run(command(content, dots, *options, **more))
    assert done.status == 0, (done.status, done.lines, options)
    assert not [line for line in done.lines if not line.startswith('DEBUG')], done.lines
    done.assert_nothing_left()
    found = labels_of(done.raster)
    for label in found:
        assert (label.width, label.height) == tuple(dots), (label.width, label.height)
    return found


def label(content, dots, *options, **more):
    """The only label."""
    found = labels(content, dots, *options, **more)
    assert len(found) == 1, len(found)
    return found[0].rows


def difference(rows, expected):
    """The largest difference of levels, which may be fractions."""
    assert (len(rows), len(rows[0])) == (len(expected), len(expected[0])), \
        (len(rows[0]), len(rows), len(expected[0]), len(expected))
    return max(abs(dot - other) for row, others in zip(rows, expected)
               for dot, other in zip(row, others))


def assert_equal(rows, expected, what, tolerance=0):
    found = difference(rows, expected)
    if found > tolerance:
        places = [(x, y, row[x], others[x]) for y, (row, others) in enumerate(zip(rows, expected))
                  for x in range(len(row)) if abs(row[x] - others[x]) > tolerance]
        assert False, (f'{what}: {len(places)} of {len(rows) * len(rows[0])} dots differ, '
                       f'by up to {float(found)}; (x, y, is, should be): {places[:4]}')


class Faults:
    """Goes through a table to its end, and then tells of all that went wrong."""

    def __init__(self):
        self.lines = []

    def of(self, name):
        return Case(self, name)

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind is None:
            assert not self.lines, '\n'.join(['', *self.lines])


class Case:
    def __init__(self, faults, name):
        self.faults, self.name = faults, name

    def __enter__(self):
        return self

    def __exit__(self, kind, error, _):
        if kind is not None and issubclass(kind, AssertionError):
            self.faults.lines.append(f'{self.name}: {error}')
            return True
        return None
