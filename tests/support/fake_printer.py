"""A printer that speaks TSPL and answers ESC ! ? as it is told to, on 127.0.0.1 or on two pipes.

It reads the stream as a printer does: lines are commands, the data behind BITMAP's fifth comma are
counted, and a question is one only at the start of a line. One anywhere else, or a bitmap that is
not followed by a line end, is a fault: it is printed at once and raised by finish().

    with FakePrinter(OutOfLabels()) as printer:
        ... socket://127.0.0.1:{printer.port} ...
        printer.finish()
        printer.stream, printer.labels, printer.questions
"""
import math
import os
import re
import socket
import sys
import threading
import time

HEAD_OPEN, JAM, NO_LABELS, NO_RIBBON, PAUSED, PRINTING, COVER_OPEN, OTHER = (1 << bit for bit in range(8))
ERRORS = 0xff & ~PRINTING
QUESTION = b'\x1b!?'
BITMAP = re.compile(rb'BITMAP (\d+),(\d+),(\d+),(\d+),\d+,')


class Ready:
    """A behaviour: what the printer answers now, None for nothing, and how long that takes."""
    delay = 0                            # seconds from a question to its answer
    rate = None                          # bytes a second that are taken
    labels = None                        # the line is closed when so many labels were taken,
    question = None                      # or behind the answer to this question (from 1)

    def answer(self, printer):
        return b'\0'


class For(Ready):
    """A status from the start of a label on (from 1), then ready: some seconds long, or until end()."""

    def __init__(self, status, seconds=math.inf, label=1):
        self.status, self.seconds, self.label, self.has_ended = status, seconds, label, False

    def end(self):
        self.has_ended = True

    def stands(self, printer):
        since = printer.started.get(self.label) if self.label > 1 else printer.asked_first
        return not self.has_ended and since is not None and time.monotonic() < since + self.seconds

    def answer(self, printer):
        return bytes([self.status if self.stands(printer) else 0])


class Printing(Ready):
    """Each label takes some time, and the next one is printed after it."""

    def __init__(self, seconds=1):
        self.seconds = seconds

    def answer(self, printer):
        busy = 0
        for label in printer.labels:
            busy = max(busy, label.at) + self.seconds * label.copies
        return bytes([PRINTING if time.monotonic() < busy else 0])


class Mute(Ready):
    """No answer from a label on (from 1); before that, a status."""

    def __init__(self, label=1, status=0):
        self.label, self.status = label, status

    def answer(self, printer):
        return bytes([self.status]) if len(printer.started) < self.label and self.label > 1 else None


class MuteAfter(Ready):
    """Some answers, then none."""

    def __init__(self, *statuses):
        self.statuses = list(statuses)

    def answer(self, printer):
        return bytes([self.statuses.pop(0)]) if self.statuses else None


class Late(Ready):
    def __init__(self, delay):
        self.delay = delay


class Says(Ready):
    """The same bytes to every question."""

    def __init__(self, said):
        self.said = said

    def answer(self, printer):
        return self.said


class Closing(Ready):
    """Closes the line, see above."""

    def __init__(self, labels=None, question=None, status=0):
        self.labels, self.question, self.status = labels, question, status

    def answer(self, printer):
        return bytes([self.status])


class Slow(Ready):
    def __init__(self, rate):
        self.rate = rate


class Label:
    def __init__(self, number, copies, at):
        self.number, self.copies, self.at = number, copies, at


class TsplReader:
    """Finds the commands of a stream that comes in pieces, and tells its printer of them."""

    def __init__(self, printer):
        self.printer, self.rest, self.data_left, self.after_data = printer, b'', 0, False

    def feed(self, piece):
        self.rest += piece
        while self.rest and self.step():
            pass

    def step(self):
        """Takes one thing from the front of the rest; False when more of it has to come."""
        if self.data_left:
            return self.take_data()
        if self.rest[:1] == b'\x1b':
            return self.take_question()
        if (head := BITMAP.match(self.rest)) is not None:
            self.take(head.end())
            self.data_left = int(head[3]) * int(head[4])
            self.printer.bitmap_starts()
            return True
        return self.take_line()

    def take(self, count):
        taken, self.rest = self.rest[:count], self.rest[count:]
        self.printer.stream += taken
        return taken

    def take_data(self):
        self.data_left -= len(self.take(self.data_left))
        self.after_data = not self.data_left
        return True

    def take_question(self):
        if self.after_data:
            self.printer.fault('an escape between the data of a bitmap and its line end')
        if len(self.rest) < len(QUESTION):
            return False
        if not self.rest.startswith(QUESTION):
            self.printer.fault(f'unknown: {self.rest[:8]}')
            self.take(1)
            return True
        self.rest = self.rest[len(QUESTION):]
        self.printer.asked()
        return True

    def take_line(self):
        end = self.rest.find(b'\n') + 1
        if b'\x1b' in self.rest[:end or None]:
            self.printer.fault(f'an escape inside a command: {self.rest[:40]}')
        if not end:
            return False
        line = self.take(end)
        if self.after_data and line != b'\r\n':
            self.printer.fault(f'a bitmap is followed by {line[:40]}: is there a question in its data?')
        self.after_data = False
        if printed := re.fullmatch(rb'PRINT (\d+),(\d+)\r\n', line):
            self.printer.printed(int(printed[1]) * int(printed[2]))
        return True

    def is_between(self):
        return not (self.rest or self.data_left or self.after_data)


class FakePrinter:
    """What arrived (stream: without the questions), and when.

    labels     of every PRINT
    questions  (time, bytes of the stream before it)
    answers    (time, what was answered)
    started    {number of a label: time at which its bitmap began}
    last_byte  time at which the last byte was taken
    """

    def __init__(self, behaviour=None):
        self.closed, self.ended = False, threading.Event()
        self.restart(behaviour)

    def restart(self, behaviour=None):
        """As if switched on anew, between two jobs."""
        self.ended.clear()
        self.behaviour = behaviour or Ready()
        self.stream, self.raw = bytearray(), bytearray()
        self.labels, self.questions, self.answers, self.started, self.faults = [], [], [], {}, []
        self.last_byte = self.asked_first = None
        self.connections = 0
        self.reader = TsplReader(self)

    def listen(self):
        self.server = socket.create_server(('127.0.0.1', 0))
        # A printer has little room: what it does not take soon holds the sender up.
        self.server.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 16384)
        self.port = self.server.getsockname()[1]
        threading.Thread(target=self.accept, daemon=True).start()

    def __enter__(self):
        self.listen()
        return self

    def __exit__(self, *_):
        self.closed = True
        self.server.close()

    def accept(self):
        """One connection at a time, as real ones do."""
        while not self.closed:
            try:
                connection, _ = self.server.accept()
            except OSError:
                return
            self.connections += 1
            with connection:
                self.serve(connection.fileno(), connection.fileno())

    def serve(self, taking, answering):
        """Reads one descriptor to its end and answers by the other one."""
        self.answering, self.hung_up = answering, False
        while not self.hung_up:
            rate = self.behaviour.rate
            try:
                piece = os.read(taking, min(1 << 16, max(1, rate // 50)) if rate else 1 << 16)
            except OSError:
                break
            if not piece:
                break
            self.last_byte = time.monotonic()
            self.raw += piece
            self.reader.feed(piece)
            if rate:
                time.sleep(len(piece) / rate)
        self.ended.set()

    def bitmap_starts(self):
        self.started[len(self.started) + 1] = time.monotonic()

    def printed(self, copies):
        self.labels.append(Label(len(self.started), copies, time.monotonic()))
        if self.behaviour.labels == len(self.labels):
            self.hung_up = True

    def asked(self):
        now = time.monotonic()
        self.asked_first = self.asked_first or now
        self.questions.append((now, len(self.stream)))
        said = self.behaviour.answer(self)
        if said is not None and self.behaviour.delay:
            threading.Timer(self.behaviour.delay, self.say, [said]).start()
        elif said is not None:
            self.say(said)
        if self.behaviour.question == len(self.questions):
            self.hung_up = True

    def say(self, said):
        self.answers.append((time.monotonic(), said))
        try:
            os.write(self.answering, said)
        except OSError:
            pass                         # nobody listens any more

    def fault(self, text):
        self.faults.append(text)
        print(f'fake printer, byte {len(self.stream)}: {text}', file=sys.stderr, flush=True)

    def finish(self, timeout=10):
        """Waits for the end of the (first) connection; raises what was wrong with the stream."""
        assert self.ended.wait(timeout), 'the line is still open'
        assert not self.faults, self.faults
        return self

    def assert_labels(self, count):
        """All of them have come, each once, in order."""
        numbers = [label.number for label in self.labels]
        assert numbers == list(range(1, count + 1)) and self.count() == count, numbers

    def count(self):
        return sum(label.copies for label in self.labels)

    def first_answer(self, bits=ERRORS):
        """The time of the first answer that has one of these bits."""
        return next(at for at, said in self.answers if said[0] & bits)

    def all_clear(self):
        """The time of the first answer without an error behind one with an error."""
        return next(at for at, said in self.answers if at > self.first_answer() and not said[0] & ERRORS)
