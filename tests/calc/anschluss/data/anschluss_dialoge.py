# Worked values for the dialog tests of the angle and tie dialogs, built
# from a chosen station by plain trigonometry (not by the program's steps).
# Angles in Neugrad with the program's Pi.
import math

Pi = 3.141592654
GON = Pi / 200


def richtung(p, q):
    """Math direction of q seen from p, radians."""
    return math.atan2(q[1] - p[1], q[0] - p[0])


def abstand(p, q):
    return math.hypot(q[0] - p[0], q[1] - p[1])


# WinkelZwischen3: the angle at the vertex P2 by the cosine rule.
for p1, p2, p3 in [((10, 0), (0, 0), (0, 10)), ((100, 200), (130, 240), (90, 250)),
                   ((3, 1), (0, 0), (-5, -1))]:
    a, b, c = abstand(p1, p2), abstand(p2, p3), abstand(p1, p3)
    w = math.acos((a * a + b * b - c * c) / (2 * a * b))
    print("Winkel", p1, p2, p3, "gon %.9f" % (w / GON), "altgrad %.9f" % (w / (Pi / 180)))

# Ties: a station S, the known points P1, P2; directions read clockwise
# (as a theodolite reads), so beta - alpha is the clockwise angle P1 -> P2.
P1, P2, S = (1000.0, 2000.0), (1100.0, 2050.0), (1040.0, 1920.0)
uhrzeiger = (richtung(S, P1) - richtung(S, P2)) % (2 * math.pi)
alpha = 12.3456
beta = alpha + uhrzeiger / GON
e = abstand(S, P1)
print("Direkt: alpha %.9f beta %.9f e %.9f -> S" % (alpha, beta, e), S)
# The mirror of S in the line P1 P2: the station when the sense is reversed.
dx, dy = P2[0] - P1[0], P2[1] - P1[1]
t = ((S[0] - P1[0]) * dx + (S[1] - P1[1]) * dy) / (dx * dx + dy * dy)
F = (P1[0] + t * dx, P1[1] + t * dy)
print("Spiegelbild", (2 * F[0] - S[0], 2 * F[1] - S[1]))
# S polar (system 0, Neugrad): distance and direction from the origin.
print("S polar: e %.9f phi %.9f" % (math.hypot(*S), (math.atan2(S[1], S[0]) % (2 * math.pi)) / GON))
print("P1 polar: e %.9f phi %.9f" % (math.hypot(*P1), math.atan2(P1[1], P1[0]) / GON))
print("P2 polar: e %.9f phi %.9f" % (math.hypot(*P2), math.atan2(P2[1], P2[0]) / GON))

# Indirect tie: r = |S P1| comes from a base a and the angles at its ends,
# a triangle with a opposite the third angle and r opposite alpha.
a_alpha, a_beta = 50.0, 70.0
basis = e * math.sin((a_alpha + a_beta) * GON) / math.sin(a_alpha * GON)
print("Indirekt: a %.9f alpha %.1f beta %.1f lambda %.9f -> S" % (basis, a_alpha, a_beta, uhrzeiger / GON), S)
