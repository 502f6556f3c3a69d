#pragma once
// The byte layout of the binary table records: little-endian on every host,
// no padding, no header. Also used where another project's files are read.
#include <cstddef>
#include <string>
#include <string_view>

#include "core/records/records.h"

namespace kolm::core {

constexpr std::size_t PunktSatzLaenge = 40;
constexpr std::size_t VerbindungSatzLaenge = 50;
constexpr std::size_t BogenSatzLaenge = 44;
constexpr std::size_t BildSatzLaenge = 85;

// Appends the record's bytes to `ziel`.
void PunktSatzAnhaengen(std::string& ziel, const Punkt& p);
void VerbindungSatzAnhaengen(std::string& ziel, const Verbindung& v);
void BogenSatzAnhaengen(std::string& ziel, const Bogen& b);
void BildSatzAnhaengen(std::string& ziel, const Hintergrundbild& h);

// Reads one record from exactly its length of bytes.
Punkt PunktAusSatz(std::string_view bytes);
Verbindung VerbindungAusSatz(std::string_view bytes);
Bogen BogenAusSatz(std::string_view bytes);
Hintergrundbild BildAusSatz(std::string_view bytes);

}  // namespace kolm::core
