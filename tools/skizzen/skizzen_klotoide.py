"""Skizze des Klotoidendialogs: Klotoide vom Anfang A mit Tangente in x,
Endpunkt P mit Kreis (Mittelpunkt M, Radius R), Tangenten, Sehne."""
import math

from skizzen import BLAU, GRAU, SCHWARZ, Skizze


def _klotoide(L, tau_ende, schritte=60):
    """Punkte der Klotoide bis zur Laenge L (Tangentenwinkel tau_ende am Ende)."""
    A2 = L * L / (2 * tau_ende)
    pkt, x, y = [(0.0, 0.0)], 0.0, 0.0
    h = L / schritte
    for i in range(schritte):
        s = (i + 0.5) * h
        t = s * s / (2 * A2)
        x += h * math.cos(t)
        y += h * math.sin(t)
        pkt.append((x, y))
    return pkt


def klotoide():
    s = Skizze("klotoide")
    o = (40.0, 42.0)
    L, tau = 262.0, 0.9
    R = L / (2 * tau)
    kurve = [(o[0] + x, o[1] + y) for x, y in _klotoide(L, tau)]
    p = kurve[-1]
    m = (p[0] - R * math.sin(tau), p[1] + R * math.cos(tau))
    # Schnittpunkt der Endtangente mit der Anfangstangente.
    t = (p[0] - (p[1] - o[1]) / math.tan(tau), o[1])

    # Anfangstangente (x-Richtung) und Endtangente
    s.linie((o[0] - 15, o[1]), (o[0] + 300, o[1]), GRAU, 1.2, pfeil=True)
    s.text((o[0] + 306, o[1] - 12), "x", GRAU, 13, kursiv=True)
    s.linie((o[0], o[1] - 12), (o[0], o[1] + 190), GRAU, 1.2, pfeil=True)
    s.text((o[0] - 12, o[1] + 192), "y", GRAU, 13, kursiv=True)
    s.linie(t, (p[0] + 14 * math.cos(tau), p[1] + 14 * math.sin(tau)), SCHWARZ, 1.0, strich=True)

    # Kreis im Endpunkt, gestrichelt, nur als Bogen unten
    pfad = []
    for i in range(0, 41):
        w = math.radians(-150 + i * 2.5)
        pfad.append((m[0] + R * math.cos(w), m[1] + R * math.sin(w)))
    for a, b in zip(pfad, pfad[1:]):
        s.linie(a, b, GRAU, 1.2, strich=True)
    s.linie(m, p, BLAU, 1.2)
    s.text(((m[0] + p[0]) / 2 + 10, (m[1] + p[1]) / 2 + 4), "R", BLAU, 14, kursiv=True)

    # Delta R: Abstand der Anfangstangente vom verschobenen Kreis
    unten = (m[0], m[1] - R)
    s.linie((m[0], o[1]), unten, BLAU, 1.4)
    s.text((m[0] - 17, (o[1] + unten[1]) / 2), "ΔR", BLAU, 13)
    s.linie(m, unten, GRAU, 0.8, strich=True)

    # Die Klotoide selbst
    for a, b in zip(kurve, kurve[1:]):
        s.linie(a, b, SCHWARZ, 2.2)
    s.text((kurve[36][0] - 6, kurve[36][1] + 13), "L", SCHWARZ, 14, kursiv=True)

    # Sehne und ihr Winkel
    s.linie(o, p, BLAU, 1.0, strich=True)
    s.bogen(o, 70, (o[0] + 1, o[1]), p, "σ", False)

    # Tangenten
    s.text(((o[0] + t[0]) / 2, o[1] - 14), "Tl", BLAU, 14, kursiv=True)
    s.text(((t[0] + p[0]) / 2 + 16, (t[1] + p[1]) / 2 - 10), "Tk", BLAU, 14, kursiv=True)
    s.bogen(t, 26, (t[0] + 1, t[1]), p, "τ", False)

    s.punkt(o, "A", 225)
    s.punkt(p, "X,Y", 0, neu=True)
    s.punkt(m, "M", 90, neu=True)
    return s


SKIZZEN = [klotoide]
