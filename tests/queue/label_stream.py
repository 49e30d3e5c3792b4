"""What a test needs to know of a TSPL stream, read on its own."""
import re


class Page:
    """One BITMAP with its PRINT. Bits are True where a dot burns."""

    def __init__(self, width, height, data, sets, copies):
        self.width, self.height, self.data = width, height, data
        self.sets, self.copies = sets, copies

    def burns(self, x, y):
        return not self.data[y * (self.width // 8) + x // 8] & (0x80 >> x % 8)

    def burnt_share(self):
        return 1 - sum(byte.bit_count() for byte in self.data) / (8 * len(self.data))

    def ink_box(self):
        """(left, top, right, bottom) of the burnt dots, right and bottom past the last one."""
        row_bytes = self.width // 8
        rows = [self.data[i:i + row_bytes] for i in range(0, len(self.data), row_bytes)]
        inked = [y for y, row in enumerate(rows) if row != b'\xff' * row_bytes]
        columns = [x for x in range(self.width) if any(self.burns(x, y) for y in inked)]
        return columns[0], inked[0], columns[-1] + 1, inked[-1] + 1


def pages_of(stream):
    pages = []
    at = 0
    head = re.compile(rb'BITMAP 0,0,(\d+),(\d+),0,')
    end = re.compile(rb'\r\nPRINT (\d+),(\d+)\r\n')
    while found := head.search(stream, at):
        row_bytes, height = int(found[1]), int(found[2])
        data_end = found.end() + row_bytes * height
        done = end.match(stream, data_end)
        assert done, 'no PRINT behind a bitmap'
        pages.append(Page(8 * row_bytes, height, stream[found.end():data_end],
                          int(done[1]), int(done[2])))
        at = done.end()
    return pages


def settings_of(stream):
    """The command lines in front of the first bitmap."""
    return stream[:stream.index(b'BITMAP')].decode('ascii').split('\r\n')[:-1]
