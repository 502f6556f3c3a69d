#!/usr/bin/env python3
"""Expected values of the calculation scenarios (tests/makro/rechnen_*.makro).

Every number a scenario checks is worked out here from the geometry itself
(chord formula, sine rule, atan2), not from the program's kernels. Only the
conventions are the program's: Pi = 3.141592654 in every angle conversion,
angles of a Math system counter-clockwise from the axis to the right, of an
M31 system clockwise from the axis up; results shown with three decimals,
inputs and scalar results with three to six.

    python3 rechnen_werte.py          prints the values of every scenario
"""
import math

Pi = 3.141592654
EINHEIT = {"Neugrad": Pi / 200, "Altgrad": Pi / 180, "Radiant": 1.0}


class System:
    def __init__(self, m31=False, einheit="Neugrad"):
        self.m31 = m31
        self.f = EINHEIT[einheit]

    def polar(self, a, b):
        """(a, b) as the polar table holds it: distance and angle."""
        e = math.hypot(a, b)
        t = math.atan2(a, b) if self.m31 else math.atan2(b, a)
        if t < 0:
            t += 2 * Pi
        return e, t / self.f

    def rechtwinklig(self, e, phi):
        t = phi * self.f
        if self.m31:
            return e * math.sin(t), e * math.cos(t)
        return e * math.cos(t), e * math.sin(t)

    def richtung(self, da, db):
        """Direction of a vector in the system's sense and unit."""
        return self.polar(da, db)[1]


def std(x):
    """StandardFormat: three to six decimals."""
    s = "%.6f" % x
    while s.endswith("0") and len(s.split(".")[1]) > 3:
        s = s[:-1]
    return s


def erg(x):
    """ErgebnisFormat: three decimals."""
    return "%.3f" % x


def zeige(name, p, sys=None):
    """A result point as shown (three decimals) and as stored (more)."""
    a, b = p if sys is None else sys.polar(*p)
    print("  %-14s %s %s   gespeichert %.7f %.7f   Meldung (%s/%s)" % (name, erg(a), erg(b), a, b, std(a), std(b)))


def sub(p, q):
    return p[0] - q[0], p[1] - q[1]


def links_vom(b, s, R, r):
    """Points of the circles (b, R) and (s, r): the one left of b->s first."""
    dx, dy = sub(s, b)
    d = math.hypot(dx, dy)
    x = (d * d + R * R - r * r) / (2 * d)
    h = math.sqrt(max(R * R - x * x, 0.0))
    ux, uy = dx / d, dy / d
    fx, fy = b[0] + x * ux, b[1] + x * uy
    return (fx - h * uy, fy + h * ux), (fx + h * uy, fy - h * ux)


def kreis_kreis(m1, r1, m2, r2):
    # The larger circle leads; on equal radii the second one.
    if r1 > r2:
        return links_vom(m1, m2, r1, r2)
    return links_vom(m2, m1, r2, r1)


def gerade_kreis(m, r, p1, p2):
    """Points of the circle and the line p1->p2, the one ahead first."""
    dx, dy = sub(p2, p1)
    L = math.hypot(dx, dy)
    ux, uy = dx / L, dy / L
    s = (m[0] - p1[0]) * ux + (m[1] - p1[1]) * uy
    f = (p1[0] + s * ux, p1[1] + s * uy)
    h = math.hypot(*sub(m, f))
    w = math.sqrt(r * r - h * h)
    return (f[0] + w * ux, f[1] + w * uy), (f[0] - w * ux, f[1] - w * uy)


def tangenten(m, r, p):
    """Touching points seen from p, and the tangent length."""
    t = math.sqrt(math.hypot(*sub(p, m)) ** 2 - r * r)
    # The circle of radius t around p meets the given one; p's leads on a tie.
    return (links_vom(p, m, t, r) if t >= r else links_vom(m, p, r, t)), t


def umkreis(p1, p2, p3):
    (ax, ay), (bx, by), (cx, cy) = p1, p2, p3
    D = 2 * (ax * (by - cy) + bx * (cy - ay) + cx * (ay - by))
    ux = ((ax**2 + ay**2) * (by - cy) + (bx**2 + by**2) * (cy - ay) + (cx**2 + cy**2) * (ay - by)) / D
    uy = ((ax**2 + ay**2) * (cx - bx) + (bx**2 + by**2) * (ax - cx) + (cx**2 + cy**2) * (bx - ax)) / D
    return (ux, uy), math.hypot(ax - ux, ay - uy)


def titel(text):
    print("\n" + text)


# ---------------------------------------------------------------- circles
titel("rechnen_kreis_kreis: M1 900 (1000, 2000) r1 50, M2 von Hand (1060, 2030) r2 40")
s1, s2 = kreis_kreis((1000, 2000), 50, (1060, 2030), 40)
zeige("S1", s1)
zeige("S2", s2)
print("  gleiche Radien 45: Kreis 2 fuehrt")
s1, s2 = kreis_kreis((1000, 2000), 45, (1060, 2030), 45)
zeige("S1", s1)
zeige("S2", s2)

titel("rechnen_gerade_kreis: M 900 (1000, 2000) r 50, P1 901 (940, 1970), P2 von Hand (1100, 2030)")
s1, s2 = gerade_kreis((1000, 2000), 50, (940, 1970), (1100, 2030))
zeige("S1", s1)
zeige("S2", s2)
print("  Senkrecht durch den Mittelpunkt 900, r 50")
s1, s2 = gerade_kreis((1000, 2000), 50, (1000, 2000), (1000, 2001))
zeige("S1", s1)
zeige("S2", s2)
print("  Waagrecht durch den neuen 901, r 25")
s1, s2 = gerade_kreis((1000, 2000), 25, (956.1133458, 1976.0425047), (957.1133458, 1976.0425047))
zeige("S1", s1)
zeige("S2", s2)

titel("rechnen_kreis_tangenten: M 900 (1000, 2000) r 30, P von Hand (1080, 2060)")
(s1, s2), t = tangenten((1000, 2000), 30, (1080, 2060))
print("  t = %s" % std(t))
zeige("S1", s1)
zeige("S2", s2)
print("  r 70 (t kleiner als r: der Kreis um M fuehrt)")
(s1, s2), t = tangenten((1000, 2000), 70, (1080, 2060))
print("  t = %s" % std(t))
zeige("S1", s1)
zeige("S2", s2)

titel("rechnen_umkreis: P1 900 (1000, 2000), P2 901 (1080, 2010), P3 von Hand (1030, 2070)")
m, r = umkreis((1000, 2000), (1080, 2010), (1030, 2070))
zeige("M", m)
print("  Radius %s" % std(r))

titel("rechnen_kreise_grenzfaelle: 3D, M 900 (1000, 2000, H 50)")
print("  Kreise beruehren sich von aussen: M2 (1030, 2040), d = 50 = 30 + 20")
s1, s2 = kreis_kreis((1000, 2000), 30, (1030, 2040), 20)
zeige("S1", s1)
zeige("S2", s2)
print("  Waagrechte b = 2030 beruehrt den Kreis r 30 um 900")
s1, s2 = gerade_kreis((1000, 2000), 30, (0, 2030), (1, 2030))
zeige("S1", s1)
zeige("S2", s2)
print("  Tangenten von 901 (1018, 2024) an r 20 um 900: d = 30")
(s1, s2), t = tangenten((1000, 2000), 20, (1018, 2024))
print("  t = %s" % std(t))
zeige("S1", s1)
zeige("S2", s2)

titel("rechnen_kreise_polar_m31: M31, Altgrad; 900 (1000, 2000), 901 (1060, 2030) als Y, X")
m31 = System(m31=True, einheit="Altgrad")
P900, P901 = (1000, 2000), (1060, 2030)
print("  KreisKreis r1 50, r2 40 (Zahlen wie im Math-System)")
kk1, kk2 = kreis_kreis(P900, 50, P901, 40)
zeige("S1", kk1)
zeige("S2", kk2)
print("  GeradeKreis M 900 r 50, Gerade durch 901 mit 60 Grad, rechtsdrehend von X")
w = 60 * m31.f
gk1, gk2 = gerade_kreis(P900, 50, P901, (P901[0] + math.sin(w), P901[1] + math.cos(w)))
zeige("S1", gk1)
zeige("S2", gk2)
print("  UmkreisMittelpunkt 900, 901, von Hand (1030, 2070)")
um, ur = umkreis(P900, P901, (1030, 2070))
zeige("M", um)
print("  Radius %s" % std(ur))
print("  KreisTangenten M 900 r 30, P 901")
(kt1, kt2), t = tangenten(P900, 30, P901)
print("  t = %s" % std(t))
zeige("S1", kt1)
zeige("S2", kt2)

print("  Polar (M31, Altgrad): die Tabelle nach der Umwandlung")
for n, p in ((900, P900), (901, P901), (902, kk1), (905, kt2)):
    print("  %d   e %.7f  Phi %.7f" % ((n,) + m31.polar(*p)))
print("  KreisKreis 900, 901, r1 50, r2 40")
zeige("S1", kk1, m31)
zeige("S2", kk2, m31)
print("  UmkreisMittelpunkt, P3 rechtwinkelig von Hand (1030, 2070)")
zeige("M", um, m31)
print("  Radius %s" % std(ur))
e, phi = (round(x, 9) for x in m31.polar(1080, 2060))
print("  KreisTangenten M 900 r 40, P polar von Hand aus (1080, 2060): e %.9f Phi %.9f" % (e, phi))
(s1, s2), t = tangenten(P900, 40, m31.rechtwinklig(e, phi))
print("  t = %s" % std(t))
zeige("S1", s1, m31)
zeige("S2", s2, m31)
print("  GeradeKreis M 900 r 50, Gerade 901 -> 900 durch den Mittelpunkt")
s1, s2 = gerade_kreis(P900, 50, P901, P900)
zeige("S1", s1, m31)
zeige("S2", s2, m31)


# ------------------------------------------------------------- ties, angles
def winkel_bei(p1, s, p2):
    """Unsigned angle at s between p1 and p2, radians."""
    u, v = sub(p1, s), sub(p2, s)
    return math.acos((u[0] * v[0] + u[1] * v[1]) / math.hypot(*u) / math.hypot(*v))


def rechtsum(s, p1, p2):
    """Angle at s turning clockwise from the ray to p1 to the ray to p2."""
    w = math.atan2(p1[1] - s[1], p1[0] - s[0]) - math.atan2(p2[1] - s[1], p2[0] - s[0])
    return w % (2 * math.pi)


def distanz(sys, p1, p2, name):
    da, db = sub(p2, p1)
    e, w = sys.polar(da, db)
    # The gradient is the tangent of the system's own direction: rise over
    # run in a Math system, run over rise under M31.
    steigung = 100 * (da / db if sys.m31 else db / da)
    print("  Distanz %s, Winkel %s, Steigung %s, %s %s" % (std(e), std(w), std(steigung), name, (std(da), std(db))))


def direkter(sys, s, p1, p2, alpha):
    # Two sides and the angle at S: one triangle only if S-P1 is not longer
    # than P1-P2, else the program rightly finds the other one.
    assert math.hypot(*sub(p1, s)) <= math.hypot(*sub(p2, p1))
    w = rechtsum(s, p1, p2) / sys.f
    print("  e %.9f  alpha %.9f  beta %.9f  (Winkel %.6f)" % (math.hypot(*sub(p1, s)), alpha, alpha + w, w))


def indirekter(sys, s, p1, p2, alpha, beta):
    r = math.hypot(*sub(p1, s))
    a = r * math.sin((alpha + beta) * sys.f) / math.sin(alpha * sys.f)
    print("  a %.9f  alpha %s  beta %s  lambda %.9f" % (a, alpha, beta, rechtsum(s, p1, p2) / sys.f))


titel("rechnen_anschluss_polar_m31: P1 900 (1000, 2000), P2 901 (1100, 2050)")
P1, P2 = (1000, 2000), (1100, 2050)
for sys, text in ((System(m31=True), "M31, Neugrad"), (System(einheit="Altgrad"), "polar, Math, Altgrad")):
    print(" %s" % text)
    distanz(sys, P1, P2, "Delta")
    print("  Winkel bei 901 zwischen 900 und (1160, 1980): %s" % std(winkel_bei(P1, P2, (1160, 1980)) / sys.f))
    print("  Direkter Anschluss S (1060, 1930), rechtsdrehend abgelesen:")
    direkter(sys, (1060, 1930), P1, P2, 50)
    print("  Indirekter Anschluss S (1050, 1900):")
    indirekter(sys, (1050, 1900), P1, P2, 60, 70)
altgrad = System(einheit="Altgrad")
print("  polar: die Tabelle nach der Umwandlung")
for n, p in ((900, P1), (901, P2), (902, (1060, 1930)), (903, (1050, 1900))):
    print("  %d   e %.7f  Phi %.7f   angezeigt %s %s" % ((n,) + altgrad.polar(*p) + tuple(erg(x) for x in altgrad.polar(*p))))
print("  (1160, 1980) polar von Hand: e %.9f Phi %.9f" % altgrad.polar(1160, 1980))


# ------------------------------------------------------ intersection, resection
def links(p, q, s):
    return (q[0] - p[0]) * (s[1] - p[1]) - (q[1] - p[1]) * (s[0] - p[0]) > 0


titel("rechnen_schnitt_polar_m31: P1 900 (1000, 2000), P2 901 (1100, 2050), P3 902 (1200, 1980)")
P1, P2, P3 = (1000, 2000), (1100, 2050), (1200, 1980)
SV, SR = (1020, 2090), (1080, 1900)
assert links(P1, P2, SV)  # the rays are turned toward the left of P1-P2
for sys, text in ((System(m31=True, einheit="Altgrad"), "M31, Altgrad"), (System(einheit="Radiant"), "polar, Math, Radiant")):
    print(" %s" % text)
    print("  Vorwaertsschnitt nach %s: alpha %.9f beta %.9f" % (SV, winkel_bei(P2, P1, SV) / sys.f, winkel_bei(P1, P2, SV) / sys.f))
    print("  Rueckwaertsschnitt nach %s, rechtsdrehend: %.9f %.9f" % (SR, rechtsum(SR, P1, P2) / sys.f, rechtsum(SR, P2, P3) / sys.f))
radiant = System(einheit="Radiant")
print("  polar: die Tabelle nach der Umwandlung")
for n, p in ((900, P1), (903, SV), (904, SR)):
    print("  %d   e %.7f  Phi %.7f   angezeigt %s %s" % ((n,) + radiant.polar(*p) + tuple(erg(x) for x in radiant.polar(*p))))
print("  900 im Feld: e = %s Phi = %s" % tuple(std(x) for x in radiant.polar(*P1)))


# ------------------------------------------------------------------- lines
def schnitt(p, u, q, v):
    """Meeting point of the lines p + s u and q + t v."""
    det = u[0] * v[1] - u[1] * v[0]
    s = ((q[0] - p[0]) * v[1] - (q[1] - p[1]) * v[0]) / det
    return p[0] + s * u[0], p[1] + s * u[1]


titel("rechnen_geraden_polar_m31: 900 (1000, 2000), 901 (1100, 2050), 902 (1200, 1980)")
P1, P2, P3 = (1000, 2000), (1100, 2050), (1200, 1980)
print(" M31, Radiant")
m31 = System(m31=True, einheit="Radiant")
# 0.5 rad clockwise from X, the axis up: (sin, cos) in (Y, X).
g1 = (math.sin(0.5 * m31.f), math.cos(0.5 * m31.f))
zeige("Geradenschnitt g1 durch 900 mit 0.5, g2 901-902", schnitt(P1, g1, P2, sub(P3, P2)))
u = sub(P2, P1)
zeige("Lotfusspunkt von 902 auf 900-901", schnitt(P1, u, P3, (-u[1], u[0])))
zeige("Parallele zu 900-901 durch (1050, 2100), waagrecht durch 902", schnitt((1050, 2100), u, P3, (1, 0)))

print(" polar, Math, Neugrad")
gon = System(einheit="Neugrad")
h = (1150, 2120)
print("  P4 polar von Hand aus %s: e %.9f Phi %.9f" % ((h,) + gon.polar(*h)))
e, phi = (round(x, 9) for x in gon.polar(*h))
zeige("Geradenschnitt 900-901 mit 902-P4", schnitt(P1, u, P3, sub(gon.rechtwinklig(e, phi), P3)), gon)
g1 = (math.cos(30 * gon.f), math.sin(30 * gon.f))
zeige("Lotfusspunkt von 902 auf g1 durch 900 mit 30 gon", schnitt(P1, g1, P3, (-g1[1], g1[0])), gon)
roh = gon.polar(*P3)
print("  Parallele: P = 902 wird nicht umgerechnet, a, b = e, Phi = %.7f %.7f" % roh)
zeige("Parallele zu 900-901 durch dieses P, g2 y = -x + 3000", schnitt(roh, u, (0, 3000), (1, -1)), gon)


# ------------------------------------------------------ offsets, small points
def schritt(p, u, e):
    L = math.hypot(*u)
    return p[0] + e * u[0] / L, p[1] + e * u[1] / L


titel("rechnen_einrechnen_polar_m31: M31, Neugrad; A 900 (1000, 2000), E 901 (1100, 2050)")
m31 = System(m31=True, einheit="Neugrad")
A, E = (1000, 2000), (1100, 2050)
u = sub(E, A)
w = 40 * m31.f
zeige("Einrechnen A und Winkel 40 gon von X, e 25", schritt(A, (math.sin(w), math.cos(w)), 25))
k1 = schritt(A, (-u[1], u[0]), 30)
zeige("Kleinpunkte links 30", k1)
zeige("dann rechts 20", schritt(k1, (u[1], -u[0]), 20))
print(" polar, M31, Neugrad")
for n, p in ((900, A), (901, E)):
    print("  %d   e %.7f  Phi %.7f" % ((n,) + m31.polar(*p)))
zeige("Einrechnen 900-901, e 40", schritt(A, u, 40), m31)
f2 = schritt(A, u, 80)
zeige("fortlaufend, zweiter Schritt", f2, m31)
print("  A danach im Feld: e = %s Phi = %s" % tuple(std(x) for x in m31.polar(*f2)))
k = schritt(A, u, 50)
zeige("Kleinpunkte A von Hand rechtwinkelig, vorwaerts 50", k, m31)
print("  P danach im Feld: e = %s Phi = %s" % tuple(std(x) for x in m31.polar(*k)))
