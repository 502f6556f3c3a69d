#pragma once
// The clothoid by its power series: the point at arc length L on a clothoid
// of parameter A, tangent along the x axis at the origin, curving toward +y.

#include <limits>

namespace kolm::kernel {

// KlotoidePunkt stops the series after this many steps.
constexpr int KlotoideSchrittGrenze = 30000;
// For the clothoid dialog, whose series runs until it converges.
constexpr int KlotoideOhneGrenze = std::numeric_limits<int>::max();

// The series of x/L and y/L for tau = L*L / (2*A*A) radians: x-sum starts
// at 1, y-sum at 0, each step adds one y term and one x term. Stops when the
// x term is <= 1E-7 in size or after schrittGrenze steps (at least one).
// Returns the number of steps, or 0 if a term or sum overflows (a tau of
// some 700 and more), leaving xSumme and ySumme unchanged then.
int KlotoideReihe(double tau, int schrittGrenze, double& xSumme, double& ySumme);

// A and L in the same length unit; x, y of the point in that unit. True on
// success; A = 0, an overflowing series (L/A beyond about 37) or any other
// failure gives false with x and y unchanged.
bool KlotoidePunkt(double A, double L, double& x, double& y);

}  // namespace kolm::kernel
