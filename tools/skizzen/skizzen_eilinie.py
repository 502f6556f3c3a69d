"""Skizzen der Eilinie und der Wendelinie: die beiden Kreise (R1 der kleinere,
R2 der groessere), die verbindende Klotoide und der Abstand D der Kreise auf
der Linie ihrer Mittelpunkte. Die Klotoide ist echt gerechnet; L1 und L2 zaehlen
vom Ursprung der Klotoide (Kruemmung 0) bis zum Beruehrungspunkt mit R1 und R2."""
import math

from skizzen import B, BLAU, GRAU, H, SCHWARZ, Skizze

ROT = "#c0392b"


def _punkt(a, l, schritte=200):
    """Punkt der Klotoide mit Parameter a bei Bogenlaenge l (Mittelpunktsregel)."""
    x = y = 0.0
    h = l / schritte
    for i in range(schritte):
        s = (i + 0.5) * h
        t = s * s / (2 * a * a)
        x += h * math.cos(t)
        y += h * math.sin(t)
    return x, y


def _bogen(a, von, bis, spiegeln=False, n=60):
    pkt = []
    for i in range(n + 1):
        x, y = _punkt(a, von + (bis - von) * i / n)
        pkt.append((-x, -y) if spiegeln else (x, y))
    return pkt


def _kreis(a, r, spiegeln=False):
    """Kruemmungskreis mit Radius r und sein Beruehrungspunkt."""
    l = a * a / r
    x, y = _punkt(a, l)
    tau = l / (2 * r)
    m = (x - r * math.sin(tau), y + r * math.cos(tau))
    if spiegeln:
        return (-m[0], -m[1]), (-x, -y)
    return m, (x, y)


class _Bild:
    """Modellkoordinaten gleichmaessig in die Skizze eingepasst."""

    def __init__(self, kreise, extra, rand=26):
        xs = [m[0] - r for m, r in kreise] + [m[0] + r for m, r in kreise] + [p[0] for p in extra]
        ys = [m[1] - r for m, r in kreise] + [m[1] + r for m, r in kreise] + [p[1] for p in extra]
        self.f = min((B - 2 * rand) / (max(xs) - min(xs)), (H - 2 * rand) / (max(ys) - min(ys)))
        self.dx = B / 2 - self.f * (min(xs) + max(xs)) / 2
        self.dy = H / 2 - self.f * (min(ys) + max(ys)) / 2

    def __call__(self, p):
        return self.dx + self.f * p[0], self.dy + self.f * p[1]


def _kurve(s, pkt, farbe, breite=2.4, strich=False):
    for a, b in zip(pkt, pkt[1:]):
        s.linie(a, b, farbe, breite, strich=strich)


def _abstand(s, pk, pg, text_pos):
    d = math.dist(pk, pg)
    n = (-(pg[1] - pk[1]) / d, (pg[0] - pk[0]) / d)
    s.linie(pk, pg, ROT, 2.2)
    for p in (pk, pg):
        s.linie((p[0] - 6 * n[0], p[1] - 6 * n[1]), (p[0] + 6 * n[0], p[1] + 6 * n[1]), ROT, 1.6)
    s.text(text_pos, "D", ROT, 15, kursiv=True)


def _radius(s, m, r, winkel, name):
    w = math.radians(winkel)
    ende = (m[0] + r * math.cos(w), m[1] + r * math.sin(w))
    s.linie(m, ende, GRAU, 1.2)
    s.text((m[0] + 0.55 * r * math.cos(w) - 11 * math.sin(w), m[1] + 0.55 * r * math.sin(w) + 11 * math.cos(w)),
           name, SCHWARZ, 14, kursiv=True)


def eilinie():
    s = Skizze("eilinie")
    a, r1, r2 = 65.0, 28.0, 78.0
    (m1, t1), (m2, t2) = _kreis(a, r1), _kreis(a, r2)
    bild = _Bild([(m1, r1), (m2, r2)], [(0, 0)])
    m1b, m2b, t1b, t2b = bild(m1), bild(m2), bild(t1), bild(t2)
    k1, k2 = r1 * bild.f, r2 * bild.f
    s.kreis(m2b, k2)
    s.kreis(m1b, k1)
    # Vom Ursprung bis R2 nur gedacht, die Eilinie selbst von R2 bis R1.
    _kurve(s, [bild(p) for p in _bogen(a, 0, a * a / r2)], GRAU, 1.4, strich=True)
    _kurve(s, [bild(p) for p in _bogen(a, a * a / r2, a * a / r1)], BLAU)
    u = ((m1b[0] - m2b[0]) / math.dist(m1b, m2b), (m1b[1] - m2b[1]) / math.dist(m1b, m2b))
    pk = (m1b[0] + k1 * u[0], m1b[1] + k1 * u[1])
    pg = (m2b[0] + k2 * u[0], m2b[1] + k2 * u[1])
    s.linie(m2b, pk, GRAU, 1.0, strich=True)
    _abstand(s, pk, pg, (pg[0] + 14 * u[0] + 4, pg[1] + 14 * u[1] + 6))
    _radius(s, m1b, k1, 215, "R1")
    _radius(s, m2b, k2, 200, "R2")
    s.punkt(m1b, "M1", 320)
    s.punkt(m2b, "M2", 60)
    s.punkt(bild((0, 0)), "O", 200)
    s.punkt(t1b, "", 0)
    s.punkt(t2b, "", 0)
    s.text((t2b[0] + 2, t2b[1] - 14), "L2", GRAU, 13, kursiv=True)
    s.text((t1b[0] + 18, t1b[1] + 4), "L1", BLAU, 13, kursiv=True)
    return s


def wendelinie():
    s = Skizze("wendelinie")
    a, r1, r2 = 48.0, 35.0, 55.0
    (m1, t1), (m2, t2) = _kreis(a, r1), _kreis(a, r2, spiegeln=True)
    bild = _Bild([(m1, r1), (m2, r2)], [])
    m1b, m2b, t1b, t2b = bild(m1), bild(m2), bild(t1), bild(t2)
    k1, k2 = r1 * bild.f, r2 * bild.f
    s.kreis(m1b, k1)
    s.kreis(m2b, k2)
    _kurve(s, [bild(p) for p in _bogen(a, 0, a * a / r2, spiegeln=True)], BLAU)
    _kurve(s, [bild(p) for p in _bogen(a, 0, a * a / r1)], BLAU)
    u = ((m1b[0] - m2b[0]) / math.dist(m1b, m2b), (m1b[1] - m2b[1]) / math.dist(m1b, m2b))
    pk = (m1b[0] - k1 * u[0], m1b[1] - k1 * u[1])
    pg = (m2b[0] + k2 * u[0], m2b[1] + k2 * u[1])
    s.linie(m2b, m1b, GRAU, 1.0, strich=True)
    mitte = ((pk[0] + pg[0]) / 2, (pk[1] + pg[1]) / 2)
    _abstand(s, pk, pg, (mitte[0] + 24 * u[1], mitte[1] - 24 * u[0]))
    _radius(s, m1b, k1, 20, "R1")
    _radius(s, m2b, k2, 200, "R2")
    s.punkt(m1b, "M1", 120)
    s.punkt(m2b, "M2", 300)
    s.punkt(bild((0, 0)), "W", 235)
    s.punkt(t1b, "", 0)
    s.punkt(t2b, "", 0)
    s.text((t1b[0] + 4, t1b[1] - 16), "L1", BLAU, 13, kursiv=True)
    s.text((t2b[0] - 4, t2b[1] + 16), "L2", BLAU, 13, kursiv=True)
    return s


SKIZZEN = [eilinie, wendelinie]
