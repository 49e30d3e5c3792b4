"""Pictures through the real documenttokestotspl and rastertokestotspl, without a scheduler."""
import os
import struct
import subprocess
import sys
import tempfile

import picture_run
from picture_run import FOLDER, write

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../queue'))
import label_stream

CUPS_FILTERS = '/usr/lib/cups/filter/'
PROGRAMS = {'rastertokestotspl': picture_run.FILTER, 'picturetokestolabel': picture_run.PICTURE,
            'rastertokestocontent': os.path.join(os.path.dirname(picture_run.INTAKE), 'content/rastertokestocontent')}


def filter_folder():
    """CUPS's programs with those that were built."""
    folder = tempfile.mkdtemp(dir=FOLDER)
    os.mkdir(f'{folder}/filter')
    for name in 'imagetopdf', 'pdftopdf', 'gstoraster':
        os.symlink(CUPS_FILTERS + name, f'{folder}/filter/{name}')
    for name, path in PROGRAMS.items():
        os.symlink(path, f'{folder}/filter/{name}')
    return folder


SERVER_BIN = filter_folder()


def document(content, options='', model='kstl203', copies=1, server_bin=SERVER_BIN):
    """(status, stream, lines) of a job, which leaves nothing behind."""
    path = content if isinstance(content, str) else write(content)
    temporary = tempfile.mkdtemp(dir=FOLDER)
    environment = {name: value for name, value in os.environ.items()
                   if name not in ('CUPS_SERVER', 'CONTENT_TYPE', 'FINAL_CONTENT_TYPE')}
    environment.update(PPD=f'{picture_run.PPD_FOLDER}/{model}.ppd', TMPDIR=temporary,
                       CUPS_SERVERBIN=server_bin)
    done = subprocess.run([picture_run.INTAKE, '1', 'anna', 'a title', str(copies), options, path],
                          env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
    lines = [line for line in done.stderr.decode(errors='replace').splitlines()
             if not line.startswith('DEBUG')]
    assert os.listdir(temporary) == [], os.listdir(temporary)
    return done.returncode, done.stdout, lines


def raster_of(content, options=''):
    """Rows of levels of the first page that the printing filter is given."""
    folder = filter_folder()
    path = write(b'')
    os.unlink(f'{folder}/filter/rastertokestotspl')
    with open(f'{folder}/filter/rastertokestotspl', 'w', encoding='ascii') as file:
        file.write(f'#!/bin/sh\ncat >{path}\n')
    os.chmod(f'{folder}/filter/rastertokestotspl', 0o755)
    status, _, lines = document(content, options, server_bin=folder)
    assert status == 0, lines
    with open(path, 'rb') as file:
        raster = file.read()
    head = 4 + 1796
    width, height = struct.unpack_from('<II', raster, 4 + 372)
    return [raster[head + y * width:head + (y + 1) * width] for y in range(height)]


def printed(content, options='', **more):
    """The pages of the stream of a job that must be printed."""
    status, stream, lines = document(content, options, **more)
    assert status == 0, (status, lines)
    return label_stream.pages_of(stream)
