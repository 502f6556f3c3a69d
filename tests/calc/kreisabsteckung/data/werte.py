#!/usr/bin/env python3
"""Worked values for the setting-out dialogs' tests, by plain geometry.

Arc length b from the arc's start BA around the centre M: the radius vector
M->BA turned clockwise (as drawn, first coordinate right, second up) by
b / r, here by a rotation matrix. x, y, s: the circle through the start
(origin) and the chord's end (S, 0) with its centre below the chord for
R > 0, walked clockwise over the top by the arc length; for R < 0 the
mirror image below the chord.
"""
import math

Pi = 3.141592654


def standard(v):
    """#######0.000###: three to six decimals."""
    s = "%.6f" % v
    while s.endswith("0") and len(s.split(".")[1]) > 3:
        s = s[:-1]
    return s


def drehen(v, w):
    """v turned clockwise by w."""
    c, s = math.cos(w), math.sin(w)
    return v[0] * c + v[1] * s, -v[0] * s + v[1] * c


def am_bogen(m, ba, b):
    v = (ba[0] - m[0], ba[1] - m[1])
    r = math.hypot(*v)
    d = drehen(v, b / r)
    return m[0] + d[0], m[1] + d[1]


def polar(a, b, faktor):
    """Rectangular (system 0) to distance and angle in the unit of faktor."""
    return math.hypot(a, b), (math.atan2(b, a) % (2 * Pi)) / faktor


GON, GRAD = Pi / 200, Pi / 180

m, ba = (1000.0, 2000.0), (1030.0, 2040.0)
print("KreisAbsteckB M=(1000,2000) BA=(1030,2040), r = %.9f" % math.dist(m, ba))
for b in (25.0, -25.0, 100.0):
    p = am_bogen(m, ba, b)
    print("  B=%g: %.9f %.9f" % (b, *p))
    print("    polar gon  %.9f %.9f" % polar(*p, GON))
    print("    polar grad %.9f %.9f" % polar(*p, GRAD))
print("  inputs polar gon:  M %.9f %.9f  BA %.9f %.9f" % (*polar(*m, GON), *polar(*ba, GON)))
print("  inputs polar grad: M %.9f %.9f  BA %.9f %.9f" % (*polar(*m, GRAD), *polar(*ba, GRAD)))


def xys(r, s, b):
    """The point at arc length b on the arc of radius r over the chord s."""
    h = math.sqrt(r * r - s * s / 4)
    if r > 0:
        c = (s / 2, -h)
        t0 = math.atan2(0 - c[1], 0 - c[0]) - b / r
        return c[0] + r * math.cos(t0), c[1] + r * math.sin(t0)
    x, y = xys(-r, s, b)
    return x, -y


print("KreisAbsteckXYS")
for r, s, b in ((50.0, 60.0, 20.0), (50.0, 60.0, -10.0), (-50.0, 60.0, 20.0), (-50.0, 60.0, -20.0), (200.0, 80.0, 30.0)):
    x, y = xys(r, s, b)
    print("  R=%g S=%g B=%g: x %s  y %s   (%.9f %.9f)" % (r, s, b, standard(x), standard(y), x, y))
r, s = 50.0, 60.0
b_ende = r * 2 * math.asin(s / 2 / r)
print("  to the chord's end: B=%.9f gives (%s, %s)" % (b_ende, *(standard(v) for v in xys(r, s, b_ende))))
# A chord longer than the diameter: the arc sine gives 0 and phi is 0, so
# the point lies as if the chord were a tangent: u = -w / 2.
r, s, b = 10.0, 30.0, 5.0
w = b / r
sehne = 2 * r * math.sin(w / 2)
print("  R=10 S=30 B=5 (chord too long): x %s y %s" % (standard(sehne * math.cos(-w / 2)),
                                                       standard(sehne * math.sin(-w / 2))))
