# Worked values for the line and circle intersections, the tangents and the
# circumcircle, with the program's Pi. Each result is also checked by its
# geometry (on both lines, on both circles, equal distances).
import math
from klassik import PI, richtung, acos_

def geraden(p1a, p1b, d1a, d1b, p2a, p2b, d2a, d2b):
    det = d1a*d2b - d1b*d2a
    if det == 0: return False, 0.0, 0.0
    u = ((p1b - p2b)*d1a - (p1a - p2a)*d1b) / det
    return True, u*d2a + p2a, u*d2b + p2b

def gerade_kreis(ma, mb, r, pa, pb, da, db):
    ok, fa, fb = geraden(pa, pb, da, db, ma, mb, db, -da)
    if not ok: return False, (ma, mb, pa, pb)
    h = math.sqrt((fa-ma)**2 + (fb-mb)**2)
    th = richtung(db, da)
    if r >= h:
        s = math.sqrt(r*r - h*h)
        return True, (fa + s*math.cos(th), fb + s*math.sin(th), fa - s*math.cos(th), fb - s*math.sin(th))
    return False, (0.0, 0.0, 0.0, 0.0)

def kreis_kreis(a1, b1, r1, a2, b2, r2):
    d = math.sqrt((a2-a1)**2 + (b2-b1)**2)
    if r1 + r2 < d or abs(r1 - r2) > d or r1 == 0 or r2 == 0 or d == 0:
        return False, (a1, b1, a2, b2)
    S, B = (a1, b1, r1), (a2, b2, r2)
    if r2 < r1: S, B = B, S
    aS, bS, r = S; aB, bB, R = B
    c = (R*R + d*d - r*r) / 2 / d / R
    g = acos_(c)
    phi = richtung(bS - bB, aS - aB)
    return True, (aB + R*math.cos(phi + g), bB + R*math.sin(phi + g), aB + R*math.cos(phi - g), bB + R*math.sin(phi - g))

def tangenten(ma, mb, r, pa, pb):
    d = math.sqrt((pa-ma)**2 + (pb-mb)**2)
    if d > r:
        t = math.sqrt(d*d - r*r)
        ok, v = kreis_kreis(ma, mb, r, pa, pb, t)
        if ok: return True, v + (t,)
    return False, (0.0,)*5

def umkreis(a1, b1, a2, b2, a3, b3):
    ok, ma, mb = geraden((a1+a2)/2, (b1+b2)/2, b1-b2, a2-a1, (a1+a3)/2, (b1+b3)/2, b1-b3, a3-a1)
    if not ok: return False, (0.0, 0.0, 0.0)
    return True, (ma, mb, math.sqrt((ma-a1)**2 + (mb-b1)**2))

if __name__ == "__main__":
    for args in [(0, 0, 1, 1, 10, 0, -1, 2), (100, 200, 3, -4, 50, 50, 0, 1), (1, 1, 2, 2, 5, 0, -4, -4)]:
        ok, sa, sb = geraden(*args); print("geraden", args, ok, repr(sa), repr(sb))
    for args in [(0, 0, 0.5, 10, 0, 0.25), (5, 5, 1e36, 0, 0, 1e36)]:
        ok, sa, sb = geraden(args[0], args[1], 1, args[2], args[3], args[4], 1, args[5]); print("steigung", args, ok, repr(sa), repr(sb))
    for args in [(0, 0, 5, -10, 3, 1, 0), (10, 20, 13, 0, 0, 3, 4), (0, 0, 5, 5, -9, 0, 1), (0, 0, 5, 6, 0, 0, 1), (0, 0, 0, 0, 7, 1, 0), (0, 0, 0, 1, 7, 1, 0)]:
        ok, v = gerade_kreis(*args); print("geradekreis", args, ok, [repr(x) for x in v])
        if ok: print("  check r", [math.hypot(v[0]-args[0], v[1]-args[1]), math.hypot(v[2]-args[0], v[3]-args[1])])
    for args in [(0, 0, 5, 8, 0, 5), (0, 0, 10, 12, 5, 7), (12, 5, 7, 0, 0, 10), (0, 0, 5, 10, 0, 5), (0, 0, 10, 3, 4, 5), (1, 2, 3, 4, 6, 2)]:
        ok, v = kreis_kreis(*args); print("kreiskreis", args, ok, [repr(x) for x in v])
        if ok: print("  check", [math.hypot(v[i]-args[0], v[i+1]-args[1]) for i in (0, 2)], [math.hypot(v[i]-args[3], v[i+1]-args[4]) for i in (0, 2)])
    for args in [(0, 0, 5, 10, 0), (3, -2, 4, -5, 7)]:
        ok, v = tangenten(*args); print("tangenten", args, ok, [repr(x) for x in v])
        if ok: print("  check perpendicular", [(v[i]-args[0])*(v[i]-args[3]) + (v[i+1]-args[1])*(v[i+1]-args[4]) for i in (0, 2)])
    for args in [(0, 0, 4, 0, 0, 3), (1, 2, 7, -1, 4, 6), (0, 0, 1, 1, 2, 2)]:
        ok, v = umkreis(*args); print("umkreis", args, ok, [repr(x) for x in v])
