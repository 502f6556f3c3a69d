#pragma once
// Directions and the polar/rectangular conversion as every calculation of
// the program does them: with Pi = 3.141592654 and exact comparisons. The
// angle settings come in as arguments; nothing here reads global state.

namespace kolm::kernel {

// How a table measures angles: radians per unit of the user's angles, and
// the flags of its coordinate system.
struct Winkelsystem {
  double winkelFaktor;        // Pi/200 Neugrad, Pi/180 Altgrad, 1 Radiant
  bool m31 = false;           // first coordinate Y, second X, clockwise from X
  bool falschdrehend = false; // sense of rotation mirrored
};

// Direction of (x, y) from the origin in radians, above -Pi up to Pi;
// (0, 0) gives 0. Arguments in the order y, x.
double Richtung(double y, double x);

// w in radians brought into 0 .. below 2 Pi; exactly 2 Pi gives 0.
double WinkelNormieren(double w);

// In: a = distance e, b = direction Phi in the user's unit. Out: the two
// rectangular coordinates of the table (Y, X under M31; X, Y otherwise).
void PolarZuRechtwinklig(double& a, double& b, const Winkelsystem& s);

// In: the two rectangular coordinates. Out: a = distance e (>= 0),
// b = direction Phi in the user's unit, 0 .. below a full circle.
void RechtwinkligZuPolar(double& a, double& b, const Winkelsystem& s);

}  // namespace kolm::kernel
