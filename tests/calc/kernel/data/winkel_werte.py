# Worked values for the direction and polar conversion tests, computed with
# the program's Pi (3.141592654) independently of the C++ code.
import math
PI = 3.141592654

def richtung(y, x):
    if y != 0:
        if x == 0: return PI/2 if y > 0 else -PI/2
        if math.isinf(y/x): return 0.0  # the overflowing division fails: 0
        if x > 0: return math.atan(y/x)
        return math.atan(y/x) - PI if y < 0 else math.atan(y/x) + PI
    return PI if x < 0 else 0.0

def norm(w):
    t = w / 2 / PI
    return (t - math.floor(t)) * 2 * PI

def p2r(e, phi, f, m31, falsch):
    p = phi * f
    if falsch: p = PI/2 - p
    return (e*math.sin(p), e*math.cos(p)) if m31 else (e*math.cos(p), e*math.sin(p))

def r2p(a, b, f, m31, falsch):
    s = a*a + b*b
    e = 0.0 if math.isinf(s) else math.sqrt(s)  # overflowing squares fail: e stays 0
    p = richtung(a, b) if m31 else richtung(b, a)
    if falsch: p = PI/2 - p
    p = norm(p)
    return e, p / f

units = {"Neugrad": PI/200, "Altgrad": PI/180, "Radiant": 1.0}
for y, x in [(1, 1), (-1, 1), (1, -1), (-1, -1), (3, 0), (-3, 0), (0, -2), (0, 0), (0, 5), (1e300, 1e-300), (1e300, -1e-300)]:
    print("richtung", y, x, repr(richtung(y, x)))
for w in [-1.0, 7.0, 2*PI, 4*PI + 0.5, -2*PI]:
    print("norm", repr(w), repr(norm(w)))
for name, f in units.items():
    for m31 in (False, True):
        for falsch in (False, True):
            print("p2r", name, m31, falsch, repr(p2r(100.0, 50.0, f, m31, falsch)))
            print("r2p", name, m31, falsch, repr(r2p(30.0, -40.0, f, m31, falsch)))
print("norm -0.1", repr(norm(-0.1)), "2 Pi - 0.1", repr(2*PI - 0.1))
for name, f in units.items():
    for m31 in (False, True):
        for falsch in (False, True):
            print("r2p (0, 0)", name, m31, falsch, repr(r2p(0.0, 0.0, f, m31, falsch)))
# The distance is a square root, not a power of one half: the two differ
# in the last bit here.
print("r2p e (0.125, 54)", repr(r2p(0.125, 54.0, PI/200, False, False)[0]), "power", repr((0.125**2 + 54.0**2) ** 0.5))
print("r2p (1e200, 0)", repr(r2p(1e200, 0.0, PI/200, False, False)))
