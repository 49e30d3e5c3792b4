"""Every way out: cancelled, without a printer, without a reader. Nothing follows the bitmap under way,
and no reason stays."""
import os
import random
import signal
import time

from fake_printer import HEAD_OPEN, NO_LABELS, PAUSED, Closing, For, Late, Mute, Printing, Ready, Slow
from label_streams import boundaries, labels
from monitor_run import Run, run, wait_for

AT_ONCE = 0.3                            # seconds from the last byte taken to the end


def assert_cancelled(job, told, slack=0.2):
    """The slack is that of a machine on which other tests run."""
    job.finish(20)
    if job.status == -signal.SIGTERM:    # before it could know better
        assert not job.lines and not job.printer.raw
        return
    assert job.status == 0, (job.status, job.said())
    assert not [line for line in job.errors() if 'cancel' in line.lower()], job.said()
    assert_cut_well(job)
    late = job.ended - max(told, job.printer.last_byte or 0)
    assert late < AT_ONCE + slack, late


def assert_cut_well(job):
    arrived = bytes(job.printer.stream + job.printer.reader.rest)
    assert job.sent.startswith(arrived), len(arrived)
    assert len(arrived) in boundaries(job.sent), (len(arrived), arrived[-30:])


def cancel(job, after):
    """SIGTERM some time after the start; when it was sent."""
    wait_for(job.runs)
    time.sleep(max(0, job.started + after - time.monotonic()))
    told = time.monotonic()
    job.process.send_signal(signal.SIGTERM)
    return told


def cancelled_jobs_end_at_once_and_leave_no_reason():
    """50 moments, with printers in every state, and bitmaps that go through whole and from pipe to pipe.
    Of a busy machine two may be late, by little."""
    dice = random.Random(5)
    kinds = (Ready, lambda: For(NO_LABELS, 5), lambda: For(HEAD_OPEN, 5, label=2), lambda: For(PAUSED, 0.4),
             lambda: Slow(40000), lambda: Printing(0.3), Mute, lambda: Late(0.4), lambda: Slow(200000))
    late = 0
    for number in range(0, 50, 5):
        jobs = [Run(labels(4, size=(900, 50000)[i % 2]), kinds[(number + i) % len(kinds)]()) for i in range(5)]
        moments = sorted((dice.uniform(0.01, 1.1), i) for i in range(5))
        told = {i: cancel(jobs[i], moment) for moment, i in moments}
        for i, job in enumerate(jobs):
            job.finish(20)
            if told[i] > job.ended:
                assert job.status == 0
                continue
            try:
                assert_cancelled(job, told[i], slack=0)
            except AssertionError as error:
                if not isinstance(error.args[0], float):
                    raise
                assert error.args[0] < 1, error
                late += 1
    assert late <= 2, late


def a_bitmap_under_way_is_completed_and_not_printed():
    """The filter's own: the rest of the bitmap comes after the signal."""
    for size in 2000, 200000:
        stream = labels(2, size=size)
        middle = stream.index(b'BITMAP') + size // 2
        job = Run(stream, feed=lambda: None)
        job.process.stdin.write(stream[:middle])
        job.process.stdin.flush()
        wait_for(lambda: len(job.printer.stream) == middle)
        job.process.send_signal(signal.SIGTERM)
        time.sleep(0.5)
        assert job.process.poll() is None, 'it waits for the rest of the bitmap'
        told = time.monotonic()
        try:
            job.process.stdin.write(stream[middle:])
            job.process.stdin.close()
        except BrokenPipeError:
            pass
        assert_cancelled(job, told)
        assert len(job.printer.started) == 1 and job.printer.labels == []


def a_filter_that_ends_within_a_bitmap_is_not_waited_for():
    for size, is_cancelled in (2000, True), (200000, True), (200000, False):
        stream = labels(1, size=size)[:-size // 3]
        job = Run(stream, feed=lambda: None)
        job.process.stdin.write(stream)
        job.process.stdin.flush()
        wait_for(lambda: len(job.printer.stream) == len(stream))
        told = time.monotonic()
        if is_cancelled:
            job.process.send_signal(signal.SIGTERM)
        job.process.stdin.close()
        job.finish(5)
        assert job.ended - told < AT_ONCE and bytes(job.printer.stream) == stream


def signals_that_come_twice_change_nothing():
    job = Run(labels(3), For(NO_LABELS, 8))
    wait_for(lambda: job.reasons())
    for _ in range(5):
        told = cancel(job, 0)
    assert_cancelled(job, told)
    assert job.reasons() == ['media-empty-error']


def a_cancel_while_the_first_answer_is_awaited_sends_no_label():
    job = Run(labels(3), Mute())
    wait_for(lambda: job.printer.questions)
    assert_cancelled(job, cancel(job, 0.3))
    assert job.printer.labels == [] and job.printer.started == {}


def a_cancel_in_a_pipe_that_nobody_reads_ends_when_it_is_read():
    """The printer's buffers are full: the bitmap's rest waits for them, and nothing else."""
    job = Run(labels(2, size=300000), start_printer=False)
    os.write(job.answering, b'\0')
    job.printer.behaviour = Slow(200000)
    job.printer_thread.start()
    wait_for(lambda: job.printer.started)
    told = cancel(job, 0)
    assert_cancelled(job, told)
    assert job.printer.labels == []


def a_printer_that_goes_away_fails_the_job_and_leaves_no_reason():
    for behaviour in (Closing(question=1), Closing(labels=1), Closing(question=3, status=NO_LABELS),
                      Closing(question=1, status=HEAD_OPEN), Closing(labels=2)):
        job = run(labels(40, size=90000 if behaviour.labels else 9000), behaviour)
        assert job.status == 1, (job.status, job.said())
        assert job.errors(), job.said()
        assert job.sent.startswith(bytes(job.printer.stream + job.printer.reader.rest))
        assert job.took < 12, job.took


def a_printer_that_goes_away_while_labels_are_missing_is_noticed_soon():
    job = Run(labels(3), For(NO_LABELS, 30), start_printer=False)
    job.printer_thread.start()
    wait_for(lambda: job.reasons())
    job.printer.hung_up = True
    told = time.monotonic()
    job.finish(20)
    assert job.status == 1 and job.errors(), (job.status, job.said())
    assert job.ended - told < 2, job.ended - told


def a_printer_that_was_never_there_fails_the_job():
    job = Run(labels(3), start_printer=False)
    os.close(job.taking)
    job.close_answers()
    job.finish(12)
    assert job.status == 1 and len(job.errors()) == 1, (job.status, job.said())
    assert job.took < 2, job.took


def nobody_reads_the_lines():
    """Standard error is closed by its reader: the job is printed all the same, or ends."""
    job = Run(labels(3), For(NO_LABELS, 0.8))
    job.process.stderr.close()
    for thread in job.threads:
        thread.join(20)
    job.printer_thread.join(20)
    assert job.process.returncode in (0, 1), job.process.returncode
    assert not job.printer.faults
    if job.process.returncode == 0:
        assert bytes(job.printer.stream) == job.sent
