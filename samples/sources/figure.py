"""The figure of the portrait: the solids of a woman's head and shoulders, and their paint.

Lengths are in units of about half a head. A point of the head, `h`, is given in the head's own
coordinates: x to its side, y upwards, z to where it looks; `s` is the same with x the distance
from its middle. A point `p` is given in the coordinates of the picture.
"""

import numpy as np

from sources.solids import carved, cone, ellipsoid, joined, noise, smoothstep, sphere, turned

# How the head is turned, in radians.
YAW, PITCH, ROLL = 0.50, 0.05, -0.06
EYE = (0.27, 0.02, 0.535)
SKULL = (0.0, 0.30, -0.18)
BUN = (0.0, 1.02, -0.62)

SKIN, EYES, HAIR, CLOTH, PEARLS = range(5)


def in_head(p):
    return turned(p, YAW, PITCH, ROLL)


def in_body(p):
    return p[0], p[1] - 0.24, p[2]


def folded(h):
    return np.abs(h[0]), h[1], h[2]


# --- the face ------------------------------------------------------------------------------------


def lid_edges(x):
    """Heights of the upper and the lower lid over the middle of the eye."""
    return 0.060 - 2.3 * (x + 0.005) ** 2, -0.050 + 1.7 * (x - 0.005) ** 2


def lids(s):
    x, y, z = (a - c for a, c in zip(s, EYE))
    upper, lower = lid_edges(x)
    opening = np.where(z > 0, np.maximum(y - upper, lower - y), 1)
    return np.maximum(sphere((x, y, z), (0, 0, 0), 0.156), -opening)


def smiling(h):
    """The coordinates in which the mouth is straight; x is the distance from the middle."""
    x, y, z = folded(h)
    return x, y - 0.30 * x * x, z + x * x


def lips(h):
    x, y, z = smiling(h)
    upper = ellipsoid((x, y + 0.10 * x, z), (0.055, -0.522, 0.652), (0.17, 0.036, 0.060))
    lower = ellipsoid((x, y - 0.06 * x, z), (0, -0.617, 0.648), (0.175, 0.052, 0.068))
    return joined(upper, lower, 0.02)


def mouth_line(h):
    return cone(smiling(h), (0, -0.565, 0.705), (0.235, -0.562, 0.705), 0.016, 0.008)


def nose(d, h, s):
    d = joined(d, cone(h, (0, 0.16, 0.66), (0, -0.26, 0.87), 0.055, 0.075), 0.10)
    d = joined(d, ellipsoid(h, (0, -0.275, 0.875), (0.085, 0.075, 0.085)), 0.05)
    d = joined(d, ellipsoid(s, (0.095, -0.30, 0.775), (0.06, 0.055, 0.08)), 0.045)
    return carved(d, ellipsoid(s, (0.055, -0.355, 0.83), (0.028, 0.03, 0.045)), 0.02)


def mouth(d, h):
    d = joined(d, ellipsoid(h, (0, -0.56, 0.50), (0.25, 0.17, 0.16)), 0.14)
    d = carved(d, cone(h, (0, -0.42, 0.74), (0, -0.47, 0.73), 0.02, 0.025), 0.04)
    d = joined(d, lips(h), 0.025)
    return carved(d, mouth_line(h), 0.03)


def ear(s):
    shell = ellipsoid(s, (0.705, -0.02, -0.08), (0.06, 0.21, 0.13))
    return carved(shell, ellipsoid(s, (0.775, 0.02, -0.04), (0.05, 0.13, 0.07)), 0.03)


def head(h):
    s = folded(h)
    d = ellipsoid(h, (0, 0.27, -0.14), (0.70, 0.76, 0.84))
    # Jaw, chin and cheeks.
    d = joined(d, ellipsoid(h, (0, -0.30, 0.14), (0.525, 0.70, 0.57)), 0.22)
    d = joined(d, ellipsoid(h, (0, -0.80, 0.42), (0.20, 0.15, 0.18)), 0.22)
    d = joined(d, ellipsoid(s, (0.37, -0.22, 0.42), (0.17, 0.15, 0.17)), 0.20)
    # Brows and the hollows of the eyes.
    d = joined(d, ellipsoid(s, (0.24, 0.21, 0.585), (0.21, 0.065, 0.11)), 0.14)
    d = carved(d, ellipsoid(s, (0.27, 0.045, 0.80), (0.17, 0.10, 0.17)), 0.14)
    d = mouth(nose(d, h, s), h)
    d = joined(d, lids(s), 0.03)
    return joined(d, ear(s), 0.05)


# --- below the face ------------------------------------------------------------------------------


def neck_and_shoulders(p):
    x, y, z = in_body(p)
    # Rounded at the middle, where both sides meet.
    s = (np.sqrt(x * x + 0.002), y, z)
    d = cone((x, y, z), (0, -0.75, -0.22), (0, -1.65, -0.30), 0.345, 0.39)
    d = joined(d, cone(s, (0.46, -0.55, -0.30), (0.08, -1.52, 0.07), 0.05, 0.06), 0.14)
    d = joined(d, cone(s, (0, -1.42, -0.42), (1.18, -1.92, -0.36), 0.24, 0.30), 0.24)
    d = joined(d, ellipsoid((x, y, z), (0, -2.45, -0.32), (1.40, 0.85, 0.60)), 0.26)
    return joined(d, cone(s, (0.10, -1.62, 0.11), (0.95, -1.60, -0.16), 0.045, 0.03), 0.14)


def cloth(p):
    p = x, y, z = in_body(p)
    d = cone((np.abs(x), y, z), (0, -1.47, -0.44), (1.18, -1.95, -0.36), 0.22, 0.33)
    d = joined(d, ellipsoid(p, (0, -2.50, -0.32), (1.46, 0.88, 0.68)), 0.26)
    folds = 0.016 * np.sin(7 * x + 3 * np.sin(2.6 * y + x)) * smoothstep(-1.7, -2.2, y)
    return carved(d + folds, ellipsoid(p, (0, -1.30, 0.30), (0.70, 0.62, 1.1)), 0.05)


def necklace(p):
    x, y, z = in_body(p)
    tilt = 0.30
    across = (y + 1.30) * np.cos(tilt) + (z + 0.24) * np.sin(tilt)
    front = (z + 0.24) * np.cos(tilt) - (y + 1.30) * np.sin(tilt)
    # The nearest of 40 pearls around the neck.
    step = 2 * np.pi / 40
    turn = np.round(np.arctan2(x, front) / step) * step
    return sphere((x - 0.40 * np.sin(turn), front - 0.42 * np.cos(turn), across), (0, 0, 0), 0.032)


def pearls(p, s):
    return np.minimum(sphere(s, (0.735, -0.30, -0.05), 0.055), necklace(p))


# --- the hair ------------------------------------------------------------------------------------


def strands(angle, along, seed, count):
    """Height of strands that lie side by side over an angle, about -0.5 to 0.5."""
    coarse = noise(angle * count, along * 1.3, seed)
    middle = noise(angle * count * 2.7 + 5, along * 2.0, seed + 1)
    fine = noise(angle * count * 7, along * 3.0, seed + 2)
    return 0.5 * coarse + 0.3 * middle + 0.2 * fine - 0.5


def combed_hair(h):
    """Hair on the skull, combed from the hairline to the bun."""
    d = carved(
        ellipsoid(h, SKULL, (0.775, 0.80, 0.86)),
        ellipsoid(h, (0, -0.24, 0.62), (0.66, 0.86, 0.72)),
        0.06,
    )
    x, y, z = h
    above_nape = -(y + 0.42 - 0.25 * (z + 0.2))
    d = np.maximum(d, above_nape)
    d = carved(d, ellipsoid(folded(h), (0.80, -0.08, -0.02), (0.2, 0.26, 0.17)), 0.06)
    # Angle around the axis from the middle of the skull to the bun, and the way along it.
    ay, az = BUN[1] - SKULL[1], BUN[2] - SKULL[2]
    length = np.hypot(ay, az)
    along = ((y - SKULL[1]) * ay + (z - SKULL[2]) * az) / length
    angle = np.arctan2(x, ((y - SKULL[1]) * az - (z - SKULL[2]) * ay) / length)
    return d - 0.030 * strands(angle, along, 3, 16.0) - 0.016 * strands(angle, along, 8, 60.0)


def bun(h):
    x, y, z = (a - c for a, c in zip(h, BUN))
    radius = np.hypot(x, y)
    turn = np.arctan2(y, x)
    spiral = 0.5 + 0.5 * np.sin(3 * turn + 16 * radius)
    wound = strands(turn * 0.9 + 5.3 * radius, z, 13, 14.0)
    return ellipsoid(h, BUN, (0.36, 0.31, 0.34)) - 0.035 * spiral - 0.03 * wound


# --- all of it -----------------------------------------------------------------------------------


def parts(p):
    """Distances of the materials, in the order of their numbers."""
    h = in_head(p)
    s = folded(h)
    return [
        joined(head(h), neck_and_shoulders(p), 0.10),
        sphere(s, EYE, 0.140),
        joined(combed_hair(h), bun(h), 0.06),
        cloth(p),
        pearls(p, s),
    ]


def figure(p):
    return np.minimum.reduce(parts(p))


# --- paint ---------------------------------------------------------------------------------------

# Part of the light that is given back evenly, part that is mirrored, sharpness of the mirroring.
MATERIALS = np.array(
    [
        (0.80, 0.10, 22.0),
        (0.00, 0.00, 0.5),
        (0.075, 0.26, 9.0),
        (0.14, 0.05, 6.0),
        (0.60, 0.90, 40.0),
    ],
    np.float32,
)


def brow(s):
    """How much of the brows' hair covers the skin."""
    x, y, z = s
    t = (x - 0.10) / 0.36
    middle = 0.215 + 0.075 * np.sin(np.clip(t, 0, 1) * 2.2) - 0.03 * t
    thickness = np.maximum(0.034 * np.clip(1.15 - t, 0, 1) ** 0.6, 1e-3)
    hairs = noise(x * 55 + y * 60, y * 14 - x * 10, 31) - 0.5
    cover = smoothstep(1.25, 0.6, np.abs(y - middle) / thickness + 0.5 * hairs)
    return cover * smoothstep(-0.05, 0.06, t) * smoothstep(1.08, 0.95, t) * (z > 0.2)


def lid_lines(s):
    """What lashes and folds leave of the light on the lids."""
    x, y, z = (a - c for a, c in zip(s, EYE))
    upper, lower = lid_edges(x)
    lashes = smoothstep(0.026, 0.008, np.abs(y - upper - 0.006))
    lashes *= smoothstep(0.175, 0.155, np.abs(x))
    fold = smoothstep(0.012, 0.003, np.abs(y - upper - 0.052)) * smoothstep(0.15, 0.10, np.abs(x))
    below = smoothstep(0.012, 0.004, np.abs(y - lower)) * smoothstep(0.16, 0.12, np.abs(x))
    left = (1 - 0.88 * lashes) * (1 - 0.35 * fold) * (1 - 0.45 * below)
    return np.where((z > 0) & (np.abs(x) < 0.17), left, 1)


def skin_paint(h):
    s = folded(h)
    front = h[2] > 0.3
    lip = smoothstep(0.022, 0.008, lips(h)) * front
    between = smoothstep(0.016, 0.0, mouth_line(h)) * front
    left = (1 - 0.55 * lip) * (1 - 0.75 * between) * (1 - 0.80 * brow(s)) * lid_lines(s)
    return left, 0.12 * lip


def eye_paint(h):
    """The eyes look back at the viewer; each has a glint of the light."""
    x, y = h[0] - np.sign(h[0]) * EYE[0], h[1] - EYE[1]
    upper, _ = lid_edges(np.abs(h[0]) - EYE[0])
    u, v = x + 0.035, y - 0.006
    radius = np.hypot(u, v)
    rays = 0.16 + 0.22 * noise(np.arctan2(v, u) * 9 + 30, radius * 40, 41)
    rays *= 1 - 0.6 * smoothstep(0.045, 0.062, radius)
    iris = smoothstep(0.068, 0.060, radius)
    pupil = smoothstep(0.031, 0.025, radius)
    paint = (0.92 * (1 - iris) + rays * iris) * (1 - pupil) + 0.02 * pupil
    paint *= 1 - 0.6 * smoothstep(0.0, 0.035, y - upper + 0.03)
    return paint, 2.0 * smoothstep(0.022, 0.012, np.hypot(u + 0.022, v - 0.022))


def paint(p, material):
    """Even reflection, mirroring and its sharpness at each point."""
    h = in_head(p)
    even, mirrored, sharpness = MATERIALS[material].T.copy()
    left, lip_gloss = skin_paint(h)
    even = np.where(material == SKIN, even * left, even)
    mirrored = np.where(material == SKIN, mirrored + lip_gloss, mirrored)
    eye, glint = eye_paint(h)
    even = np.where(material == EYES, eye, even)
    mirrored = np.where(material == EYES, glint, mirrored)
    return even, mirrored, sharpness
