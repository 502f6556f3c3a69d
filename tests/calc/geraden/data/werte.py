#!/usr/bin/env python3
"""Worked values for the line-intersection dialogs' tests.

A line is a point and a direction; two lines meet where
p1 + s d1 = p2 + t d2, solved here for s by Cramer's rule. The foot of a
perpendicular is found apart from that, by projecting onto the line.
"""
import math

Pi = 3.141592654


def schnitt(p1, d1, p2, d2):
    det = d1[0] * (-d2[1]) - d1[1] * (-d2[0])
    if det == 0:
        return None
    rx, ry = p2[0] - p1[0], p2[1] - p1[1]
    s = (rx * (-d2[1]) - ry * (-d2[0])) / det
    return p1[0] + s * d1[0], p1[1] + s * d1[1]


def fusspunkt(p1, d, p):
    t = ((p[0] - p1[0]) * d[0] + (p[1] - p1[1]) * d[1]) / (d[0] ** 2 + d[1] ** 2)
    return p1[0] + t * d[0], p1[1] + t * d[1]


def polar(a, b):
    """Rectangular to distance and angle in gon, system 0."""
    e = math.hypot(a, b)
    t = math.atan2(b, a) % (2 * Pi)
    return e, t * 200 / Pi


def rechtwinklig(e, phi):
    t = phi * Pi / 200
    return e * math.cos(t), e * math.sin(t)


def zeige(name, p):
    print(f"{name}: {p[0]:.9f} {p[1]:.9f}")


# The lines of all three dialogs: g1 through (10, 20) and (50, 40),
# g2 through (20, 60) and (60, 0).
g1, d1 = (10, 20), (40, 20)
g2, d2 = (20, 60), (40, -60)
zeige("Geradenschnitt g1 g2", schnitt(g1, d1, g2, d2))
# g2 as y = kx + d: k = -60 / 40, d = 60 - k * 20.
k = -60 / 40
print("g2: k =", k, " d =", 60 - k * 20)
# g1 by its angle of 50 gon from the a axis: a rise of 1 per 1.
zeige("Winkel 50 gon durch (10, 20) mit g2", schnitt(g1, (1, math.tan(50 * Pi / 200)), g2, d2))
# Under M31 the angle runs from the b axis: 100 gon is along a.
zeige("M31, 100 gon durch (10, 20) mit g2",
      schnitt(g1, (1, math.tan(Pi / 2 - 100 * Pi / 200)), g2, d2))
zeige("polar: Geradenschnitt", polar(*schnitt(g1, d1, g2, d2)))

# The foot of P = (30, 70) on g1; on the vertical through (10, 20).
p = (30, 70)
zeige("Lotfusspunkt", fusspunkt(g1, d1, p))
zeige("Lotfusspunkt, senkrecht", fusspunkt(g1, (0, 1), p))
zeige("polar: Lotfusspunkt", polar(*fusspunkt(g1, d1, p)))

# The parallel to g1 through P = (0, 30) with g2.
zeige("Parallele durch (0, 30) mit g2", schnitt((0, 30), d1, g2, d2))
# A polar table: P's record (30, 5) is taken as a and b as it stands.
zeige("polar: Parallele durch (30, 5) mit g2", polar(*schnitt((30, 5), d1, g2, d2)))
