#!/usr/bin/env python3
"""Worked values for the tests of the arc element and segment dialogs.

Computed from the geometry of the arc, not from the program's formulas:
the chord S = 2 R sin(alpha/2), the tangent T = R tan(alpha/2), the
height of the segment f = R (1 - cos(alpha/2)), the distance of the
vertex from the arc d = R / cos(alpha/2) - R, the tangent of the half arc
R tan(alpha/4); the centre lies on the
perpendicular through the middle of the chord at sqrt(R^2 - (S/2)^2), the
tangent vertex on the other side at sqrt(T^2 - (S/2)^2). Angles are turned
into the user's unit with Pi = 3.141592654 as the program does.
"""
import math

Pi = 3.141592654
GON, GRAD, RAD = Pi / 200, Pi / 180, 1.0


def standard(x):
    """'#######0.000###': three to six decimals."""
    t = "%.6f" % x
    while t.endswith("0") and len(t.split(".")[1]) > 3:
        t = t[:-1]
    return "-0.000" if t == "-0.000" else t


def ergebnis(x):
    return "%.3f" % x


def elemente(R, alpha, faktor):
    """The elements of an arc of radius R and central angle alpha."""
    h = alpha / 2
    S = 2 * R * math.sin(h)
    return {
        "Radius": standard(R),
        "Tangente": standard(R * math.tan(h)),
        "alpha": standard(alpha / faktor),
        "Bogen b": ergebnis(R * alpha),
        "Sehne S": ergebnis(S),
        "Xs": ergebnis(S / 2),
        "Ys": ergebnis(R * (1 - math.cos(h))),
        "ds": ergebnis(R / math.cos(h) - R),
        # the tangent at the middle of the arc up to the main tangent: the
        # tangent length of the half arc
        "ts": ergebnis(R * math.tan(h / 2)),
    }


def zeige(titel, werte):
    print(titel)
    for k, v in werte.items():
        print("   %-8s %s" % (k, v))


# ---- BogenElementeW
zeige("W: alpha 50 gon, R 100", elemente(100, 50 * GON, GON))
R = 20 / math.tan(math.radians(30))
zeige("W: alpha 60 grad, T 20", elemente(R, 60 * GRAD, GRAD))
zeige("W: alpha 1.2 rad, R 50", elemente(50, 1.2, RAD))
zeige("W: alpha 3.1415 rad, R 10 (nearly half)", elemente(10, 3.1415, RAD))
print("cos of 200 gon, 180 grad, 3.141592654 rad, 400 gon:",
      math.cos(200 * GON) == -1, math.cos(180 * GRAD) == -1, math.cos(Pi) == -1, math.cos(400 * GON) == 1)
print("cos of 3.1415 rad is -1:", math.cos(3.1415) == -1)

# ---- BogenElementeS
zeige("S: S 80, R 50, gon", elemente(50, 2 * math.asin(40 / 50), GON))
# S and T: cos(alpha/2) = (S/2) / T
zeige("S: S 80, T 60, gon", elemente(40 / math.sin(math.acos(40 / 60)), 2 * math.acos(40 / 60), GON))
zeige("S: b 100, R 50, grad", elemente(50, 100 / 50, GRAD))

# ---- BogenElementeB: BA (100, 200), BE (160, 280), c = 100
BA, BE = (100.0, 200.0), (160.0, 280.0)
c = math.dist(BA, BE)
u = ((BE[0] - BA[0]) / c, (BE[1] - BA[1]) / c)
rechts = (u[1], -u[0])  # right of the direction BA -> BE, first axis right
mitte = ((BA[0] + BE[0]) / 2, (BA[1] + BE[1]) / 2)


def punkte(R, T, vorzeichen):
    """Centre right of the chord for a positive value, vertex on the other side."""
    m = math.sqrt(R * R - (c / 2) ** 2) * vorzeichen
    w = -math.sqrt(T * T - (c / 2) ** 2) * vorzeichen
    return ((mitte[0] + m * rechts[0], mitte[1] + m * rechts[1]),
            (mitte[0] + w * rechts[0], mitte[1] + w * rechts[1]))


def polar(p):
    e = math.hypot(*p)
    t = math.atan2(p[1], p[0]) % (2 * Pi)
    return e, t / GON


for R in (80, -80):
    a = 2 * math.asin(c / 2 / abs(R))
    zeige("B: R %g, gon" % R, elemente(abs(R), a, GON))
    M, W = punkte(abs(R), abs(R) * math.tan(a / 2), 1 if R > 0 else -1)
    print("   M = %.9f %.9f   W = %.9f %.9f" % (*M, *W))
    print("   polar M = %.9f %.9f   W = %.9f %.9f" % (*polar(M), *polar(W)))
for T in (70, -70):
    a = 2 * math.acos(c / 2 / abs(T))
    R = abs(T) / math.tan(a / 2)
    zeige("B: T %g, grad" % T, elemente(R, a, GRAD))
    M, W = punkte(R, abs(T), 1 if T > 0 else -1)
    print("   M = %.9f %.9f   W = %.9f %.9f" % (*M, *W))
# half circle: the vertex circles miss; the centre is the middle of the chord
print("B: R 50 = c/2: M =", mitte)


# ---- segments
def segment(S, R, faktor=GON):
    h = S / 2
    a = 2 * math.asin(h / R) if h < R else Pi
    return {
        "Radius": standard(R),
        "Tangente": standard(R * math.tan(a / 2)),
        "alpha": standard(a / faktor),
        "Bogen b": ergebnis(R * a),
        "Sehne S": ergebnis(S),
        "P": ergebnis(R - math.sqrt(R * R - h * h)),
        # sector less triangle
        "Flaeche": ergebnis(R * R * a / 2 - h * R * math.cos(a / 2)),
    }


zeige("Segment S 80, R 50 (P 20)", segment(80, 50))
zeige("Segment S 80, P 60: R from (S/2)^2 + (R-P)^2 = R^2", segment(80, (40 ** 2 + 60 ** 2) / 120))
zeige("Segment BA-BE c 100, R 60, grad", segment(100, 60, GRAD))
zeige("Segment BA-BE c 100, R 50 = c/2 (half circle), grad", segment(100, 50, GRAD))
# half circle with the program's Pi: the tangent of Pi/2 is huge and negative
R = 40
print("Segment S 80, R 40: alpha %s, b %s, T %s, F %s" % (
    standard(Pi / GON), ergebnis(R * Pi), standard(R * math.tan(Pi / 2)),
    ergebnis(R * R / 2 * (Pi - math.sin(Pi)))))

# macro: the segment over BA-BE from the height of the R 60 segment, rounded
P = 26.833752
zeige("Segment BA-BE c 100, P %g, gon" % P, segment(100, (50 ** 2 + P ** 2) / (2 * P)))
