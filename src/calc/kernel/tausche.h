#pragma once

namespace kolm::kernel {

// Exchanges u and v.
inline void Tausche(double& u, double& v) {
  const double w = u;
  u = v;
  v = w;
}

}  // namespace kolm::kernel
