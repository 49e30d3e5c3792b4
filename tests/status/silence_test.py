"""Printers that do not answer: what they cost, and for how long that is remembered."""
import os
import time

from fake_printer import NO_LABELS, For, Mute, MuteAfter, Ready, Slow
from label_streams import labels
from monitor_run import FOLDER, SLACK, Run, all_printed, printed, run

WAIT, PATIENCE = 1.5, 10                 # seconds: for the first answer, for any later one


def memory_of(job):
    """The files that a job left in the scheduler's folders."""
    return [os.path.join(folder, name) for folder, _, names in os.walk(job.state) for name in names]


def a_mute_printer_costs_a_second_and_a_half_once_a_day():
    first = printed(labels(3), Mute())
    assert WAIT <= first.took < WAIT + SLACK, first.took
    assert len(first.printer.questions) == 1, first.printer.questions
    assert first.reasons() == [] and first.errors() == [], first.said()
    for _ in range(2):
        again = printed(labels(3), Mute(), state=first.state)
        assert again.took < SLACK, again.took
        assert len(again.printer.questions) <= 1, again.printer.questions


def the_memory_is_a_small_file_of_the_spoolers_user():
    job = printed(labels(1), Mute())
    [file] = memory_of(job)
    assert os.stat(file).st_mode & 0o777 == 0o600, oct(os.stat(file).st_mode)
    assert os.stat(file).st_size < 4096


def a_printer_that_answers_leaves_no_memory():
    assert memory_of(printed(labels(1))) == []


def each_queue_and_each_device_is_remembered_on_its_own():
    first = printed(labels(1), Mute(), queue='left')
    others = all_printed([Run(labels(1), Mute(), queue='right', state=first.state),
                          Run(labels(1), Mute(), queue='left', uri='usb://Kesto/1', state=first.state)])
    assert all(job.took >= WAIT for job in others)


def names_of_queues_do_not_lead_out_of_the_folder():
    jobs = []
    for number, queue in enumerate(('../../escape', '/escape', '.', '..', 'a' * 300, 'büro etikett')):
        state = f'{FOLDER}/deep{number}/er'
        os.makedirs(state)
        jobs.append(Run(labels(1), Mute(), queue=queue, state=state))
    for job in all_printed(jobs):
        outside = [name for name in os.listdir(os.path.dirname(job.state)) if name != 'er']
        assert outside == [] and not os.path.exists(f'{FOLDER}/escape'), outside


def a_day_later_it_is_asked_again():
    first = printed(labels(1), Mute())
    [file] = memory_of(first)
    before = time.time() - 25 * 3600
    os.utime(file, (before, before))
    again = printed(labels(1), Mute(), state=first.state)
    assert WAIT <= again.took < WAIT + SLACK, again.took
    assert printed(labels(1), Mute(), state=first.state).took < SLACK


def a_time_in_the_future_is_no_memory():
    first = printed(labels(1), Mute())
    [file] = memory_of(first)
    later = time.time() + 40 * 24 * 3600
    os.utime(file, (later, later))
    assert printed(labels(1), Mute(), state=first.state).took >= WAIT


def a_fresh_answer_clears_the_memory():
    first = printed(labels(1), Mute())
    job = Run(labels(3), Ready(), state=first.state, feed=lambda: None)
    time.sleep(0.3)                      # which the filters before it need at the very least
    job.feed()
    job.finish().assert_printed()
    again = printed(labels(1), Mute(), state=first.state)
    assert again.took >= WAIT, again.took


def a_folder_that_cannot_be_written_to_costs_the_wait_and_nothing_else():
    for _ in range(2):
        job = printed(labels(1), Mute(), variables={name: '/nonexistent' for name in (
            'CUPS_CACHEDIR', 'CUPS_STATEDIR', 'CUPS_SPOOLDIR', 'CUPS_REQUESTROOT', 'TMPDIR')})
        assert WAIT <= job.took < WAIT + SLACK, job.took


def a_link_in_the_place_of_the_memory_is_not_followed():
    first = printed(labels(1), Mute())
    [file] = memory_of(first)
    victim = f'{FOLDER}/victim'
    with open(victim, 'w') as target:
        target.write('precious')
    os.unlink(file)
    os.symlink(victim, file)
    printed(labels(1), Mute(), state=first.state)
    with open(victim) as target:
        assert target.read() == 'precious'


def a_printer_that_stops_answering_holds_the_job_for_ten_seconds_at_most():
    job = printed(labels(3), Mute(label=2))
    assert job.took < PATIENCE + 1, job.took
    assert job.reasons() == [], job.said()
    assert len([line for line in job.said() if line.startswith(('INFO', 'ERROR', 'WARNING'))]) == 1, job.said()
    # It has answered today: the next job asks it again.
    assert memory_of(job) == []


def a_printer_that_falls_silent_without_labels_fails_the_job():
    """What it has taken is not known, so it must not be called printed."""
    job = run(labels(3), MuteAfter(NO_LABELS))
    assert job.status == 1, job.status
    assert job.took < PATIENCE + 2, job.took
    assert job.reasons() == ['media-empty-error'] and len(job.errors()) >= 2, job.said()
    assert job.sent.startswith(bytes(job.printer.stream))


def an_error_that_stands_long_is_waited_for():
    """Longer than the patience with silence: somebody has to fetch labels."""
    job = Run(labels(2), For(NO_LABELS, seconds=12))
    time.sleep(11)
    assert job.processor_time() < 0.2, job.processor_time()
    job.finish().assert_printed()
    assert job.ended > job.printer.all_clear(), job.took
    assert job.reasons() == ['media-empty-error'], job.said()


def a_printer_that_is_not_there_yet_is_not_mute():
    """It is switched off, and the backend, which keeps trying, has not taken the question."""
    job = Run(labels(3), start_printer=False)
    time.sleep(3)
    assert job.process.poll() is None and job.said() == [], job.said()
    job.printer_thread.start()
    job.finish().assert_printed()
    assert job.said() == [] and memory_of(job) == []
    assert len(job.printer.questions) >= 4


def no_line_for_answers_is_a_mute_printer():
    for answers in '3<&-', '3</dev/null':
        job = Run(labels(3), answers=answers)
        job.finish().assert_printed()
        assert job.took < WAIT + SLACK and job.reasons() == [], (answers, job.took)


def a_line_for_answers_that_ends_is_not_asked_again_and_again():
    """The backend has closed it, and the printer takes its time."""
    job = Run(labels(3, size=2000), Slow(rate=100000), start_printer=False, feed=lambda: None)
    job.close_answers()
    job.process.stdin.write(job.sent[:500])
    job.process.stdin.flush()
    time.sleep(3)
    assert job.processor_time() < 0.2, job.processor_time()
    job.close_answers = lambda: None
    job.printer.say = lambda said: None
    job.printer_thread.start()
    job.process.stdin.write(job.sent[500:])
    job.process.stdin.close()
    job.finish().assert_printed()
