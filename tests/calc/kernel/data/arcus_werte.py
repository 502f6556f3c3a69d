# Worked values for ArcusSinus, ArcusCosinus and WinkelAusSeiten, with the
# program's Pi; the side angle is also checked against the exact law of
# cosines (math.acos) to show the Pi trace.
import math
from klassik import PI, asin_, acos_

for x in [0.5, -0.5, 0.9, -0.9, 1.0, -1.0, 0.0, 1.5, -2.0, 1e-310, -1e-310]:
    print("asin", x, repr(asin_(x)), "acos", repr(acos_(x)))

def winkel(a1, b1, a2, b2, a3, b3):
    s = math.sqrt((a3-a1)**2 + (b3-b1)**2); p = math.sqrt((a2-a1)**2 + (b2-b1)**2); q = math.sqrt((a3-a2)**2 + (b3-b2)**2)
    c = 1.0 if p == 0 or q == 0 else (p*p + q*q - s*s) / (2*p*q)
    if c == 0: return PI/2
    if c < 0: return PI + acos_(c)
    return acos_(c)

for pts in [(10, 0, 0, 0, 0, 10), (10, 0, 0, 0, 10, 10), (3, 4, 0, 0, -5, 1), (1, 1, 2, 2, 3, 3),
            (1, 1, 2, 2, 0, 0), (5, 5, 5, 5, 1, 2), (0, 0, 7, 1, 7, 1)]:
    print("winkel", pts, repr(winkel(*pts)))
