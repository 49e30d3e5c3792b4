#!/usr/bin/python3
"""Prints pictures of every kind through the real scheduler, which is not told what they are: it sees
neither a type nor a suffix. Each function is a test, named in CMakeLists.txt; it runs below
private_cups, with two sinks that play printers."""
import os
import re
import subprocess
import sys

import picture_kinds
from cups_queue import FOLDER, HERE, add_queue, arrived, check, faults_in_log, received, run, send, wait
from label_stream import pages_of

OWN = ['documenttokestotspl']


def write(name, content):
    path = f'{FOLDER}/{re.sub("[^0-9a-zA-Z]", "-", name)}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


def log_lines(job):
    with open(f'{FOLDER}/log/error_log', encoding='utf-8', errors='replace') as log:
        return [line for line in log if f'[Job {job}] ' in line]


def filters_of(job):
    """The programs that the scheduler started in front of the backend."""
    found = (re.search(r'Started filter (\S+) ', line) for line in log_lines(job))
    return [os.path.basename(match[1]) for match in found if match]


def states_of(jobs):
    """How jobs have ended, for all of which it waits."""
    done = subprocess.run([f'{HERE}/private_cups', 'wait', '--timeout', '120', *map(str, jobs)],
                          stdout=subprocess.PIPE, text=True)
    return {int(job): state for job, state in re.findall(r'-(\d+) (\w+)$', done.stdout, re.M)}


def expect_way(jobs, filters, state):
    """Of jobs by their names: the programs that the scheduler starts for each, and how it ends."""
    states = states_of(jobs)
    wrong = [f'{name}: {filters_of(job)}, {states.get(job)}' for job, name in jobs.items()
             if (filters_of(job), states.get(job)) != (filters, state)]
    assert not wrong, '\n'.join(wrong)


def expect_top_left_quarter(page, top=9, height=1200):
    """The picture fills the label but for a margin, and its top left quarter is black."""
    left, above, right, below = page.ink_box()
    for found, wanted in ((left, 4), (above, top), (right, 404), (below, top + height // 2)):
        assert abs(found - wanted) <= 12, (left, above, right, below)
    assert 0.95 < page.burnt_share() * page.width * page.height / (404 * height / 2) < 1.05, page.burnt_share()


def pictures_of_every_kind_come_out_of_a_queue():
    add_queue('labels')
    wrong = []
    for name, content in picture_kinds.PRINTED.items():
        before = len(arrived('a'))
        # Its black is not quite black.
        options = ['-o', 'orientation-requested=3', '-o', 'HalftoneType=None'] if name == 'Photo CD' else []
        job = send('labels', write(name, content), *options)
        try:
            wait(job)
            stream = received('a', before + 1)[-1]
            check(stream)
            (page,) = pages_of(stream)
            assert filters_of(job) == OWN, filters_of(job)
            assert (page.width, page.height) == (808, 1218)
            expect_top_left_quarter(page, *(339, 539) if name == 'Photo CD' else ())
        except AssertionError as fault:
            wrong.append(f'{name}: {fault}\n' + ''.join(log_lines(job)[-12:]))
    assert not wrong, f'{len(wrong)} kinds:\n' + '\n'.join(wrong)


def pictures_that_cannot_be_printed_send_nothing():
    add_queue('labels')
    jobs = {send('labels', write(name, content)): name for name, content in picture_kinds.REFUSED.items()}
    expect_way(jobs, OWN, 'stopped')
    refusals = {name: [line for line in log_lines(job) if line[0] == 'E'] for job, name in jobs.items()}
    assert all(refusals.values()), refusals
    assert not any(arrived('a')), 'something was sent'
    return [line for lines in refusals.values() for line in lines]


def texts_are_still_texts():
    add_queue('labels')
    jobs = {send('labels', write(name, content)): name for name, content in picture_kinds.TEXTS.items()}
    expect_way(jobs, ['texttopdf'] + OWN, 'completed')


def other_queues_get_pictures_in_text_as_text():
    """What the scheduler would do for a queue of another driver, by its kinds of documents."""
    run('lpadmin', '-p', 'other', '-E', '-v', os.environ['SINK_b'], '-m', 'drv:///sample.drv/dymo.ppd')
    kinds = dict(picture_kinds.PRINTED, **picture_kinds.REFUSED)
    for name in ('XBM', 'XPM', 'SVG', 'XPM 2', 'FITS'):
        job = send('other', write(name, kinds[name]))
        wait(job)
        assert filters_of(job)[0] == 'texttopdf', (name, filters_of(job))


def main(name):
    expected = globals()[name]() or []
    faults = [line for line in faults_in_log() if line not in expected]
    assert not faults, ''.join(faults)


if __name__ == '__main__':
    main(sys.argv[1])
