"""Cut, changed and hostile documents: one line and status 1, or labels; bounded memory and time,
nothing left behind."""
import os
import random
import re
import signal
import subprocess
import tempfile
import time
import zlib

from sheet_run import FOLDER, INTAKE, SHEETS, Faults, Run, cut, filter_folder, job, sheet, write
from sources.sheet_layouts import Layout, Page, file_of, instructions, label_drawing, pdf, placed

# Kilobytes that a bad file may make the program take at most, and seconds of the processor.
MOST_MEMORY = 256 << 10
MOST_SECONDS = 5
# Sanitizers keep a copy of the memory's state, and look at every access.
SANITIZED = 'KESTO_SANITIZED' in os.environ
if SANITIZED:
    MOST_MEMORY, MOST_SECONDS = 8 * MOST_MEMORY, 8 * MOST_SECONDS


def check_bounds(done):
    assert done.status in (0, 1), f'status {done.status}: {done.lines[-3:]}'
    assert done.usage.ru_maxrss <= MOST_MEMORY, f'{done.usage.ru_maxrss} KB'
    seconds = done.usage.ru_utime + done.usage.ru_stime
    assert seconds <= MOST_SECONDS, f'{seconds:.1f} s'


def check_lines(done):
    """A failure has one line, and no output; a success has a whole file and no error."""
    errors = [line for line in done.lines if line.startswith('ERROR: ')]
    assert all(re.match('(INFO|ERROR): .{10}', line) for line in done.lines), done.lines
    if done.status == 0:
        assert not errors and done.output.rstrip().endswith(b'%%EOF'), done.lines
    else:
        assert len(errors) == 1 and done.lines[-1] == errors[0] and errors[0].isprintable(), done.lines
        assert len(errors[0]) < 300 and done.output == b'', (errors[0], len(done.output))


def tried(content, *options, **more):
    done = cut(content, *options, **more)
    check_bounds(done)
    check_lines(done)
    return done


def refused(reason, content, *options):
    done = tried(content, *options)
    assert done.status == 1, (done.status, done.lines)
    assert re.search(reason, done.lines[-1]), (reason, done.lines)


def cut_documents_end_in_order():
    whole = sheet('letter-top-lying')
    with Faults() as faults:
        for length in (1, 8, 50, *range(100, len(whole), 97)):
            with faults.of(f'{length} of {len(whole)} bytes'):
                tried(whole[:length])


def documents_with_changed_bytes_end_in_order():
    chance = random.Random(7)
    with Faults() as faults:
        for number in range(60):
            content = bytearray(sheet(chance.choice(('letter-top-bare', 'letter-rotate-90',
                                                     'letter-crop-box', 'three-pages'))))
            for _ in range(chance.choice((1, 3, 20))):
                content[chance.randrange(len(content))] = chance.randrange(256)
            with faults.of(f'document {number}'):
                tried(bytes(content))


def what_is_no_document_is_refused():
    for content in (b'', b'\n', b'%PDF-1.4', b'Hello\n' * 100, bytes(10000), b'%PDF-1.4\n' + bytes(1000)):
        refused('damaged|no page', content)


def a_missing_file_and_a_folder_are_refused():
    for path in ('/nonexistent/x.pdf', FOLDER):
        done = Run([SHEETS, '--label', '288x432', path])
        check_lines(done)
        assert done.status == 1


def a_choice_without_a_page_is_refused():
    refused('no page', sheet('three-pages'), 'page-ranges=7-9')
    refused('no page', sheet('label'), 'page-set=even')


def page_of_entries(entries, drawing='0 0 100 100 re f'):
    return pdf(Layout(Page((612, 792), drawing, entries=entries)))


def odd_pages_are_printed():
    """Boxes that are none, turns that are none, units of all sizes: as long as there is a page."""
    entries = ('/Rotate 45', '/Rotate 99999999990', '/Rotate -90', '/Rotate /x', '/UserUnit 0',
               '/UserUnit -1', '/UserUnit 1e30', '/UserUnit 1e-30', '/CropBox [0 0 0 0]',
               '/CropBox [900 900 1000 1000]', '/CropBox [612 792 0 0]', '/CropBox [0 0]',
               '/CropBox [/a /b /c /d]', '/CropBox [1e30 1e30 2e30 2e30]', '/Annots [1 2 (x)]',
               '/Annots 7', '/Group 3')
    with Faults() as faults:
        for entry in entries:
            with faults.of(entry):
                done = tried(page_of_entries(entry))
                assert done.status == 0, done.lines
        for size in ((1, 1), (3, 14400), (14400, 14400), (1e9, 1e9), (0, 0), (0.001, 0.001)):
            with faults.of(f'a page of {size}'):
                assert tried(pdf(Layout(Page(size, '0 0 1 1 re f')))).status == 0


def a_document_that_draws_itself_ends():
    objects = ['<< /Type /Catalog /Pages 2 0 R >>', '<< /Type /Pages /Kids [3 0 R] /Count 1 >>',
               '<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R '
               '/Resources << /XObject << /X 5 0 R >> >> >>',
               ('', b'/X Do'),
               ('/Type /XObject /Subtype /Form /BBox [0 0 612 792] /Resources << /XObject << /X 5 0 R >> >>',
                b'/X Do /X Do')]
    tried(file_of(objects))


def a_tree_of_pages_that_holds_itself_ends():
    tried(file_of(['<< /Type /Catalog /Pages 2 0 R >>', '<< /Type /Pages /Kids [2 0 R 2 0 R] /Count 9 >>']))


def a_stream_that_unpacks_to_a_gigabyte_ends():
    packer = zlib.compressobj(9)
    packed = b''.join(packer.compress(b' ' * (1 << 20)) for _ in range(1024)) + packer.flush()
    objects = ['<< /Type /Catalog /Pages 2 0 R >>', '<< /Type /Pages /Kids [3 0 R] /Count 1 >>',
               '<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R >>',
               ('/Filter /FlateDecode', packed)]
    done = cut(file_of(objects))
    check_lines(done)
    assert done.usage.ru_maxrss <= MOST_MEMORY, f'{done.usage.ru_maxrss} KB'


def a_page_that_takes_too_long_is_given_up():
    """Two to the power of forty rectangles, by objects that draw each other twice."""
    objects = ['<< /Type /Catalog /Pages 2 0 R >>', '<< /Type /Pages /Kids [3 0 R] /Count 1 >>',
               '<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 4 0 R '
               '/Resources << /XObject << /X 5 0 R >> >> >>', ('', b'/X Do')]
    for depth in range(40):
        objects.append((f'/Type /XObject /Subtype /Form /BBox [0 0 612 792] '
                        f'/Resources << /XObject << /X {6 + depth} 0 R >> >>', b'/X Do /X Do'))
    objects.append(('/Type /XObject /Subtype /Form /BBox [0 0 612 792]', b'0 0 600 700 re f'))
    # Half a minute, or a second less than may be used at all.
    most = 4
    done = Run(['prlimit', f'--cpu={most}:{most}', SHEETS, '--label', '288x432', write(file_of(objects))])
    check_lines(done)
    assert done.status == 1 and 'too long' in done.lines[-1], done.lines


def many_pages_take_bounded_memory():
    page = Page((612, 792), placed(label_drawing(), 90, 460, 90), instructions(60, 400, 500, 2))
    few, many = (cut(pdf(Layout(*[page] * count))) for count in (10, 400))
    for done, count in ((few, 10), (many, 400)):
        check_lines(done)
        assert done.infos() == [f'Found {count} labels on {count} pages'], done.lines
    grown = many.usage.ru_maxrss - few.usage.ru_maxrss
    assert grown < 40 << 10 or SANITIZED, f'{grown} KB more'


def a_bad_document_sends_nothing():
    whole = sheet('letter-top-lying')
    for content in (whole[:300], b'%PDF-1.4\n' + bytes(1000)):
        done = job(content)
        errors = [line for line in done.lines if line.startswith('ERROR: ')]
        assert done.status == 1 and done.output == b'' and len(errors) == 1, (done.status, done.lines)


def sigterm_leaves_nothing():
    page = Page((612, 792), placed(label_drawing(), 90, 460, 90))
    path = write(pdf(Layout(*[page] * 300)))
    for seconds in (0.01, 0.1, 0.5, 1):
        temporary = tempfile.mkdtemp(dir=FOLDER)
        process = subprocess.Popen([SHEETS, '--label', '288x432', path], stdout=subprocess.DEVNULL,
                                   stderr=subprocess.PIPE, env=dict(os.environ, TMPDIR=temporary))
        time.sleep(seconds)
        process.send_signal(signal.SIGTERM)
        _, errors = process.communicate(timeout=30)
        assert process.returncode == -signal.SIGTERM and errors == b'', (process.returncode, errors)
        assert os.listdir(temporary) == []


def a_full_disk_or_a_missing_folder_is_told_of():
    with open('/dev/full', 'wb') as full:
        done = subprocess.run([SHEETS, '--label', '288x432', write(sheet('letter-two'))], stdout=full,
                              stderr=subprocess.PIPE, text=True)
    assert done.returncode == 1 and done.stderr.count('ERROR: ') == 1, done
    done = subprocess.run([SHEETS, '--label', '288x432', write(sheet('letter-two'))], text=True,
                          capture_output=True, env=dict(os.environ, TMPDIR='/nonexistent'))
    assert done.returncode == 1 and 'temporary file in /nonexistent' in done.stderr, done


def arguments_that_mean_nothing_are_refused():
    path = write(sheet('label'))
    for words in ([], [path], ['--label', '288', path], ['--label', '0x0', path], ['--label', '288x', path],
                  ['--label', '-1x5', path], ['--label', 'nanx5', path], ['--label', '1e9x5', path],
                  ['--label', '288x432'], ['--label', '288x432', '-o', 'x', path],
                  ['--label', '288x432', '--page', '5', path], ['--label', '288x432', path, path]):
        done = subprocess.run([SHEETS, *words], capture_output=True, text=True)
        assert done.returncode == 1 and 'Usage: ' in done.stderr and not done.stdout, (words, done)
