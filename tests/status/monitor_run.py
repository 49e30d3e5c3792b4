"""Runs of the real tsplstatus between a stream and a fake printer, without a scheduler."""
import atexit
import os
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time

from fake_printer import FakePrinter

HERE = os.path.dirname(os.path.abspath(__file__))
MONITOR = os.path.realpath(sys.argv[1])
FOLDER = tempfile.mkdtemp(prefix='status-test-')
atexit.register(shutil.rmtree, FOLDER)
# What a program may take to start and to be noticed on a busy machine.
SLACK = 0.5

def golden(name='label'):
    with open(os.path.join(HERE, f'../golden/{name}.tspl'), 'rb') as file:
        return file.read()


class Run:
    """A started monitor. Its stream comes from a thread, as from the filter, and ends when the
    monitor ends; its lines are kept with their times."""

    def __init__(self, stream, behaviour=None, state=None, variables=None, start_printer=True, feed=None,
                 answers='3<&{listening}', unasked=b'', queue='labels', uri='socket://127.0.0.1:9'):
        self.sent, self.printer = stream, FakePrinter(behaviour)
        self.state = state or tempfile.mkdtemp(dir=FOLDER)
        environment = {name: value for name, value in os.environ.items() if not name.startswith('CUPS_')}
        environment.update(PRINTER=queue, DEVICE_URI=uri, TMPDIR=self.state, CUPS_CACHEDIR=self.state,
                           CUPS_STATEDIR=self.state, CUPS_SPOOLDIR=self.state, CUPS_REQUESTROOT=self.state)
        environment.update(variables or {})
        ends = os.pipe(), os.pipe()
        (self.taking, printing), (listening, self.answering) = ends
        os.set_blocking(listening, False)          # as the scheduler's are
        os.set_blocking(self.answering, False)
        os.write(self.answering, unasked)
        # The answers come by descriptor 3, which only a shell can be asked for once there are threads.
        self.process = subprocess.Popen(
            ['bash', '-c', f'exec -a labels "$0" "$@" {answers.format(listening=listening)}', MONITOR, '1', 'anna', 'a title', '1', ''],
            stdin=subprocess.PIPE, stdout=printing, stderr=subprocess.PIPE, env=environment,
            pass_fds=[listening])
        self.started = time.monotonic()
        os.close(printing)
        os.close(listening)
        self.lines = []
        self.threads = [threading.Thread(target=target, daemon=True) for target in
                        (feed or self.feed, self.read_lines, self.wait)]
        self.printer_thread = threading.Thread(target=self.play, daemon=True)
        for thread in self.threads:
            thread.start()
        if start_printer:
            self.printer_thread.start()

    def play(self):
        self.printer.serve(self.taking, self.answering)
        os.close(self.taking)
        self.close_answers()

    def close_answers(self):
        # Late answers of the printer's timers must not reach another file under this number.
        self.printer.answering = -1
        os.close(self.answering)

    def feed(self):
        try:
            with self.process.stdin as pipe:
                pipe.write(self.sent)
        except OSError:
            pass

    def read_lines(self):
        for line in self.process.stderr:
            self.lines.append((time.monotonic(), line.decode().rstrip('\n')))

    def runs(self):
        """Whether the program itself has been started by now."""
        try:
            return os.readlink(f'/proc/{self.process.pid}/exe') == MONITOR
        except OSError:
            return self.process.poll() is not None

    def processor_time(self):
        """Seconds of it that a running monitor has used."""
        with open(f'/proc/{self.process.pid}/stat', encoding='utf-8') as file:
            fields = file.read().rpartition(')')[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')

    def wait(self):
        self.process.wait()
        self.ended = time.monotonic()

    def finish(self, timeout=60):
        for thread in self.threads:
            thread.join(timeout)
            if thread.is_alive():
                self.process.kill()
                raise AssertionError(f'it does not end: {self.said()}')
        if self.printer_thread.ident:
            self.printer_thread.join(timeout)
        self.status, self.took = self.process.returncode, self.ended - self.started
        assert not self.printer.faults, self.printer.faults
        self.check_reasons()
        return self

    def check_reasons(self):
        """Every reason that was set is cleared, and none is cleared that was not set."""
        reasons = set()
        for _, sign, names in self.states():
            for name in names:
                assert (name in reasons) == (sign == '-'), (sign, name, self.said())
                reasons.symmetric_difference_update([name])
        assert not reasons, (reasons, self.said())

    def states(self):
        """(time, sign, names) of each STATE line."""
        for at, line in self.lines:
            if line.startswith('STATE: '):
                sign, names = re.fullmatch(r'STATE: ([+-])([a-z0-9,-]+)', line).groups()
                yield at, sign, names.split(',')

    def reasons(self):
        """The reasons that were set, in order."""
        return [name for _, sign, names in self.states() if sign == '+' for name in names]

    def time_of(self, sign, name):
        return next(at for at, its_sign, names in self.states() if its_sign == sign and name in names)

    def said(self):
        return [line for _, line in self.lines if not line.startswith('DEBUG')]

    def errors(self):
        return [line for line in self.said() if line.startswith('ERROR: ')]

    def assert_printed(self):
        """The whole stream has come, byte for byte, and the job is a success."""
        assert self.status == 0, (self.status, self.said())
        assert bytes(self.printer.stream) == self.sent, (len(self.printer.stream), len(self.sent))
        return self


def run(stream, behaviour=None, **more):
    return Run(stream, behaviour, **more).finish()


def printed(stream, behaviour=None, **more):
    return run(stream, behaviour, **more).assert_printed()


def all_printed(jobs):
    """Of jobs that run beside each other, as most of their time is waiting."""
    return [job.finish().assert_printed() for job in jobs]


def wait_for(what, seconds=20):
    until = time.monotonic() + seconds
    while not what():
        assert time.monotonic() < until, 'it does not come'
        time.sleep(0.002)
