#!/usr/bin/env python3
"""Worked values for the tests of the rounding of a corner, by vectors.

The arc touches both sides of the corner P2: the tangent points lie at the
tangent length T from P2 along the unit vectors toward P1 and P3, and the
centre lies on the bisector at R / sin(w / 2) from P2, w being the interior
angle at P2 (from the dot product). Each case checks itself: the centre is
at R from both tangent points, and the radius there is square to the side.
The program's Pi = 3.141592654 enters through the turning angle Pi - w and
the angle units.
"""
import math

Pi = 3.141592654
GON, GRAD = Pi / 200, Pi / 180


def fmt(v, standard):
    s = "%.6f" % v if standard else "%.3f" % v
    while standard and s.endswith("0") and len(s.split(".")[1]) > 3:
        s = s[:-1]
    return s


def einheit(p, q):
    d = math.dist(p, q)
    return (q[0] - p[0]) / d, (q[1] - p[1]) / d


def runden(p1, p2, p3, art, wert, faktor=GON):
    u1, u3 = einheit(p2, p1), einheit(p2, p3)
    w = math.acos(u1[0] * u3[0] + u1[1] * u3[1])
    alpha = Pi - w
    if art == "T":
        r = wert / math.tan(alpha / 2)
    elif art == "R":
        r = wert
    elif art == "S":
        r = wert / 2 / math.sin(alpha / 2)
    elif art == "b":
        r = wert / alpha
    else:  # ds, by the program's formula with the tangent not squared
        r = wert / (math.sqrt(1 + 1 / math.tan(w / 2)) - 1)
    t = r * math.tan(alpha / 2)
    t1 = (p2[0] + t * u1[0], p2[1] + t * u1[1])
    t2 = (p2[0] + t * u3[0], p2[1] + t * u3[1])
    halb = einheit((0, 0), (u1[0] + u3[0], u1[1] + u3[1]))
    m = (p2[0] + r / math.sin(w / 2) * halb[0], p2[1] + r / math.sin(w / 2) * halb[1])
    # Pi - w is off by the program's Pi, which a long tangent magnifies.
    fehler = 1e-8 * max(1.0, abs(r)) / math.sin(alpha / 2) ** 2
    assert abs(math.dist(m, t1) - abs(r)) < fehler and abs(math.dist(m, t2) - abs(r)) < fehler
    assert abs((m[0] - t1[0]) * u1[0] + (m[1] - t1[1]) * u1[1]) < fehler
    ds = math.dist(m, p2) - abs(r)
    b = alpha * r
    print("  %s=%g: R %s  T %s  w %s  b %s  ds %s" % (art, wert, fmt(r, True), fmt(t, True), fmt(w / faktor, True),
                                                      fmt(b, False), fmt(ds, False)))
    print("    T1 %.9f %.9f  T2 %.9f %.9f  (R %.9f T %.9f w %.9f)" % (*t1, *t2, r, t, w / faktor))
    return t1, t2


def polar(p, faktor):
    return math.hypot(*p), (math.atan2(p[1], p[0]) % (2 * Pi)) / faktor


print("Blunt corner P1=(0,0) P2=(100,0) P3=(180,60), gon")
ecke = ((0.0, 0.0), (100.0, 0.0), (180.0, 60.0))
for art, wert in (("T", 20), ("R", 60), ("S", 40), ("b", 40), ("ds", 3.245553203)):
    runden(*ecke, art, wert)
print("Sharp corner P1=(0,0) P2=(100,0) P3=(40,80), gon")
runden((0.0, 0.0), (100.0, 0.0), (40.0, 80.0), "R", 25)
print("General corner P1=(20,30) P2=(100,90) P3=(160,40), R=30")
for faktor, name in ((GON, "gon"), (GRAD, "grad")):
    t1, t2 = runden((20.0, 30.0), (100.0, 90.0), (160.0, 40.0), "R", 30, faktor)
    print("  polar T1 %.9f %.9f  T2 %.9f %.9f (%s)" % (*polar(t1, faktor), *polar(t2, faktor), name))
print("  polar inputs P1 %.9f %.9f  P2 %.9f %.9f  P3 %.9f %.9f (gon)"
      % (*polar((20, 30), GON), *polar((100, 90), GON), *polar((160, 40), GON)))
print("  polar inputs P1 %.9f %.9f  P2 %.9f %.9f  P3 %.9f %.9f (grad)"
      % (*polar((20, 30), GRAD), *polar((100, 90), GRAD), *polar((160, 40), GRAD)))
print("Right angle P1=(0,0) P2=(100,0) P3=(100,50): ds comes back as typed")
runden((0.0, 0.0), (100.0, 0.0), (100.0, 50.0), "ds", 5)
print("Tangent longer than both sides: P1=(0,0) P2=(100,0) P3=(180,60), T=150")
runden(*ecke, "T", 150)
