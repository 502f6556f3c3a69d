#!/usr/bin/env python3
"""Worked values for the circle dialogs' tests, by the chord formula.

Circle intersection: the foot on the line of centres lies at
a = (d^2 + R^2 - r^2) / (2 d) from the larger circle's centre B, the half
chord is h = sqrt(R^2 - a^2); the first point lies to the left (counter-
clockwise) of the line from B to the smaller circle's centre.
"""
import math

Pi = 3.141592654


def schnitt(b, R, s, r):
    """Points of circle (b, R), the larger one, and (s, r): left first."""
    dx, dy = s[0] - b[0], s[1] - b[1]
    d = math.hypot(dx, dy)
    a = (d * d + R * R - r * r) / (2 * d)
    h = math.sqrt(max(R * R - a * a, 0.0))
    ux, uy = dx / d, dy / d
    fx, fy = b[0] + a * ux, b[1] + a * uy
    return (fx - h * uy, fy + h * ux), (fx + h * uy, fy - h * ux)


def polar(a, b, gon=True):
    """Rectangular to distance and angle in gon, system 0."""
    e = math.hypot(a, b)
    t = math.atan2(b, a) % (2 * Pi)
    return e, t * 200 / Pi


print("KreisKreis M1=(100,200) r1=30, M2=(140,230) r2=25: circle 1 is larger")
p1, p2 = schnitt((100, 200), 30, (140, 230), 25)
print("  S1 = %.9f %.9f\n  S2 = %.9f %.9f" % (*p1, *p2))
print("  polar S1 = %.9f %.9f" % polar(*p1))
print("  polar S2 = %.9f %.9f" % polar(*p2))

print("KreisTangenten M=(10,20) r=5, P=(40,60)")
t = math.sqrt(50 ** 2 - 5 ** 2)
p1, p2 = schnitt((40, 60), t, (10, 20), 5)
print("  t = %.9f" % t)
print("  S1 = %.9f %.9f\n  S2 = %.9f %.9f" % (*p1, *p2))

print("UmkreisMittelpunkt P1=(2,1) P2=(9,4) P3=(3,8)")
(ax, ay), (bx, by), (cx, cy) = (2, 1), (9, 4), (3, 8)
D = 2 * (ax * (by - cy) + bx * (cy - ay) + cx * (ay - by))
ux = ((ax**2 + ay**2) * (by - cy) + (bx**2 + by**2) * (cy - ay) + (cx**2 + cy**2) * (ay - by)) / D
uy = ((ax**2 + ay**2) * (cx - bx) + (bx**2 + by**2) * (ax - cx) + (cx**2 + cy**2) * (bx - ax)) / D
print("  M = %.9f %.9f  r = %.9f" % (ux, uy, math.hypot(ax - ux, ay - uy)))

print("GeradeKreis polar, gon: M=(-10,-10) r=5, line (-16,-18) to (-4,-2)")
# The table holds the centre as e, Phi (Phi in the full positive circle of
# the program's Pi); the dialog makes it rectangular once and keeps that.
e, phi = polar(-10, -10)
t = phi * (Pi / 200)
print("  centre kept = %.12f %.12f" % (e * math.cos(t), e * math.sin(t)))
print("  polar S1 = %.9f %.9f" % polar(-7, -6))
print("  polar S2 = %.9f %.9f" % polar(-13, -14))
