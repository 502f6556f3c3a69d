# Worked values for the ties and for intersection and resection, with the
# program's Pi. The station is also checked against the measured values:
# distance to P1, angle P1-S-P2, the angles at the known points.
import math
from klassik import PI, GROSS, richtung, norm, asin_
from schnitte_werte import kreis_kreis, geraden

NEUGRAD, ALTGRAD = PI/200, PI/180

def direkt(a1, b1, alpha, e, a2, b2, beta, f, falsch):
    d = math.sqrt((a2-a1)**2 + (b2-b1)**2)
    if d == 0 or alpha == beta: return False, (0.0, 0.0, a2, b2)
    delta = (beta - alpha) * f
    if falsch or abs(delta) > PI/2: delta = -delta
    w = asin_((e / d) * math.sin(abs(delta)))
    w = PI - w - abs(delta)
    l = d * math.sin(w) / math.sin(abs(delta))
    ok, v = kreis_kreis(a1, b1, e, a2, b2, l)
    if not ok: return False, v
    if delta < 0: v = (v[2], v[3], v[0], v[1])
    return True, v

def indirekt(a1, b1, base, alpha, beta, a2, b2, lam, f, falsch):
    n = math.sin((alpha + beta) * f)
    r = GROSS if n == 0 else abs(base) * math.sin(alpha * f) / n
    return direkt(a1, b1, 0, r, a2, b2, lam, f, falsch)

def vorwaerts(a1, b1, a2, b2, w1, w2, f):
    th = richtung(b2 - b1, a2 - a1)
    m1 = math.tan(th + w1 * f); m2 = math.tan(th + PI - w2 * f)
    if m1 == m2: return False, (a1, b1)
    ok, sa, sb = geraden(a1, b1, 1, m1, a2, b2, 1, m2)
    return ok, (sa, sb)

def rueckwaerts(aA, bA, aM, bM, aB, bB, alpha, beta, f):
    def gegen(w):
        g = norm(-w * f)
        return g - 2*PI if g > PI else g
    al, be = gegen(alpha), gegen(beta)
    dA = math.sqrt((aA-aM)**2 + (bA-bM)**2); tA = richtung(bA - bM, aA - aM)
    dB = math.sqrt((aB-aM)**2 + (bB-bM)**2); tB = richtung(bB - bM, aB - aM)
    g = norm(tA - tB)
    k = dB * math.sin(al) / dA / math.sin(be) if dA != 0 and math.sin(be) != 0 else GROSS
    W = norm(2*PI - al - be - g)
    if k * math.cos(W) == -1:
        phi = norm((1 if math.sin(W) > 0 else -1 if math.sin(W) < 0 else 0) * PI/2)
    else:
        phi = richtung(k * math.sin(W), 1 + k * math.cos(W))
    psi = norm(W - phi)
    rA = phi + tA; rB = -psi + tB
    mA = GROSS if math.cos(rA) == 0 else math.tan(rA)
    mB = GROSS if math.cos(rB) == 0 else math.tan(rB)
    ok, s, t = geraden(aA, bA, 1, mA, aB, bB, 1, mB)
    return ok, (s, t)

def winkel_bei(s, p, q):  # angle at s from p to q, counter-clockwise, degrees
    return math.degrees(math.atan2(q[1]-s[1], q[0]-s[0]) - math.atan2(p[1]-s[1], p[0]-s[0])) % 360

if __name__ == "__main__":
    for args in [(0, 0, 10, 50, 100, 0, 70, NEUGRAD, False), (0, 0, 10, 50, 100, 0, 70, NEUGRAD, True),
                 (0, 0, 30, 80, 100, 0, 0, ALTGRAD, False), (0, 0, 0, 700, 100, 0, 10, ALTGRAD, False),
                 (0, 0, 0, 150, 100, 0, 80, ALTGRAD, False), (0, 0, 0, 150, 100, 0, 120, ALTGRAD, False)]:
        ok, v = direkt(*args); print("direkt", args, ok, [repr(x) for x in v])
        if ok: print("  check e", math.hypot(v[0]-args[0], v[1]-args[1]), "angle", winkel_bei(v[:2], args[:2], args[4:6]))
    for args in [(0, 0, 40, 60, 50, 100, 0, 30, ALTGRAD, False), (0, 0, 40, 100, 100, 100, 0, 30, NEUGRAD, False), (0, 0, 40, 30, -30, 100, 0, 30, NEUGRAD, False)]:
        ok, v = indirekt(*args); print("indirekt", args, ok, [repr(x) for x in v])
    for args in [(0, 0, 100, 0, 50, 50, NEUGRAD), (10, 20, 80, -30, 60, 45, ALTGRAD), (0, 0, 100, 0, 0, 0, NEUGRAD), (0, 0, 100, 0, 100, 100, NEUGRAD)]:
        ok, v = vorwaerts(*args); print("vorwaerts", args, ok, [repr(x) for x in v])
        if ok: print("  check angles", winkel_bei(args[:2], args[2:4], v), winkel_bei(args[2:4], v, args[:2]))
    # S = (50, -40) seen against A = (0, 0), M = (50, 30), B = (110, 10)
    S = (50.0, -40.0); A = (0.0, 0.0); M = (50.0, 30.0); B = (110.0, 10.0)
    al = winkel_bei(S, M, A); be = winkel_bei(S, B, M)
    print("rueck angles deg", repr(al), repr(be))
    for args in [(A[0], A[1], M[0], M[1], B[0], B[1], al, be, ALTGRAD), (A[0], A[1], M[0], M[1], B[0], B[1], al/0.9, be/0.9, NEUGRAD),
                 (0, 0, 0, 0, 100, 0, 30, 40, ALTGRAD), (50, 0, 0, 50, -50, 0, 45, 45, ALTGRAD),
                 (0, 0, 50, 30, 110, 10, 0, 0, ALTGRAD), (0, 0, 50, 0, 100, 0, 10, 20, ALTGRAD),
                 (0, 0, 50, 10, 100, 0, -170, 170, ALTGRAD)]:
        ok, v = rueckwaerts(*args); print("rueck", args, ok, [repr(x) for x in v])
