"""The programs that a job runs through: copies, options, content types, what is missing."""
import os
import subprocess

import intake_run
from intake_run import (CONVERTERS, FOLDER, PPD_FOLDER, printed, read, refused, run, script,
                        server_bin, sizes, write)
import label_stream
import test_documents

RECORD = '''#!/bin/sh
name=$(basename "$0")
env >{folder}/$name.env
for argument; do printf '%s\\0' "$argument"; done >{folder}/$name.args
exec {program} "$@"
'''


def recording(converter='gstoraster'):
    """A folder of programs that write down how they are called."""
    programs = {name: intake_run.CUPS_FILTERS + name for name in ('pdftopdf', converter)}
    programs.update(rastertokestotspl=intake_run.FILTER, picturetokestolabel=intake_run.PICTURE,
                    rastertokestocontent=intake_run.CONTENT)
    return server_bin(converter, **{
        name: script(RECORD.format(folder=FOLDER, program=path)) for name, path in programs.items()})


def called(name):
    """(arguments, environment) that a program was called with."""
    arguments = read(f'{FOLDER}/{name}.args').decode().split('\0')[:-1]
    lines = read(f'{FOLDER}/{name}.env').decode().splitlines()
    return arguments, dict(line.split('=', 1) for line in lines if '=' in line)


def options_of(name):
    return dict(word.split('=', 1) for word in called(name)[0][4].split(' '))


def copies_are_left_to_the_printer():
    for document in test_documents.PDF, test_documents.png(300, 400):
        for converter in CONVERTERS:
            done = printed(document, 'copies=7', copies=3, bin_folder=server_bin(converter))
            assert sizes(done.stream) == [(808, 1218, 3)], (converter, sizes(done.stream))


def documents_come_by_standard_input_too():
    for document in test_documents.PDF, test_documents.png(300, 400):
        done = printed(None, 'PageSize=60x40mm', given=read(document), copies=2)
        assert sizes(done.stream) == [(480, 320, 2)], sizes(done.stream)


def every_page_is_a_label():
    assert len(sizes(printed(test_documents.THREE_PAGES).stream)) == 3
    assert len(sizes(printed(test_documents.THREE_PAGES, 'page-ranges=2-3').stream)) == 2


def programs_are_told_what_they_need():
    folder = recording()
    printed(test_documents.PDF, 'media=A4 page-ranges=1 mirror HalftoneType=Ordered', copies=4,
            bin_folder=folder)
    types = {'pdftopdf': 'application/pdf', 'gstoraster': 'application/vnd.cups-pdf',
             'rastertokestotspl': 'application/vnd.cups-raster'}
    for name, content_type in types.items():
        arguments, environment = called(name)
        assert arguments[:3] == ['1', 'anna', 'a title'], arguments
        assert arguments[3] == ('4' if name == 'pdftopdf' else '1'), (name, arguments)
        assert len(arguments) == (5 if name == 'rastertokestotspl' else 6), arguments
        assert environment['CONTENT_TYPE'] == content_type, (name, environment['CONTENT_TYPE'])
        assert environment['FINAL_CONTENT_TYPE'] == 'application/vnd.cups-raster'
        assert environment['CUPS_SERVERBIN'] == folder
        assert os.path.dirname(environment['PPD']) == environment['TMPDIR'], environment
        options = options_of(name)
        assert options['PageSize'] == '4x6in' and 'media' not in options, options
        assert options['HalftoneType'] == 'Ordered', options
    assert options_of('pdftopdf')['mirror'] == 'true'
    for name in 'gstoraster', 'rastertokestotspl':
        assert 'mirror' not in options_of(name), name
    assert options_of('pdftopdf')['page-ranges'] == '1'


def pictures_need_two_programs():
    folder = recording()
    picture = test_documents.png(300, 400)
    printed(picture, 'media=60x40mm page-ranges=1 mirror HalftoneType=Ordered', copies=4,
            bin_folder=folder)
    arguments, environment = called('picturetokestolabel')
    assert arguments == ['--dots', '480x320', '--dpi', '203', '--size-name', '60x40mm', '--copies', '4',
                         '-o', 'mirror=true', '-o', 'page-ranges=1', picture], arguments
    _, filter_environment = called('rastertokestotspl')
    assert environment['TMPDIR'] == environment['MAGICK_TMPDIR'] == filter_environment['TMPDIR']
    options = options_of('rastertokestotspl')
    assert options['PageSize'] == '60x40mm' and options['HalftoneType'] == 'Ordered', options
    assert 'mirror' not in options and 'page-ranges' not in options, options
    assert not os.path.exists(f'{FOLDER}/pdftopdf.args') or \
        called('pdftopdf')[1]['KESTO_TEST_RUN'] != environment['KESTO_TEST_RUN']


def pictures_are_laid_out_further_as_documents():
    folder = recording()
    done = printed(test_documents.png(300, 400), 'mirror number-up=2 page-ranges=1', copies=3,
                   bin_folder=folder)
    assert sizes(done.stream) == [(808, 1218, 3)], sizes(done.stream)
    arguments, _ = called('picturetokestolabel')
    assert arguments[:-1] == ['--dots', '808x1218', '--dpi', '203', '--size-name', '4x6in', '--pdf',
                              '-o', 'mirror=true'], arguments
    options = options_of('pdftopdf')
    assert options['number-up'] == '2' and options['page-ranges'] == '1', options
    assert 'mirror' not in options, options


def an_unbalanced_quote_swallows_no_option():
    folder = recording()
    done = printed(test_documents.PDF, """x="un'balanced PageSize=60x40mm""", bin_folder=folder)
    assert sizes(done.stream) == [(808, 1218, 1)], 'the size is a part of x'
    assert options_of('pdftopdf')['PageSize'] == '4x6in'
    done = printed(test_documents.PDF, r"x=un\"bal'anced PageSize=60x40mm", bin_folder=folder)
    assert sizes(done.stream) == [(480, 320, 1)]


def options_of_100_kilobytes_do_no_harm():
    for value in ('"' + 'x' * 100000, "'" * 30000, 'ab"' * 33000, '{' * 100000, 'x ' * 50000):
        done = printed(test_documents.PDF, 'PageSize=60x40mm y=' + value, timeout=120)
        assert sizes(done.stream) == [(480, 320, 1)], value[:9]


def the_name_of_the_size_reaches_the_filter():
    """The stencil filter goes by it."""
    raster = f'{FOLDER}/seen.raster'
    folder = server_bin(rastertokestotspl=script(f'#!/bin/sh\ncat >{raster}\n'))
    for model, options, name in (('ksts300', 'media=iso_a4_210x297mm', b'A4'),
                                 ('ksts300', 'PageSize=Tattoo_A6', b'Tattoo_A6'),
                                 ('kstl203', 'PageSize=Custom.73x41mm', b'73x41mm')):
        run(test_documents.PDF, options, model=model, bin_folder=folder)
        # cupsPageSizeName is the last field of the header.
        assert read(raster)[4 + 1732:4 + 1796].rstrip(b'\0') == name, options


def a_missing_program_is_named():
    for name, document in (('picturetokestolabel', test_documents.png(300, 400)),
                           ('pdftopdf', test_documents.PDF), ('gstoraster', test_documents.PDF),
                           ('rastertokestotspl', test_documents.PDF)):
        done = refused(f'filter {name} ', document, bin_folder=server_bin(but=(name,)))
        assert len(done.lines) == 1, done.lines


def the_first_program_that_fails_is_named():
    ends = script('#!/bin/sh\nexit 3\n')
    crashes = script('#!/bin/sh\nkill -SEGV $$\n')
    picture = test_documents.png(300, 400)
    for name, document in (('picturetokestolabel', picture), ('pdftopdf', test_documents.PDF),
                           ('gstoraster', test_documents.PDF)):
        refused(f'^{name} failed with status 3', document, bin_folder=server_bin(**{name: ends}))
        refused(f'^{name} was ended by signal 11', document,
                bin_folder=server_bin(**{name: crashes}))
    refused('^rastertokestotspl failed with status 3$', picture,
            bin_folder=server_bin(rastertokestotspl=ends))


def what_was_printed_before_a_failure_stays_printed():
    after_a_page = script(f'#!/bin/sh\n{intake_run.CUPS_FILTERS}gstoraster "$@"\nexit 3\n')
    done = run(test_documents.PDF, bin_folder=server_bin(gstoraster=after_a_page))
    assert done.status == 1 and done.own_error() == 'gstoraster failed with status 3', done.lines
    assert sizes(done.stream) == [(808, 1218, 1)]


def orphans_of_a_program_end_with_it():
    leaves = script('#!/bin/sh\nsleep 1000 >/dev/null &\nexit 3\n')
    refused('^gstoraster failed', test_documents.PDF, bin_folder=server_bin(gstoraster=leaves))
    holds_the_pipe = script('#!/bin/sh\nsleep 1000 &\nexit 3\n')
    refused('^gstoraster failed', test_documents.PDF,
            bin_folder=server_bin(gstoraster=holds_the_pipe))


def the_queue_must_have_a_description_with_sizes():
    refused('PPD is not set', test_documents.PDF, variables={'PPD': ''})
    refused('Unable to read the queue', test_documents.PDF, model='/nonexistent/x.ppd')
    text = read(f'{PPD_FOLDER}/kstl203.ppd')
    lines = text.split(b'\n')
    without_size = write('sizeless.ppd', b'\n'.join(
        line for line in lines if b'PaperDimension' not in line))
    refused('no page size', test_documents.PDF, model=without_size)
    without_resolution = write('dotless.ppd', b'\n'.join(
        line for line in lines if b'Resolution' not in line))
    refused('no resolution', test_documents.PDF, model=without_resolution)


def fewer_arguments_are_answered_by_the_usage():
    done = subprocess.run([intake_run.INTAKE, '1', '2', '3', '4'], capture_output=True)
    assert done.returncode == 1 and done.stdout == b'', done
    assert done.stderr.startswith(b'Usage: documenttokestotspl job_id user'), done.stderr


def closed_standard_streams_are_survived():
    for closed in ([0], [2], [0, 2], [1], [0, 1], [1, 2], [0, 1, 2]):
        def close():
            for number in closed:
                os.close(number)
        for document in test_documents.PDF, test_documents.png(300, 400):
            done = run(document, preexec_fn=close)
            assert done.status == (1 if 1 in closed else 0), (closed, done.lines)
            if 1 not in closed:
                assert sizes(done.stream) == [(808, 1218, 1)], closed
            elif 2 not in closed:
                assert done.own_error() == 'rastertokestotspl failed with status 1', done.lines
    done = run(None, given=None, preexec_fn=lambda: os.close(0))
    assert done.status == 1 and done.own_error().startswith('Unable to read the document')


def a_square_label_is_never_turned():
    """The page's text stands at its upper left, a square at its lower left."""
    for converter in CONVERTERS:
        folder = server_bin(converter)
        for document in test_documents.pdf(283, 283), test_documents.pdf(284, 283):
            done = printed(document, 'PageSize=100x100mm', bin_folder=folder)
            page = label_stream.pages_of(done.stream)[0]
            left, top, right, bottom = page.ink_box()
            # 20 points are 56 dots; the square is 10 points from there up.
            assert 50 <= left <= 62 and 738 <= bottom <= 750, (converter, page.ink_box())
            assert page.burns(70, 730), 'the square is not at the lower left'
        for picture in test_documents.png(300, 280), test_documents.png(280, 300):
            done = printed(picture, 'PageSize=100x100mm', bin_folder=folder)
            left, top, right, bottom = label_stream.pages_of(done.stream)[0].ink_box()
            assert bottom - top > 5 * (right - left), 'the upright bar lies'


def a_page_across_is_turned_on_an_upright_label():
    for converter in CONVERTERS:
        done = printed(test_documents.pdf(432, 288), bin_folder=server_bin(converter))
        page = label_stream.pages_of(done.stream)[0]
        left, top, right, bottom = page.ink_box()
        assert (page.width, page.height) == (808, 1218)
        # Upright and as wide as the label it would be in the middle, from row 339 to 879.
        assert bottom > 900, page.ink_box()


def a_larger_document_is_fitted_with_all_its_ink():
    """Also where the label's points are whole numbers, where pdftopdf would cut the edges off."""
    for converter in CONVERTERS:
        for options in '', 'print-scaling=auto':
            done = printed(test_documents.pdf(595, 842), options, model='kstl300',
                           bin_folder=server_bin(converter))
            left, top, right, bottom = label_stream.pages_of(done.stream)[0].ink_box()
            # 20 of 595 points are 40 of 1192 dots.
            assert 36 <= left <= 46, (converter, options, left)
