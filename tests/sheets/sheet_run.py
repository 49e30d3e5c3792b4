"""Runs of the real pdftokestolabels, alone and in a job with CUPS's real converters."""
import atexit
import itertools
import os
import shutil
import signal
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [f'{HERE}/../queue', f'{HERE}/../../samples']
sys.dont_write_bytecode = True
import label_stream
from sources import sheet_layouts

SHEETS, INTAKE, FILTER, PREVIEWER, PPD_FOLDER = map(os.path.abspath, sys.argv[1:6])
CONTENT = os.path.join(os.path.dirname(INTAKE), 'content/rastertokestocontent')
CUPS_FILTERS = '/usr/lib/cups/filter/'
FOLDER = tempfile.mkdtemp(prefix='sheet-test-')
atexit.register(shutil.rmtree, FOLDER)
NUMBERS = itertools.count()


def filter_folder(but=(), **others):
    """CUPS's programs with those that were built."""
    folder = tempfile.mkdtemp(dir=FOLDER)
    os.mkdir(f'{folder}/filter')
    programs = {name: CUPS_FILTERS + name for name in ('pdftopdf', 'gstoraster')}
    programs.update(rastertokestotspl=FILTER, pdftokestolabels=SHEETS, rastertokestocontent=CONTENT, **others)
    for name, path in programs.items():
        if name not in but:
            os.symlink(path, f'{folder}/filter/{name}')
    return folder


SERVER_BIN = filter_folder()


def write(content, ending='pdf'):
    path = f'{FOLDER}/{next(NUMBERS)}.{ending}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


class Run:
    """A run of a program to its end, with what it has taken; it leaves nothing behind."""

    def __init__(self, command, seconds=120, **variables):
        self.temporary = tempfile.mkdtemp(dir=FOLDER)
        environment = {name: value for name, value in os.environ.items()
                       if name not in ('CUPS_SERVER', 'CONTENT_TYPE', 'FINAL_CONTENT_TYPE')}
        environment.update(TMPDIR=self.temporary, **variables)
        with tempfile.TemporaryFile(dir=FOLDER) as output, tempfile.TemporaryFile(dir=FOLDER) as errors:
            process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                       stdout=output, stderr=errors)
            self.status, self.usage = wait(process, seconds)
            output.seek(0)
            self.output = output.read()
            errors.seek(0)
            lines = errors.read().decode(errors='replace').splitlines()
        self.lines = [line for line in lines if line and not line.startswith('DEBUG')]
        assert os.listdir(self.temporary) == [], os.listdir(self.temporary)

    def infos(self):
        return [line[len('INFO: '):] for line in self.lines if line.startswith('INFO: ')]


def wait(process, seconds):
    """(status, usage) of a process that ends by itself."""
    before = signal.signal(signal.SIGALRM, lambda *_: process.kill())
    signal.alarm(seconds)
    _, status, usage = os.wait4(process.pid, 0)
    signal.alarm(0)
    signal.signal(signal.SIGALRM, before)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode, usage


def cut(content, *options, label='288x432', **more):
    """A run of the program alone, for the content of a file."""
    words = [word for option in options for word in ('-o', option)]
    return Run([SHEETS, '--label', label, *words, write(content)], **more)


def job(content, options='LabelOnPage=Find', model='kstl203', copies=1, server_bin=SERVER_BIN):
    """A run of a whole job."""
    return Run([INTAKE, '1', 'anna', 'a title', str(copies), options, write(content)],
               PPD=f'{PPD_FOLDER}/{model}.ppd', CUPS_SERVERBIN=server_bin)


class Label:
    """A label that was printed: its dots, and what was read of its picture."""

    def __init__(self, page, picture):
        self.page = page
        done = subprocess.run(['zbarimg', '--quiet', '--nodbus', '--raw', picture],
                              capture_output=True, text=True)
        self.codes = set(done.stdout.split())


def printed(content, options='LabelOnPage=Find', **more):
    """The labels of a job that must be printed, and its lines."""
    done = job(content, options, **more)
    assert done.status == 0, (done.status, done.lines)
    name = f'{FOLDER}/{next(NUMBERS)}'
    subprocess.run([PREVIEWER, '-o', name, write(done.output, 'tspl')], check=True,
                   stdout=subprocess.DEVNULL)
    pages = label_stream.pages_of(done.output)
    return [Label(page, f'{name}-{number}.png') for number, page in enumerate(pages, 1)], done.infos()


def sheet(name):
    return sheet_layouts.pdf(sheet_layouts.layouts()[name])


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
