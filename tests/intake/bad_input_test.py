"""Documents that cannot be printed, or hardly: a clear line, the right status, nothing left."""
import os
import subprocess
import sys

import intake_run
from intake_run import CONVERTERS, printed, read, refused, run, server_bin, sizes, write
import test_documents

NO_PAGE = '^The document has no page to print$'
LABEL = [(808, 1218, 1)]


def documents_without_a_page_send_nothing():
    empty = write('empty', b'')
    for converter in CONVERTERS:
        folder = server_bin(converter)
        refused(NO_PAGE, empty, bin_folder=folder)
        refused(NO_PAGE, None, given=b'', bin_folder=folder)
        refused(NO_PAGE, test_documents.no_page(), bin_folder=folder)
        refused(NO_PAGE, test_documents.THREE_PAGES, 'page-ranges=9', bin_folder=folder)


def a_raster_without_pages_sends_nothing():
    for sync in b'3SaR', b'3SaR' + bytes(100):
        path = write('no.raster', sync)
        converter = intake_run.script(f'#!/bin/sh\ncat {path}\n')
        refused(NO_PAGE, test_documents.PDF, bin_folder=server_bin(gstoraster=converter))
        refused(NO_PAGE, path)


def a_page_file_of_a_line_end_has_no_page():
    """As pdftopdf writes it for a description that names no filter."""
    empty = intake_run.script('#!/bin/sh\necho\n')
    refused(NO_PAGE, test_documents.PDF, bin_folder=server_bin(pdftopdf=empty))


def damaged_and_encrypted_documents_are_refused():
    reason = '^pdftopdf failed with status 1: the document is damaged, or needs a password'
    cut = write('cut.pdf', read(test_documents.PDF)[:400])
    for converter in CONVERTERS:
        folder = server_bin(converter)
        refused(reason, cut, bin_folder=folder)
        refused(reason, test_documents.encrypted(), bin_folder=folder)
    refused(reason, write('stub.pdf', b'%PDF-1.4\n'))


def a_password_for_changes_alone_is_none_for_printing():
    document = test_documents.by_ghostscript('owner.pdf', 'pdfwrite', '-sOwnerPassword=o',
                                             '-dEncryptionR=3', '-dKeyLength=128')
    assert sizes(printed(document).stream) == LABEL


def unknown_documents_are_refused():
    refused("^The document's kind is not known", write('text', b'Hello\n'))
    refused("^The document's kind is not known", write('zeros', bytes(10000)))
    refused('^The document is PostScript, which', write('ps', b'%!PS-Adobe-3.0\nshowpage\n'))
    refused('^The document is a Photoshop picture, which', write('psd', b'8BPS\0\1\0\0'))
    refused('^Unable to open /nonexistent: No such file', '/nonexistent')
    refused('Is a directory', intake_run.FOLDER)


def damaged_pictures_are_refused():
    whole = read(test_documents.png(300, 400))
    for name, content in (('cut.png', whole[:60]), ('stub.png', b'\x89PNG'), ('stub.tif', b'II*\0'),
                          ('cut.jpg', read(test_documents.jpeg())[:200])):
        refused('^The picture cannot be read: ', write(name, content))


def unusual_pictures_are_printed():
    pictures = [test_documents.png(300, 400, depth=16), test_documents.jpeg(),
                test_documents.cmyk_jpeg(), test_documents.cmyk_tiff(),
                test_documents.turned_jpeg(), test_documents.png(1, 1)]
    for picture in pictures:
        for converter in CONVERTERS:
            done = printed(picture, bin_folder=server_bin(converter))
            assert sizes(done.stream) == LABEL, (picture, sizes(done.stream))


def pictures_of_all_kinds_are_printed():
    colour = ('bmp16m', 'tiffgray', 'pgmraw', 'pbmraw', 'ppmraw', 'ppm', 'pgm', 'pbm')
    for device in colour:
        picture = test_documents.by_ghostscript(f'picture.{device}', device, '-r40')
        assert sizes(printed(picture).stream) == LABEL, device
    gif = (b'GIF89a\x02\0\x02\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\x02\0\x02\0\0\x02\x03D\x02\x05\0;')
    sun = (b'\x59\xa6\x6a\x95' + b''.join(n.to_bytes(4, 'big') for n in (16, 2, 8, 32, 1, 0, 0)) +
           b'\0\xff' * 16)
    sgi = bytearray(512)
    sgi[:12] = b'\x01\xda\0\x01\0\x02\0\x08\0\x08\0\x01'
    for name, content in (('a.gif', gif), ('a.sun', sun), ('a.sgi', bytes(sgi) + bytes(64))):
        assert sizes(printed(write(name, content)).stream) == LABEL, name


def a_full_disk_is_told_of():
    """In a mount namespace of its own, where TMPDIR is a small disk."""
    for kilobytes, document, piped in ((4, test_documents.PDF, False),
                                       (16, test_documents.PDF, False),
                                       (64, test_documents.png(2000, 3000), False),
                                       (100, test_documents.PDF, False),
                                       (16, large_document(), True)):
        for converter in CONVERTERS:
            on_a_small_disk(kilobytes, document, piped, converter)
    # Ghostscript makes a copy of the pages, for which there comes to be no room.
    lines = [on_a_small_disk(kilobytes, test_documents.bulky(), False, 'gstoraster')
             for kilobytes in range(20, 200, 20)]
    assert any(line and 'gstoraster failed' in line for line in lines), lines
    assert lines[0] and not lines[-1], lines


def large_document():
    return write('large.pdf', read(test_documents.PDF) + b'%' * 300000)


def on_a_small_disk(kilobytes, document, piped, converter):
    command = (f'mount -t tmpfs -o size={kilobytes}k,mode=1777 none "$TMPDIR" && '
               f'{{ "$@"; status=$?; ls "$TMPDIR" >&2; exit $status; }}')
    options = ['1', 'anna', 'title', '1', '']
    folder = intake_run.tempfile.mkdtemp(dir=intake_run.FOLDER)
    environment = dict(os.environ, TMPDIR=folder, PPD=f'{intake_run.PPD_FOLDER}/kstl203.ppd',
                       CUPS_SERVERBIN=server_bin(converter))
    environment.pop('CUPS_SERVER', None)
    with open(document, 'rb') as given:
        done = subprocess.run(
            ['unshare', '--user', '--map-root-user', '--mount', 'sh', '-c', command, 'sh',
             intake_run.INTAKE, *options, *([] if piped else [document])],
            env=environment, stdin=given if piped else subprocess.DEVNULL, capture_output=True)
    lines = [line for line in done.stderr.decode(errors='replace').splitlines()
             if not line.startswith('DEBUG')]
    what = (kilobytes, document, piped, converter, done.returncode, lines)
    if done.returncode == 0:
        assert sizes(done.stdout) == LABEL and kilobytes >= 16 and not piped, what
        return None
    assert done.returncode == 1 and done.stdout == b'', what
    assert lines[-1].startswith('ERROR: ') and 'no room for' in lines[-1], what
    return lines[-1]


def a_missing_temporary_folder_is_told_of():
    done = run(test_documents.PDF, variables={'TMPDIR': '/nonexistent'})
    assert done.status == 1 and done.own_error().startswith('Unable to make a temporary folder in')
