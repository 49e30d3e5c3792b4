"""Documents of all kinds, written here or by Ghostscript and Poppler."""
import random
import struct
import subprocess
import zlib

import intake_run
from intake_run import FOLDER, read, write
import documents

# The folder's documents are PDF pages of 4 x 6 inches.
PDF = write('page.pdf', documents.pdf(['One page'], 288, 432))
THREE_PAGES = write('three.pdf', documents.pdf(['One', 'Two', 'Three'], 288, 432))


def pdf(width, height):
    return write(f'{width}x{height}.pdf', documents.pdf(['A page'], width, height))


def png(width, height, depth=8):
    """A white picture with a black bar at its left."""
    size = depth // 8
    row = b'\0' + b'\0' * (width // 10 * size) + b'\xff' * ((width - width // 10) * size)
    chunk = lambda kind, data: (struct.pack('>I', len(data)) + kind + data +
                                struct.pack('>I', zlib.crc32(kind + data)))
    header = struct.pack('>IIBBBBB', width, height, depth, 0, 0, 0, 0)
    return write(f'{width}x{height}-{depth}.png',
                 b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', header) +
                 chunk(b'IDAT', zlib.compress(row * height)) + chunk(b'IEND', b''))


def by_ghostscript(name, device, *options, source=PDF):
    subprocess.run(['gs', '-q', '-dBATCH', '-dNOPAUSE', '-dSAFER', f'-sDEVICE={device}', *options,
                    f'-sOutputFile={FOLDER}/{name}', source], check=True)
    return f'{FOLDER}/{name}'


def jpeg():
    return by_ghostscript('picture.jpg', 'jpeggray', '-r50')


def cmyk_jpeg():
    return by_ghostscript('cmyk.jpg', 'jpegcmyk', '-r50')


def cmyk_tiff():
    return by_ghostscript('cmyk.tif', 'tiff32nc', '-r50')


def turned_jpeg():
    """A picture whose Exif data say that it lies on its side."""
    plain = read(jpeg())
    exif = (b'Exif\0\0MM\0*\0\0\0\x08' + b'\0\x01' + b'\x01\x12\0\x03\0\0\0\x01\0\x06\0\0' +
            b'\0\0\0\0')
    return write('turned.jpg', plain[:2] + b'\xff\xe1' + struct.pack('>H', len(exif) + 2) + exif +
                 plain[2:])


def encrypted():
    return by_ghostscript('encrypted.pdf', 'pdfwrite', '-sOwnerPassword=o', '-sUserPassword=u',
                          '-dEncryptionR=3', '-dKeyLength=128')


def bulky():
    """A PDF file of a page that does not become much smaller when it is compressed."""
    noise = random.Random(1).choices('abcdefghijklmnopqrstuvwxyz0123456789', k=80000)
    return write('bulky.pdf', documents.pdf([') Tj\n%' + ''.join(noise) + '\n('], 288, 432))


def no_page():
    """A PDF file without pages."""
    body = (b'%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>\nendobj\n'
            b'2 0 obj<</Type/Pages/Count 0/Kids[]>>\nendobj\n')
    first, second = body.index(b'1 0 obj'), body.index(b'2 0 obj')
    return write('no-page.pdf', body + b'xref\n0 3\n0000000000 65535 f \n%010d 00000 n \n'
                 b'%010d 00000 n \ntrailer<</Size 3/Root 1 0 R>>\nstartxref\n%d\n%%%%EOF\n'
                 % (first, second, len(body)))


def pnm(kind, body):
    return write(f'picture{kind}.pnm', b'P%d\n%s' % (kind, body))


HEADER_SIZE = 1796


def raster(name, width, height, space, pages=1, dpi=203, bits=8, level=0, copies=1, order=0,
           sync=b'3SaR', cut=0, behind=b''):
    """CUPS raster of one level; the header's fields are at their offsets in cups_page_header2_t.
    Behind each line there may be more bytes than the page is wide."""
    row = bytes([level]) * ((width * bits + 7) // 8) + behind
    row_bytes = len(row)
    header = bytearray(HEADER_SIZE)
    fields = {276: dpi, 280: dpi, 340: copies, 372: width, 376: height, 384: bits, 388: bits,
              392: row_bytes, 396: order, 400: space, 420: 1}
    for offset, value in fields.items():
        struct.pack_into('=I', header, offset, value)
    page = bytes(header) + row * height
    content = sync + page * pages
    return write(name, content[:len(content) - cut])
