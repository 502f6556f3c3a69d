#!/usr/bin/env python3
"""Worked values for the traverse tests.

Each leg is a measured distance e and the leg's own direction Phi in the
user's unit. A point's coordinates are PA plus the sum of the legs up to it.
Adjusted: the misclosure (PE minus PA minus the sum of all legs) is shared
out along the traverse, the correction at a point being the misclosure times
the length walked so far over the whole length (computed here from the
running length, not leg by leg as the program does).

Systems: 0 (math): a = e cos p, b = e sin p, p counter-clockwise from a.
         1 (M31):  a = Y = e sin p, b = X = e cos p, p clockwise from X.
"""
import math

Pi = 3.141592654
GON = Pi / 200
GRAD = Pi / 180


def zerlegt(e, phi, faktor, m31):
    p = phi * faktor
    if m31:
        return e * math.sin(p), e * math.cos(p)
    return e * math.cos(p), e * math.sin(p)


def fliegend(pa, legs, faktor, m31=False):
    a, b = pa
    punkte = []
    for e, phi in legs:
        da, db = zerlegt(e, phi, faktor, m31)
        a, b = a + da, b + db
        punkte.append((a, b))
    return punkte


def ausgeglichen(pa, pe, legs, faktor, m31=False):
    offen = fliegend(pa, legs, faktor, m31)
    fa, fb = pe[0] - offen[-1][0], pe[1] - offen[-1][1]
    gesamt = sum(e for e, _ in legs)
    punkte, weg = [], 0.0
    for (a, b), (e, _) in zip(offen, legs):
        weg += e
        punkte.append((a + fa * weg / gesamt, b + fb * weg / gesamt))
    return (fa, fb), punkte


def zeige(titel, punkte, fehler=None):
    print(titel)
    if fehler:
        print("  misclosure %.9f %.9f" % fehler)
    for a, b in punkte:
        print("  %.9f %.9f" % (a, b))


def polar(a, b, faktor):
    """Rectangular (system 0) to distance and angle in the user's unit."""
    return math.hypot(a, b), (math.atan2(b, a) % (2 * Pi)) / faktor


# 1. Degrees, system 0, PA (1000, 2000), legs 101..103.
pa = (1000.0, 2000.0)
legs = [(50.0, 30.0), (40.0, 75.0), (60.0, 140.0)]
zeige("Altgrad math, open", fliegend(pa, legs, GRAD))
pe = (1007.80, 2102.10)
zeige("Altgrad math, adjusted to PE (1007.80, 2102.10)", *reversed(ausgeglichen(pa, pe, legs, GRAD)))
# A misclosure of more than a tenth of the length: the question comes.
pe = (1039.50, 2121.75)
zeige("Altgrad math, adjusted to PE (1039.50, 2121.75)", *reversed(ausgeglichen(pa, pe, legs, GRAD)))

# 2. Gon, system 0, PA (500, 300), legs 11..14.
pa = (500.0, 300.0)
legs = [(120.5, 12.5), (98.25, 87.0), (143.0, 160.25), (75.75, 260.0)]
zeige("Neugrad math, open", fliegend(pa, legs, GON))
pe = (477.50, 442.10)
zeige("Neugrad math, adjusted to PE (477.50, 442.10)", *reversed(ausgeglichen(pa, pe, legs, GON)))

# 3. Gon, M31: PA Y 5000 X 8000, legs 21..23.
pa = (5000.0, 8000.0)
legs = [(80.0, 50.0), (65.0, 120.0), (90.0, 30.0)]
zeige("Neugrad M31, open", fliegend(pa, legs, GON, True))
pe = (5159.30, 8116.60)
zeige("Neugrad M31, adjusted to PE (Y 5159.30, X 8116.60)", *reversed(ausgeglichen(pa, pe, legs, GON, True)))

# 4. Closed traverse in gon: out and back to PA (100, 100).
pa = (100.0, 100.0)
legs = [(30.0, 0.0), (40.0, 100.0), (50.0, 259.0334)]
zeige("Neugrad math, closed", *reversed(ausgeglichen(pa, pa, legs, GON)))

# 5. One leg: the point lands on PE.
zeige("one leg to PE (205, 310)", *reversed(ausgeglichen((200.0, 300.0), (205.0, 310.0), [(11.0, 70.0)], GON)))

# 6. Polar table (gon, system 0): PA and PE as the table holds them; the
# legs of case 2 read the same as without Polar.
print("polar PA (500, 300) = %.9f %.9f" % polar(500.0, 300.0, GON))
print("polar PE (477.50, 442.10) = %.9f %.9f" % polar(477.50, 442.10, GON))

# The M31 points as a polar table holds them: angle clockwise from X.
for name, (y, x) in (("PA", (5000.0, 8000.0)), ("PE", (5159.30, 8116.60))):
    print("M31 polar %s = %.9f %.9f" % (name, math.hypot(y, x), (math.atan2(y, x) % (2 * Pi)) / GON))

# 7. 5000 legs of 1 m at 0 gon from (0, 0), PE (5000.5, 2).
n = 5000
fehler, punkte = ausgeglichen((0.0, 0.0), (5000.5, 2.0), [(1.0, 0.0)] * n, GON)
print("5000 legs: misclosure %.9f %.9f" % fehler)
for k in (1, 2500, 4999, 5000):
    print("  point %d: %.9f %.9f" % (k, *punkte[k - 1]))
