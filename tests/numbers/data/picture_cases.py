#!/usr/bin/env python3
"""Expected texts of number patterns, worked out with Python's decimal module
independently of the C++ code. Prints the rows of picture_cases.h.

Rules worked here: the value is its shortest round-trip text (repr), cut to
15 significant digits half away from zero; then it is rounded half away from
zero to the count of digit places after the point. "0" places are always
shown, "#" places only when significant; all integer digits are shown; the
point stays even when no digit follows it; a leading "-" for a negative value
that does not have its own section; sections are positive;negative;zero.
"""
from decimal import Decimal, ROUND_HALF_UP, getcontext

getcontext().prec = 400


def fifteen(x):
    d = Decimal(repr(abs(x)))
    if d == 0:
        return d
    exp = d.adjusted()  # position of the first digit
    q = Decimal(1).scaleb(exp - 14)
    return d.quantize(q, rounding=ROUND_HALF_UP)


def section(value, pat, minus):
    if '0' not in pat and '#' not in pat:
        return ('-' if minus else '') + pat
    # A text in front of the digits (the "-" of a negative section) stays.
    lead = len(pat) - len(pat.lstrip('-'))
    prefix, pat = pat[:lead], pat[lead:]
    ip, dot, fp = pat.partition('.')
    frac_places = len(fp)
    frac_min = fp.rfind('0') + 1
    int_min = len(ip) - ip.find('0') if '0' in ip else 0
    d = fifteen(value).quantize(Decimal(1).scaleb(-frac_places), rounding=ROUND_HALF_UP)
    text = format(d, 'f')
    i, _, f = text.partition('.')
    i = i.lstrip('0')
    i = i.rjust(int_min, '0')
    f = f.ljust(frac_places, '0')
    while len(f) > frac_min and f.endswith('0'):
        f = f[:-1]
    return ('-' if minus else '') + prefix + i + (dot and '.') + f


def fmt(x, pattern):
    parts = pattern.split(';')
    if x == 0:
        if len(parts) >= 3 and parts[2]:
            return section(0.0, parts[2], False)
        return section(0.0, parts[0], False)
    if x < 0:
        if len(parts) >= 2 and parts[1]:
            return section(-x, parts[1], False)
        return section(-x, parts[0], True)
    return section(x, parts[0], False)


PATTERNS = [
    "#######0.000###", "#######0.000", "###0", "#####0.000000", "#0.00", "0.000",
    "######0.######", "#######", "####", "#0", "0.##", "#####0.#", "#", "#####",
    "########0", "#######0.######", "######.000", "######0.#", "#####0", "#####0.###",
    "####.##", "##0", "#0.##", "#0.###", "#0.0", "0", "0.#", "0.0", "0.00", "000",
    "0.000000;-0.000000; ", "0.0000;-0.0000; ", "0.000;-0.000; ",
    "0.000000;-0.000000;0", "0.0000;-0.0000;0", "0.000;-0.000;0",
]

VALUES = [
    0.0, -0.0, 1.0, -1.0, 0.5, 2.5, 0.0005, -0.0005, 0.00049, 2.675, 1.005, 0.045,
    12.3456785, 999.9995, 1234.5, -1234.5, 123456789.123456789, 0.1 + 0.2, 1e15,
    -1e20, 1e-7, -1e-7, -0.04, 0.96,
]


if __name__ == '__main__':
    for p in PATTERNS:
        print('    // %s' % p)
        for v in VALUES:
            print('    {"%s", %s, "%s"},' % (p, repr(v), fmt(v, p)))
