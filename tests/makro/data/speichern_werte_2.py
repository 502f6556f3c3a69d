#!/usr/bin/env python3
"""Expected values of the storing scenarios of the arc, setting-out,
rounding, stakeout and traverse dialogs (tests/makro/rechnen_*_speichern.makro).

Each value comes from plain geometry (midpoint and perpendicular of a chord,
rotation about a centre, tangent length along the sides of a corner, vector
sums of legs), not from the program's kernels. Conventions are the
program's: Math.links, Neugrad with Pi = 3.141592654; results shown with
three decimals, the overwrite question with the stored point's coordinates
in three to six decimals.

    python3 speichern_werte_2.py
"""
import math

Pi = 3.141592654
GON = Pi / 200


def std(x):
    """The number as the overwrite question shows it: three to six decimals."""
    s = "%.6f" % x
    while s.endswith("0") and len(s.split(".")[1]) > 3:
        s = s[:-1]
    return s


def erg(x):
    return "%.3f" % x


def zeige(name, p):
    a, b = p
    print("  %-10s angezeigt %s %s   gespeichert %.7f %.7f" % (name, erg(a), erg(b), a, b))


def frage(nr, p):
    print('  Frage: "Soll Pkt. %d: (%s/%s) überschrieben werden?"' % (nr, std(p[0]), std(p[1])))


def polar(da, db):
    """Distance and direction (gon, counter-clockwise from X) of a vector."""
    t = math.atan2(db, da)
    if t < 0:
        t += 2 * math.pi
    return math.hypot(da, db), t / GON


def bogen_b(ba, be, r):
    """Centre and tangent vertex of the arc from BA to BE with signed R.
    R > 0 turns clockwise: the centre lies right of BA->BE, the vertex left."""
    ca, cb = be[0] - ba[0], be[1] - ba[1]
    c = math.hypot(ca, cb)
    mid = ((ba[0] + be[0]) / 2, (ba[1] + be[1]) / 2)
    rechts = (cb / c, -ca / c)
    seite = 1 if r > 0 else -1
    R = abs(r)
    h = math.sqrt(R * R - (c / 2) ** 2)
    m = (mid[0] + seite * h * rechts[0], mid[1] + seite * h * rechts[1])
    # The vertex lies on the line centre-midpoint, R^2 / h from the centre.
    k = R * R / (h * h)
    w = (m[0] + (mid[0] - m[0]) * k, m[1] + (mid[1] - m[1]) * k)
    tangente = math.hypot(w[0] - ba[0], w[1] - ba[1])
    return m, w, tangente


def kreisabsteckung(m, ba, b):
    """The point at arc length b from BA about M, b > 0 clockwise."""
    r = math.hypot(ba[0] - m[0], ba[1] - m[1])
    t = math.atan2(ba[1] - m[1], ba[0] - m[0]) - b / r
    return (m[0] + r * math.cos(t), m[1] + r * math.sin(t))


def ausrundung(p1, p2, p3, r):
    """Tangent points of the arc of radius r in the corner P2."""
    u = (p1[0] - p2[0], p1[1] - p2[1])
    v = (p3[0] - p2[0], p3[1] - p2[1])
    lu, lv = math.hypot(*u), math.hypot(*v)
    # Turning angle between the incoming and the outgoing side.
    cos_drehung = -(u[0] * v[0] + u[1] * v[1]) / (lu * lv)
    drehung = math.acos(cos_drehung)
    t = r * math.tan(drehung / 2)
    t1 = (p2[0] + u[0] / lu * t, p2[1] + u[1] / lu * t)
    t2 = (p2[0] + v[0] / lv * t, p2[1] + v[1] / lv * t)
    return t, t1, t2, (math.pi - drehung) / GON


def polygonzug(pa, pe, schenkel):
    """Adjusted traverse: the points and the misclosure (DX, DY)."""
    teile = [(e * math.cos(phi * GON), e * math.sin(phi * GON)) for e, phi in schenkel]
    s = sum(e for e, _ in schenkel)
    dx = pe[0] - pa[0] - sum(a for a, _ in teile)
    dy = pe[1] - pa[1] - sum(b for _, b in teile)
    punkte, x, y = [], pa[0], pa[1]
    for (e, _), (a, b) in zip(schenkel, teile):
        x += a + e / s * dx
        y += b + e / s * dy
        punkte.append((x, y))
    return punkte, (dx, dy)


print("Bogenelemente mit BA, BE: BA 900 (1000, 2000), BE von Hand (1030, 2040)")
ba, be = (1000.0, 2000.0), (1030.0, 2040.0)
m1, w1, t1 = bogen_b(ba, be, -40)
print(" R = -40 (linksdrehend), Tangente %s" % std(t1))
zeige("M", m1)
zeige("W", w1)
frage(901, m1)
m2, w2, t2 = bogen_b(ba, be, 30)
print(" R = 30 (rechtsdrehend), Tangente %s" % std(t2))
zeige("M", m2)
zeige("W", w2)

print("Kreisbogenabsteckung mit b: M 900 (1000, 2000), BA von Hand (1030, 2040)")
m, ba2 = (1000.0, 2000.0), (1030.0, 2040.0)
p1 = kreisabsteckung(m, ba2, 40)
p2 = kreisabsteckung(m, ba2, -40)
zeige("B = 40", p1)
zeige("B = -40", p2)
frage(901, p1)

print("Ausrundung: P1 900 (1000, 2000), P2 901 (1080, 2060), P3 von Hand (1160, 2160), R = 200")
t, ta, tb, w = ausrundung((1000.0, 2000.0), (1080.0, 2060.0), (1160.0, 2160.0), 200)
print("  Tangente %s, Winkel in P2 %s" % (std(t), std(w)))
zeige("T1", ta)
zeige("T2", tb)
frage(902, ta)

print("Absteckdaten: A 900 (1000, 2000), P von Hand")
e1 = polar(970 - 1000, 2040 - 2000)
e2 = polar(1060 - 1000, 1920 - 2000)
zeige("P (970, 2040)", e1)
zeige("P (1060, 1920)", e2)
frage(901, e1)

print("Polygonzug ausgeglichen: PA 900 (500, 300)")
schenkel = [(120.5, 12.5), (98.25, 87), (143, 160.25), (75.75, 260)]
punkte, f1 = polygonzug((500.0, 300.0), (477.5, 442.1), schenkel)
print(" PE von Hand (477.5, 442.1), Schenkel in 910..913")
for i, p in enumerate(punkte):
    zeige("%d" % (910 + i), p)
zeige("Fehler", f1)
frage(934, f1)
punkte, f2 = polygonzug((500.0, 300.0), (480.0, 440.0), schenkel)
print(" PE 901 (480, 440), Schenkel in 930..933")
for i, p in enumerate(punkte):
    zeige("%d" % (930 + i), p)
zeige("Fehler", f2)
