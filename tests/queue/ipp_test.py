#!/usr/bin/python3
"""Prints by IPP, as clients do that ask for a size by name or by its dimensions. Each function is a
test, named in CMakeLists.txt; it runs below private_cups --shared, with a sink."""
import os
import re
import shutil
import subprocess
import sys

import documents
from cups_queue import FOLDER, HERE, add_queue, check, faults_of_jobs, received, run, wait
from expected_dots import expected_dots
from label_stream import pages_of

URI = f'ipp://{os.environ["CUPS_SHARED"]}/printers/'
UPRIGHT, LANDSCAPE = 3, 4
# What clients send. PWG and Apple raster come from Ghostscript, 203 dpi, 8 bit grey.
KINDS = {'pdf': 'application/pdf', 'jpg': 'image/jpeg', 'png': 'image/png',
         'pwg': 'image/pwg-raster', 'urf': 'image/urf'}
RASTER = ('-dcupsColorSpace=18', '-dcupsBitsPerColor=8', '-dcupsColorOrder=0', '-dFIXEDMEDIA',
          '-dDEVICEWIDTHPOINTS=200', '-dDEVICEHEIGHTPOINTS=300')

# (request, the label's size in mm): what is asked for by name or by hundredths of a millimetre.
# Upright and turned sizes of the millimetre model, sizes of one's own, and ones too large for it.
DEFAULT = (100, 150)
REQUESTS = {
    'na_index-4x6_4x6in': (101.6, 152.4),
    '60x40mm': (60, 40),
    'custom_60x40mm_60x40mm': (60, 40),
    'custom_40x60mm_40x60mm': (60, 40),
    'om_small-photo_100x150mm': DEFAULT,
    'custom_73x41mm_73x41mm': (73, 41),
    'Custom.73x41mm': (73, 41),
    'custom_2x7in_2x7in': (50.8, 177.8),
    'iso_a4_210x297mm': DEFAULT,
    'nonsense': DEFAULT,
    (10000, 5000): (100, 50),
    (5080, 2540): (50, 25),
    (3000, 5000): (50, 30),
    (7300, 4100): (73, 41),
    (1500, 9000): (15, 90),
    (21000, 29700): DEFAULT,
}


def make_documents():
    page = f'{FOLDER}/page.pdf'
    with open(page, 'wb') as file:
        file.write(documents.pdf(['x'], 200, 300))
    run('pdftoppm', '-r', '36', '-gray', '-singlefile', '-png', page, f'{FOLDER}/page')
    run('pdftoppm', '-r', '36', '-gray', '-singlefile', '-jpeg', page, f'{FOLDER}/page')
    for kind, device in (('pwg', 'pwgraster'), ('urf', 'urf')):
        run('gs', '-q', '-dBATCH', '-dNOPAUSE', f'-sDEVICE={device}', '-r203', *RASTER,
            f'-sOutputFile={FOLDER}/page.{kind}', page)


def ask(queue, request, kind, copies=1, orientation=UPRIGHT):
    by_name = isinstance(request, str)
    size = {'media': request} if by_name else {'x': request[0], 'y': request[1]}
    values = {**size, 'copies': copies, 'orientation': orientation, 'filetype': KINDS[kind]}
    defines = [word for name, value in values.items() for word in ('-d', f'{name}={value}')]
    run('ipptool', '-t', '-f', f'{FOLDER}/page.{kind}', *defines, URI + queue,
        f'{HERE}/ipp/media.test' if by_name else f'{HERE}/ipp/media-col.test')


def print_requests(queue, model, requests):
    """Sends all of them and compares the dots of each with those of the size that is meant."""
    add_queue(queue, model=model)
    for request, kind, copies, orientation, _ in requests:
        ask(queue, request, kind, copies, orientation)
    wait(timeout=300)
    wrong = []
    for (request, kind, copies, orientation, size), stream in zip(requests, received('a', len(requests))):
        check(stream)
        (page,) = pages_of(stream)
        wanted = (*expected_dots(*size, int(model[4:7])), copies)
        if (page.width, page.height, page.copies) != wanted:
            wrong.append(f'{request} {kind}: {page.width} x {page.height}, {page.copies} copies, not {wanted}')
        if page.burnt_share() > 0.5 or page.burnt_share() == 0:
            wrong.append(f'{request} {kind}: {page.burnt_share():.0%} of the dots burnt')
    print(f'{len(requests) - len(wrong)} of {len(requests)} right')
    assert not wrong, '\n'.join(wrong)


def every_way_of_asking_gives_the_size():
    make_documents()
    requests = [(request, 'pdf', 1, UPRIGHT, size) for request, size in REQUESTS.items()]
    print_requests('labels', 'KSTL203M', requests)


def every_kind_of_document_gets_the_size():
    make_documents()
    some = ('60x40mm', 'custom_40x60mm_40x60mm', 'custom_73x41mm_73x41mm', 'iso_a4_210x297mm', (7300, 4100))
    requests = [(request, kind, 1 + number, orientation, REQUESTS[request])
                for kind in KINDS
                for number, request in enumerate(some) for orientation in (UPRIGHT, LANDSCAPE)]
    print_requests('labels', 'KSTL300M', requests)


def fails(suite, folder, queue):
    """The blocks of one of CUPS's own suites that fail for a queue."""
    version = '2.0' if suite == 'everywhere' else suite
    done = subprocess.run(
        ['ipptool', '-V', version, '-T', '30', '-tI', '-f', f'{FOLDER}/page.pdf', URI + queue,
         f'ipp-{suite}.test'], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    run('cancel', '-a')
    passed = len(re.findall(r'\[PASS\]$', done.stdout, re.M))
    assert passed > 25, done.stdout[-3000:]
    return set(re.findall(r'^\s*(.+?)\s*\[FAIL\]$', done.stdout, re.M))


def suite_folder():
    """CUPS's suites with documents of ours in the place of those that Debian leaves out."""
    folder = f'{FOLDER}/ipptool'
    shutil.copytree('/usr/share/cups/ipptool', folder)
    for test in [name for name in os.listdir(folder) if name.endswith('.test')]:
        with open(f'{folder}/{test}', encoding='utf-8', errors='replace') as file:
            wanted = re.findall(r'^\s*FILE (\S+)', file.read(), re.M)
        for name in wanted:
            target = f'{folder}/{name}'
            if '$' in name or os.path.exists(target):
                continue
            os.makedirs(os.path.dirname(target), exist_ok=True)
            kind = 'jpg' if name.endswith('.jpg') else 'pwg' if 'pwg' in name else 'pdf'
            shutil.copy(f'{FOLDER}/page.{kind}', target)
    return folder


def no_suite_fails_that_a_stock_queue_passes():
    make_documents()
    folder = suite_folder()
    run('lpadmin', '-p', 'stock', '-E', '-v', os.environ['SINK_a'], '-m', 'drv:///sample.drv/generpcl.ppd')
    add_queue('labels', model='KSTL300M')
    for suite in ('1.1', '2.0', '2.1', '2.2', 'everywhere'):
        stock, ours = fails(suite, folder, 'stock'), fails(suite, folder, 'labels')
        print(f'{suite}: {len(stock)} blocks fail for a stock queue, {len(ours)} for ours')
        assert ours <= stock, ours - stock


def main(name):
    globals()[name]()
    if name != 'no_suite_fails_that_a_stock_queue_passes':
        faults = faults_of_jobs()
        assert not faults, ''.join(faults)


if __name__ == '__main__':
    main(sys.argv[1])
