#!/usr/bin/python3
"""Prints from clients of a shared queue that have no driver. Each function is a test, named in
CMakeLists.txt; it runs below private_cups --shared, with a sink that plays the printer."""
import os
import re
import subprocess
import sys

import documents
from cups_queue import FOLDER, HERE, add_queue, check, faults_of_jobs, received, run, wait
from expected_dots import expected_dots
from label_stream import pages_of

ADDRESS = os.environ.get('CUPS_SHARED', '')
MODELS = {'KSTL203': 15, 'KSTL203M': 26, 'KSTL300': 15, 'KSTL300M': 26, 'KSTS300': 4}


def write(name, content):
    path = f'{FOLDER}/{name}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


def small_documents():
    """A PDF, a PNG and a JPEG of a page that is taller than wide."""
    page = write('page.pdf', documents.pdf(['x'], 200, 300))
    for name, kind in (('png', '-png'), ('jpg', '-jpeg')):
        run('pdftoppm', '-r', '36', '-gray', '-singlefile', kind, page, f'{FOLDER}/picture')
    return [page, f'{FOLDER}/picture.png', f'{FOLDER}/picture.jpg']


def offered_sizes(ppd):
    """{name: (width, height) in mm} of a client's own description of the queue."""
    with open(ppd, encoding='utf-8') as file:
        found = re.findall(r'^\*PaperDimension ([^/:]+)[^:]*: "([\d.]+) ([\d.]+)"', file.read(), re.M)
    return {name: (float(width) * 25.4 / 72, float(height) * 25.4 / 72) for name, width, height in found}


def print_all(queue):
    """As the client: prints every document in every size that its description of the queue offers;
    says in which order."""
    for name, (width, height) in offered_sizes(f'{FOLDER}/etc/ppd/{queue}.ppd').items():
        for document in sys.argv[4:]:
            run('lp', '-d', queue, '-o', f'PageSize={name}', document)
            print(width, height, os.path.basename(document), name, flush=True)
    wait(timeout=300)


def client(setup, *arguments):
    """Runs `print_all` below a second scheduler, whose queue the command makes of the shared one."""
    folder = f'{FOLDER}/client-{setup}'
    script = ('set -e; uri=ipp://$1/printers/labels; '
              'if [ "$2" = everywhere ]; then lpadmin -p far -E -v "$uri" -m everywhere; '
              'else driverless "$uri" >"$PRIVATE_CUPS/far.ppd"; '
              'lpadmin -p far -E -v "$uri" -P "$PRIVATE_CUPS/far.ppd"; fi; '
              # Otherwise a second goes by after each job before the next one is sent.
              'lpadmin -p far -v "$uri?waitjob=false&waitprinter=false"; '
              'shift 2; exec python3 "$@"')
    done = subprocess.run(
        [f'{HERE}/private_cups', '--backend', 'ipp', folder, '--', 'bash', '-c', script, 'bash',
         ADDRESS, setup, __file__, '--as-client', 'print_all', 'far', *arguments],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    assert done.returncode == 0, done.stdout
    return [line.split(maxsplit=3) for line in done.stdout.splitlines() if re.match(r'[\d.]+ ', line)]


def every_size_comes_from_clients(model):
    dpi = int(model[4:7])
    add_queue('labels', model=model)
    run('lpadmin', '-p', 'labels', '-o', 'printer-is-shared=true')
    files = small_documents()
    before = 0
    for setup in ('everywhere', 'driverless'):
        jobs = client(setup, *files)
        assert len(jobs) == MODELS[model] * len(files), (setup, len(jobs))
        wait(timeout=300)
        streams = received('a', before + len(jobs))[before:]
        before += len(jobs)
        wrong = []
        for (width, height, document, name), stream in zip(jobs, streams):
            check(stream)
            (page,) = pages_of(stream)
            wanted = expected_dots(float(width), float(height), dpi)
            if (page.width, page.height) != wanted:
                wrong.append(f'{setup} {name} {document}: {page.width} x {page.height}, not {wanted}')
        print(f'{setup}: {len(jobs) - len(wrong)} of {len(jobs)} sizes right')
        assert not wrong, '\n'.join(wrong)


def main(name):
    every_size_comes_from_clients(name)
    faults = faults_of_jobs()
    assert not faults, ''.join(faults)


if __name__ == '__main__':
    if sys.argv[1] == '--as-client':
        print_all(sys.argv[3])
    else:
        main(sys.argv[1])
