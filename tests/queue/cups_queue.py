"""Queues of the private scheduler that CUPS_SERVER and PRIVATE_CUPS name."""
import glob
import os
import re
import subprocess
import time

FOLDER = os.environ['PRIVATE_CUPS']
HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))


def run(*command, **options):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    assert done.returncode == 0, f'{command}: {done.stdout.decode(errors="replace")}'
    return done.stdout.decode(errors='replace')


def add_queue(name, model='KSTL203', sink='a', device=None):
    """A queue for one of the sinks that the scheduler was started with, or another device."""
    run('lpadmin', '-p', name, '-E', '-v', device or os.environ[f'SINK_{sink}'],
        '-m', f'drv:///kesto-tspl.drv/{model}.PPD')


def send(queue, document, *options):
    """Prints a document; the job's number."""
    output = run('lp', '-d', queue, *options, document)
    return int(re.search(r'-(\d+) \(', output)[1])


def wait(*jobs, timeout=60):
    """Waits for jobs, which must all end as completed."""
    run(f'{HERE}/private_cups', 'wait', '--timeout', str(timeout), *map(str, jobs))


def received(sink, count, timeout=10):
    """What a sink has got, a stream for each job in the order of their coming."""
    until = time.monotonic() + timeout
    while True:
        names = sorted(glob.glob(f'{FOLDER}/sinks/{sink}/*.prn'))
        if len(names) >= count or time.monotonic() > until:
            break
        time.sleep(0.02)
    assert len(names) == count, f'{len(names)} connections, not {count}'
    return arrived(sink)


def arrived(sink):
    """All that a sink has got by now."""
    streams = []
    for name in sorted(glob.glob(f'{FOLDER}/sinks/{sink}/*.prn')):
        with open(name, 'rb') as file:
            streams.append(file.read())
    return streams


def print_one(queue, document, *options, sink='a', before=0):
    """Prints a document alone; its stream, checked by the previewer."""
    wait(send(queue, document, *options))
    stream = received(sink, before + 1)[-1]
    check(stream)
    return stream


def check(stream):
    check_cut(stream)
    assert stream.startswith(b'\n' * 64)


def check_cut(stream):
    """Of a stream that may end early: what is there is in order, and no bitmap is cut."""
    done = subprocess.run([os.environ['TSPLPREVIEW'], '--check'], input=stream,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert done.returncode == 0, done.stdout.decode()


def codes_on(stream):
    """The codes that can be read from the first label's picture."""
    subprocess.run([os.environ['TSPLPREVIEW'], '-o', f'{FOLDER}/label'], input=stream, check=True,
                   stdout=subprocess.DEVNULL)
    read = run('zbarimg', '--quiet', '--nodbus', f'{FOLDER}/label-1.png')
    return sorted(read.split())


def faults_in_log():
    """The lines of level error and above in the scheduler's log."""
    with open(f'{FOLDER}/log/error_log', encoding='utf-8', errors='replace') as log:
        return [line for line in log if line[0] in 'ECAX']


def faults_of_jobs():
    """The same without those of connections: clients leave theirs whenever they like."""
    return [line for line in faults_in_log() if '[Job ' in line]
