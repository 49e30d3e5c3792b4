"""Pictures by the formats' own encoders: WebP, HEIC, AVIF, JPEG XL, progressive JPEG, TIFF of
facsimile machines."""
import ctypes
import ctypes.util
import subprocess

import png_files
from picture_run import read, write
from pixels import samples


def by(command, content, ending, from_ending='png'):
    """What a command makes of content; {0} and {1} in it are the files' names."""
    source, made = write(content, from_ending), write(b'', ending)
    subprocess.run([word.format(source, made) for word in command], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return read(made)


def png(rows, channels):
    kind = {'r': png_files.GREY, 'rgb': png_files.RGB, 'rgba': png_files.RGBA,
            'ra': png_files.GREY_ALPHA}[channels]
    return png_files.png(samples(rows, channels), kind)


def webp(rows, quality=None):
    """Lossless without a quality. Of the library alone: its tools need one for windows."""
    library = ctypes.CDLL('libwebp.so.7')
    width, height = len(rows[0]), len(rows)
    data = b''.join(map(bytes, samples(rows, 'rgba')))
    made = ctypes.POINTER(ctypes.c_uint8)()
    size = [width, height, 4 * width]
    if quality is None:
        library.WebPEncodeLosslessRGBA.restype = ctypes.c_size_t
        length = library.WebPEncodeLosslessRGBA(data, *size, ctypes.byref(made))
    else:
        library.WebPEncodeRGBA.restype = ctypes.c_size_t
        length = library.WebPEncodeRGBA(data, *size, ctypes.c_float(quality), ctypes.byref(made))
    assert length
    content = ctypes.string_at(made, length)
    library.WebPFree(made)
    return content


def webp_with_exif(content, width, height, exif):
    """The same picture in the container that has a place for Exif data."""
    piece = lambda kind, data: kind + len(data).to_bytes(4, 'little') + data + bytes(len(data) % 2)
    size = (width - 1).to_bytes(3, 'little') + (height - 1).to_bytes(3, 'little')
    body = b'WEBP' + piece(b'VP8X', b'\x08\0\0\0' + size) + content[12:] + piece(b'EXIF', exif)
    return b'RIFF' + len(body).to_bytes(4, 'little') + body


def heic(rows, channels='rgb'):
    return by(['heif-enc', '-q', '90', '-o', '{1}', '{0}'], png(rows, channels), 'heic')


def avif(rows, channels='rgb'):
    return by(['heif-enc', '-A', '-q', '90', '-o', '{1}', '{0}'], png(rows, channels), 'avif')


def jpeg_xl(rows, channels='rgb', distance=0):
    return by(['cjxl', '{0}', '{1}', '-d', str(distance)], png(rows, channels), 'jxl')


def jpeg_xl_of_jpeg(content):
    return by(['cjxl', '{0}', '{1}'], content, 'jxl', 'jpg')


def jpeg(rows, *options):
    body = b'P6 %d %d 255\n' % (len(rows[0]), len(rows)) + b''.join(map(bytes, samples(rows, 'rgb')))
    return by(['cjpeg', *options, '-outfile', '{1}', '{0}'], body, 'jpg', 'ppm')


def tiff_by(compression, content):
    return by(['tiffcp', '-c', compression, '{0}', '{1}'], content, 'tif', 'tif')
