"""One document of every kind of picture, and texts that could be taken for one. Every picture is white
with a black quarter at its top left, two thirds as wide as tall. What has to be compressed was made
once, with the tools that are named beside it."""
import base64
import struct
import zlib

WIDTH, HEIGHT = 40, 60
SHADES = [[0 if x < WIDTH // 2 and y < HEIGHT // 2 else 255 for x in range(WIDTH)] for y in range(HEIGHT)]
GREY = b''.join(map(bytes, SHADES))
COLOURS = b''.join(bytes([shade] * 3) for shade in GREY)


def bits(row, places=range(7, -1, -1)):
    """Eight pixels to a byte, 1 for black, the first one in the first of the places."""
    return bytes(sum((shade == 0) << place for shade, place in zip(row[at:], places))
                 for at in range(0, len(row), 8))


def text_of(numbers):
    return b''.join(' '.join(map(str, row)).encode() + b'\n' for row in numbers)


def pnm(kind):
    head = b'%b\n%d %d\n' % (kind, WIDTH, HEIGHT) + (b'' if kind in (b'P1', b'P4') else b'255\n')
    return head + {
        b'P1': lambda: text_of([[int(shade == 0) for shade in row] for row in SHADES]),
        b'P2': lambda: text_of(SHADES),
        b'P3': lambda: text_of([[shade for shade in row for _ in 'rgb'] for row in SHADES]),
        b'P4': lambda: b''.join(map(bits, SHADES)),
        b'P5': lambda: GREY,
        b'P6': lambda: COLOURS}[kind]()


def png():
    def chunk(name, data):
        return struct.pack('>I', len(data)) + name + data + struct.pack('>I', zlib.crc32(name + data))
    rows = b''.join(b'\0' + bytes(row) for row in SHADES)
    return (b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack('>IIBBBBB', WIDTH, HEIGHT, 8, 0, 0, 0, 0)) +
            chunk(b'IDAT', zlib.compress(rows)) + chunk(b'IEND', b''))


def gif():
    """The codes are those of single pixels, and the table is emptied before they become longer."""
    codes = []
    for at, shade in enumerate(GREY):
        if at % 2 == 0:
            codes.append(4)
        codes.append(shade // 255)
    stream = sum(code << 3 * at for at, code in enumerate(codes + [5]))
    data = stream.to_bytes((3 * (len(codes) + 1) + 7) // 8, 'little')
    blocks = b''.join(bytes([len(data[at:at + 255])]) + data[at:at + 255] for at in range(0, len(data), 255))
    return (b'GIF89a' + struct.pack('<HHBBB', WIDTH, HEIGHT, 0x80, 0, 0) + b'\0\0\0\xff\xff\xff' +
            b',' + struct.pack('<HHHHB', 0, 0, WIDTH, HEIGHT, 0) + b'\x02' + blocks + b'\0;')


def tiff(order):
    """8 bit grey in one strip behind the directory; "<" is little-endian."""
    entries = [(256, 3, WIDTH), (257, 3, HEIGHT), (258, 3, 8), (259, 3, 1), (262, 3, 1), (273, 4, 0),
               (277, 3, 1), (278, 3, HEIGHT), (279, 4, len(GREY))]
    start = 8 + 2 + 12 * len(entries) + 4
    entries[5] = (273, 4, start)
    body = b''.join(struct.pack(order + 'HHI', tag, kind, 1) +
                    (struct.pack(order + 'HH', value, 0) if kind == 3 else struct.pack(order + 'I', value))
                    for tag, kind, value in entries)
    return ((b'II' if order == '<' else b'MM') + struct.pack(order + 'HI', 42, 8) +
            struct.pack(order + 'H', len(entries)) + body + struct.pack(order + 'I', 0) + GREY)


def bmp():
    rows = b''.join(bytes(shade for shade in row for _ in 'bgr') for row in reversed(SHADES))
    head = struct.pack('<IiiHHIIiiII', 40, WIDTH, HEIGHT, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return b'BM' + struct.pack('<IHHI', 54 + len(rows), 0, 0, 54) + head + rows


def bmp_of_os2():
    rows = b''.join(bytes(shade for shade in row for _ in 'bgr') for row in reversed(SHADES))
    return b'BM' + struct.pack('<IHHI', 26 + len(rows), 0, 0, 26) + \
        struct.pack('<IHHHH', 12, WIDTH, HEIGHT, 1, 24) + rows


def sgi(height=HEIGHT):
    rows = b''.join(bytes(row) for row in reversed(SHADES[:height]))
    return struct.pack('>hbbHHHHii', 474, 0, 1, 2, WIDTH, height, 1, 0, 255).ljust(512, b'\0') + rows


def sun():
    return struct.pack('>8I', 0x59a66a95, WIDTH, HEIGHT, 8, len(GREY), 1, 1, 768) + bytes(range(256)) * 3 + GREY


def photo_cd():
    """A black quarter on white in the picture of 768 x 512: the only size there is, and across."""
    data = bytearray(0x30000)
    data[2048:2055] = b'PCD_IPI'
    white, dark = bytes([0xbd]) * 768, bytes(384) + bytes([0xbd]) * 384
    for row in range(0, 512, 2):
        data += (dark if row < 256 else white) * 2 + bytes([156]) * 384 + bytes([137]) * 384
    return bytes(data)


def window_dump():
    """A true colour window of 32 bits."""
    head = [104, 7, 2, 24, WIDTH, HEIGHT, 0, 1, 32, 1, 32, 32, 4 * WIDTH, 4, 0xff0000, 0xff00, 0xff, 8, 0, 0,
            WIDTH, HEIGHT, 0, 0, 0]
    return struct.pack('>25I', *head) + b'xwd\0' + \
        b''.join(bytes([0, shade, shade, shade]) for shade in GREY)


def pam(depth):
    kind = {1: b'GRAYSCALE', 3: b'RGB'}[depth]
    return b'P7\nWIDTH %d\nHEIGHT %d\nDEPTH %d\nMAXVAL 255\nTUPLTYPE %b\nENDHDR\n' % (
        WIDTH, HEIGHT, depth, kind) + {1: GREY, 3: COLOURS}[depth]


def xbm(comment=b'', kind=b'static unsigned char'):
    numbers = b','.join(b' 0x%02x' % byte for row in SHADES for byte in bits(row, range(8)))
    return comment + b'#define label_width %d\n#define label_height %d\n%b label_bits[] = {\n%b };\n' % (
        WIDTH, HEIGHT, kind, numbers)


def xpm(head=b'static char *label[] = {\n'):
    rows = b',\n'.join(b'"' + bytes(46 if shade else 35 for shade in row) + b'"' for row in SHADES)
    return b'/* XPM */\n' + head + b'"%d %d 2 1",\n"# c #000000",\n". c #ffffff",\n%b\n};\n' % (WIDTH, HEIGHT, rows)


def jpeg_without_jfif():
    return JPEG[:2] + JPEG[4 + int.from_bytes(JPEG[4:6], 'big'):]

# gm convert -quality 90
JPEG = base64.b64decode('''
/9j/4AAQSkZJRgABAQEASABIAAD/2wBDAAMCAgMCAgMDAwMEAwMEBQgFBQQEBQoHBwYIDAoMDAsKCwsNDhIQDQ4RDgsLEBYQERMUFRUVDA8XGB
YUGBIUFRT/wAALCAA8ACgBAREA/8QAFwABAQEBAAAAAAAAAAAAAAAAAAkICv/EAC8QAQAAAQYLCQAAAAAAAAAAAAARCAkTR4XEAwQFEhQVFxlX
pdQBAgYHFiEkMjP/2gAIAQEAAD8AlUKqTGNdliX9VQcq4qpMY12WJf1VByriqkxjXZYl/VUEAd1xKd4Zc/yX1JuuJTvDLn+S+pb/AJqSS55nya
9qO0fwz6c11qvQPn4rjVNQ6XS/hhe/mwpcH9oRzvaMO2G/wAAAAAAH/9k=''')
# cwebp -lossless
WEBP = base64.b64decode('''
UklGRioAAABXRUJQVlA4TB4AAAAvJ8AOAA8w//M///MfeBASEP6v9cADOaL/EwDWkKs=''')
# heif-enc -q 90
HEIC = base64.b64decode('''
AAAAHGZ0eXBoZWljAAAAAG1pZjFoZWljbWlhZgAAAaZtZXRhAAAAAAAAACFoZGxyAAAAAAAAAABwaWN0AAAAAAAAAAAAAAAAAAAAAA5waXRtAA
AAAAACAAAAEGlkYXQAAAAAACgAPAAAADhpbG9jAQAAAERAAAIAAQAAAAAAAAHKAAEAAAAAAAAAwQACAAEAAAAAAAAAAQAAAAAAAAAIAAAAOGlp
bmYAAAAAAAIAAAAVaW5mZQIAAAEAAQAAaHZjMQAAAAAVaW5mZQIAAAAAAgAAZ3JpZAAAAADRaXBycAAAAK9pcGNvAAAAcWh2Y0MBBAgAAAAAAA
AAAAAe8AD8/Pj4AAAPAyAAAQAXQAEMAf//BAgAAAMAn/gAAAMAAB66AkAhAAEAJkIBAQQIAAADAJ/4AAADAAAewIIEFlurkprmwIAAAAMAgAAA
AwCEIgABAAZEAcFzwIkAAAAUaXNwZQAAAAAAAABAAAAAQAAAABRpc3BlAAAAAAAAACgAAAA8AAAADnBpeGkAAAAAAQgAAAAaaXBtYQAAAAAAAA
ACAAECgQIAAgIDhAAAABppcmVmAAAAAAAAAA5kaW1nAAIAAQABAAAAyW1kYXQAAAC9KAGuDHDxeVt+3+HhRjEOi9qzzhvCtjXD+Y5dv50Snqn9
e/8838iY/aHmf9EH/Ur/4L7/kvqKKIvlid40moOU+m9X8Ev22+7QjV5YfnovAiOiLUUaH4ClfFdvyKD27rGCIGd/f9wLVM4VAnbjAoSQJUG7Yg
lnqQSVLLgI9XgA7VGSKy1AlDunTNT2/fXmBzsRmJ9CU9e9Y+yeM2TeOKV9k5vcF68qf5nKK/2kO49dP+BRh2SavAGGgFmH8RvA''')
# heif-enc -A -q 90
AVIF = base64.b64decode('''
AAAAHGZ0eXBhdmlmAAAAAGF2aWZtaWYxbWlhZgAAAOhtZXRhAAAAAAAAACFoZGxyAAAAAAAAAABwaWN0AAAAAAAAAAAAAAAAAAAAAA5waXRtAA
AAAAABAAAAImlsb2MAAAAAREAAAQABAAAAAAEMAAEAAAAAAAAAJwAAACNpaW5mAAAAAAABAAAAFWluZmUCAAAAAAEAAGF2MDEAAAAAaGlwcnAA
AABJaXBjbwAAABNjb2xybmNseAACAAIABoAAAAAMYXYxQ4EAHAAAAAAUaXNwZQAAAAAAAAAoAAAAPAAAAA5waXhpAAAAAAEIAAAAF2lwbWEAAA
AAAAAAAQABBIGCA4QAAAAvbWRhdBIACgYYFWfthUAyG0RgAABQ2ABGWG0EWhT4mUCT7jmJla0FCz0MKA==''')
# cjxl -d 0
JXL = base64.b64decode('''
/wrYAU6AoLgQCAIBAGAASxiLFQDUEyfGoL8ACACvyz0BOEv+AJMA''')
# cjxl -d 0 --container=1
JXL_FILE = base64.b64decode('''
AAAADEpYTCANCocKAAAAFGZ0eXBqeGwgAAAAAGp4bCAAAAAvanhsY/8K2AFOgKC4EAgCAQBgAEsYixUA1BMnxqC/AAgAr8s9AThL/gCTAA==''')

PRINTED = {
    'PNG': png(), 'GIF': gif(), 'BMP': bmp(), 'BMP of OS/2': bmp_of_os2(),
    'TIFF, little-endian': tiff('<'), 'TIFF, big-endian': tiff('>'),
    'JPEG': JPEG, 'JPEG without JFIF': jpeg_without_jfif(),
    'PBM in text': pnm(b'P1'), 'PGM in text': pnm(b'P2'), 'PPM in text': pnm(b'P3'),
    'PBM': pnm(b'P4'), 'PGM': pnm(b'P5'), 'PPM': pnm(b'P6'), 'PAM in grey': pam(1), 'PAM in colour': pam(3),
    'SGI': sgi(), 'Sun raster': sun(), 'Photo CD': photo_cd(), 'X window dump': window_dump(),
    'XBM': xbm(), 'XBM of X10': xbm(kind=b'static char'),
    'XPM': xpm(), 'XPM of constants': xpm(b'static const char * const label_xpm[] = {\n'),
    'XPM with a comment': xpm(b'/* made for a label (not *code*) */\nstatic char * label_xpm [] = {\n'),
    'WebP': WEBP, 'HEIC': HEIC, 'AVIF': AVIF, 'JPEG XL': JXL, 'JPEG XL in a file': JXL_FILE,
}

SVG = b'<svg xmlns="http://www.w3.org/2000/svg" width="40" height="60"><rect width="20" height="30"/></svg>\n'
DOCTYPE = (b'<!DOCTYPE svg PUBLIC "-//W3C//DTD SVG 1.1//EN" "http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd" [\n'
           b'  <!ENTITY ns "http://www.w3.org/2000/svg">\n]>\n')


def icon(kind):
    return struct.pack('<HHHBBBBHHII', 0, kind, 1, 16, 16, 0, 0, 1, 32, 1128, 22) + bytes(1128)


def targa(kind, palette=0):
    map_size = (256, 24) if palette else (0, 0)
    return struct.pack('<BBBHHBHHHHBB', 0, palette, kind, 0, *map_size, 0, 0, WIDTH, HEIGHT, 8, 0x20) + bytes(4000)


def boxes(brand, *compatible):
    return struct.pack('>I', 16 + 4 * len(compatible)) + b'ftyp' + brand + bytes(4) + b''.join(compatible)


# What a format's definition wants a file to start with, and something behind it.
REFUSED = {name: start + bytes(600) for name, start in {
    'JPEG 2000': b'\0\0\0\x0cjP  \r\n\x87\n\0\0\0\x14ftypjp2 ',
    'JPEG 2000 stream': b'\xff\x4f\xff\x51\0\x29', 'JPEG XR': b'II\xbc\x01\x08\0\0\0',
    'Photoshop': b'8BPS\0\x01' + bytes(6) + b'\0\x03', 'Photoshop, large': b'8BPS\0\x02' + bytes(6) + b'\0\x03',
    'GIMP': b'gimp xcf v011\0\0\0\0\x28',
    'EMF': struct.pack('<II8i', 1, 108, 0, 0, 40, 60, 0, 0, 1000, 1500) + b' EMF\0\0\1\0',
    'WMF': b'\1\0\x09\0\0\3', 'WMF with a header': b'\xd7\xcd\xc6\x9a\0\0',
    'EPS with a preview': b'\xc5\xd0\xd3\xc6\x1e\0\0\0', 'DjVu': b'AT&TFORM\0\0\1\0DJVU',
    'IFF of the Amiga': b'FORM\0\0\1\0ILBMBMHD', 'PICT': bytes(522) + b'\0\x11\2\xff\x0c\0',
    'Windows icon': icon(1), 'Windows cursor': icon(2), 'Apple icon': b'icns\0\0\4\0',
    'BMP array of OS/2': b'BA\x28\0\0\0' + bytes(8) + b'BM\x1a\0\0\0',
    'PCX': struct.pack('<BBBB4H', 10, 5, 1, 8, 0, 0, 39, 59), 'DCX': b'\xb1\x68\xde\x3a\x04\x10\0\0',
    'TGA': targa(2), 'TGA in grey': targa(3), 'TGA, packed': targa(10), 'TGA with a palette': targa(1, 1),
    'MNG': b'\x8aMNG\r\n\x1a\n', 'JNG': b'\x8bJNG\r\n\x1a\n', 'QOI': b'qoif\0\0\0\x28\0\0\0\x3c\3\0',
    'DDS': b'DDS \x7c\0\0\0', 'OpenEXR': b'\x76\x2f\x31\x01\2\0\0\0', 'DPX': b'SDPX\0\0\x20\0',
    'DPX, little-endian': b'XPDS\0\x20\0\0', 'Cineon': b'\x80\x2a\x5f\xd7\0\0\4\0',
    'farbfeld': b'farbfeld\0\0\0\x28\0\0\0\x3c', 'DICOM': bytes(128) + b'DICM\2\0\0\0UL',
    'Radiance': b'#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 60 +X 40\n', 'PFM': b'PF\n40 60\n-1.0\n',
    'Thumbnail of xv': b'P7 332\n#IMGINFO:40x60 Greyscale\n#END_OF_COMMENTS\n40 60 255\n',
    'Olympus': b'IIRO\x08\0\0\0', 'Panasonic': b'IIU\0\x18\0\0\0', 'Fujifilm': b'FUJIFILMCCD-RAW 0201FF',
    'Canon': boxes(b'crx ', b'crx ', b'isom'), 'Canon, older': b'II\x1a\0\0\0HEAPCCDR', 'Foveon': b'FOVb\0\0\3\0',
    'SVG in UTF-16': '\ufeff'.encode('utf-16-le') + SVG.decode().encode('utf-16-le'),
    'SVG in UTF-16, big-endian': '\ufeff'.encode('utf-16-be') + SVG.decode().encode('utf-16-be'),
    'HEIF, empty': boxes(b'mif1', b'mif1', b'heic'), 'HEIC of many, empty': boxes(b'hevc', b'hevc'),
    'AVIF of many, empty': boxes(b'avis', b'avis', b'msf1'),
}.items()}
REFUSED |= {
    'BigTIFF, empty': b'II\x2b\0\x08\0\0\0' + bytes(600), 'BigTIFF, big-endian, empty': b'MM\0\x2b\0\x08' + bytes(600),
    'Alias': struct.pack('>5H', WIDTH, HEIGHT, 0, 0, 24) + b'\xff\xff\xff\xff' * 10,
    'SVG': SVG, 'SVG behind a declaration': b'<?xml version="1.0" encoding="UTF-8" standalone="no"?>\n<!-- Made by hand -->\n' + SVG,
    'SVG with a document type': b'<?xml version="1.0"?>\n' + DOCTYPE + SVG, 'SVG by document type alone': DOCTYPE + SVG,
    'SVG with a mark': b'\xef\xbb\xbf' + SVG, 'SVG by prefix': SVG.replace(b'svg ', b'svg:svg ').replace(b'xmlns', b'xmlns:svg'),
    'XPM 2': b'! XPM2\n2 1 2 1\n# c #000000\n. c #ffffff\n#.\n',
    'FITS': b'SIMPLE  =                    T'.ljust(80) + b'BITPIX  =                    8'.ljust(80) + b'END'.ljust(2720) + GREY,
    'MIFF': b'id=ImageMagick\nclass=DirectClass\ncolumns=40 rows=60 depth=8\n\x0c\n:\x1a' + COLOURS,
}

HEADER = b'#define FORM_width 40\n#define FORM_height 60\n'
TEXTS = {
    'Plain text': b'Hello\n', 'Text about pictures': b'XPM, XBM, SVG and RIFF WEBP: <svg> is an element.\n',
    'Text that starts like an icon': b'icns and qoif are formats\n', 'Text of BA': b'BA 2471 to Berlin, BM 17\n',
    'Text of marks': b'IIRO, MMOR, FOVb and XPDS are marks of files\n', 'Text of PF': b'PF means Pferd, not 2 or 3\n',
    'Shell script': b'#!/bin/sh\necho "$1"\n', 'Perl script': b'#!/usr/bin/perl\nprint "x";\n',
    'C source': b'#include <stdio.h>\nint main(void) { puts("x"); }\n', 'C header': b'#define ANSWER 42\n',
    'C header with sizes': HEADER, 'C source with sizes': HEADER + b'static int form_bits(void) { return 0; }\n',
    'C source with a table of numbers': b'/* primes */\n#define COUNT 3\nstatic char primes[] = {\n2, 3, 5 };\n',
    'C source with an XBM within': xbm() + b'int main(void) { return label_bits[0]; }\n',
    'C source with code in front of a table': HEADER + b'int f(void);\nstatic char form_bits[] = { 0x01 };\n',
    'C source with two tables': HEADER + b'static char a_bits[] = { 0x01 };\nstatic char b[] = { 0x02 };\n',
    'C source about XPM': b'/* XPM */\nint xpm(const char *name);\n',
    'C source that speaks of XPM': b'/* reads XPM */\nstatic char *names[] = { "x" };\n',
    'HTML with an SVG': b'<!DOCTYPE html>\n<html><body>' + SVG + b'</body></html>\n',
    'XML': b'<?xml version="1.0"?>\n<labels><label/></labels>\n',
    'XML with an SVG': b'<?xml version="1.0"?>\n<labels>' + SVG + b'</labels>\n',
}
