#!/usr/bin/env python3
"""Expected texts of the general number form (the default conversion of a
Double to text), worked with Python's decimal module. Prints table rows for
general_test.cpp.

Rules worked here: shortest round-trip digits (repr), cut to 15 significant
digits half away from zero; trailing zeros dropped; plain form when the
decimal exponent X (value = d.ddd × 10^X) lies in -4 <= X < 15, otherwise
"d.dddE+XX" with at least two exponent digits; "0.5" keeps its leading zero.
"""
from decimal import Decimal, ROUND_HALF_UP, getcontext

getcontext().prec = 400


def general(x):
    if x == 0:
        return "0"
    d = Decimal(repr(abs(x)))
    d = d.quantize(Decimal(1).scaleb(d.adjusted() - 14), rounding=ROUND_HALF_UP)
    X = d.adjusted()
    digits = str(d.scaleb(-X).normalize())  # "d.ddd" or "d"
    sign = '-' if x < 0 else ''
    if X < -4 or X >= 15:
        return '%s%sE%s%02d' % (sign, digits, '-' if X < 0 else '+', abs(X))
    text = format(d, 'f')
    if '.' in text:
        text = text.rstrip('0').rstrip('.')
    return sign + text


VALUES = [
    0.0, -0.0, 1.0, -1.0, 0.5, -0.5, 0.25, 1.5, 12.5, 1234.5678, 0.1 + 0.2, 1.0 / 3.0,
    2.0 / 3.0, 100.0, 0.0001, 0.00012345, 0.00001, -0.000012345, 123456789012345.0,
    999999999999999.0, 999999999999999.9, 1e15, 1.5e15, 1e20, -1.25e100, 1e-100, 1e308,
    5e-324, 3.141592654, 1e14, 0.1, 12345.678901234567,
]

if __name__ == '__main__':
    for v in VALUES:
        print('    {%s, "%s"},' % (repr(v), general(v)))
