# Worked values for Einrechnen and Kleinpunkte, by plain vector geometry:
# a unit vector along the line, turned as asked, times the distance.
import math
Pi = 3.141592654
GON = Pi / 200

def einheit(d):
    n = math.hypot(d[0], d[1])
    return d[0] / n, d[1] / n

def schritt(p, d, e):
    u = einheit(d)
    return p[0] + e * u[0], p[1] + e * u[1]

def gedreht(d, wie):
    # on the a-b plane as drawn: left is counter-clockwise
    return {"vor": d, "zurueck": (-d[0], -d[1]), "links": (-d[1], d[0]), "rechts": (d[1], -d[0])}[wie]

def winkel_richtung(t1, rechtsdrehend, f=GON):
    # entry "A und Winkel": the rule of the program, half-circle by half-circle
    w = (t1 * f) % (2 * Pi)
    u = Pi / 2 - w if rechtsdrehend else w
    if w <= Pi / 2 or w >= 3 * Pi / 2:
        return 1.0, math.tan(u)
    return -1.0, -math.tan(u)

def polar(p, f=GON):
    t = math.atan2(p[1], p[0]) % (2 * Pi)
    return math.hypot(p[0], p[1]), t / f

A, E = (100, 200), (160, 280)
print("Einrechnen A E e=25:", "%.6f %.6f" % schritt(A, (E[0] - A[0], E[1] - A[1]), 25))
print("Einrechnen A E e=-50:", "%.6f %.6f" % schritt(A, (E[0] - A[0], E[1] - A[1]), -50))
# continued along slope k = 2 from (10, 20), steps 10 and 10
p1 = schritt((10, 20), (1, 2), 10)
p2 = schritt(p1, (1, 2), 10)
print("Fortlaufend k=2 two steps of 10:", "%.6f %.6f" % p1, "%.6f %.6f" % p2)
# angle 150 gon, e = 10, from (10, 20)
print("Winkel 150 gon system 0:", "%.6f %.6f" % schritt((10, 20), winkel_richtung(150, False), 10))
print("Winkel 150 gon M31:", "%.6f %.6f" % schritt((10, 20), winkel_richtung(150, True), 10))
print("Winkel 350 gon system 0:", "%.6f %.6f" % schritt((10, 20), winkel_richtung(350, False), 10))
print("Winkel 250 gon system 0:", "%.6f %.6f" % schritt((10, 20), winkel_richtung(250, False), 10))
# polar table (gon, system 0): A = (30, 40), E = (90, 120), e = 50
r = schritt((30, 40), (60, 80), 50)
print("Polar result rect, polar:", "%.6f %.6f" % r, "%.9f %.9f" % polar(r))
print("Polar A, E as stored:", "%.9f %.9f" % polar((30, 40)), "%.9f %.9f" % polar((90, 120)))
# Kleinpunkte: line (0, 0) -> (3, 4), P = (10, 10), e = 5 each way
for wie in ("vor", "zurueck", "links", "rechts"):
    print("Kleinpunkte", wie, "%.6f %.6f" % schritt((10, 10), gedreht((3, 4), wie), 5))
q = schritt((10, 10), (3, 4), 5)
print("Kleinpunkte vor 5 then links 5:", "%.6f %.6f" % schritt(q, gedreht((3, 4), "links"), 5))
print("Kleinpunkte Winkel 380 gon vor 10 from (0,0):", "%.6f %.6f" % schritt((0, 0), winkel_richtung(380, False), 10))
print("Kleinpunkte A=P=(20,30) E=(3,4) vor -10:", "%.6f %.6f" % schritt((20, 30), (3 - 20, 4 - 30), -10))
