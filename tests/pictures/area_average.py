"""Scaling by its definition, in exact fractions: a dot is the mean of the picture's area under it."""
import math
from fractions import Fraction


def shares(length, dots):
    """For each dot the samples under it, with their shares of the dot."""
    step = Fraction(length, dots)
    found = []
    for dot in range(dots):
        start, end = dot * step, (dot + 1) * step
        found.append([(at, (min(end, at + 1) - max(start, at)) / step)
                      for at in range(math.floor(start), math.ceil(end))])
    return found


def scaled(levels, width, height):
    """Rows of levels, fractions when they are not whole."""
    across = shares(len(levels[0]), width)
    narrow = [[sum(row[at] * share for at, share in dot) for dot in across]
              for row in map(lambda row: list(map(Fraction, row)), levels)]
    return [[sum(narrow[at][x] * share for at, share in dot) for x in range(width)]
            for dot in shares(len(levels), height)]


def cropped(levels, left, top, width, height):
    return [row[left:left + width] for row in levels[top:top + height]]


def placed(levels, width, height, left, top):
    """On paper."""
    label = [[255] * width for _ in range(height)]
    for y, row in enumerate(levels):
        label[top + y][left:left + len(row)] = row
    return label


def counter_clockwise(levels):
    return [list(column) for column in zip(*levels)][::-1]


def clockwise(levels):
    return [list(column) for column in zip(*levels[::-1])]


def upside_down(levels):
    return [row[::-1] for row in levels[::-1]]


def mirrored(levels):
    return [row[::-1] for row in levels]
