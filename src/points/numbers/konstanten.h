#pragma once

namespace kolm::numbers {

// Pi as every calculation of the program uses it: ten digits, not the
// closest double, so a full circle is 6.283185308 radians.
constexpr double Pi = 3.141592654;

// Stands for an infinite slope or ratio.
constexpr double GROSS = 1E+36;

// Radians per angle unit: entry 0 "Neugrad", 1 "Altgrad", 2 "Radiant" of
// the angle unit list; any other entry counts as Neugrad.
constexpr double WinkelFaktorFuer(int winkelEinheit) {
  return winkelEinheit == 1 ? Pi / 180 : winkelEinheit == 2 ? 1.0 : Pi / 200;
}

}  // namespace kolm::numbers
