"""Many short jobs with printers that do what they like: no label is lost or doubled."""
import random
import threading

from any_printer import any_job
from monitor_run import Run

RUNS, AT_A_TIME = 200, 10


def one(seed, failures):
    dice = random.Random(seed)
    stream, count, behaviour = any_job(dice)
    try:
        Run(stream, behaviour).finish().assert_printed().printer.assert_labels(count)
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
