"""Runs of the real documenttokestotspl with CUPS's real converters, without a scheduler."""
import atexit
import glob
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import uuid

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../queue'))
sys.dont_write_bytecode = True
import label_stream

INTAKE, FILTER, PICTURE, PREVIEWER, INSTALLED = (os.path.abspath(name) for name in sys.argv[1:6])
CONTENT = os.path.join(os.path.dirname(INTAKE), 'content/rastertokestocontent')
CUPS_FILTERS = '/usr/lib/cups/filter/'
CONVERTERS = ('gstoraster', 'pdftoraster')
FOLDER = tempfile.mkdtemp(prefix='intake-test-')
START = time.time()


def clean_up():
    shutil.rmtree(FOLDER)
    # The filter leaves pictures of its pages, here as on every print.
    for name in glob.glob('/var/spool/cups/tmp/*.bmp'):
        try:
            if os.path.getmtime(name) >= START - 1:
                os.unlink(name)
        except FileNotFoundError:
            pass


atexit.register(clean_up)

PPD_FOLDER = f'{FOLDER}/ppd'
subprocess.run(['ppdc', '-d', PPD_FOLDER, os.path.join(os.path.dirname(__file__), 'test.drv')],
               check=True, stdout=subprocess.DEVNULL)


def server_bin(converter='gstoraster', but=(), **others):
    """A folder of programs with one of the converters, without some, with others in their place."""
    folder = tempfile.mkdtemp(dir=FOLDER)
    os.mkdir(f'{folder}/filter')
    programs = {name: CUPS_FILTERS + name for name in ('pdftopdf', converter)}
    programs.update(rastertokestotspl=FILTER, picturetokestolabel=PICTURE, rastertokestocontent=CONTENT)
    programs.update(others)
    for name, path in programs.items():
        if name not in but:
            os.symlink(path, f'{folder}/filter/{name}')
    return folder


def script(text):
    """An executable file that stands for one of the programs."""
    descriptor, path = tempfile.mkstemp(dir=FOLDER)
    os.write(descriptor, text.encode())
    os.close(descriptor)
    os.chmod(path, 0o755)
    return path


def write(name, content):
    path = f'{FOLDER}/{name}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


def read(path):
    with open(path, 'rb') as file:
        return file.read()


class Run:
    """A started program, found again by a variable that its children inherit."""

    def __init__(self, document=None, options='', model='kstl203', copies=1, bin_folder=None,
                 variables=None, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, **popen):
        self.mark = uuid.uuid4().hex
        self.temporary = tempfile.mkdtemp(dir=FOLDER)
        environment = {name: value for name, value in os.environ.items()
                       if name not in ('CUPS_SERVER', 'CONTENT_TYPE', 'FINAL_CONTENT_TYPE')}
        ppd = model if '/' in model else f'{PPD_FOLDER}/{model}.ppd'
        environment.update(PPD=ppd, TMPDIR=self.temporary, KESTO_TEST_RUN=self.mark,
                           CUPS_SERVERBIN=bin_folder or server_bin())
        environment.update(variables or {})
        command = ['labels', '1', 'anna', 'a title', str(copies), options]
        self.errors = tempfile.TemporaryFile(dir=FOLDER)
        self.process = subprocess.Popen(command + ([document] if document else []),
                                        executable=INTAKE, env=environment, stdin=stdin,
                                        stdout=stdout, stderr=self.errors, **popen)

    def finish(self, given=None, timeout=60):
        self.stream, _ = self.process.communicate(given, timeout=timeout)
        self.status = self.process.returncode
        self.errors.seek(0)
        lines = self.errors.read().decode(errors='replace').splitlines()
        self.lines = [line for line in lines if not line.startswith('DEBUG')]
        return self

    def error_lines(self):
        return [line for line in self.lines if line.startswith('ERROR: ')]

    def own_error(self):
        """The program's line, which is the last one."""
        assert self.error_lines(), self.lines
        return self.error_lines()[-1][len('ERROR: '):]

    def labels_said(self):
        return [line[len('INFO: '):] for line in self.lines if line.startswith('INFO: The label')]

    def processes(self):
        """All that have been started, by their ids; the program itself is among them."""
        found = []
        for entry in filter(str.isdigit, os.listdir('/proc')):
            try:
                with open(f'/proc/{entry}/environ', 'rb') as file:
                    if self.mark.encode() in file.read():
                        found.append(int(entry))
            except OSError:
                pass
        return found

    def assert_nothing_left(self):
        left = self.processes()
        names = [read(f'/proc/{pid}/cmdline') for pid in left if os.path.exists(f'/proc/{pid}')]
        assert not left, f'still running: {names}'
        assert os.listdir(self.temporary) == [], os.listdir(self.temporary)


def run(document=None, options='', given=None, timeout=60, **more):
    """A whole job, which leaves nothing behind."""
    stdin = subprocess.DEVNULL if given is None else subprocess.PIPE
    done = Run(document, options, stdin=stdin, **more).finish(given, timeout)
    done.assert_nothing_left()
    return done


def printed(*arguments, **more):
    """A job that must be printed."""
    done = run(*arguments, **more)
    assert done.status == 0, done.lines
    return done


def sizes(stream):
    return [(page.width, page.height, page.sets * page.copies)
            for page in label_stream.pages_of(stream)]


def refused(text, *arguments, **more):
    """A job that fails with one line of the program, and sends nothing."""
    done = run(*arguments, **more)
    assert done.status == 1, (done.status, done.lines)
    assert done.stream == b'', done.stream[:100]
    assert re.search(text, done.own_error()), done.lines
    return done
