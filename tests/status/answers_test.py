"""Each answer of a printer, and what is seen and held for it."""
import os
import threading
import time

from fake_printer import (COVER_OPEN, HEAD_OPEN, JAM, NO_LABELS, NO_RIBBON, OTHER, PAUSED, PRINTING,
                          For, Late, Printing, Ready, Says, Slow)
from label_streams import labels
from monitor_run import SLACK, Run, all_printed, golden, printed, wait_for

REASONS = {HEAD_OPEN: 'cover-open-error', JAM: 'media-jam-error', NO_LABELS: 'media-empty-error',
           NO_RIBBON: 'marker-supply-empty-error', PAUSED: 'paused', COVER_OPEN: 'cover-open-error',
           OTHER: 'other-error'}


def a_ready_printer_gets_the_stream_and_sets_no_reason():
    for stream, count in (golden(), 1), (golden('stencil'), 1), (labels(3), 3):
        job = printed(stream)
        assert job.reasons() == [] and job.errors() == [], job.said()
        assert job.took < 1 + SLACK, job.took
        places = [at for _, at in job.printer.questions]
        assert places[0] < stream.index(b'BITMAP'), places
        ends = [at for at in range(len(stream)) if stream[:at].endswith(b'\r\nPRINT 1,1\r\n')]
        assert set(ends[-count:]) <= set(places), (ends, places)


def the_bytes_of_a_question_in_a_picture_are_dots():
    assert b'\x1b!?' in labels(30)
    printed(labels(30))


def each_error_sets_its_reason_holds_the_labels_and_is_cleared():
    jobs = [(bit, Run(labels(3), For(bit, seconds=1.2))) for bit in REASONS]
    for bit, job in jobs:
        job.finish().assert_printed()
        assert job.reasons() == [REASONS[bit]], (bit, job.said())
        assert_held(job)
        assert_told(job, REASONS[bit])


def assert_held(job):
    """No label began while the printer said that it cannot; the printer was asked twice a second."""
    first, clear = job.printer.first_answer(), job.printer.all_clear()
    begun = [at for at in job.printer.started.values() if first < at < clear]
    assert not begun, [at - first for at in begun]
    asked = [at for at, _ in job.printer.questions if first < at <= clear]
    assert len(asked) >= (clear - first) / 0.5 * 0.7 - 1, asked
    assert len(asked) <= (clear - first) / 0.5 * 1.5 + 2, asked


def assert_told(job, reason):
    """Set and cleared as soon as it is known, each with a line in words beside it."""
    assert job.time_of('+', reason) < job.printer.first_answer() + SLACK
    assert job.time_of('-', reason) < job.printer.all_clear() + SLACK
    words = [line for line in job.said() if line.startswith(('ERROR: ', 'INFO: '))]
    assert len(words) >= 2, job.said()
    assert all(len(line.split()) > 2 for line in words), words


def two_errors_at_once_are_two_reasons():
    job = printed(labels(2), For(NO_LABELS | HEAD_OPEN, seconds=0.8))
    assert sorted(job.reasons()) == ['cover-open-error', 'media-empty-error'], job.said()


def head_and_cover_are_one_reason():
    job = printed(labels(2), For(HEAD_OPEN | COVER_OPEN, seconds=0.8))
    assert job.reasons() == ['cover-open-error'], job.said()


def one_error_may_follow_another():
    class LabelsThenRibbon(Ready):
        def answer(self, printer):
            since = time.monotonic() - printer.asked_first
            return bytes([NO_LABELS if since < 0.7 else NO_RIBBON if since < 1.6 else 0])
    job = printed(labels(2), LabelsThenRibbon())
    assert job.reasons() == ['media-empty-error', 'marker-supply-empty-error'], job.said()


def a_head_that_opens_in_the_second_label_holds_the_third():
    job = printed(labels(3), For(HEAD_OPEN, seconds=1.5, label=2))
    assert job.reasons() == ['cover-open-error'], job.said()
    assert job.printer.started[3] > job.printer.all_clear()


def a_job_is_not_done_while_the_last_label_cannot_be_printed():
    job = printed(labels(2), For(NO_LABELS, seconds=1.5, label=2))
    assert job.reasons() == ['media-empty-error'], job.said()
    assert job.ended > job.printer.all_clear()


def a_job_is_not_done_while_the_printer_prints():
    job = printed(labels(3), Printing(seconds=0.7))
    assert job.reasons() == [] and job.errors() == [], job.said()
    assert job.ended > job.printer.labels[0].at + 3 * 0.7, job.took
    assert not job.printer.answers[-1][1][0] & PRINTING


def a_printing_printer_gets_the_next_label():
    job = printed(labels(3), Printing(seconds=0.7))
    assert job.printer.labels[2].at - job.printer.labels[0].at < 0.6


def no_question_goes_into_a_command_under_way():
    """The first label is printed for two seconds, in which questions are due; the second one comes
    slowly and stops in its header, in its picture, at the end of that, and in its PRINT."""
    job = Run(labels(2, size=2000), Printing(seconds=2), feed=lambda: None)
    second = job.sent.rindex(b'CLS')
    places = [second + 12, second + 600, job.sent.rindex(b'\r\nPRINT'), len(job.sent) - 6, len(job.sent)]
    for start, end in zip([0] + places, places):
        os.write(job.process.stdin.fileno(), job.sent[start:end])
        time.sleep(0.7)
    job.process.stdin.close()
    job.finish().assert_printed()
    # The questions that were due in the meantime come when the command has ended.
    asked = {at for _, at in job.printer.questions if at > second}
    assert asked <= {second + 5, len(job.sent) - 11, len(job.sent)}, (asked, second, len(job.sent))


def a_printer_that_is_out_of_labels_while_it_prints_is_out_of_labels():
    job = printed(labels(2), For(NO_LABELS | PRINTING, seconds=0.8))
    assert job.reasons() == ['media-empty-error'], job.said()


def late_answers_are_answers():
    delays = 0.7, 1.4
    for delay, job in zip(delays, all_printed([Run(labels(2), Late(delay)) for delay in delays])):
        assert job.reasons() == [], job.said()
        # The first label waits for the first answer; after that nothing is given up.
        assert job.printer.started[1] > job.printer.answers[0][0], delay
        assert job.took < 4 * delay + 1, (delay, job.took)


def answers_that_come_too_late_are_none():
    job = printed(labels(2), Late(3))
    assert 1.5 <= job.took < 1.5 + 2 * SLACK, job.took
    assert job.reasons() == [], job.said()


def late_errors_do_no_harm():
    class LateError(Late):
        def answer(self, printer):
            return bytes([NO_LABELS])
    job = printed(labels(2), LateError(3))
    assert job.took < 1.5 + 2 * SLACK, job.took


def garbage_neither_holds_a_job_for_ever_nor_harms_it():
    garbage = b'\r\n', b'hello', b'\xff', bytes(range(256)), b'\x02\x40\x40\x40\x40\x03\r\n'
    for said, job in zip(garbage, all_printed([Run(labels(3), GarbageFor(said, 1.2)) for said in garbage])):
        assert job.took < 12, (said, job.took)


class GarbageFor(Ready):
    def __init__(self, said, seconds):
        self.said, self.seconds = said, seconds

    def answer(self, printer):
        return self.said if time.monotonic() < printer.asked_first + self.seconds else b'\0'


def more_bytes_than_were_asked_for_are_not_taken_for_answers():
    for said in b'\0\r\n', b'\0' * 64, b'\0' + b'\xff' * 5000:
        job = printed(labels(3), Says(said))
        assert job.reasons() == [] and job.errors() == [], (said[:8], job.said())
        assert job.took < 1 + SLACK, (said[:8], job.took)


def bytes_that_nobody_asked_for_are_no_answer():
    class Talkative(Ready):
        def answer(self, printer):
            if len(printer.labels) == 1:
                threading.Timer(0.1, printer.say, [bytes([NO_LABELS])]).start()
            return b'\0'
    job = Run(labels(2), Talkative(), unasked=bytes([NO_LABELS | HEAD_OPEN]) * 20, feed=lambda: None)
    second = job.sent.rindex(b'CLS')
    os.write(job.process.stdin.fileno(), job.sent[:second])
    time.sleep(0.5)
    os.write(job.process.stdin.fileno(), job.sent[second:])
    job.process.stdin.close()
    job.finish(5).assert_printed()
    assert len(job.printer.answers) >= 4 and job.reasons() == [], job.said()


def a_slow_printer_gets_everything_and_the_monitor_waits():
    stream = labels(3, size=600)
    job = printed(stream, Slow(rate=2500))
    assert job.took > 0.8 * len(stream) / 2500, job.took
    assert job.reasons() == [], job.said()


class SlowBusyAndLate(Slow):
    """Its answers come so late that the next question is due at once, in front of the next label."""
    delay = 0.8

    def answer(self, printer):
        return bytes([0 if len(printer.labels) == 2 else PRINTING])


def waiting_for_a_slow_printer_costs_nothing():
    """Also while it is printing, and data pass that do not wait for the answer to a question."""
    job = Run(labels(2, size=300000), SlowBusyAndLate(rate=200000))
    wait_for(lambda: 2 in job.printer.started)
    before = job.processor_time()
    time.sleep(0.7)
    assert len(job.printer.questions) == len(job.printer.answers) + 1, 'no answer is due'
    assert job.processor_time() - before < 0.1, job.processor_time() - before
    job.finish().assert_printed()


def a_printer_that_takes_a_byte_a_second_is_waited_for():
    """Watched for some seconds, in which it has not even read the question; then it hurries."""
    job = Run(labels(1, size=80000), Slow(rate=1))
    time.sleep(4)
    assert job.process.poll() is None and 2 <= len(job.printer.raw) <= 5, len(job.printer.raw)
    job.printer.behaviour.rate = 100000
    job.finish().assert_printed()


def a_stream_may_come_byte_by_byte():
    job = Run(labels(2, size=100), feed=lambda: None)
    for at in range(len(job.sent)):
        os.write(job.process.stdin.fileno(), job.sent[at:at + 1])
        if at % 20 == 0:
            time.sleep(0.01)
    job.process.stdin.close()
    job.finish().assert_printed()


def a_filter_that_takes_its_time_is_waited_for():
    """In the middle of a bitmap and behind a label; the waiting costs nothing."""
    job = Run(labels(3, size=2000), feed=lambda: None)
    cuts = [0, job.sent.index(b'BITMAP') + 1000, job.sent.index(b'PRINT 1,1', 3000) + 11, len(job.sent)]
    for start, end in zip(cuts, cuts[1:]):
        os.write(job.process.stdin.fileno(), job.sent[start:end])
        time.sleep(1)
    assert job.processor_time() < 0.2, job.processor_time()
    job.process.stdin.close()
    job.finish().assert_printed()


def a_job_without_labels_is_passed_through():
    for stream in b'', b'\n' * 64, b'SIZE 50 mm, 25 mm\r\n', b'~!T\r\n', b'PRINT 1', b'\x1b!R':
        job = printed_unread(stream)
        assert job.took < 1.5 + 2 * SLACK, (stream, job.took)


def printed_unread(stream):
    """For streams that are no whole lines: the printer does not read them, and so does not answer."""
    job = Run(stream, start_printer=False)
    job.printer.reader.feed = lambda piece: None
    job.printer_thread.start()
    for thread in job.threads:
        thread.join(20)
    job.printer_thread.join(20)
    assert job.process.returncode == 0, job.said()
    assert bytes(job.printer.raw).replace(b'\x1b!?', b'') == stream, bytes(job.printer.raw)
    job.took = job.ended - job.started
    return job
