#!/usr/bin/env python3
"""Worked values for the egg line and the inflection line.

The program's closed form (A from R1, R2, the gap D and the sign F) is
computed here once more, and compared with the exact geometry: the clothoid
of parameter A is integrated numerically (Simpson on the Fresnel integrals),
the osculating circles at the curvatures 1/R1 and 1/R2 are built, and the
gap between them is measured. Root finding (bisection) on A then gives the
parameter whose circles have exactly the gap D. The closed form is an
approximation; how close it comes shows that D is the gap the sketch draws:
- egg line (F = +1): the smaller circle lies inside the larger one, D is the
  smallest distance between the two circle lines;
- inflection line (F = -1): the circles lie outside each other on the two
  branches of the clothoid, point-symmetric through its origin, D is the
  smallest distance between them.

Run: python3 tests/calc/eilinie/data/werte.py
"""
import math


def geschlossen(r1, r2, d, f):
    """The program's approximation; None where it refuses."""
    if r1 <= 0 or r2 <= 0:
        return None
    h = d / 2
    kl, gr = min(r1, r2), max(r1, r2)
    if gr + f * kl == 0:
        return None
    rm = 2 * kl * gr / (gr + f * kl)
    p = rm - kl - h
    q = gr - f * rm - f * h
    if p * q == 0:
        return None
    u = abs(((gr - f * kl - f * h) * h / p) / q)
    t = math.atan(math.sqrt(u))
    if gr - f * kl == 0:
        return None
    w = 2 * t * rm
    a = math.sqrt(abs(3 ** 0.5 * w * kl * gr / (gr - f * kl)))
    l1, l2 = a * a / kl, a * a / gr
    return a, l1, l2, l1 - f * l2


def klotoide(a, l, schritte=4000):
    """Point at arc length l of the clothoid x' = cos(s^2 / 2A^2), by Simpson."""
    if l == 0:
        return 0.0, 0.0
    hs = l / schritte
    sx = sy = 0.0
    for i in range(schritte + 1):
        s = i * hs
        g = 1 if i in (0, schritte) else (4 if i % 2 else 2)
        phi = s * s / (2 * a * a)
        sx += g * math.cos(phi)
        sy += g * math.sin(phi)
    return sx * hs / 3, sy * hs / 3


def mittelpunkt(a, r):
    """Centre of the osculating circle of radius r on the clothoid of parameter a."""
    l = a * a / r
    x, y = klotoide(a, l)
    tau = l / (2 * r)
    return x - r * math.sin(tau), y + r * math.cos(tau)


def abstand_kreise(a, r1, r2, f):
    kl, gr = min(r1, r2), max(r1, r2)
    m1 = mittelpunkt(a, kl)
    m2 = mittelpunkt(a, gr)
    if f > 0:
        return gr - kl - math.dist(m1, m2)
    # Second branch: point-symmetric through the origin.
    return math.dist(m1, (-m2[0], -m2[1])) - kl - gr


def genau(r1, r2, d, f):
    """The parameter whose circles have exactly the gap d, by bisection."""
    lo, hi = 1e-6, 2.0 * max(r1, r2)
    for _ in range(100):
        mid = (lo + hi) / 2
        if (abstand_kreise(mid, r1, r2, f) - d) * (abstand_kreise(lo, r1, r2, f) - d) <= 0:
            hi = mid
        else:
            lo = mid
    return (lo + hi) / 2


FAELLE = [
    ("Eilinie", 100, 300, 2, 1),
    ("Eilinie", 300, 100, 2, 1),
    ("Eilinie", 250, 600, 0.5, 1),
    ("Eilinie", 80, 120, 1.2, 1),
    ("Wendelinie", 100, 300, 2, -1),
    ("Wendelinie", 400, 500, 1, -1),
    ("Wendelinie", 250, 600, 0.8, -1),
    ("Wendelinie", 150, 90, 3, -1),
]

if __name__ == "__main__":
    for name, r1, r2, d, f in FAELLE:
        a, l1, l2, e = geschlossen(r1, r2, d, f)
        print("%-10s R1=%g R2=%g D=%g F=%+d" % (name, r1, r2, d, f))
        print("  A=%.12f L1=%.12f L2=%.12f E=%.12f" % (a, l1, l2, e))
        print("  shown: A=%s L1=%.3f L2=%.3f E=%.3f" % (("%.6f" % a).rstrip("0"), l1, l2, e))
        ag = genau(r1, r2, d, f)
        print("  exact A=%.6f  closed/exact = %.5f  gap at closed A = %.5f" % (
            ag, a / ag, abstand_kreise(a, r1, r2, f)))
    print("D = 0, F = 1, R1=100 R2=300:", geschlossen(100, 300, 0, 1))
    print("F = 0 (a caption that is no number), R1=100 R2=300 D=2:", geschlossen(100, 300, 2, 0))
    print("F = 1, R1=R2=200, D=2:", geschlossen(200, 200, 2, 1))
    print("F = -1, R1=R2=200, D=2:", geschlossen(200, 200, 2, -1))
    for d, f in ((100, 1), (300, 1), (400, -1), (100.5, 1)):
        print("R1=100 R2=300 D=%g F=%+d (a denominator at or near 0):" % (d, f), geschlossen(100, 300, d, f))
