"""Skizze der Absteckdaten: Strecke e und Richtung theta von A nach P."""
from skizzen import BLAU, GRAU, SCHWARZ, Skizze, mitte, versetzt


def absteckdaten():
    s = Skizze("absteckdaten")
    s.achsen()
    a, p = (120, 55), (285, 170)
    null = (a[0], a[1] + 175)
    # Im Lauf ueber mehrere Punkte: jeder folgende Punkt von demselben A aus.
    for q, name, lage in (((250, 225), "P+1", 20), ((295, 105), "P+2", 285)):
        s.linie(a, q, GRAU, 1.0, strich=True)
        s.punkt(q, name, lage)
    s.linie(a, null, GRAU, 1.2, strich=True)
    s.text((null[0] + 6, null[1] + 12), "0", GRAU, 13)
    s.pfeil(a, p, BLAU)
    s.text(versetzt(a, p, 14, 0.55), "e", BLAU, 15, kursiv=True)
    s.bogen(a, 60, null, p, "θ", True)
    s.punkt(a, "A", 220)
    s.punkt(p, "P", 330)
    return s


SKIZZEN = [absteckdaten]
