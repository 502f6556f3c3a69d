# Worked values for the intersection tests, by plain geometry.
# Vorwaertsschnitt: two rays intersected as parametric lines.
# Rueckwaertsschnitt: a chosen station S; the angles it sees are what the
# user types (clockwise from the ray to the first point to the ray to the
# second, in gon), and the dialog must give S back.
import math
Pi = 3.141592654
GON = Pi / 200

def vorwaerts(p1, p2, alpha, beta, f=GON):
    theta = math.atan2(p2[1] - p1[1], p2[0] - p1[0])
    r1 = theta + alpha * f            # turned from the base at P1
    r2 = theta + Pi - beta * f        # the other way from the reverse base at P2
    d1 = (math.cos(r1), math.sin(r1)); d2 = (math.cos(r2), math.sin(r2))
    det = d1[0] * (-d2[1]) - d1[1] * (-d2[0])
    rx, ry = p2[0] - p1[0], p2[1] - p1[1]
    t = (rx * (-d2[1]) - ry * (-d2[0])) / det
    return p1[0] + t * d1[0], p1[1] + t * d1[1]

def gesehen(s, p, q):
    # clockwise angle at s from the ray to p to the ray to q, in gon
    rp = math.atan2(p[1] - s[1], p[0] - s[0]); rq = math.atan2(q[1] - s[1], q[0] - s[0])
    return ((rp - rq) % (2 * Pi)) / GON

print("Vorwaerts 100,100 / 200,100 / 50,30:", "%.6f %.6f" % vorwaerts((100, 100), (200, 100), 50, 30))
print("Vorwaerts 10,20 / 70,-40 / 35.5,62.25:", "%.6f %.6f" % vorwaerts((10, 20), (70, -40), 35.5, 62.25))
A, M, B, S = (0, 100), (100, 130), (200, 90), (110, 0)
print("Rueckwaerts S=110,0 alpha beta:", "%.9f %.9f" % (gesehen(S, A, M), gesehen(S, M, B)))
A, M, B, S = (1000, 2000), (1500, 2600), (2100, 2100), (1400, 1500)
print("Rueckwaerts S=1400,1500 alpha beta:", "%.9f %.9f" % (gesehen(S, A, M), gesehen(S, M, B)))
