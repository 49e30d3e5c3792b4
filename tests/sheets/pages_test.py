"""What pages may have beside their content, and what a job may ask for."""
import os
import re
import shutil
import subprocess

from layouts_test import codes_of, expected_page, foreign_share
from sheet_run import (FOLDER, PPD_FOLDER, Faults, cut, filter_folder, job, printed, sheet,
                       sheet_layouts, write)
from sources.sheet_layouts import (INSTRUCTION, LETTER, Layout, Page, file_of, instructions, label_drawing,
                                   pdf, placed)


def pages_of(count, first=1):
    """A sheet for each label from the first on."""
    return pdf(Layout(*(Page(LETTER, placed(label_drawing(number), 90, 460, 90), instructions(60, 400))
                        for number in range(first, first + count))))


def codes_on(labels):
    return [label.codes for label in labels]


def without_the_option_pages_print_whole():
    labels, infos = printed(sheet('letter-top-lying'), '')
    assert labels[0].page.burnt_share() < 0.08 and len(labels) == 1, labels[0].page.burnt_share()
    assert not [line for line in infos if 'label' in line], infos
    assert [label.page.data for label in labels] == \
        [label.page.data for label in printed(sheet('letter-top-lying'), 'LabelOnPage=Whole')[0]]


def a_choice_that_the_queue_does_not_have_is_none():
    labels, _ = printed(sheet('letter-top-lying'), 'LabelOnPage=Nonsense')
    assert labels[0].page.burnt_share() < 0.08


def queue_with(old, new):
    """The folder of a description with another line."""
    with open(f'{PPD_FOLDER}/kstl203.ppd', encoding='utf-8') as file:
        text = file.read()
    assert old in text
    path = f'{FOLDER}/changed.ppd'
    with open(path, 'w', encoding='utf-8') as file:
        file.write(text.replace(old, new))
    return path


def the_queues_default_counts():
    from sheet_run import INTAKE, SERVER_BIN, Run
    document = write(sheet('letter-top-lying'))
    for old, new, options, is_found in (
            ('*DefaultLabelOnPage: Whole', '*DefaultLabelOnPage: Find', '', True),
            ('*DefaultLabelOnPage: Whole', '*DefaultLabelOnPage: Find', 'LabelOnPage=whole', False),
            ('LabelOnPage', 'SomethingElse', 'LabelOnPage=Find', False)):
        done = Run([INTAKE, '1', 'anna', 'a title', '1', options, document], PPD=queue_with(old, new),
                   CUPS_SERVERBIN=SERVER_BIN)
        assert done.status == 0, done.lines
        assert ('Found 1 label on 1 page' in done.infos()) == is_found, (new, options, done.infos())


def pages_are_chosen_before_labels_are_found():
    for options, numbers in (('page-ranges=2-3', (2, 3)), ('page-set=even', (2,)),
                             ('page-ranges=1,3 page-set=odd', (1, 3))):
        labels, _ = printed(pages_of(3), f'LabelOnPage=Find {options}')
        assert codes_on(labels) == [codes_of(number) for number in numbers], (options, codes_on(labels))


def page_numbers_in_the_log_are_those_of_the_document():
    done = cut(sheet('three-pages'), 'page-ranges=2-3')
    assert done.infos() == ['Found 1 label on 1 page', 'No label is found on page 2: it is printed whole']


def pages_without_a_label_have_one_line_however_many_they_are():
    text = Page(LETTER, sheet_layouts.text_page())
    done = cut(pdf(Layout(*[text] * 40)))
    assert done.infos() == ['No label is found on 40 pages (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, ...): '
                            'they are printed whole'], done.lines


def copies_and_several_on_a_label_are_laid_out_behind():
    labels, _ = printed(pages_of(1), copies=3)
    assert [label.page.copies for label in labels] == [3]
    labels, _ = printed(pages_of(4), 'LabelOnPage=Find number-up=2 HalftoneType=None', model='kstl300')
    assert codes_on(labels) == [codes_of(1) | codes_of(2), codes_of(3) | codes_of(4)], codes_on(labels)


def a_missing_program_is_named():
    done = job(sheet('letter-top-lying'), server_bin=filter_folder(but=('pdftokestolabels',)))
    assert done.status == 1 and done.output == b'', done.status
    assert len(done.lines) == 1 and 'The filter pdftokestolabels is missing' in done.lines[0], done.lines


def without_the_option_the_program_may_be_missing():
    done = job(sheet('label'), '', server_bin=filter_folder(but=('pdftokestolabels',)))
    assert done.status == 0, done.lines


def other_labels_are_looked_for_when_they_are_chosen():
    """A label of 60 x 40 mm among text; the sheet's own label is none then."""
    drawing = 'q 1 w 0.5 0.5 169.08 112.39 re S 20 20 100 60 re f Q'
    page = Page(LETTER, placed(drawing, 200, 500, 0, 1, (170.08, 113.39)), instructions(60, 300))
    labels, infos = printed(pdf(Layout(page)), 'LabelOnPage=Find PageSize=60x40mm', model='kstl203m')
    assert infos[:1] == ['Found 1 label on 1 page'], infos
    assert (labels[0].page.width, labels[0].page.height) == (480, 320)
    assert INSTRUCTION not in labels[0].codes


STAMP = ('/Type /XObject /Subtype /Form /BBox [0 0 40 40]', b'0 0 40 40 re f')


def with_remark(flags, appearance=STAMP):
    """A sheet with a stamp upon the label, 40 points wide."""
    content = (placed(label_drawing(), 90, 460, 90)).encode()
    return file_of(['<< /Type /Catalog /Pages 2 0 R >>', '<< /Type /Pages /Kids [4 0 R] /Count 1 >>',
                    '<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>',
                    '<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents 5 0 R /Annots [6 0 R] '
                    '/Resources << /Font << /F 3 0 R >> >> >>',
                    ('', content),
                    f'<< /Type /Annot /Subtype /Stamp /Rect [300 560 340 600] /F {flags} /AP << /N 7 0 R >> >>',
                    appearance])


def remarks_that_are_printed_stay_in_their_place():
    plain = expected_page(1, True)
    for flags, is_printed in ((4, True), (0, False), (6, False)):
        labels, _ = printed(with_remark(flags))
        more = labels[0].page.burnt_share() - plain.burnt_share()
        # 40 points are 113 dots; some of them burn already.
        assert (0.005 < more < 0.0131) == is_printed and more > -0.001, (flags, more)


def contents_in_pieces_are_one():
    drawing = placed(label_drawing(), 90, 460, 90).encode()
    # Within a word's string, at a blank, is where a piece may end.
    middle = drawing.index(b' Tf') + 1
    content = file_of(['<< /Type /Catalog /Pages 2 0 R >>',
                       '<< /Type /Pages /Kids [4 0 R] /Count 1 /MediaBox [0 0 612 792] '
                       '/Resources << /Font << /F 3 0 R >> >> >>',
                       '<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>',
                       '<< /Type /Page /Parent 2 0 R /Contents [5 0 R 6 0 R] >>',
                       ('', drawing[:middle]), ('', drawing[middle:])])
    labels, _ = printed(content)
    assert codes_on(labels) == [codes_of(1)], codes_on(labels)
    assert foreign_share(labels[0].page, expected_page(1, True)) < 0.004


def locked(*words):
    path = write(sheet('letter-top-lying'))
    subprocess.run(['qpdf', '--encrypt', *words, '--', path, f'{path}.locked'], check=True)
    with open(f'{path}.locked', 'rb') as file:
        return file.read()


def locked_documents_print_when_they_may():
    labels, _ = printed(locked('', 'owner', '256'))
    assert codes_on(labels) == [codes_of(1)]
    for content, reason in ((locked('user', 'owner', '256'), 'needs a password'),
                            (locked('', 'owner', '256', '--print=none'), 'does not allow printing')):
        done = job(content)
        assert done.status == 1 and done.output == b'', done.status
        assert len(done.lines) == 1 and reason in done.lines[0], done.lines


def text_stays_text():
    path = write(cut(sheet('letter-top-lying')).output)
    words = subprocess.run(['pdftotext', path, '-'], check=True, capture_output=True, text=True).stdout
    assert 'Maren Oduya' in words, words
    images = subprocess.run(['pdfimages', '-list', path], check=True, capture_output=True, text=True).stdout
    assert len(images.splitlines()) == 2, images


def every_model_finds_labels():
    for model in 'kstl203', 'kstl300', 'kstl203m', 'kstl300m':
        labels, _ = printed(sheet('letter-top-lying'), 'LabelOnPage=Find PageSize=4x6in', model=model)
        assert codes_on(labels) == [codes_of(1)], (model, codes_on(labels))
