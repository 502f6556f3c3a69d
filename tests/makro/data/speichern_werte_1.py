#!/usr/bin/env python3
"""Expected values of the store-and-overwrite scenarios
(tests/makro/rechnen_*_speichern.makro of the ties, intersections, lines and
offsets).

Each result is worked out from the geometry (rays, sine rule, feet of
perpendiculars), not from the program's kernels. The angles a scenario types
are derived here from a chosen station and printed with nine decimals; they
are converted with Pi = 3.141592654 as the program does, so the station comes
back. The system is Math (X right, Y up), the unit Neugrad. A result is shown
with three decimals; the overwrite question quotes the stored point with three
to six.

    python3 speichern_werte_1.py
"""
import math

Pi = 3.141592654
GON = Pi / 200


def std(x):
    """StandardFormat: three to six decimals."""
    s = "%.6f" % x
    while s.endswith("0") and len(s.split(".")[1]) > 3:
        s = s[:-1]
    return s


def erg(x):
    return "%.3f" % x


def zeige(name, p):
    print("  %-28s Erg %s %s   Punkt %.7f %.7f   Frage (%s/%s)" % (name, erg(p[0]), erg(p[1]), p[0], p[1], std(p[0]), std(p[1])))


def titel(text):
    print()
    print(text)


def sub(p, q):
    return p[0] - q[0], p[1] - q[1]


def dist(p, q):
    return math.hypot(*sub(p, q))


def rechtsum(s, p1, p2):
    """Angle at s turning clockwise from the ray to p1 to the ray to p2."""
    w = math.atan2(p1[1] - s[1], p1[0] - s[0]) - math.atan2(p2[1] - s[1], p2[0] - s[0])
    return w % (2 * math.pi)


def schnitt(p, u, q, v):
    """Meeting point of the lines p + s u and q + t v."""
    det = u[0] * v[1] - u[1] * v[0]
    s = ((q[0] - p[0]) * v[1] - (q[1] - p[1]) * v[0]) / det
    return p[0] + s * u[0], p[1] + s * u[1]


def schritt(p, u, e):
    L = math.hypot(*u)
    return p[0] + e * u[0] / L, p[1] + e * u[1] / L


def winkel_bei(p1, s, p2):
    u, v = sub(p1, s), sub(p2, s)
    return math.acos((u[0] * v[0] + u[1] * v[1]) / math.hypot(*u) / math.hypot(*v))


P900, P901, P902 = (1000, 2000), (1100, 2050), (1200, 1980)
HAND = (1100, 2050)

# ---------------------------------------------------------------- ties
titel("rechnen_direkter_anschluss_speichern: P1 900 (1000, 2000), P2 von Hand (1100, 2050)")
for S, alpha in (((1060, 1930), 50), ((1020, 1950), 120)):
    # One triangle only while S-P1 is not longer than P1-P2; the readings
    # turn clockwise by less than a quarter circle.
    assert dist(S, P900) <= dist(P900, HAND)
    w = rechtsum(S, P900, HAND) / GON
    assert w < 100
    print("  S %s: e %.9f alpha %s beta %.9f" % (S, dist(S, P900), alpha, alpha + w))
    zeige("Standpunkt", S)

titel("rechnen_indirekter_anschluss_speichern: P1 900 (1000, 2000), P2 von Hand (1100, 2050)")
for S, alpha, beta in (((1050, 1900), 55, 65), ((1070, 1940), 40, 80)):
    r = dist(S, P900)
    a = r * math.sin((alpha + beta) * GON) / math.sin(alpha * GON)
    lam = rechtsum(S, P900, HAND) / GON
    assert r <= dist(P900, HAND) and lam < 100
    print("  S %s: a %.9f alpha %s beta %s lambda %.9f" % (S, a, alpha, beta, lam))
    zeige("Standpunkt", S)

# ------------------------------------------------ intersection, resection
titel("rechnen_vorwaertsschnitt_speichern: P1 900 (1000, 2000), P2 von Hand (1100, 2050)")
base = math.atan2(HAND[1] - P900[1], HAND[0] - P900[0])
for alpha, beta in ((50, 30), (40, 60)):
    # Both rays turn to the left of P1-P2, each from its own end of the base.
    a1, a2 = base + alpha * GON, base + math.pi - beta * GON
    S = schnitt(P900, (math.cos(a1), math.sin(a1)), HAND, (math.cos(a2), math.sin(a2)))
    assert abs(winkel_bei(HAND, P900, S) / GON - alpha) < 1e-9
    assert abs(winkel_bei(P900, HAND, S) / GON - beta) < 1e-9
    print("  alpha %s beta %s" % (alpha, beta))
    zeige("Neupunkt", S)

titel("rechnen_rueckwaertsschnitt_speichern: P1 900 (100, 200), P2 901 (150, 260), P3 von Hand (210, 210)")
# Small distances: the program's angle sums with Pi = 3.141592654 move a
# station by about distance times 1E-9, which must stay below the last
# decimal of the overwrite question.
R1, R2, R3 = (100, 200), (150, 260), (210, 210)


def rueckwaerts(alpha, beta, s):
    """The station that sees the typed angles, by Newton's method from s."""
    def f(p):
        return rechtsum(p, R1, R2) - alpha * GON, rechtsum(p, R2, R3) - beta * GON
    for _ in range(50):
        f0, h = f(s), 1e-4
        fa, fb = f((s[0] + h, s[1])), f((s[0], s[1] + h))
        j = [[(fa[0] - f0[0]) / h, (fb[0] - f0[0]) / h], [(fa[1] - f0[1]) / h, (fb[1] - f0[1]) / h]]
        det = j[0][0] * j[1][1] - j[0][1] * j[1][0]
        s = (s[0] - (j[1][1] * f0[0] - j[0][1] * f0[1]) / det, s[1] - (j[0][0] * f0[1] - j[1][0] * f0[0]) / det)
    return s


for S in ((135, 145), (160, 170)):
    # The angles are typed with nine decimals; the station is found again
    # from those rounded values.
    alpha, beta = (round(rechtsum(S, p, q) / GON, 9) for p, q in ((R1, R2), (R2, R3)))
    print("  S %s: rechtsdrehend %.9f %.9f" % (S, alpha, beta))
    zeige("Standpunkt", rueckwaerts(alpha, beta, (S[0] + 3, S[1] - 2)))

# ------------------------------------------------------------------ lines
titel("rechnen_geradenschnitt_speichern: g1 900 (1000, 2000) - von Hand (1100, 2050), g2 durch 901 (1200, 1980) mit k")
u = sub(HAND, P900)
for k in (-2, 1):
    zeige("k = %s" % k, schnitt(P900, u, (1200, 1980), (1, k)))

titel("rechnen_3pkt_geradenschnitt_speichern: g1 900 (1000, 2000) - von Hand (1100, 2050), P 901 (1200, 1980)")
P = (1200, 1980)
zeige("Lotfusspunkt auf 900-Hand", schnitt(P900, u, P, (-u[1], u[0])))
v = (1, -1)  # P1 und Steigung, k = -1
zeige("Lotfusspunkt auf k = -1", schnitt(P900, v, P, (-v[1], v[0])))

titel("rechnen_parallelen_schnitt_speichern: g1 900 (1000, 2000) - von Hand (1100, 2050), g2 y = -x + d, P 901 (1200, 1980)")
for d in (3200, 3000):
    zeige("d = %s" % d, schnitt(P, u, (0, d), (1, -1)))

# ---------------------------------------------------------------- offsets
titel("rechnen_einrechnen_speichern: A 900 (1000, 2000), E von Hand (1060, 2080)")
E = (1060, 2080)
for e in (25, -40):
    zeige("e = %s" % e, schritt(P900, sub(E, P900), e))

titel("rechnen_kleinpunkte_speichern: A = P 900 (1000, 2000), E von Hand (1060, 2080)")
d = sub(E, P900)
k1 = schritt(P900, d, 25)
zeige("vorwaerts 25", k1)
zeige("dann links 10", schritt(k1, (-d[1], d[0]), 10))
