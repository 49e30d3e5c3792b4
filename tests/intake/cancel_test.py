"""SIGTERM at every moment: the stream stays well-formed, nothing is printed after it, nothing is
left behind, and the status is 0."""
import fcntl
import os
import random
import resource
import signal
import subprocess
import time

import intake_run
from intake_run import FOLDER, PREVIEWER, Run, script, server_bin, sizes
import test_documents

PHASES = ('picturetokestolabel', 'pdftopdf', 'gstoraster')


def wait_for(what, seconds=20):
    until = time.monotonic() + seconds
    while not what():
        assert time.monotonic() < until, 'it does not come'
        time.sleep(0.005)


def assert_well_formed(stream):
    done = subprocess.run([PREVIEWER, '--check'], input=stream, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)
    assert done.returncode == 0, done.stdout.decode()


def assert_cancelled(job, seconds=20):
    job.finish(timeout=seconds)
    assert job.status == 0, (job.status, job.lines)
    assert not job.error_lines(), job.lines
    job.assert_nothing_left()


def hanging(text=''):
    """(script, file) of a program that writes its file, and hangs with a child of its own."""
    reached = f'{FOLDER}/reached-{random.random()}'
    return script(f'#!/bin/sh\n{text}\n: >"$TMPDIR/left"; sleep 1000 & echo >{reached}\nwait\n'
                  'sleep 1000\n'), reached


def in_phase(name, text='', **more):
    program, reached = hanging(text)
    document = (test_documents.png(300, 400) if name == 'picturetokestolabel'
                else test_documents.PDF)
    job = Run(document, bin_folder=server_bin(**{name: program}), **more)
    wait_for(lambda: os.path.exists(reached))
    return job


def the_program_alone_is_told():
    for name in PHASES:
        job = in_phase(name)
        job.process.send_signal(signal.SIGTERM)
        assert_cancelled(job)
        assert job.stream == b''


def its_whole_group_is_told():
    for name in PHASES:
        job = in_phase(name, start_new_session=True)
        os.killpg(job.process.pid, signal.SIGTERM)
        assert_cancelled(job)


def other_signals_cancel_too():
    for number in signal.SIGINT, signal.SIGHUP:
        job = in_phase('pdftopdf')
        job.process.send_signal(number)
        assert_cancelled(job)


def a_starter_may_have_blocked_the_signal():
    def block():
        signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGTERM])
    job = in_phase('gstoraster', preexec_fn=block)
    job.process.send_signal(signal.SIGTERM)
    assert_cancelled(job)


def programs_that_ignore_it_are_killed():
    for name in PHASES:
        job = in_phase(name, "trap '' TERM")
        start = time.monotonic()
        job.process.send_signal(signal.SIGTERM)
        assert_cancelled(job)
        assert 2 < time.monotonic() - start < 10


def while_the_document_is_read():
    job = Run(None, stdin=subprocess.PIPE)
    job.process.stdin.write(b'%PDF-1.4\n')
    job.process.stdin.flush()
    wait_for(lambda: any(os.path.exists(f'{job.temporary}/{name}/document')
                         for name in os.listdir(job.temporary)))
    job.process.send_signal(signal.SIGTERM)
    job.process.wait(10)
    job.process.stdin.close()
    job.process.stdin = None
    assert_cancelled(job)


def while_a_document_without_end_is_read():
    """There is always something to read, which must not keep the signal waiting."""
    limit = 1 << 29
    with open('/dev/zero', 'rb') as endless:
        job = Run(None, stdin=endless, preexec_fn=lambda: resource.setrlimit(
            resource.RLIMIT_FSIZE, (limit, limit)))
        wait_for(lambda: os.listdir(job.temporary))
        job.process.send_signal(signal.SIGTERM)
        assert_cancelled(job)


def printing():
    """A job whose filter is in the middle of a bitmap, as nobody reads; it has three pages."""
    job = Run(test_documents.THREE_PAGES)
    output = job.process.stdout.fileno()
    full = fcntl.fcntl(output, fcntl.F_GETPIPE_SZ)

    def is_full():
        return int.from_bytes(fcntl.ioctl(output, 0x541B, bytes(4)), 'little') == full  # FIONREAD
    wait_for(is_full)
    return job


def the_bitmap_under_way_is_sent_to_its_end_and_not_printed():
    for count in 1, 2, 5:
        job = printing()
        for _ in range(count):
            job.process.send_signal(signal.SIGTERM)
            time.sleep(0.05)
        time.sleep(0.2)
        assert job.process.poll() is None, 'it waits for the printer'
        assert_cancelled(job)
        assert_well_formed(job.stream)
        assert job.stream.count(b'BITMAP') == 1 and b'PRINT' not in job.stream


def a_slow_printer_gets_the_time_it_needs():
    """The filter is not killed with the converters."""
    job = printing()
    job.process.send_signal(signal.SIGTERM)
    time.sleep(5)
    assert job.process.poll() is None
    assert_cancelled(job)
    assert_well_formed(job.stream)
    assert b'PRINT' not in job.stream


def a_printer_that_goes_away_ends_the_job():
    job = printing()
    job.process.stdout.close()
    job.process.stdout = None
    job.finish(timeout=20)
    assert job.status == 1 and job.error_lines(), (job.status, job.lines)
    job.assert_nothing_left()


def a_printer_that_was_never_there_ends_the_job():
    for name in PHASES:
        job = in_phase(name)
        job.process.stdout.close()
        job.process.stdout = None
        job.finish(timeout=20)
        assert job.status == 1 and "Nobody takes the printer's data" in job.own_error(), job.lines
        job.assert_nothing_left()


def a_raster_document_is_cancelled_too():
    job = Run(test_documents.raster('long', 800, 4000, 3, pages=3, level=255))
    time.sleep(0.3)
    job.process.send_signal(signal.SIGTERM)
    time.sleep(0.1)
    assert_cancelled(job)
    assert_well_formed(job.stream)
    assert b'PRINT' not in job.stream


def at_random_moments(document, seed):
    choice = random.Random(seed)
    whole = Run(document)
    start = time.monotonic()
    whole.finish()
    duration = time.monotonic() - start
    complete = sizes(whole.stream)
    for _ in range(10):
        job = Run(document)
        time.sleep(choice.uniform(0, 1.1 * duration))
        if job.process.poll() is None:
            job.process.send_signal(signal.SIGTERM)
        job.finish(timeout=20)
        # A signal before the program has taken it, and the time it takes to start.
        assert job.status in (0, -signal.SIGTERM), (job.status, job.lines)
        assert not job.error_lines(), job.lines
        assert_well_formed(job.stream)
        assert job.stream.count(b'PRINT') <= len(complete)
        job.assert_nothing_left()


def at_random_moments_of_a_pdf_job():
    at_random_moments(test_documents.THREE_PAGES, 1)


def at_random_moments_of_a_picture_job():
    at_random_moments(test_documents.png(1500, 2000), 2)
