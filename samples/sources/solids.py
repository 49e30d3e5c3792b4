"""Solids given by their signed distance, and light on them, for arrays of points.

A point is a tuple of three arrays: x to the right, y upwards, z towards the viewer, in units of
about half a head. The distance of an ellipsoid is an estimate that is right near its surface,
which is why the rays take steps that are a little too short.
"""

import numpy as np


def sphere(p, centre, radius):
    return np.sqrt(sum((a - c) ** 2 for a, c in zip(p, centre))) - radius


def ellipsoid(p, centre, radii):
    scaled = [(a - c) / r for a, c, r in zip(p, centre, radii)]
    k0 = np.sqrt(sum(s * s for s in scaled)) + 1e-6
    k1 = np.sqrt(sum((s / r) ** 2 for s, r in zip(scaled, radii))) + 1e-6
    return k0 * (k0 - 1) / k1


def cone(p, start, end, start_radius, end_radius):
    """A rounded rod between two points whose radius changes evenly."""
    axis = [e - s for s, e in zip(start, end)]
    length2 = sum(a * a for a in axis)
    along = np.clip(sum((v - s) * a for v, s, a in zip(p, start, axis)) / length2, 0, 1)
    gap2 = sum((v - s - along * a) ** 2 for v, s, a in zip(p, start, axis))
    return np.sqrt(gap2) - (start_radius + along * (end_radius - start_radius))


def joined(a, b, softness):
    """Union with a fillet."""
    h = np.clip(0.5 + 0.5 * (b - a) / softness, 0, 1)
    return b * (1 - h) + a * h - softness * h * (1 - h)


def carved(a, b, softness):
    """What is left of a without b, with a rounded rim."""
    return -joined(-a, b, softness)


def smoothstep(low, high, x):
    t = np.clip((x - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def noise(x, y, seed):
    """Smooth value noise in 0..1 with one lattice point per unit."""
    i, j = np.floor(x), np.floor(y)
    u, v = x - i, y - j
    u, v = u * u * (3 - 2 * u), v * v * (3 - 2 * v)
    i, j = i.astype(np.int64), j.astype(np.int64)

    def lattice(di, dj):
        n = ((i + di) * 374761393 + (j + dj) * 668265263 + seed * 974634077) & 0xFFFFFFFF
        n = ((n ^ (n >> 13)) * 1274126177) & 0xFFFFFFFF
        return ((n ^ (n >> 16)) & 0xFFFF) / np.float32(0xFFFF)

    top = lattice(0, 0) * (1 - u) + lattice(1, 0) * u
    bottom = lattice(0, 1) * (1 - u) + lattice(1, 1) * u
    return (top * (1 - v) + bottom * v).astype(np.float32)


def turned(p, yaw, pitch, roll):
    """The point in the coordinates of a figure that is turned by three angles (in radians)."""
    x, y, z = p
    x, z = x * np.cos(yaw) - z * np.sin(yaw), x * np.sin(yaw) + z * np.cos(yaw)
    y, z = y * np.cos(pitch) - z * np.sin(pitch), y * np.sin(pitch) + z * np.cos(pitch)
    x, y = x * np.cos(roll) - y * np.sin(roll), x * np.sin(roll) + y * np.cos(roll)
    return x, y, z


def march(distance, x, y, near, far, steps=160):
    """Depth z at which rays that look along -z meet the solid, and where they do."""
    z = np.full(x.shape, near, np.float32)
    active = np.arange(x.size)
    hit = np.zeros(x.shape, bool)
    for _ in range(steps):
        gap = distance((x[active], y[active], z[active]))
        z[active] -= 0.7 * gap
        hit[active[gap < 1e-3]] = True
        active = active[(gap >= 1e-3) & (z[active] > far)]
        if not active.size:
            break
    return z, hit | (np.abs(distance((x, y, z))) < 0.02)


def normals(distance, p, step=2e-3):
    tips = np.array([[1, -1, -1], [-1, -1, 1], [-1, 1, -1], [1, 1, 1]], np.float32)
    n = np.zeros((3, p[0].size), np.float32)
    for tip in tips:
        gap = distance(tuple(a + step * t for a, t in zip(p, tip)))
        n += tip[:, None] * gap
    return n / (np.sqrt((n * n).sum(0)) + 1e-9)


def shadow(distance, p, n, light, softness, steps=28, reach=2.5):
    """How much of a soft light each point sees, in 0..1."""
    start = tuple(a + 0.02 * b for a, b in zip(p, n))
    lit = np.ones(p[0].shape, np.float32)
    t = np.full(p[0].shape, 0.02, np.float32)
    active = np.arange(t.size)
    for _ in range(steps):
        here = tuple(s[active] + t[active] * l for s, l in zip(start, light))
        gap = distance(here)
        lit[active] = np.minimum(lit[active], np.clip(0.5 + 0.5 * softness * gap / t[active], 0, 1))
        t[active] += np.clip(gap, 0.02, 0.2)
        active = active[(lit[active] > 0.005) & (t[active] < reach)]
        if not active.size:
            break
    return lit * lit * (3 - 2 * lit)


def openness(distance, p, n):
    """How open the surroundings of each point are, in 0..1: folds are darker."""
    blocked = np.zeros(p[0].shape, np.float32)
    for i, reach in enumerate((0.03, 0.08, 0.16, 0.28)):
        gap = distance(tuple(a + reach * b for a, b in zip(p, n)))
        blocked += np.maximum(0, reach - gap) * 0.75**i
    return np.clip(1 - 1.9 * blocked, 0, 1)
