#!/usr/bin/env python3
"""Zeichnet die Skizzen der Rechendialoge fuer die Hilfe.

Jede Skizze entsteht als SVG (nur Standardbibliothek) und wird mit
rsvg-convert (Debian-Paket librsvg2-bin) zu PNG umgewandelt:

    python3 tools/skizzen/skizzen.py [Zielordner]

Die Skizzen einer Rechenfamilie stehen in einem eigenen Modul
skizzen_<familie>.py daneben (from skizzen import Skizze, ...), das eine
Liste SKIZZEN ausgibt; main() sammelt sie alle ein.

Ohne Zielordner landen die Bilder in data/hilfe/skizzen/. Die Zeichnungen
stehen in der Ebene "erste Koordinate nach rechts, zweite nach oben"
(M31: Y nach rechts, X nach oben); y zaehlt hier nach oben und wird erst
beim Schreiben in Bildkoordinaten gewendet.
"""
import importlib
import math
import os
import subprocess
import sys

B, H = 360, 260
SCHWARZ = "#000000"
BLAU = "#1a4fc4"
GRAU = "#888888"


class Skizze:
    def __init__(self, name):
        self.name = name
        self.teile = []

    # ---- Grundformen, Koordinaten mit y nach oben
    @staticmethod
    def _p(x, y):
        return x, H - y

    def linie(self, a, b, farbe=SCHWARZ, breite=1.6, strich=False, pfeil=False):
        (x1, y1), (x2, y2) = self._p(*a), self._p(*b)
        extra = ' stroke-dasharray="6,4"' if strich else ""
        if pfeil:
            extra += ' marker-end="url(#pfeil%s)"' % ("B" if farbe == BLAU else "S")
        self.teile.append('<line x1="%.1f" y1="%.1f" x2="%.1f" y2="%.1f" stroke="%s" stroke-width="%.1f"%s/>'
                          % (x1, y1, x2, y2, farbe, breite, extra))

    def pfeil(self, a, b, farbe=BLAU, kuerzen=7):
        """Gemessene Richtung von a nach b; endet kurz vor dem Zielpunkt."""
        d = math.dist(a, b)
        t = (d - kuerzen) / d
        self.linie(a, (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t), farbe, 1.6, pfeil=True)

    def kreis(self, m, r, farbe=SCHWARZ, strich=False):
        x, y = self._p(*m)
        extra = ' stroke-dasharray="6,4"' if strich else ""
        self.teile.append('<circle cx="%.1f" cy="%.1f" r="%.1f" fill="none" stroke="%s" stroke-width="1.4"%s/>'
                          % (x, y, r, farbe, extra))

    def text(self, pos, inhalt, farbe=SCHWARZ, groesse=14, kursiv=False, anker="middle"):
        x, y = self._p(*pos)
        stil = ' font-style="italic"' if kursiv else ""
        self.teile.append('<text x="%.1f" y="%.1f" font-family="DejaVu Sans" font-size="%d" fill="%s" '
                          'text-anchor="%s" dominant-baseline="middle"%s>%s</text>'
                          % (x, y, groesse, farbe, anker, stil, inhalt))

    def punkt(self, pos, name, lage, neu=False):
        """Ein Punkt mit Namen; lage ist die Richtung des Namens in Grad."""
        x, y = self._p(*pos)
        if neu:
            self.teiles_kreis(x, y, 5, "white", BLAU, 2.2)
            self.teiles_kreis(x, y, 2, BLAU, BLAU, 1)
        else:
            self.teiles_kreis(x, y, 4, SCHWARZ, SCHWARZ, 1)
        w = math.radians(lage)
        self.text((pos[0] + 17 * math.cos(w), pos[1] + 15 * math.sin(w)), name, BLAU if neu else SCHWARZ, 15)

    def teiles_kreis(self, x, y, r, fuell, rand, breite):
        self.teile.append('<circle cx="%.1f" cy="%.1f" r="%.1f" fill="%s" stroke="%s" stroke-width="%.1f"/>'
                          % (x, y, r, fuell, rand, breite))

    def bogen(self, m, r, von, nach, name, im_uhrzeigersinn, farbe=BLAU, abstand=14):
        """Winkelbogen um m vom Punkt/Richtung von zur Richtung nach, mit Pfeil am Ende."""
        w1 = richtung(m, von)
        w2 = richtung(m, nach)
        if im_uhrzeigersinn:
            spanne = (w1 - w2) % 360
            mitte = w1 - spanne / 2
        else:
            spanne = (w2 - w1) % 360
            mitte = w1 + spanne / 2
        a = self._p(m[0] + r * math.cos(math.radians(w1)), m[1] + r * math.sin(math.radians(w1)))
        e = self._p(m[0] + r * math.cos(math.radians(w2)), m[1] + r * math.sin(math.radians(w2)))
        gross = 1 if spanne > 180 else 0
        # Im Bild zaehlt y nach unten: sweep 1 ist dort der Uhrzeigersinn.
        sweep = 1 if im_uhrzeigersinn else 0
        self.teile.append('<path d="M %.1f %.1f A %.1f %.1f 0 %d %d %.1f %.1f" fill="none" stroke="%s" '
                          'stroke-width="1.4" marker-end="url(#spitze%s)"/>'
                          % (a[0], a[1], r, r, gross, sweep, e[0], e[1], farbe, "B" if farbe == BLAU else "S"))
        if name:
            w = math.radians(mitte)
            self.text((m[0] + (r + abstand) * math.cos(w), m[1] + (r + abstand) * math.sin(w)), name, farbe, 15,
                      kursiv=True)

    def kreisbogen(self, m, r, w1, w2, farbe=SCHWARZ, breite=2.0, strich=False, pfeil=False, fuellung=None):
        """Kreisbogen um m von w1 nach w2 (Grad); gegen den Uhrzeigersinn, wenn w2 >= w1.
        Mit fuellung das Segment zwischen Bogen und Sehne."""
        a, e = self._p(*auf(m, r, w1)), self._p(*auf(m, r, w2))
        gross = 1 if abs(w2 - w1) > 180 else 0
        # Im Bild zaehlt y nach unten: sweep 1 ist dort der Uhrzeigersinn.
        sweep = 1 if w2 < w1 else 0
        d = "M %.1f %.1f A %.1f %.1f 0 %d %d %.1f %.1f" % (a[0], a[1], r, r, gross, sweep, e[0], e[1])
        if fuellung:
            self.teile.append('<path d="%s z" fill="%s" stroke="none"/>' % (d, fuellung))
            return
        extra = ' stroke-dasharray="6,4"' if strich else ""
        if pfeil:
            extra += ' marker-end="url(#spitze%s)"' % ("B" if farbe == BLAU else "S")
        self.teile.append('<path d="%s" fill="none" stroke="%s" stroke-width="%.1f"%s/>' % (d, farbe, breite, extra))

    def achsen(self, ursprung=(22, 200), laenge=34):
        """Kleines Achsenkreuz der Zeichenebene, beschriftet fuer M31 rechts."""
        x, y = ursprung
        self.linie((x, y), (x, y + laenge), GRAU, 1.2, pfeil=True)
        self.linie((x, y), (x + laenge, y), GRAU, 1.2, pfeil=True)
        self.text((x, y + laenge + 10), "X", GRAU, 12)
        self.text((x + laenge + 9, y), "Y", GRAU, 12)

    def svg(self):
        kopf = ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">\n'
                '<defs>\n' % (B, H, B, H))
        for name, farbe in (("S", SCHWARZ), ("B", BLAU)):
            kopf += ('<marker id="pfeil%s" markerWidth="10" markerHeight="8" refX="9" refY="4" orient="auto" '
                     'markerUnits="userSpaceOnUse"><path d="M0,0 L10,4 L0,8 z" fill="%s"/></marker>\n'
                     % (name, farbe))
            kopf += ('<marker id="spitze%s" markerWidth="8" markerHeight="7" refX="6" refY="3.5" orient="auto" '
                     'markerUnits="userSpaceOnUse"><path d="M0,0 L8,3.5 L0,7 z" fill="%s"/></marker>\n'
                     % (name, farbe))
        kopf += '</defs>\n<rect width="100%" height="100%" fill="white"/>\n'
        return kopf + "\n".join(self.teile) + "\n</svg>\n"


def richtung(a, b):
    """Richtung von a nach b in Grad, gegen den Uhrzeigersinn von rechts."""
    return math.degrees(math.atan2(b[1] - a[1], b[0] - a[0]))


def auf(m, r, w):
    """Punkt des Kreises um m mit Radius r in Richtung w (Grad)."""
    return m[0] + r * math.cos(math.radians(w)), m[1] + r * math.sin(math.radians(w))


def mitte(a, b, t=0.5):
    return a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t


def versetzt(a, b, abstand, t=0.5):
    """Ein Punkt neben der Strecke a-b, links von ihr bei positivem Abstand."""
    d = math.dist(a, b)
    m = mitte(a, b, t)
    return m[0] - (b[1] - a[1]) / d * abstand, m[1] + (b[0] - a[0]) / d * abstand


def kreisschnitt(m1, r1, m2, r2):
    """Die beiden Schnittpunkte, der erste links der Linie vom groesseren zum kleineren Kreis."""
    if r1 > r2:
        m1, r1, m2, r2 = m2, r2, m1, r1
    # m2 ist jetzt der groessere (bei gleichen Radien Kreis 2).
    d = math.dist(m1, m2)
    g = math.acos((r2 * r2 + d * d - r1 * r1) / (2 * r2 * d))
    t = math.atan2(m1[1] - m2[1], m1[0] - m2[0])
    return ((m2[0] + r2 * math.cos(t + g), m2[1] + r2 * math.sin(t + g)),
            (m2[0] + r2 * math.cos(t - g), m2[1] + r2 * math.sin(t - g)))


# ---------------------------------------------------------------- Skizzen

def distanz():
    s = Skizze("distanz")
    s.achsen()
    p1, p2 = (90, 50), (290, 200)
    ecke = (p2[0], p1[1])
    s.linie(p1, ecke, GRAU, 1.2, strich=True)
    s.linie(ecke, p2, GRAU, 1.2, strich=True)
    s.text(mitte(p1, ecke, 0.55), "", GRAU)
    s.text((mitte(p1, ecke)[0], p1[1] - 14), "ΔY", SCHWARZ, 14)
    s.text((p2[0] + 22, mitte(ecke, p2)[1]), "ΔX", SCHWARZ, 14)
    s.linie(p1, (p1[0], p1[1] + 120), GRAU, 1.2, strich=True)
    s.linie(p1, p2)
    s.text(versetzt(p1, p2, 22, 0.55), "Distanz", SCHWARZ, 14)
    s.bogen(p1, 55, (p1[0], p1[1] + 100), p2, "φ", True)
    s.punkt(p1, "P1", 220)
    s.punkt(p2, "P2", 120)
    return s


def winkel_zwischen3():
    s = Skizze("winkel_zwischen3")
    p1, p2, p3 = (300, 215), (90, 80), (310, 45)
    s.linie(p2, p1)
    s.linie(p2, p3)
    s.bogen(p2, 60, p3, p1, "w", False)
    s.punkt(p1, "P1", 60)
    s.punkt(p2, "P2", 200)
    s.punkt(p3, "P3", 0)
    return s


def direkter_anschluss():
    s = Skizze("direkter_anschluss")
    s.achsen()
    st, p1, p2 = (190, 40), (90, 215), (305, 195)
    null = (60, 120)
    s.linie(p1, p2, GRAU, 1.2, strich=True)
    s.linie(st, null, GRAU, 1.2, strich=True)
    s.text((null[0] - 8, null[1] + 12), "0", GRAU, 13)
    s.pfeil(st, p1)
    s.pfeil(st, p2)
    s.text(versetzt(st, p1, 13, 0.6), "e", BLAU, 15, kursiv=True)
    s.bogen(st, 48, null, p1, "α", True)
    s.bogen(st, 78, null, p2, "β", True, abstand=16)
    s.punkt(p1, "P1", 150)
    s.punkt(p2, "P2", 30)
    s.punkt(st, "S", 270, neu=True)
    return s


def indirekter_anschluss():
    s = Skizze("indirekter_anschluss")
    s.achsen((22, 200))
    st, hp, p1, p2 = (200, 45), (60, 30), (120, 215), (310, 195)
    s.linie(p1, p2, GRAU, 1.2, strich=True)
    s.linie(st, hp, BLAU, 1.6)
    s.text(versetzt(hp, st, -13), "a", BLAU, 15, kursiv=True)
    s.pfeil(st, p1)
    s.pfeil(st, p2)
    s.pfeil(hp, p1)
    s.bogen(st, 40, hp, p1, "β", True)
    s.bogen(hp, 40, p1, st, "α", True)
    s.bogen(st, 62, p1, p2, "λ", True)
    s.punkt(p1, "P1", 150)
    s.punkt(p2, "P2", 30)
    s.punkt(hp, "H", 200)
    s.punkt(st, "S", 330, neu=True)
    return s


def vorwaertsschnitt():
    s = Skizze("vorwaertsschnitt")
    p1, p2 = (55, 50), (305, 50)
    w1, w2 = math.radians(50), math.radians(62)
    # S als Schnitt der beiden Strahlen
    d = p2[0] - p1[0]
    x = d * math.tan(w2) / (math.tan(w1) + math.tan(w2))
    st = (p1[0] + x, p1[1] + x * math.tan(w1))
    s.linie(p1, p2)
    s.pfeil(p1, st)
    s.pfeil(p2, st)
    s.bogen(p1, 55, p2, st, "α", False)
    s.bogen(p2, 55, p1, st, "β", True)
    s.punkt(p1, "P1", 210)
    s.punkt(p2, "P2", 330)
    s.punkt(st, "S", 90, neu=True)
    return s


def rueckwaertsschnitt():
    s = Skizze("rueckwaertsschnitt")
    p1, p2, p3, st = (50, 190), (185, 225), (315, 180), (175, 35)
    s.linie(p1, p2, GRAU, 1.2, strich=True)
    s.linie(p2, p3, GRAU, 1.2, strich=True)
    for p in (p1, p2, p3):
        s.pfeil(st, p)
    s.bogen(st, 60, p1, p2, "α", True)
    s.bogen(st, 60, p2, p3, "β", True)
    s.punkt(p1, "P1", 150)
    s.punkt(p2, "P2", 90)
    s.punkt(p3, "P3", 30)
    s.punkt(st, "S", 270, neu=True)
    return s


def kreis_kreis():
    s = Skizze("kreis_kreis")
    m1, r1, m2, r2 = (130, 125), 85, (245, 135), 65
    s.kreis(m1, r1)
    s.kreis(m2, r2)
    a, b = kreisschnitt(m1, r1, m2, r2)
    s.linie(m1, (m1[0] - r1 * math.cos(math.radians(40)), m1[1] - r1 * math.sin(math.radians(40))), BLAU, 1.4)
    s.text((m1[0] - 22, m1[1] - 40), "r1", BLAU, 14, kursiv=True)
    s.linie(m2, (m2[0] + r2 * math.cos(math.radians(40)), m2[1] - r2 * math.sin(math.radians(40))), BLAU, 1.4)
    s.text((m2[0] + 36, m2[1] - 14), "r2", BLAU, 14, kursiv=True)
    s.punkt(m1, "M1", 200)
    s.punkt(m2, "M2", 90)
    s.punkt(a, "S1", 90, neu=True)
    s.punkt(b, "S2", 270, neu=True)
    return s


def gerade_kreis():
    s = Skizze("gerade_kreis")
    m, r = (200, 125), 80
    p1, p2 = (20, 45), (75, 72)
    s.kreis(m, r)
    # Schnitt der Geraden p1 + t (p2 - p1) mit dem Kreis
    dx, dy = p2[0] - p1[0], p2[1] - p1[1]
    fx, fy = p1[0] - m[0], p1[1] - m[1]
    a = dx * dx + dy * dy
    b = 2 * (fx * dx + fy * dy)
    c = fx * fx + fy * fy - r * r
    w = math.sqrt(b * b - 4 * a * c)
    t_vorn, t_hinten = (-b + w) / (2 * a), (-b - w) / (2 * a)
    ende = (p1[0] + dx * 6.0, p1[1] + dy * 6.0)
    s.linie(p1, ende)
    s.pfeil(p1, p2, SCHWARZ, 7)
    s.text((ende[0] - 6, ende[1] + 14), "g", SCHWARZ, 15, kursiv=True)
    s.linie(m, (m[0] + r * math.cos(math.radians(-60)), m[1] + r * math.sin(math.radians(-60))), BLAU, 1.4)
    s.text((m[0] + 12, m[1] - 40), "r", BLAU, 14, kursiv=True)
    s.punkt(m, "M", 180)
    s.punkt(p1, "P1", 110)
    s.punkt(p2, "P2", 110)
    s.punkt((p1[0] + dx * t_vorn, p1[1] + dy * t_vorn), "S1", 120, neu=True)
    s.punkt((p1[0] + dx * t_hinten, p1[1] + dy * t_hinten), "S2", 300, neu=True)
    return s


def kreis_tangenten():
    s = Skizze("kreis_tangenten")
    m, r, p = (115, 130), 70, (315, 130)
    s.kreis(m, r)
    t = math.sqrt(math.dist(m, p) ** 2 - r * r)
    a, b = kreisschnitt(m, r, p, t)
    s.linie(p, a)
    s.linie(p, b)
    s.linie(m, a, BLAU, 1.4)
    s.text(versetzt(m, a, 10), "r", BLAU, 14, kursiv=True)
    s.text(versetzt(a, p, -12), "t", BLAU, 15, kursiv=True)
    s.linie(m, p, GRAU, 1.2, strich=True)
    s.punkt(m, "M", 200)
    s.punkt(p, "P", 0)
    s.punkt(a, "S1", 110 if a[1] > m[1] else 250, neu=True)
    s.punkt(b, "S2", 110 if b[1] > m[1] else 250, neu=True)
    return s


def umkreis_mittelpunkt():
    s = Skizze("umkreis_mittelpunkt")
    m, r = (180, 125), 95
    lagen = (215, 100, 340)
    pkt = [(m[0] + r * math.cos(math.radians(w)), m[1] + r * math.sin(math.radians(w))) for w in lagen]
    s.kreis(m, r, BLAU, strich=True)
    s.linie(pkt[0], pkt[1], GRAU, 1.2)
    s.linie(pkt[1], pkt[2], GRAU, 1.2)
    s.linie(pkt[2], pkt[0], GRAU, 1.2)
    s.linie(m, pkt[2], BLAU, 1.4)
    s.text(versetzt(m, pkt[2], 11), "r", BLAU, 14, kursiv=True)
    s.punkt(pkt[0], "P1", 215)
    s.punkt(pkt[1], "P2", 100)
    s.punkt(pkt[2], "P3", 340)
    s.punkt(m, "M", 150, neu=True)
    return s


def _schnitt(a, b, c, d):
    """Schnittpunkt der Geraden a-b und c-d."""
    r = (b[0] - a[0], b[1] - a[1])
    q = (d[0] - c[0], d[1] - c[1])
    det = r[0] * q[1] - r[1] * q[0]
    t = ((c[0] - a[0]) * q[1] - (c[1] - a[1]) * q[0]) / det
    return a[0] + r[0] * t, a[1] + r[1] * t


def _gerade(s, a, b, name, von=-0.35, bis=1.45, farbe=SCHWARZ, strich=False):
    p = mitte(a, b, von)
    q = mitte(a, b, bis)
    s.linie(p, q, farbe, 1.6, strich=strich)
    s.text(versetzt(p, q, 12, 0.97), name, farbe, 15, kursiv=True)


def geradenschnitt():
    s = Skizze("geradenschnitt")
    p1, p2, p3, p4 = (40, 60), (140, 110), (80, 220), (150, 150)
    _gerade(s, p1, p2, "g1", bis=2.9)
    _gerade(s, p3, p4, "g2", bis=2.6)
    s.punkt(p1, "P1", 270)
    s.punkt(p2, "P2", 270)
    s.punkt(p3, "P3", 180)
    s.punkt(p4, "P4", 180)
    s.punkt(_schnitt(p1, p2, p3, p4), "S", 0, neu=True)
    return s


def rechtwinkliger_geradenschnitt():
    s = Skizze("rechtwinkliger_geradenschnitt")
    p1, p2, p = (40, 70), (180, 120), (170, 220)
    _gerade(s, p1, p2, "g", von=-0.2, bis=2.2)
    r = (p2[0] - p1[0], p2[1] - p1[1])
    f = _schnitt(p1, p2, p, (p[0] - r[1], p[1] + r[0]))
    s.linie(p, f, BLAU, 1.6)
    # Zeichen fuer den rechten Winkel
    l = math.hypot(*r)
    u = (r[0] / l * 12, r[1] / l * 12)
    v = ((p[0] - f[0]) / math.dist(p, f) * 12, (p[1] - f[1]) / math.dist(p, f) * 12)
    s.linie((f[0] + u[0], f[1] + u[1]), (f[0] + u[0] + v[0], f[1] + u[1] + v[1]), BLAU, 1.2)
    s.linie((f[0] + v[0], f[1] + v[1]), (f[0] + u[0] + v[0], f[1] + u[1] + v[1]), BLAU, 1.2)
    s.punkt(p1, "P1", 270)
    s.punkt(p2, "P2", 300)
    s.punkt(p, "P", 90)
    s.punkt(f, "S", 300, neu=True)
    return s


def parallelen_schnitt():
    s = Skizze("parallelen_schnitt")
    p1, p2 = (30, 40), (130, 75)
    p3, p4 = (300, 30), (260, 110)
    p = (60, 160)
    _gerade(s, p1, p2, "g1", von=-0.1, bis=2.2)
    _gerade(s, p3, p4, "g2", von=-0.1, bis=2.7)
    r = (p2[0] - p1[0], p2[1] - p1[1])
    st = _schnitt(p, (p[0] + r[0], p[1] + r[1]), p3, p4)
    s.linie(mitte(p, st, -0.15), mitte(p, st, 1.2), BLAU, 1.6, strich=True)
    s.pfeil(p1, p2, SCHWARZ, 7)
    s.pfeil(p, mitte(p, st, 0.35), BLAU, 0)
    s.punkt(p1, "P1", 270)
    s.punkt(p2, "P2", 270)
    s.punkt(p3, "P3", 0)
    s.punkt(p4, "P4", 0)
    s.punkt(p, "P", 90)
    s.punkt(st, "S", 60, neu=True)
    return s


def einrechnen():
    s = Skizze("einrechnen")
    a, e = (50, 60), (200, 130)
    n = mitte(a, e, 1.45)
    s.linie(mitte(a, e, -0.2), mitte(a, e, 1.7), GRAU, 1.2, strich=True)
    s.linie(a, e, SCHWARZ, 1.6)
    s.pfeil(a, n, BLAU, 7)
    s.text(versetzt(a, n, 14, 0.75), "e", BLAU, 15, kursiv=True)
    s.punkt(a, "A", 270)
    s.punkt(e, "E", 300)
    s.punkt(n, "N", 300, neu=True)
    return s


def kleinpunkte():
    s = Skizze("kleinpunkte")
    a, e = (30, 40), (130, 75)
    _gerade(s, a, e, "g", von=-0.05, bis=1.6)
    s.pfeil(a, e, SCHWARZ, 7)
    p = (215, 150)
    d = math.dist(a, e)
    u = ((e[0] - a[0]) / d, (e[1] - a[1]) / d)
    n = (-u[1], u[0])
    for (vx, vy), name, lage in ((u, "vorwärts", 0), ((-u[0], -u[1]), "zurück", 0),
                                 (n, "links", 0), ((-n[0], -n[1]), "rechts", 0)):
        z = (p[0] + vx * 75, p[1] + vy * 75)
        s.pfeil(p, z, BLAU, 0)
        s.text((p[0] + vx * 95, p[1] + vy * 92), name, BLAU, 13)
    s.punkt(a, "A", 270)
    s.punkt(e, "E", 270)
    s.punkt(p, "P", 200)
    return s


SKIZZEN = [distanz, winkel_zwischen3, direkter_anschluss, indirekter_anschluss, vorwaertsschnitt,
           rueckwaertsschnitt, kreis_kreis, gerade_kreis, kreis_tangenten, umkreis_mittelpunkt, geradenschnitt,
           rechtwinkliger_geradenschnitt, parallelen_schnitt, einrechnen, kleinpunkte]


def alle_skizzen(hier):
    """Die Skizzen dieser Datei und die aller Familienmodule skizzen_*.py daneben."""
    sys.path.insert(0, hier)
    alle = list(SKIZZEN)
    for datei in sorted(os.listdir(hier)):
        if datei.startswith("skizzen_") and datei.endswith(".py"):
            alle += importlib.import_module(datei[:-3]).SKIZZEN
    return alle


def main():
    hier = os.path.dirname(os.path.abspath(__file__))
    ziel = sys.argv[1] if len(sys.argv) > 1 else os.path.join(hier, "..", "..", "data", "hilfe", "skizzen")
    os.makedirs(ziel, exist_ok=True)
    for baue in alle_skizzen(hier):
        s = baue()
        datei = os.path.join(ziel, s.name)
        svg = s.svg()
        subprocess.run(["rsvg-convert", "-w", str(B), "-h", str(H), "-o", datei + ".png"], input=svg.encode(),
                       check=True)
        print(datei + ".png")


if __name__ == "__main__":
    main()
