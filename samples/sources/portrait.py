"""A portrait-like grey picture for the stencil queue's A6 page: nobody, rendered from solids.

Soft shades in the face, dark hair with fine strands, small bright and dark details, and a
background that fades into the paper. One pixel is one dot of a 300 dpi printer.
"""

import numpy as np

from sources.figure import figure, paint, parts
from sources.solids import march, noise, normals, openness, shadow, smoothstep

# In points, as the queue has it; 1240 x 1748 dots.
PAGE_SIZE = (297.625, 419.5625)
# In dots: size of the picture and its distance from the upper left corner of the page.
WIDTH, HEIGHT = 1040, 1464
CORNER = (100, 142)

# The part of the figure's plane that the picture shows.
UNITS_ACROSS = 2.75
MIDDLE = (-0.05, -0.27)


def direction(*vector):
    return np.array(vector, np.float32) / np.float32(np.linalg.norm(vector))


KEY_LIGHT = direction(-0.62, 0.50, 0.60)
FILL_LIGHT = direction(0.75, 0.10, 0.55)
BETWEEN_LIGHT_AND_VIEWER = direction(*(KEY_LIGHT + direction(0, 0, 1)))


def background(x, y):
    """Darker behind the lit side of the head and lighter behind the other."""
    tone = 0.36 + 0.30 * smoothstep(-0.9, 1.0, x + 0.25 * y)
    return tone + 0.05 * (noise(x * 1.7 + 9, y * 1.7, 51) - 0.5)


def bare_paper(x, y):
    """How much of the paper shows around the figure."""
    r = (np.abs((x - MIDDLE[0]) / 1.30) ** 2.5 + np.abs((y - MIDDLE[1]) / 1.86) ** 2.5) ** 0.4
    return smoothstep(0.84, 1.0, r)


def facing(normal, light):
    return (normal * light[:, None]).sum(0)


def light_on(p):
    """Light that the figure sends to the viewer from each point of its surface."""
    normal = normals(figure, p)
    even, mirrored, sharpness = paint(p, np.argmin(parts(p), axis=0))
    lit = shadow(figure, p, normal, KEY_LIGHT, 7.0)
    surroundings = openness(figure, p, normal)
    key = 1.02 * np.clip(facing(normal, KEY_LIGHT), 0, 1) * lit
    fill = (0.13 * (0.5 + 0.5 * facing(normal, FILL_LIGHT)) + 0.025) * surroundings
    grazing = (1 - np.clip(normal[2], 0, 1)) ** 3
    rim = 0.10 * grazing * surroundings * np.clip(normal[0] * 1.5, 0, 1)
    gloss = np.clip(facing(normal, BETWEEN_LIGHT_AND_VIEWER), 0, 1) ** sharpness * lit
    return even * (key + fill + rim) + mirrored * gloss


def portrait():
    """Rows of grey bytes."""
    unit = UNITS_ACROSS / WIDTH
    columns = (np.arange(WIDTH) + 0.5 - WIDTH / 2) * unit + MIDDLE[0]
    rows = (HEIGHT / 2 - np.arange(HEIGHT) - 0.5) * unit + MIDDLE[1]
    x, y = (a.ravel().astype(np.float32) for a in np.meshgrid(columns, rows))
    z, hit = march(figure, x, y, 1.6, -1.6)
    seen = np.flatnonzero(hit)
    light = background(x, y)
    light[seen] = light_on((x[seen], y[seen], z[seen]))
    paper = bare_paper(x, y)
    light = light * (1 - paper) + paper
    grey = np.clip(light, 0, 1) ** (1 / 1.9)
    # Every second of 256 levels, which is as much as a printed picture shows.
    bytes_ = np.minimum(2 * np.round(grey * 127.5), 255).astype(np.uint8)
    return [row.tobytes() for row in bytes_.reshape(HEIGHT, WIDTH)]
