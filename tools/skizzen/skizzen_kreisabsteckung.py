"""Skizzen der Kreisbogenabsteckung mit b und mit x, y, s.

Wie in der Hilfe: erste Koordinate nach rechts, zweite nach oben; ein
positives B laeuft in der Zeichnung im Uhrzeigersinn.
"""
import math

from skizzen import BLAU, GRAU, SCHWARZ, Skizze, auf, mitte, versetzt


def kreis_absteck_b():
    s = Skizze("kreis_absteck_b")
    m, r = (170, 100), 95
    w_ba, w_p, w_neg = 150, 60, 200
    ba, p, q = auf(m, r, w_ba), auf(m, r, w_p), auf(m, r, w_neg)
    s.kreis(m, r, GRAU, strich=True)
    s.linie(m, ba, GRAU, 1.2)
    s.text(versetzt(m, ba, 11), "r", GRAU, 14, kursiv=True)
    s.linie(m, p, GRAU, 1.2, strich=True)
    # B > 0 im Uhrzeigersinn von BA aus, B < 0 dagegen.
    s.kreisbogen(m, r + 12, w_ba, w_p + 3, BLAU, 1.6, pfeil=True)
    s.text(auf(m, r + 32, (w_ba + w_p) / 2), "B &gt; 0", BLAU, 14, kursiv=True)
    s.kreisbogen(m, r + 12, w_ba, w_neg - 3, GRAU, 1.4, pfeil=True)
    s.text(auf(m, r + 34, (w_ba + w_neg) / 2 + 4), "B &lt; 0", GRAU, 13, kursiv=True)
    s.punkt(m, "M", 270)
    s.punkt(ba, "BA", 200)
    s.punkt(p, "P", 20, neu=True)
    s.punkt(q, "P", 250)
    return s


def kreis_absteck_xys():
    s = Skizze("kreis_absteck_xys")
    sehne, r = 260, 150
    a, e = (50, 118), (50 + sehne, 118)
    h = math.sqrt(r * r - (sehne / 2) ** 2)
    m = (a[0] + sehne / 2, a[1] - h)
    w_a = math.degrees(math.atan2(a[1] - m[1], a[0] - m[0]))
    w_e = math.degrees(math.atan2(e[1] - m[1], e[0] - m[0]))
    w_p = w_a - 30
    p = auf(m, r, w_p)
    fuss = (p[0], a[1])
    s.kreisbogen(m, r, w_a, w_e)
    s.linie(a, e, GRAU, 1.2)
    s.text((mitte(a, e)[0] + 60, a[1] - 13), "S", GRAU, 14, kursiv=True)
    # Die Bogenlaenge B laeuft von A aus am Bogen entlang bis P.
    s.kreisbogen(m, r + 12, w_a, w_p + 1.5, BLAU, 1.6, pfeil=True)
    s.text(auf(m, r + 27, (w_a + w_p) / 2), "B", BLAU, 15, kursiv=True)
    s.linie(a, p, GRAU, 1.2, strich=True)
    s.text(versetzt(a, p, -11, 0.6), "s", GRAU, 14, kursiv=True)
    # x auf der Sehne, y senkrecht dazu
    s.linie((a[0], a[1] - 26), (fuss[0], a[1] - 26), BLAU, 1.4)
    s.pfeil((a[0], a[1] - 26), (fuss[0], a[1] - 26), BLAU, 0)
    s.text((mitte(a, fuss)[0], a[1] - 38), "x", BLAU, 15, kursiv=True)
    s.linie(fuss, (fuss[0], a[1] - 30), GRAU, 1.0)
    s.pfeil(fuss, p, BLAU, 0)
    s.text((fuss[0] + 12, mitte(fuss, p)[1]), "y", BLAU, 15, kursiv=True)
    s.linie(m, e, GRAU, 1.2, strich=True)
    s.text(versetzt(m, e, 11, 0.4), "R", GRAU, 14, kursiv=True)
    s.punkt(a, "A", 200)
    s.punkt(e, "E", 340)
    s.punkt(p, "P", 110, neu=True)
    s.punkt(m, "M", 180)
    return s


SKIZZEN = [kreis_absteck_b, kreis_absteck_xys]
