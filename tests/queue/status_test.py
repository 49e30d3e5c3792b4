#!/usr/bin/python3
"""Prints through the real scheduler and its socket backend to a printer that answers. Each function is
a test, named in CMakeLists.txt; it runs below private_cups."""
import os
import random
import re
import subprocess
import sys
import threading
import time

import documents
from cups_queue import FOLDER, HERE, ROOT, add_queue, check, faults_of_jobs, received, run, send, wait

sys.path.insert(0, f'{ROOT}/tests/support')
from any_printer import any_job
from fake_printer import (COVER_OPEN, HEAD_OPEN, JAM, NO_LABELS, NO_RIBBON, OTHER, PAUSED, Closing, FakePrinter,
                          For, Mute, Printing, Ready, Slow)
from label_streams import labels

URI = f'ipp://{os.environ["CUPS_SHARED"]}/'
MODELS = 'KSTL203 KSTL203M KSTL300 KSTL300M KSTS300'.split()


def three_labels():
    path = f'{FOLDER}/three.pdf'
    with open(path, 'wb') as file:
        file.write(documents.pdf(['one', 'two', 'three']))
    return path


def queue_for(printer, name='labels', asks=True):
    add_queue(name, device=f'socket://127.0.0.1:{printer.port}/?snmp=false')
    if asks:
        run('lpadmin', '-p', name, '-o', 'port-monitor=tsplstatus')


def asked(test, *names, **values):
    """Attributes of the scheduler's answer, in order."""
    defined = [word for name, value in values.items() for word in ('-d', f'{name}={value}')]
    text = run('ipptool', '-tv', *defined, f'{URI}printers/{values.pop("queue", "labels")}', f'{HERE}/ipp/{test}.test')
    return [re.search(rf'^\s*{name} \([^)]*\) = (.*)$', text, re.M)[1] for name in names]


def reasons(queue='labels'):
    return asked('printer-state', 'printer-state-reasons', queue=queue)[0]


def printer_state(queue='labels'):
    return asked('printer-state', 'printer-state', queue=queue)[0]


def job_state(job):
    return asked('job-state', 'job-state', job=job)[0]


def seen(what, wanted, seconds=20):
    """Waits until something is as wanted."""
    until = time.monotonic() + seconds
    while (last := what()) != wanted:
        assert time.monotonic() < until, (last, wanted)
        time.sleep(0.02)


def plain_stream(document):
    """What the document's job is without questions."""
    add_queue('plain')
    wait(send('plain', document))
    return received('a', 1)[0]


def expect_labels(printer, stream, count=3):
    printer.finish()
    assert bytes(printer.stream) == stream, (len(printer.stream), len(stream))
    assert printer.count() == count and printer.connections == 1
    check(bytes(printer.stream))


def plain_queues_do_not_ask():
    for model in MODELS:
        add_queue(model, model=model)
        monitor, offered = asked('printer-state', 'port-monitor', 'port-monitor-supported', queue=model)
        assert monitor == 'none' and offered.split(',') == ['none', 'tsplstatus'], (model, monitor, offered)
    document = three_labels()
    with FakePrinter(For(NO_LABELS)) as printer:
        queue_for(printer, asks=False)
        wait(send('labels', document))
        expect_labels(printer, plain_stream(document))
        assert printer.questions == []
    with open(f'{FOLDER}/log/error_log', encoding='utf-8', errors='replace') as log:
        assert 'monitor/tsplstatus' not in log.read()


def an_option_switches_the_questions_on_and_off():
    document = three_labels()
    for option, asks in (('tsplstatus', True), ('none', False)):
        with FakePrinter() as printer:
            queue_for(printer)
            run('lpadmin', '-p', 'labels', '-o', f'port-monitor={option}')
            # The attribute port-monitor is the one of the time at which the description was read.
            with open(f'{FOLDER}/etc/printers.conf', encoding='utf-8') as file:
                assert ('\nPortMonitor tsplstatus\n' in file.read()) == asks
            wait(send('labels', document))
            printer.finish()
            assert bool(printer.questions) == asks and printer.count() == 3


def a_new_description_leaves_the_questions_on():
    """As an update of the package gives it to every queue."""
    with FakePrinter() as printer:
        queue_for(printer)
        run('lpadmin', '-p', 'labels', '-m', 'drv:///kesto-tspl.drv/KSTL203M.PPD')
        wait(send('labels', three_labels()))
        printer.finish()
        assert printer.questions and printer.count() == 3


def out_of_labels_is_seen_and_goes():
    document = three_labels()
    stream = plain_stream(document)
    with FakePrinter(For(NO_LABELS)) as printer:
        queue_for(printer)
        assert reasons() == 'none'
        job = send('labels', document)
        seen(reasons, 'media-empty-error')
        assert job_state(job) == 'processing' and printer.labels == []
        alerts = re.search('Alerts: (.*)', run('lpstat', '-l', '-p', 'labels'))
        assert alerts and alerts[1] == 'media-empty-error', alerts
        printer.behaviour.end()
        seen(reasons, 'none')
        wait(job)
        expect_labels(printer, stream)
        assert printer.started[1] > printer.all_clear()
    assert reasons() == 'none' and printer_state() == 'idle'
    return faults_of_jobs()              # the line in words


def a_second_job_waits_for_the_first():
    """Also behind a pause, which the scheduler takes for one of the queue."""
    document = three_labels()
    for bit in NO_LABELS, PAUSED:
        with FakePrinter(For(bit)) as printer:
            queue_for(printer)
            jobs = [send('labels', document) for _ in range(2)]
            seen(lambda: reasons() != 'none', True)
            assert printer.connections == 1 and job_state(jobs[1]) == 'pending'
            printer.behaviour.end()
            wait(*jobs)
            assert printer.count() == 6 and printer.connections == 2 and not printer.faults
    return faults_of_jobs()


def documents_of_a_job_come_one_after_the_other():
    """Each is passed on by a process of its own, to the same connection."""
    document = three_labels()
    stream = plain_stream(document)
    for behaviour in Ready(), For(HEAD_OPEN, 1, label=5):
        with FakePrinter(behaviour) as printer:
            queue_for(printer)
            output = run('lp', '-d', 'labels', document, document)
            wait(re.search(r'-(\d+) \(', output)[1])
            expect_labels(printer, stream * 2, 6)
        assert reasons() == 'none'
    return faults_of_jobs()


def each_error_is_seen_and_goes():
    document = three_labels()
    stream = plain_stream(document)
    for bit, reason in ((HEAD_OPEN, 'cover-open-error'), (COVER_OPEN, 'cover-open-error'), (JAM, 'media-jam-error'),
                        (NO_RIBBON, 'marker-supply-empty-error'), (OTHER, 'other-error')):
        with FakePrinter(For(bit)) as printer:
            queue_for(printer)
            job = send('labels', document)
            seen(reasons, reason)
            assert job_state(job) == 'processing'
            printer.behaviour.end()
            wait(job)
            expect_labels(printer, stream)
        assert reasons() == 'none' and printer_state() == 'idle', bit
    return faults_of_jobs()


def a_pause_at_the_printer_does_not_stop_the_queue():
    document = three_labels()
    stream = plain_stream(document)
    for behaviour in For(PAUSED), For(PAUSED, label=3), Ready():
        with FakePrinter(behaviour) as printer:
            queue_for(printer)
            job = send('labels', document)
            if not isinstance(behaviour, For):
                wait(job)
            else:
                seen(reasons, 'paused')
                assert job_state(job) == 'processing', job_state(job)
                behaviour.end()
                seen(reasons, 'none')
                wait(job)
            expect_labels(printer, stream)
        assert reasons() == 'none' and printer_state() == 'idle', (reasons(), printer_state())
    return faults_of_jobs()


def a_head_that_opens_costs_no_label():
    document = three_labels()
    stream = plain_stream(document)
    with FakePrinter(For(HEAD_OPEN, label=2)) as printer:
        queue_for(printer)
        job = send('labels', document)
        seen(reasons, 'cover-open-error')
        assert len(printer.labels) == 2 and job_state(job) == 'processing'
        printer.behaviour.end()
        wait(job)
        expect_labels(printer, stream)
        assert printer.started[3] > printer.all_clear()
    assert reasons() == 'none'
    return faults_of_jobs()


def commands_of_ones_own_are_sent_as_often_as_asked_for():
    """A file of TSPL without any filter: as often as a queue sends it that does not ask."""
    file = f'{ROOT}/tests/golden/label.tspl'
    with open(file, 'rb') as content:
        stream = content.read()
    for copies in 1, 2:
        for asks in False, True:
            with FakePrinter() as printer:
                queue_for(printer, asks=asks)
                run('lpadmin', '-p', 'labels', '-o', f'port-monitor={"tsplstatus" if asks else "none"}')
                wait(send('labels', file, '-o', 'raw', '-n', str(copies)))
                printer.finish()
                assert bytes(printer.stream) == stream * copies, (asks, copies, len(printer.stream), len(stream))
                assert bool(printer.questions) == asks


def a_job_is_completed_when_it_is_printed():
    document = three_labels()
    for behaviour in Printing(), For(NO_LABELS, label=3):
        with FakePrinter(behaviour) as printer:
            queue_for(printer)
            job = send('labels', document)
            seen(lambda: len(printer.labels), 3)
            assert job_state(job) == 'processing'
            if isinstance(behaviour, For):
                behaviour.end()
            seen(lambda: job_state(job), 'completed')
            done = time.monotonic()
            printer.finish()
            assert printer.answers[-1][1] == b'\0' and done > printer.answers[-1][0]
    return faults_of_jobs()


def a_cancelled_job_leaves_no_reason():
    document = three_labels()
    for bit, label in ((NO_LABELS, 1), (HEAD_OPEN, 2), (PAUSED, 1)):
        with FakePrinter(For(bit, label=label)) as printer:
            queue_for(printer)
            job = send('labels', document)
            seen(lambda: reasons() != 'none', True)
            run('cancel', str(job))
            seen(reasons, 'none', 3)
            seen(lambda: job_state(job), 'canceled', 3)
            printer.finish()
            assert printer.count() == (0 if label == 1 else label)
        with FakePrinter() as printer:
            queue_for(printer)
            wait(send('labels', document))
            printer.finish()
            assert printer.count() == 3
        assert printer_state() == 'idle'
    return faults_of_jobs()


def a_printer_that_goes_away_leaves_no_reason():
    document = three_labels()
    for behaviour in Closing(question=3, status=NO_LABELS), Closing(labels=1):
        with FakePrinter(behaviour) as printer:
            queue_for(printer)
            job = send('labels', document)
            seen(lambda: job_state(job) in ('aborted', 'stopped', 'canceled'), True, 30)
            printer.finish()
        seen(reasons, 'none', 3)
    run('cancel', '-a')
    with FakePrinter() as printer:
        queue_for(printer)
        run('cupsenable', 'labels')
        wait(send('labels', document))
        printer.finish()
        assert printer.count() == 3
    return faults_of_jobs()


def a_mute_printer_costs_its_wait_once():
    document = three_labels()
    with FakePrinter(Mute()) as printer:
        queue_for(printer)
        waits = []
        for _ in range(2):
            printer.started.clear()
            printer.asked_first = None
            wait(send('labels', document))
            # From the job's first byte to its first label.
            waits.append(printer.started[1] - printer.asked_first if printer.asked_first else 0)
        assert waits[0] > 1.4, waits
        assert waits[1] < 1, waits
        assert reasons() == 'none' and printer.count() == 6 and not printer.faults


def in_queues(job, jobs, queues):
    """Does job(number, queue) for so many jobs, in some queues beside each other; lists what it gave."""
    numbers, given, failures = list(range(jobs)), [], []

    def work(queue):
        while numbers and not failures:
            try:
                given.append(job(numbers.pop(), queue))
            except (AssertionError, OSError, subprocess.SubprocessError) as error:
                failures.append(error)
    workers = [threading.Thread(target=work, args=[f'labels{i}']) for i in range(queues)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    assert not failures, failures
    return given


def written(number, stream):
    path = f'{FOLDER}/{number}.prn'
    with open(path, 'wb') as file:
        file.write(stream)
    return path


def no_label_is_lost_or_doubled_in_200_jobs():
    printers = {}

    def job(number, queue):
        stream, count, behaviour = any_job(random.Random(number))
        if queue not in printers:
            printers[queue] = FakePrinter()
            printers[queue].listen()
            queue_for(printers[queue], queue)
        printer = printers[queue]
        printer.restart(behaviour)
        sent = send(queue, written(number, stream), '-o', 'raw')
        printer.finish(60).assert_labels(count)
        assert bytes(printer.stream) == stream and printer.connections == 1 and printer.questions, number
        return sent
    wait(*in_queues(job, 200, queues=10))
    for queue, printer in printers.items():
        printer.__exit__()
        assert reasons(queue) == 'none' and printer_state(queue) == 'idle', queue
    return faults_of_jobs()


def jobs_cancelled_at_50_moments_leave_nothing():
    """From before the first filter to behind the last label, with and without errors; documents that
    pass through the filters, and streams of large bitmaps."""
    document = three_labels()

    def job(number, queue):
        dice = random.Random(number)
        behaviour = [Ready(), For(NO_LABELS, 0.7), Slow(400000), For(HEAD_OPEN, 5, label=2)][number % 4]
        what = [document] if number % 3 == 0 else [written(number, labels(4, 80000, dice)), '-o', 'raw']
        with FakePrinter(behaviour) as printer:
            queue_for(printer, queue)
            sent = send(queue, *what)
            time.sleep(dice.uniform(0, 1.5))
            subprocess.run(['cancel', str(sent)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            seen(lambda: job_state(sent) in ('canceled', 'completed'), True, 10)
            seen(lambda: reasons(queue), 'none', 3)
            if printer.connections:
                printer.finish()
                assert printer.reader.is_between() or printer.reader.after_data, bytes(printer.reader.rest[-40:])
                assert len(printer.started) - len(printer.labels) in (0, 1)
    in_queues(job, 50, queues=5)
    return faults_of_jobs()


def main(name):
    expected = globals()[name]() or []
    faults = [line for line in faults_of_jobs() if line not in expected]
    assert not faults, ''.join(faults)


if __name__ == '__main__':
    main(sys.argv[1])
