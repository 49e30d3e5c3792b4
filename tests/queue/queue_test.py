#!/usr/bin/python3
"""Prints through the real scheduler. Each function is a test, named in CMakeLists.txt; it runs
below private_cups, with two sinks that play printers, and may return the errors that it expects in
the scheduler's log."""
import hashlib
import os
import random
import re
import subprocess
import sys
import time

import documents
from cups_queue import (FOLDER, ROOT, add_queue, arrived, check, check_cut, codes_on, faults_in_log, print_one, received,
                        run, send, wait)
from expected_dots import expected_dots
from label_stream import pages_of, settings_of

LABEL = f'{ROOT}/samples/shipping-label.pdf'
CODES = ['CODE-128:KP48201937556208', 'QR-Code:https://track.example.org/KP48201937556208']


def write(name, content):
    path = f'{FOLDER}/{name}'
    with open(path, 'wb') as file:
        file.write(content)
    return path


def picture(name, dpi, *options):
    """The sample label as a picture of a file type that pdftoppm knows."""
    run('pdftoppm', '-r', str(dpi), '-gray', '-singlefile', *options, LABEL, f'{FOLDER}/{name}')


def expect_label(stream, width, height):
    (page,) = pages_of(stream)
    assert (page.width, page.height) == (width, height), (page.width, page.height)
    assert 0.05 < page.burnt_share() < 0.4, page.burnt_share()
    assert codes_on(stream) == CODES, codes_on(stream)


def sample_is_read_back_at_203_dpi():
    add_queue('labels')
    expect_label(print_one('labels', LABEL), 808, 1218)


def sample_is_read_back_at_300_dpi():
    add_queue('labels', model='KSTL300')
    expect_label(print_one('labels', LABEL), 1200, 1800)


def png_and_jpeg_are_read_back():
    picture('page203', 203, '-png')
    picture('page300', 300, '-jpeg')
    add_queue('labels')
    add_queue('fine', model='KSTL300', sink='b')
    expect_label(print_one('labels', f'{FOLDER}/page203.png'), 808, 1218)
    expect_label(print_one('fine', f'{FOLDER}/page300.jpg', sink='b'), 1200, 1800)


def text_has_the_right_side_up():
    # The foot of an L is at the bottom and points to the right.
    document = write('text.txt', b'L\n')
    add_queue('labels')
    (page,) = pages_of(print_one('labels', document))
    left, top, right, bottom = page.ink_box()
    assert bottom < page.height / 4 and right < page.width / 4, (left, top, right, bottom)
    ink = lambda xs, ys: sum(page.burns(x, y) for x in xs for y in ys)
    assert ink(range(left, right), range(bottom - 2, bottom)) > \
        2 * ink(range(left, right), range(top, top + 2))
    assert ink(range(left, left + 2), range(top, bottom)) > \
        2 * ink(range(right - 2, right), range(top, bottom))


def labels_are_found_on_pages():
    sheet = f'{ROOT}/samples/label-sheet.pdf'
    add_queue('labels')
    found = ['CODE-128:KP48201937550001', 'QR-Code:https://track.example.org/KP48201937550001']
    assert codes_on(print_one('labels', sheet, '-o', 'LabelOnPage=Find')) == found
    (whole,) = pages_of(print_one('labels', sheet, before=1))
    assert whole.burnt_share() < 0.08, whole.burnt_share()
    run('lpadmin', '-p', 'labels', '-o', 'LabelOnPage=Find')
    assert codes_on(print_one('labels', sheet, before=2)) == found


def every_page_of_a_document_is_a_label():
    document = write('three.pdf', documents.pdf(['one', 'two', 'three']))
    add_queue('labels')
    pages = pages_of(print_one('labels', document))
    assert [page.copies for page in pages] == [1, 1, 1]
    assert len({page.data for page in pages}) == 3
    assert all(page.burnt_share() < 0.02 for page in pages)


def three_copies_are_one_label_printed_three_times():
    three = write('three.pdf', documents.pdf(['one', 'two', 'three']))
    picture('page', 203, '-png')
    text = write('text.txt', b'Hello\n')
    add_queue('labels')
    for number, (document, labels) in enumerate(
            [(LABEL, 1), (three, 3), (f'{FOLDER}/page.png', 1), (text, 1)]):
        pages = pages_of(print_one('labels', document, '-n', '3', before=number))
        assert [(page.sets, page.copies) for page in pages] == [(1, 3)] * labels, document


def every_size_of_the_label_models_prints():
    document = write('page.pdf', documents.pdf(['x']))
    before = 0
    for model, count in (('KSTL203', 15), ('KSTL203M', 26)):
        add_queue(model, model=model)
        with open(f'{FOLDER}/etc/ppd/{model}.ppd', encoding='utf-8') as file:
            sizes = re.findall(r'^\*PageSize ([^/]+)/', file.read(), re.M)
        assert len(sizes) == count, sizes
        jobs = [send(model, document, '-o', f'PageSize={size}') for size in sizes]
        wait(*jobs, timeout=120)
        for size, stream in zip(sizes, received('a', before + count)[before:]):
            check(stream)
            (page,) = pages_of(stream)
            width, height, unit = re.fullmatch(r'([\d.]+)x([\d.]+)(mm|in)', size).groups()
            factor = 25.4 if unit == 'in' else 1
            wanted = expected_dots(float(width) * factor, float(height) * factor, 203)
            assert (page.width, page.height) == wanted, (size, page.width, page.height)
        before += count


def options_of_a_job_reach_the_printer():
    add_queue('labels')
    plain = print_one('labels', LABEL)
    assert 'GAP 2.0 mm, 0.0 mm' in settings_of(plain) and 'DENSITY 8' in settings_of(plain)
    wanted = {
        'PaperType=LabelMark GapsHeight=3': 'BLINE 3.0 mm, 0.0 mm',
        'PaperType=Continue': 'GAP 0, 0',
        'MediaMethod=Transfer': 'SET RIBBON ON',
        'PostAction=Cut': 'SET CUTTER ON',
        'PostAction=PeelOff': 'SET PEEL ON',
        'PostAction=TearOff': 'SET TEAR ON',
        'Origin=Rotation180': 'DIRECTION 1,0',
        'PrintSpeed=3': 'SPEED 3',
        'Darkness=12': 'DENSITY 12',
    }
    for number, (options, line) in enumerate(wanted.items(), 1):
        arguments = [word for option in options.split() for word in ('-o', option)]
        stream = print_one('labels', LABEL, *arguments, before=number)
        assert line in settings_of(stream), (options, settings_of(stream))
        assert pages_of(stream)[0].data == pages_of(plain)[0].data, options


def image_options_of_a_job_change_the_picture():
    add_queue('labels')
    run('lpadmin', '-p', 'labels', '-o', 'HalftoneType=None')
    (plain,) = pages_of(print_one('labels', LABEL))
    (mirrored,) = pages_of(print_one('labels', LABEL, '-o', 'MirrorImage=True', before=1))
    assert all(plain.burns(x, y) == mirrored.burns(plain.width - 1 - x, y)
               for y in range(0, plain.height, 20) for x in range(plain.width))
    (dark,) = pages_of(print_one('labels', LABEL, '-o', 'Brightness=15', before=2))
    assert dark.burnt_share() > plain.burnt_share()
    (light,) = pages_of(print_one('labels', LABEL, '-o', 'Brightness=-15', before=3))
    assert light.burnt_share() < plain.burnt_share()
    halftones = 'FloydSteinberg Ordered Burkes Stucki JarvisJudiceNinke Sierra StevensonArce'
    kinds = {plain.data}
    for number, name in enumerate(halftones.split(), 4):
        (page,) = pages_of(print_one('labels', LABEL, '-o', f'HalftoneType={name}', before=number))
        assert 0.05 < page.burnt_share() < 0.4, name
        kinds.add(page.data)
    assert len(kinds) == 8


def stencils_print_positive_and_negative():
    add_queue('stencils', model='KSTS300')
    drawing = f'{ROOT}/samples/line-drawing.pdf'
    size = ('-o', 'PageSize=Tattoo_A6')
    (page,) = pages_of(print_one('stencils', drawing, *size))
    assert (page.width, page.height) == (1240, 1748)
    assert 0.05 < page.burnt_share() < 0.4
    (negative,) = pages_of(print_one('stencils', drawing, *size, '-o', 'NegativeImage=True', before=1))
    assert abs(page.burnt_share() + negative.burnt_share() - 1) < 0.001


def three_hundred_labels_leave_room_for_a_document():
    """The dumps of the labels, 590 MB, would fill the file system that the converters need, too."""
    roll = write('roll.pdf', documents.pdf([f'label {number}' for number in range(300)]))
    add_queue('labels')
    stream = print_one('labels', roll)
    assert len(pages_of(stream)) == 300
    space = os.statvfs(f'{FOLDER}/spool/tmp')
    # What the printer got lies on this file system, too, and came after most of the dumps.
    free = space.f_bavail * space.f_frsize + len(stream)
    assert 60 << 20 < free < 110 << 20, free
    lines = [line for line in faults_in_log() if 'would stay free' in line]
    assert len(lines) == 1, lines
    expect_label(print_one('labels', LABEL, before=1), 808, 1218)
    return [line for line in faults_in_log() if 'would stay free' in line]


def cancelled_jobs_leave_nothing():
    """50 jobs, cancelled at any moment from before their first filter to their last label."""
    document = write('pages.pdf', documents.pdf([f'page {number}' for number in range(6)]))
    picture('photo', 300, '-png')
    os.chmod(f'{FOLDER}/sinks/a', 0o777)
    add_queue('labels', device=f'slow:{FOLDER}/sinks/a?1000000')
    moments = random.Random(7)
    for number in range(50):
        job = send('labels', document if number % 2 else f'{FOLDER}/photo.png')
        time.sleep(moments.uniform(0, 1.3))
        subprocess.run(['cancel', str(job)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        ended_jobs(number + 1)
    until = time.monotonic() + 10
    while (left := left_behind()) and time.monotonic() < until:
        time.sleep(0.1)
    assert not left, left
    cut = 0
    for stream in arrived('a'):
        check_cut(stream)
        bitmaps, prints = stream.count(b'\r\nBITMAP 0,0,'), stream.count(b'\r\nPRINT 1,1\r\n')
        assert bitmaps - prints in (0, 1), (bitmaps, prints)
        cut += bitmaps > prints or prints not in (1, 6)
    assert cut > 5, cut
    return [line for line in faults_in_log() if 'for Cancel-Job' in line]    # jobs that had ended


def ended_jobs(count, timeout=60):
    """Waits until so many jobs have ended, however."""
    until = time.monotonic() + timeout
    while time.monotonic() < until:
        if len(run('lpstat', '-W', 'completed', '-o').splitlines()) >= count:
            return
        time.sleep(0.02)
    raise AssertionError('a cancelled job does not end')


def left_behind():
    """Files in the temporary folder, and the programs of jobs that still run."""
    left = [name for name in os.listdir(f'{FOLDER}/spool/tmp') if not name.startswith('cups-')]
    for process in filter(str.isdigit, os.listdir('/proc')):
        try:
            with open(f'/proc/{process}/environ', 'rb') as file:
                environment = file.read().split(b'\0')
        except OSError:
            continue
        if any(word.startswith(f'TMPDIR={FOLDER}/spool/tmp'.encode()) for word in environment):
            left.append(process)
    return left


def languages_find_the_models():
    models = {f'drv:///kesto-tspl.drv/{name}.PPD' for name in 'KSTL203 KSTL203M KSTL300 KSTL300M KSTS300'.split()}
    for device in ('CMD:TSPL;', 'MFG:Kesto;MDL:Label 203 dpi;CMD:ZPL,TSPL,EPL;'):
        offered = {line.split(' ', 1)[0] for line in run('lpinfo', '--device-id', device, '-m').splitlines()}
        assert offered & models and 'drv:///kesto-tspl.drv/KSTL203.PPD' in offered, (device, offered)
    assert models <= {line.split(' ', 1)[0] for line in run('lpinfo', '--device-id', 'CMD:TSPL;', '-m').splitlines()}


def clients_see_the_sizes_by_their_names():
    add_queue('labels', model='KSTL203M')
    add_queue('inches', model='KSTL203')
    seen = {}
    for queue in ('labels', 'inches'):
        text = run('ipptool', '-tv', f'ipp://{os.environ["CUPS_SHARED"]}/printers/{queue}', 'get-printer-attributes.test')
        seen[queue] = {name: re.search(rf'^\s*{name} \([^)]*\) = (.*)$', text, re.M)[1].split(',')
                       for name in ('media-supported', 'media-ready')}
    assert seen['labels']['media-ready'] == ['om_small-photo_100x150mm'], seen['labels']['media-ready']
    assert seen['inches']['media-ready'] == ['na_index-4x6_4x6in'], seen['inches']['media-ready']
    for queue, unit in (('labels', 'mm'), ('inches', 'in')):
        names = [name for name in seen[queue]['media-supported'] if not name.startswith('custom_m')]
        assert len(names) == {'labels': 26, 'inches': 15}[queue], names
        assert all(re.fullmatch(rf'\w+(-\w+)*_[\d.]+x[\d.]+(_[\d.]+x[\d.]+)?{unit}', name.replace(f'{unit}_', '_'))
                   for name in names), names


def file_device_holds_the_last_job():
    output = f'{FOLDER}/spool/device.tspl'
    add_queue('filed', device=f'file:{output}')
    wait(send('filed', LABEL))
    with open(output, 'rb') as file:
        stream = file.read()
    check(stream)
    expect_label(stream, 808, 1218)


def two_busy_queues_lose_nothing():
    add_queue('left', sink='a')
    add_queue('right', sink='b', model='KSTL300')
    document = write('page.pdf', documents.pdf(['one', 'two']))
    jobs = [send(queue, document) for _ in range(20) for queue in ('left', 'right')]
    wait(*jobs, timeout=120)
    for sink, width in (('a', 808), ('b', 1200)):
        streams = received(sink, 20)
        assert len(set(streams)) == 1
        check(streams[0])
        assert [page.width for page in pages_of(streams[0])] == [width, width]


def class_of_two_queues_prints_each_job_once():
    add_queue('left', sink='a')
    add_queue('right', sink='b')
    for queue in ('left', 'right'):
        run('lpadmin', '-p', queue, '-c', 'both')
    run('cupsenable', 'both')
    run('cupsaccept', 'both')
    texts = [f'label {number}' for number in range(40)]
    jobs = [send('both', write(f'{number}.pdf', documents.pdf([text])))
            for number, text in enumerate(texts)]
    wait(*jobs, timeout=120)
    sinks = {sink: os.listdir(f'{FOLDER}/sinks/{sink}') for sink in 'ab'}
    streams = [stream for sink in 'ab' for stream in received(sink, len(sinks[sink]))]
    assert len(streams) == 40, len(streams)
    for stream in streams:
        check(stream)
    assert len({hashlib.sha256(stream).digest() for stream in streams}) == 40
    assert min(len(names) for names in sinks.values()) >= 5, 'one printer did nearly all'


def description_has_its_german_texts():
    add_queue('labels')
    with open(f'{FOLDER}/etc/ppd/labels.ppd', encoding='utf-8') as file:
        assert '*de.Translation PaperType/Medientyp: ""' in file.read()


def queue_is_added_and_removed():
    add_queue('labels')
    assert 'labels' in run('lpstat', '-v')
    run('lpadmin', '-x', 'labels')
    assert not os.path.exists(f'{FOLDER}/etc/ppd/labels.ppd')


def update_finds_the_queues_of_older_versions():
    """As the update of CUPS's packages does it, with the expressions of our ppd-updater file."""
    updater = f'{ROOT}/packaging/printer-driver-kesto-tspl.ppd-updater'
    with open(updater, encoding='utf-8') as file:
        driver, nickname = re.findall(r"^\w+='(.*)'$", file.read(), re.M)
    assert nickname == r's/,\s*\d+\.\d+[\d\.]*$//i'
    without_version = lambda name: re.sub(r',\s*\d+\.\d+[\d.]*$', '', name, flags=re.I)
    offered = [line.split(' ', 1) for line in run('lpinfo', '-m').splitlines()
               if re.search(driver, line)]
    assert len(offered) == 5, offered
    for model in ('Kesto Label 203 dpi', 'Kesto Label 300 dpi', 'Kesto Label 203 dpi mm', 'Kesto Stencil 300 dpi'):
        old = without_version(f'{model}, 0.0.1')
        assert [uri for uri, name in offered if without_version(name) == old], model
    own = without_version('Kesto Label 203 dpi, 0.0.1 with 60 x 30 mm')
    assert not [uri for uri, name in offered if without_version(name) == own]


def main(name):
    expected = globals()[name]() or []
    faults = [line for line in faults_in_log() if line not in expected]
    assert not faults, ''.join(faults)


if __name__ == '__main__':
    main(sys.argv[1])
