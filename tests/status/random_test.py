"""Many short jobs with printers that do what they like: no label is lost or doubled."""
import random
import threading

from fake_printer import PRINTING, For, Late, Printing, Ready, Says, Slow
from monitor_run import Run, labels

RUNS, AT_A_TIME = 200, 10


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
    kinds = (Ready, lambda: Whimsical(dice), lambda: For(1 << dice.choice([0, 1, 2, 3, 4, 6, 7]), dice.uniform(0, 0.6),
             label=dice.choice([1, 2])), lambda: Late(dice.uniform(0, 0.3)), lambda: Slow(dice.choice([5000, 50000]) if size < 60000 else 1000000),
             lambda: Printing(dice.uniform(0, 0.2)), lambda: Says(b'\0' * dice.randrange(1, 9)), lambda: Whimsical(dice))
    return dice.choice(kinds)()


def one(seed, failures):
    dice = random.Random(seed)
    count = dice.randrange(1, 5)
    size = dice.choice([10, 200, 1500, 60000, 300000])
    stream = labels(count, size=size, dice=dice)
    try:
        job = Run(stream, behaviour(dice, size)).finish().assert_printed()
        numbers = [label.number for label in job.printer.labels]
        assert numbers == list(range(1, count + 1)) and job.printer.count() == count, numbers
    except AssertionError as error:
        failures.append((seed, error))


def no_label_is_lost_or_doubled_in_200_jobs():
    failures, seeds = [], list(range(RUNS))

    def work():
        while seeds:
            one(seeds.pop(), failures)
    workers = [threading.Thread(target=work) for _ in range(AT_A_TIME)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    assert not failures, failures[:3]
