#!/usr/bin/env python3
"""Worked display texts for the calculator's tests.

The display shows X by one of two patterns: "#######0.######" (at most six
decimals, trailing zeros dropped, the point always shown) for
1E-6 < |v| < 1E+8, and "0.#######E-###" (one digit, at most seven decimals,
exponent with "-" only when negative) for all other values, 0 included.
Rounding is half away from zero on the value's 15 significant digits.
Angles: Neugrad factor Pi/200 and Altgrad Pi/180 with Pi = 3.141592654.
"""
import math
from decimal import Decimal, ROUND_HALF_UP

Pi = 3.141592654
GON = Pi / 200
GRAD = Pi / 180


def d15(v):
    return Decimal("%.14e" % v)


def trim(text):
    ganz, bruch = text.split(".")
    return ganz + "." + bruch.rstrip("0")


def normal(v):
    q = d15(abs(v)).quantize(Decimal("0.000001"), rounding=ROUND_HALF_UP)
    return ("-" if v < 0 else "") + trim("%s" % format(q, "f"))


def exponent(v):
    if v == 0:
        return "0.E0"
    m = d15(abs(v))
    e = m.adjusted()
    mant = (m.scaleb(-e)).quantize(Decimal("0.0000001"), rounding=ROUND_HALF_UP)
    if mant >= 10:
        mant = (mant / 10).quantize(Decimal("0.0000001"), rounding=ROUND_HALF_UP)
        e += 1
    return ("-" if v < 0 else "") + trim(format(mant, "f")) + "E" + ("-" if e < 0 else "") + str(abs(e))


def anzeige(v):
    return normal(v) if 1e-6 < abs(v) < 1e8 else exponent(v)


def zeige(name, v):
    print("%-34s %-24r %s" % (name, v, anzeige(v)))


def arcsin(x):
    return math.copysign(Pi / 2, x) if abs(x) == 1 else math.atan(x / math.sqrt(1 - x * x))


def arccos(x):
    return 0.0 if x == 0 else math.atan(math.sqrt(1 - x * x) / x)


def fakultaet(x):
    n = round(x)  # Python rounds halves to even, as the program does
    f = 1.0
    for i in range(1, n + 1):
        f *= i
    return f


print("patterns")
for v in (37.5, 2, -2, 0.125, 1 / 3, 99999999.9, 3.25e-6, 1e-6, 1e8, 1e-7, 0,
          -123456789, 12345678.5, 123456789012, -0.00000042):
    zeige("  %r" % v, v)

print("operations (y first, then X)")
zeige("12.5 * 3", 12.5 * 3)
zeige("7 / 2", 7 / 2)
zeige("7 - 2", 7 - 2)
zeige("7 + 2.25", 7 + 2.25)
zeige("2 ^ 10", 2.0 ** 10)
zeige("27 ^ (1/3)", 27 ** (1 / 3))
zeige("-8 ^ 2", (-8.0) ** 2)
zeige("0 - 5 (empty stack)", 0 - 5)
zeige("0 / 4 (empty stack)", 0 / 4)
zeige("1/8", 1 / 8)
zeige("pi key", 3.1415927)
zeige("5 x^2", 5 * 5)
zeige("sqrt 2", math.sqrt(2))
zeige("50 %", 50 / 100)
zeige("5!", fakultaet(5))
zeige("2.5! (n=2)", fakultaet(2.5))
zeige("3.5! (n=4)", fakultaet(3.5))
zeige("0!", fakultaet(0))
zeige("170!", fakultaet(170))
zeige("170.4! (n=170)", fakultaet(170.4))
zeige("ln 10", math.log(10))
zeige("e^1", math.exp(1))
zeige("log 1000", math.log10(1000))
zeige("10^2.5", 10 ** 2.5)
zeige("-(-3.5)", 3.5)

print("sign key: X = -X, typed or not, shown as a result")
zeige("12 typed, sign", -12)
zeige("5 + 3, sign", -(5 + 3))
zeige("  sign again", -(-(5 + 3)))
zeige("4 typed, sign", -4)
zeige("  sign again", -(-4))

print("angles")
zeige("sin 50 gon", math.sin(50 * GON))
zeige("cos 100 gon", math.cos(100 * GON))
zeige("tan 100 gon", math.tan(100 * GON))
zeige("tan 50 gon", math.tan(50 * GON))
zeige("sin 30 grad", math.sin(30 * GRAD))
zeige("sin 1 rad", math.sin(1))
zeige("arcsin 0.5 gon", arcsin(0.5) / GON)
zeige("arcsin 1 gon", arcsin(1) / GON)
zeige("arcsin -1 grad", arcsin(-1) / GRAD)
zeige("arccos 0.5 gon", arccos(0.5) / GON)
zeige("arccos -0.5 gon (negative)", arccos(-0.5) / GON)
zeige("arccos 0 gon (0, not 100)", arccos(0) / GON)
zeige("arctan 1 rad", math.atan(1))
zeige("arctan 1 gon", math.atan(1) / GON)

print("chains: X is read back from the display text")
x = float(anzeige(3.1415927))
zeige("pi key, then x^2", x * x)
y = float(anzeige(x * x))
zeige("  then pi key and y - x", y - x)
zeige("4 ^ 0.12", 4 ** 0.12)
