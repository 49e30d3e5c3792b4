"""Streams of labels, as the filter frames them."""
import random
import re

SET_UP = (b'\n' * 64 + b'SIZE 50.0 mm, 25.4 mm\r\nGAP 2.0 mm, 0.0 mm\r\nREFERENCE 0,0\r\nDIRECTION 0,0\r\n'
          b'DENSITY 8\r\nSET RIBBON OFF\r\nOFFSET 0.0 mm\r\nSET TEAR OFF\r\n')


def label(data, copies=1):
    """A label of one byte column, as the filter frames it."""
    return b'CLS\r\nBITMAP 0,0,1,%d,0,%b\r\nPRINT 1,%d\r\n' % (len(data), data, copies)


def labels(count, size=300, dice=None):
    """A stream of labels that all differ and hold whatever could be taken for a command."""
    dice = dice or random.Random(count)
    lures = (b'\x1b!?', b'\r\nPRINT 1,1\r\n', b'BITMAP 0,0,9,9,0,', b'\x1b', b'\r\n')
    return SET_UP + b''.join(label(dice.randbytes(size // 2) + dice.choice(lures) + dice.randbytes(size // 2))
                             for _ in range(count))


def boundaries(stream):
    """The places of a stream made here where a job may be left: the ends of commands and of bitmaps."""
    found, at = set(range(65)), 64          # of the line feeds, too
    while at < len(stream):
        head = re.match(rb'BITMAP 0,0,(\d+),(\d+),0,', stream[at:at + 40])
        if head:
            at += head.end() + int(head[1]) * int(head[2])
            found.add(at)                # with or without the line end
        at = stream.index(b'\n', at) + 1
        found.add(at)
    return found
