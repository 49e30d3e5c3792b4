"""PNM and PAM pictures of rows of samples."""
from pixels import packed


def pnm(kind, rows, maximum=255, comment=b''):
    """Kind: the digit behind the P, 1 to 6."""
    count = 3 if kind in (3, 6) else 1
    head = b'P%d\n%s%d %d\n' % (kind, comment, len(rows[0]) // count, len(rows))
    if kind in (1, 4):
        rows = [[1 - sample for sample in row] for row in rows]
    else:
        head += b'%d\n' % maximum
    if kind <= 3:
        return head + b'\n'.join(b' '.join(b'%d' % sample for sample in row) for row in rows) + b'\n'
    bits = 1 if kind == 4 else 16 if maximum > 255 else 8
    return head + b''.join(packed(row, bits) for row in rows)


def pam(rows, kind, depth, maximum=255):
    return (b'P7\nWIDTH %d\nHEIGHT %d\nDEPTH %d\nMAXVAL %d\nTUPLTYPE %s\nENDHDR\n'
            % (len(rows[0]) // depth, len(rows), depth, maximum, kind) +
            b''.join(packed(row, 16 if maximum > 255 else 8) for row in rows))
