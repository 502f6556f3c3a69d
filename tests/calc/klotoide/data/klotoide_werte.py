#!/usr/bin/env python3
"""Expected values for the clothoid tests, computed apart from the program.

The points of the clothoid come from the Fresnel-type integrals
    x(L) = int_0^L cos(s^2 / (2 A^2)) ds,  y(L) = int_0^L sin(s^2 / (2 A^2)) ds
by composite Simpson integration (no power series), the angles with
Pi = 3.141592654 as the program uses it.

    python3 klotoide_werte.py
"""
import math
from decimal import Decimal, ROUND_HALF_UP

PI = 3.141592654
FAKTOR = {"gon": PI / 200, "grad": PI / 180, "rad": 1.0}


def punkt(A, L, n=20000):
    """x, y of the clothoid point at arc length L, tangent along x at 0."""
    if L == 0:
        return 0.0, 0.0
    h = L / n
    sx = sy = 0.0
    for i in range(n + 1):
        s = i * h
        g = 1 if i in (0, n) else (4 if i % 2 else 2)
        a = s * s / (2 * A * A)
        sx += g * math.cos(a)
        sy += g * math.sin(a)
    return sx * h / 3, sy * h / 3


def runden(x, stellen):
    q = Decimal(1).scaleb(-stellen)
    return Decimal(repr(x)).quantize(q, rounding=ROUND_HALF_UP)


def ergebnis(x):
    """#######0.000"""
    return str(runden(x, 3))


def standard(x):
    """#######0.000###: three to six decimals."""
    t = str(runden(x, 6))
    while t.endswith("0") and len(t.split(".")[1]) > 3:
        t = t[:-1]
    return t


def fest(x):
    """######.000: no leading zero."""
    t = str(runden(x, 3))
    if t.startswith("0."):
        t = t[1:]
    elif t.startswith("-0."):
        t = "-" + t[2:]
    return t


def elemente(L=None, A=None, R=None, einheit="gon"):
    if R is None:
        tau = L * L / (A * A) / 2
        R = A * A / L
        gefuellt = fest(R)
    elif A is None:
        tau = L / R / 2
        A = math.sqrt(L * R)
        gefuellt = fest(A)
    else:
        tau = A * A / (R * R) / 2
        L = A * A / R
        gefuellt = fest(L)
    x, y = punkt(A, L)
    wf = FAKTOR[einheit]
    xm = x - R * math.sin(tau)
    ym = y + R * math.cos(tau)
    return {
        "gefuellt": gefuellt,
        "tau": standard(tau / wf),
        "dR": ergebnis(ym - R),
        "xM": ergebnis(xm),
        "yM": ergebnis(ym),
        "Tk": ergebnis(y / math.sin(tau)),
        "Tl": ergebnis(x - y / math.tan(tau)),
        "x": ergebnis(x),
        "y": ergebnis(y),
        "Sehne": ergebnis(math.hypot(x, y)),
        "phi": standard(math.atan(y / x) / wf),
    }


def main():
    print("Unit clothoid (A = 1), as in a printed clothoid table:")
    for i in range(1, 11):
        l = i / 10
        x, y = punkt(1.0, l)
        print("  l = %.1f  x = %.10f  y = %.10f" % (l, x, y))
    print()
    for name, kw in [
        ("L 100, A 100, gon", dict(L=100, A=100, einheit="gon")),
        ("L 80, R 250, grad", dict(L=80, R=250, einheit="grad")),
        ("A 150, R 300, gon", dict(A=150, R=300, einheit="gon")),
        ("A 150, R 300, rad", dict(A=150, R=300, einheit="rad")),
        ("L 300, A 100, gon (tau 4.5)", dict(L=300, A=100, einheit="gon")),
        ("L -100, A 100, gon", dict(L=-100, A=100, einheit="gon")),
    ]:
        print(name)
        for k, v in elemente(**kw).items():
            print("  %-8s %s" % (k, v))
    # Three fields filled: tau = 0, a straight of length L; R stays as typed.
    L, R = 100, 100
    print("straight L 100, A 100, R 100: tau", standard(0.0), "dR", ergebnis(0.0),
          "xM", ergebnis(L), "yM", ergebnis(R))
    # A length of 0 with R typed: tau = 0, the empty field is filled in, and
    # R = (L / 2) / tau divides 0 by 0, so no result is shown.
    print("L 0, R 100: A", fest(math.sqrt(0 * 100)), "; A 0, R 100: L", fest(0 * 0 / 100),
          "; then (L / 2) / tau = 0 / 0: no results")


if __name__ == "__main__":
    main()
