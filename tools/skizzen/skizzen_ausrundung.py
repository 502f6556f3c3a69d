"""Skizze der Ausrundung einer Ecke P2 zwischen P1 und P3."""
import math

from skizzen import BLAU, GRAU, SCHWARZ, Skizze, mitte, versetzt


def _einheit(a, b):
    d = math.dist(a, b)
    return (b[0] - a[0]) / d, (b[1] - a[1]) / d


def ausrundung():
    s = Skizze("ausrundung")
    p1, p2, p3 = (40, 70), (180, 222), (330, 62)
    u1, u3 = _einheit(p2, p1), _einheit(p2, p3)
    w = math.acos(u1[0] * u3[0] + u1[1] * u3[1])
    r = 95
    t = r * math.tan((math.pi - w) / 2)
    t1 = (p2[0] + t * u1[0], p2[1] + t * u1[1])
    t2 = (p2[0] + t * u3[0], p2[1] + t * u3[1])
    halb = _einheit((0, 0), (u1[0] + u3[0], u1[1] + u3[1]))
    abstand = r / math.sin(w / 2)
    m = (p2[0] + abstand * halb[0], p2[1] + abstand * halb[1])
    scheitel = (p2[0] + (abstand - r) * halb[0], p2[1] + (abstand - r) * halb[1])
    s.linie(p1, p2, SCHWARZ, 1.4)
    s.linie(p2, p3, SCHWARZ, 1.4)
    # Der Bogen von T1 nach T2 um M, im Uhrzeigersinn in dieser Lage.
    a, e = s._p(*t1), s._p(*t2)
    s.teile.append('<path d="M %.1f %.1f A %.1f %.1f 0 0 1 %.1f %.1f" fill="none" stroke="%s" stroke-width="2.4"/>'
                   % (a[0], a[1], r, r, e[0], e[1], BLAU))
    s.linie(m, t1, GRAU, 1.2, strich=True)
    s.linie(m, t2, GRAU, 1.2, strich=True)
    s.text(versetzt(m, t1, -11), "R", GRAU, 14, kursiv=True)
    s.text(versetzt(p2, t2, 12, 0.55), "T", BLAU, 15, kursiv=True)
    s.text(versetzt(t1, p2, 12, 0.45), "T", BLAU, 15, kursiv=True)
    s.text(versetzt(t1, t2, 12, 0.5), "b", BLAU, 15, kursiv=True)
    s.linie(p2, scheitel, BLAU, 1.4)
    s.text((scheitel[0] + 14, mitte(p2, scheitel)[1] - 4), "ds", BLAU, 14, kursiv=True)
    # Der Innenwinkel an P2; sein Name links der Winkelhalbierenden, die ds traegt.
    s.bogen(p2, 44, p3, p1, "", True)
    links = math.atan2(halb[1], halb[0]) - 0.5
    s.text((p2[0] + 28 * math.cos(links), p2[1] + 28 * math.sin(links)), "ω", BLAU, 15, kursiv=True)
    s.punkt(p1, "P1", 200)
    s.punkt(p2, "P2", 90)
    s.punkt(p3, "P3", 340)
    s.punkt(m, "M", 270)
    s.punkt(t1, "T1", 160, neu=True)
    s.punkt(t2, "T2", 20, neu=True)
    return s


SKIZZEN = [ausrundung]
