#pragma once
// Inverse sine and cosine as every calculation of the program computes them,
// through atan and with Pi = 3.141592654, and the angle of a triangle from its
// sides. Callers rely on the oddities of ArcusCosinus; do not "fix" them.

namespace kolm::kernel {

// Radians, -Pi/2 .. Pi/2; x = +-1 exactly gives +-Pi/2 of the program's Pi;
// |x| > 1 (or NaN) gives 0.
double ArcusSinus(double x);

// Radians, atan(sqrt(1 - x*x) / x): 0 .. Pi/2 for x > 0 but -Pi/2 .. 0 for
// x < 0; x = 0 gives 0 (not Pi/2); |x| > 1 (or NaN) gives 0.
double ArcusCosinus(double x);

// Unsigned angle at (a2, b2) between the rays to (a1, b1) and (a3, b3), in
// radians, 0 .. Pi; a zero side gives 0.
double WinkelAusSeiten(double a1, double b1, double a2, double b2, double a3, double b3);

}  // namespace kolm::kernel
