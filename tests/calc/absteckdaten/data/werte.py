#!/usr/bin/env python3
"""Worked values for the stakeout tests, from the geometry of the four
coordinate systems and the three angle units.

The direction from A to P is the angle of the vector P - A, counted
  system 0 "Math.links":    from the first axis toward the second (ccw),
  system 1 "M31 rechts":    from the second axis toward the first (cw),
  system 2 "? Math rechts": a quarter circle minus the angle of system 0,
  system 3 "? M31 links":   a quarter circle minus the angle of system 1,
always brought into the full positive circle. The program's Pi has ten
digits, so a full circle is 2 * 3.141592654 and a quarter circle
3.141592654 / 2; math.atan2 stands in for the quadrant rule, which differs
from it by less than 1e-9 radians.
"""
import math

Pi = 3.141592654
EINHEIT = {"Neugrad": Pi / 200, "Altgrad": Pi / 180, "Radiant": 1.0}


def absteckdaten(a, p, system, einheit):
    da, db = p[0] - a[0], p[1] - a[1]
    e = math.hypot(da, db)
    if system in (1, 3):
        t = math.atan2(da, db) if (da, db) != (0, 0) else 0.0
    else:
        t = math.atan2(db, da) if (da, db) != (0, 0) else 0.0
    if system in (2, 3):
        t = Pi / 2 - t
    t = t % (2 * Pi)
    return e, t / EINHEIT[einheit]


def zeigen(titel, a, p, system, einheit):
    e, t = absteckdaten(a, p, system, einheit)
    print("  %-44s e = %.9f  t = %.9f" % (titel, e, t))


A = (100.0, 200.0)
P = (70.0, 260.0)
print("One point: A = %s, P = %s" % (A, P))
for system in range(4):
    for einheit in EINHEIT:
        zeigen("system %d, %s" % (system, einheit), A, P, system, einheit)

print("Coincident points: direction in each system (Neugrad, Altgrad, Radiant)")
for system in range(4):
    print("  system %d: %s" % (system, [round(absteckdaten(A, A, system, u)[1], 9) for u in EINHEIT]))

# The run: station A = point 10, sources 20..24, point 23 left empty.
STATION = (1000.0, 2000.0)
QUELLEN = {20: (1030.0, 2040.0), 21: (950.0, 2120.0), 22: (900.0, 1900.0), 23: (0.0, 0.0), 24: (1200.0, 1850.0)}
print("Run from A = %s over 20..24 (23 empty, read as 0/0)" % (STATION,))
for system in (0, 1):
    for n, q in QUELLEN.items():
        zeigen("system %d Neugrad, point %d" % (system, n), STATION, q, system, "Neugrad")

# A polar table (system 0, gon): the run subtracts the stored distance and
# angle from A's rectangular values without converting them.
A_POLAR = (30.0, 40.0)
GESPEICHERT = {40: (50.0, 100.0), 41: (20.0, 350.0)}
print("Polar table run from A (rectangular %s); stored e/Phi taken as they stand" % (A_POLAR,))
for n, q in GESPEICHERT.items():
    zeigen("point %d stored %s" % (n, q), A_POLAR, q, 0, "Neugrad")

# Overlapping run: sources 20..24 go to 22..26 (and 22..26 to 20..24).
print("Overlap 20..24 -> 22..26 uses the original sources; so does 22..26 -> 20..22")
UEBER = {20: (10.0, 0.0), 21: (0.0, 20.0), 22: (-30.0, 0.0), 23: (0.0, -40.0), 24: (50.0, 50.0),
         25: (-60.0, -60.0), 26: (70.0, -70.0)}
for n in range(20, 25):
    zeigen("%d -> %d" % (n, n + 2), (0.0, 0.0), UEBER[n], 0, "Neugrad")
for n in range(22, 27):
    zeigen("%d -> %d" % (n, n - 2), (0.0, 0.0), UEBER[n], 0, "Neugrad")

# The long run: point k (1 .. 4999) lies at (k, 2 k), A = (0, -1000) typed by hand.
print("Long run, point k = (k, 2k), A = (0, -1000), system 0 Altgrad")
for k in (1, 2500, 4999):
    zeigen("k = %d" % k, (0.0, -1000.0), (float(k), 2.0 * k), 0, "Altgrad")

# The macro scenarios in the demo project: A = point 900, sources 901..903.
M_A = (1000.0, 2000.0)
M_Q = {901: (1030.0, 2040.0), 902: (950.0, 2120.0), 903: (900.0, 1900.0)}
print("Macro: Math.links Neugrad, M31 rechts Altgrad")
for n, q in M_Q.items():
    zeigen("system 0 Neugrad, %d" % n, M_A, q, 0, "Neugrad")
    zeigen("system 1 Altgrad, %d" % n, M_A, q, 1, "Altgrad")
print("Macro: the table made polar (system 0, gon); the run takes e/Phi as they stand")
for n, q in M_Q.items():
    gespeichert = absteckdaten((0.0, 0.0), q, 0, "Neugrad")
    print("  %d stored as e = %.9f  Phi = %.9f" % ((n,) + gespeichert))
    zeigen("run value of %d" % n, M_A, gespeichert, 0, "Neugrad")
