#!/usr/bin/env python3
"""Expected whole-number conversions: Python's round() rounds a float half to
even on its exact binary value, as the conversion to Integer and Long must;
floor and trunc are Int and Fix. Prints table rows for integer_test.cpp
(None where the value does not fit)."""
import math

INTEGER = (-32768, 32767)
LONG = (-2147483648, 2147483647)

VALUES = [
    0.0, -0.0, 0.4, 0.5, 0.6, 1.5, 2.5, 3.5, -0.5, -1.5, -2.5, -3.5, 2.4999999999999996,
    2.5000000000000004, 12.345, -7.75, 32766.5, 32767.0, 32767.4, 32767.5, 32768.0,
    -32767.5, -32768.0, -32768.5, -32768.500000000004, -32769.0, 65535.0, 1e10,
    2147483646.5, 2147483647.5, -2147483648.5, -2147483649.0, 4503599627370495.5,
]


def fit(v, bounds):
    r = round(v)
    return str(r) if bounds[0] <= r <= bounds[1] else 'std::nullopt'


if __name__ == '__main__':
    for v in VALUES:
        print('    {%s, %s, %s, %s, %s},' % (repr(v), fit(v, INTEGER), fit(v, LONG),
                                           repr(float(math.floor(v))), repr(float(math.trunc(v)))))
