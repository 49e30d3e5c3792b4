"""Jobs of any kind with printers that do what they like."""
from fake_printer import PRINTING, For, Late, Printing, Ready, Says, Slow
from label_streams import labels


class Whimsical(Ready):
    """Ready most of the time; every now and then another status, or more bytes than asked for."""

    def __init__(self, dice):
        self.dice, self.errors = dice, 2

    def answer(self, printer):
        choice = self.dice.random()
        if choice < 0.1 and self.errors:
            self.errors -= 1
            return bytes([1 << self.dice.choice([0, 1, 2, 3, 4, 6, 7])])
        if choice < 0.2:
            return bytes([PRINTING])
        return b'\0' if choice < 0.9 else b'\0\r\n'


def behaviour(dice, size):
    """Of bitmaps of so many bytes."""
    rate = dice.choice([5000, 50000]) if size < 60000 else 1000000
    error = 1 << dice.choice([0, 1, 2, 3, 4, 6, 7])
    kinds = (Ready, lambda: Whimsical(dice), lambda: Whimsical(dice), lambda: Late(dice.uniform(0, 0.3)),
             lambda: For(error, dice.uniform(0, 0.6), label=dice.choice([1, 2])), lambda: Slow(rate),
             lambda: Printing(dice.uniform(0, 0.2)), lambda: Says(b'\0' * dice.randrange(1, 9)))
    return dice.choice(kinds)()


def any_job(dice):
    """A stream, the number of its labels, and what the printer does."""
    count, size = dice.randrange(1, 5), dice.choice([10, 200, 1500, 60000, 300000])
    return labels(count, size=size, dice=dice), count, behaviour(dice, size)
