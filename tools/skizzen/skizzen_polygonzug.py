"""Skizze des Polygonzugs: vom Ausgangspunkt PA ueber die Punkte Start bis
Ende, jeder Schenkel mit Strecke e und Richtung Phi; beim Ausgleichen der
Fehler vom gerechneten Ende zum Endpunkt PE."""
from skizzen import BLAU, GRAU, SCHWARZ, Skizze, mitte, versetzt


def polygonzug():
    s = Skizze("polygonzug")
    s.achsen((22, 190))
    pa = (55, 45)
    zug = [(120, 118), (215, 98), (296, 178)]
    pe = (318, 200)

    # Richtung Phi: im Uhrzeigersinn von der Parallelen zur X-Achse (M31)
    for von, nach in ((pa, zug[0]), (zug[0], zug[1])):
        s.linie(von, (von[0], von[1] + 62), GRAU, 1.0, strich=True)
        s.bogen(von, 36, (von[0], von[1] + 50), nach, "φ", True)

    vorher = pa
    for i, p in enumerate(zug):
        s.pfeil(vorher, p, SCHWARZ, 7)
        s.text(versetzt(vorher, p, 13 if i == 1 else -13), "e", SCHWARZ, 15, kursiv=True)
        vorher = p

    # Fehler: gerechnetes Ende gegen PE, aufgeteilt nach den Strecken
    s.linie(zug[-1], pe, BLAU, 1.4, strich=True)
    s.text((mitte(zug[-1], pe)[0] - 32, mitte(zug[-1], pe)[1] + 12), "DX, DY", BLAU, 13)

    s.punkt(pa, "PA", 200)
    s.punkt(zug[0], "Start", 110, neu=True)
    s.punkt(zug[1], "Start+1", 300, neu=True)
    s.punkt(zug[2], "", 0, neu=True)
    s.text((zug[2][0] + 10, zug[2][1] - 5), "Ende", BLAU, 15, anker="start")
    s.punkt(pe, "PE", 0)
    return s


SKIZZEN = [polygonzug]
