#pragma once
// Egg line (F = +1: one clothoid between two circles of the same sense) and
// inflection line (F = -1: two clothoids between circles of opposite sense),
// by a closed approximation without iteration.

namespace kolm::kernel {

// R1, R2: radii (> 0, in either order), D: gap of the two circles. True: A
// the clothoid parameter, L1 = A*A/R1 and L2 = A*A/R2 for the smaller and
// the larger radius, E = L1 - F*L2. False, outputs unchanged: a radius <= 0,
// equal radii with F = 1, R2 + F*R1 = 0 or a vanishing denominator. D = 0
// gives A = 0 and true.
bool WendelinieRechnen(double R1, double R2, double D, double F, double& A, double& L1,
                       double& L2, double& E);

}  // namespace kolm::kernel
