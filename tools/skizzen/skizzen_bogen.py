"""Skizzen der Bogenelemente und des Kreissegments.

Der Bogen laeuft rechtsdrehend von BA nach BE: der Mittelpunkt M liegt
rechts der Sehne (in der Skizze unten), der Tangentenschnittpunkt W links.
"""
import math

from skizzen import BLAU, GRAU, SCHWARZ, Skizze, auf, mitte, versetzt


def _masslinie(s, a, b, name, abstand, farbe=BLAU, t=0.5):
    """Mass zwischen a und b mit Pfeilen an beiden Enden, Name daneben (links bei positivem Abstand)."""
    s.pfeil(mitte(a, b), b, farbe, 0)
    s.pfeil(mitte(a, b), a, farbe, 0)
    s.text(versetzt(a, b, abstand, t), name, farbe, 14, kursiv=True)


def bogen_elemente():
    s = Skizze("bogen_elemente")
    halb = 50  # alpha / 2 in Grad
    r = 128
    m = (180, 22)
    ba, be = auf(m, r, 90 + halb), auf(m, r, 90 - halb)
    bm = auf(m, r, 90)
    sm = mitte(ba, be)
    w = (m[0], m[1] + r / math.cos(math.radians(halb)))
    # Radien und Winkel im Mittelpunkt
    s.linie(m, ba, GRAU, 1.2)
    s.linie(m, be, GRAU, 1.2)
    s.bogen(m, 30, be, ba, "α", False, abstand=12)
    s.text(versetzt(m, be, -12, 0.55), "R", SCHWARZ, 15, kursiv=True)
    # Tangenten bis W
    s.linie(ba, w, SCHWARZ, 1.2)
    s.linie(be, w, SCHWARZ, 1.2)
    s.text(versetzt(be, w, -12, 0.5), "T", SCHWARZ, 15, kursiv=True)
    # Sehne, halbe Sehne Xs und Pfeilhoehe Ys
    s.linie(ba, be, GRAU, 1.2, strich=True)
    s.text(versetzt(sm, be, 10, 0.6), "S", GRAU, 14, kursiv=True)
    _masslinie(s, (ba[0], ba[1] - 12), (sm[0], sm[1] - 12), "Xs", -11)
    _masslinie(s, sm, bm, "Ys", -13, t=0.45)
    # Scheitel des Bogens: ds bis W, ts auf der Tangente im Scheitel
    q_x = bm[0] - r * math.tan(math.radians(halb / 2))
    s.linie((q_x - 8, bm[1]), (bm[0] + 45, bm[1]), GRAU, 1.2, strich=True)
    _masslinie(s, bm, w, "ds", -13)
    _masslinie(s, (q_x, bm[1] + 9), (bm[0], bm[1] + 9), "ts", 10)
    # der Bogen selbst, rechtsdrehend von BA nach BE
    s.kreisbogen(m, r, 90 - halb, 90 + halb, BLAU, 2.2)
    s.bogen(m, r, auf(m, r, 90 + 8), auf(m, r, 90 - halb + 6), "", True)
    s.text(auf(m, r + 14, 90 + halb - 12), "b", BLAU, 15, kursiv=True)
    s.punkt(ba, "BA", 200)
    s.punkt(be, "BE", 340)
    s.punkt(m, "M", 0, neu=True)
    s.punkt(w, "W", 0, neu=True)
    s.text((10, 245), "R > 0, T > 0: rechtsdrehend von BA nach BE", GRAU, 12, anker="start")
    return s


def kreissegment():
    s = Skizze("kreissegment")
    halb = 60
    r = 150
    m = (180, 45)
    ba, be = auf(m, r, 90 + halb), auf(m, r, 90 - halb)
    bm = auf(m, r, 90)
    sm = mitte(ba, be)
    s.kreisbogen(m, r, 90 - halb, 90 + halb, fuellung="#cfdcf5")
    s.text((sm[0] + 62, sm[1] + 22), "Fläche", BLAU, 14)
    s.linie(m, ba, GRAU, 1.2)
    s.linie(m, be, GRAU, 1.2)
    s.bogen(m, 28, be, ba, "α", False, abstand=12)
    s.text(versetzt(m, be, -12, 0.5), "R", SCHWARZ, 15, kursiv=True)
    s.linie(ba, be, SCHWARZ, 1.4)
    s.text((sm[0] + 55, sm[1] - 12), "S", SCHWARZ, 15, kursiv=True)
    _masslinie(s, sm, bm, "P", -11)
    s.kreisbogen(m, r, 90 - halb, 90 + halb, BLAU, 2.2)
    s.text(auf(m, r + 14, 90 + halb - 15), "b", BLAU, 15, kursiv=True)
    s.punkt(ba, "BA", 200)
    s.punkt(be, "BE", 340)
    s.punkt(m, "M", 0)
    return s


SKIZZEN = [bogen_elemente, kreissegment]
