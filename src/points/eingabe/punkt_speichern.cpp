#include "points/eingabe/punkt_speichern.h"

#include <algorithm>

#include "core/app/anwendung.h"
#include "forms/utf8.h"
#include "points/eingabe/ueberschreibliste.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

namespace {

// The hook of the graphic, kept per Anwendung.
struct GrafikPunktZeichner {
  std::function<void(int)> zeichnen;
};

std::string Nummer(const core::Zustand& z, double n) {
  return numbers::ZahlText(n, z.Einstellungen.NummernFormat);
}

void Ablegen(core::Zustand& z, core::Punkt& record, int nummer) {
  record.Nummer = static_cast<core::Integer>(nummer);
  core::Punkt& slot = z.Punkte[static_cast<size_t>(nummer)];
  slot = record;
  slot.TextDx = z.StandardTextDx;
  slot.TextDy = z.StandardTextDy;
}

}  // namespace

bool UeberschreibenErlaubt(core::Anwendung& anwendung, int nummer, const std::string& titel) {
  const core::Zustand& z = anwendung.zustand();
  if (nummer < 0 || nummer > z.AnzahlPunkte || z.PunktLeer(nummer)) return true;
  const core::Punkt& alt = z.Punkte[static_cast<size_t>(nummer)];
  if (alt.KurzBez >= 100) return true;
  forms::MessageService* meldungen = anwendung.dienste().messages;
  if (!meldungen) return false;
  const std::string& format = z.Einstellungen.StandardFormat;
  const std::string frage = "Soll " + Bezeichnung(z, alt.KurzBez) + " " + Nummer(z, nummer) + ": (" +
                            numbers::ZahlText(alt.A, format) + "/" + numbers::ZahlText(alt.B, format) +
                            ") überschrieben werden?";
  return meldungen->show({frage, titel, forms::Buttons::YesNo, forms::Icon::Question}) == forms::Answer::Yes;
}

bool PunktSpeichern(core::Anwendung& anwendung, core::Punkt& record, int nummer) {
  core::Zustand& z = anwendung.zustand();
  // Whatever the outcome, the table counts as changed, as it always has.
  z.TabelleGeaendert = core::Wahr;
  if (nummer < 0 || nummer >= z.AnzahlPunkte) {
    if (forms::MessageService* meldungen = anwendung.dienste().messages)
      meldungen->show({"Die Punktnummer muß zwischen 0 und " + Nummer(z, z.AnzahlPunkte) + "liegen!",
                       "Punkt speichern", forms::Buttons::OK, forms::Icon::Exclamation});
    record.Nummer = -1;
    return false;
  }
  if (!z.PunktLeer(nummer)) {
    if (!UeberschreibenErlaubt(anwendung, nummer, "Punkt abspeichern")) {
      record.Nummer = -1;
      return false;
    }
    UeberschriebenMerken(anwendung, z.Punkte[static_cast<size_t>(nummer)], nummer);
  }
  Ablegen(z, record, nummer);
  if (anwendung.forms().FormGeladen("Grafik") >= 0) {
    const auto& zeichner = anwendung.modulZustand<GrafikPunktZeichner>().zeichnen;
    if (zeichner) zeichner(nummer);
  }
  anwendung.RefreshPunkt(nummer);
  return true;
}

void GrafikPunktZeichnerSetzen(core::Anwendung& anwendung, std::function<void(int)> zeichner) {
  anwendung.modulZustand<GrafikPunktZeichner>().zeichnen = std::move(zeichner);
}

int NaechsteNummer(const core::Zustand& z) {
  const int letzte = std::min(z.AnzahlPunkte, static_cast<int>(z.Punkte.size()) - 1);
  for (int n = letzte; n >= 0; --n) {
    if (z.PunktLeer(n)) continue;
    return n == z.AnzahlPunkte ? 0 : n + 1;
  }
  return 0;
}

int NummerAmEnde(const core::Zustand& z, std::string_view text) {
  if (numbers::IstLeer(text)) return -1;
  const int laenge = forms::utf8::Length(text);
  const std::string_view letzte = text.substr(forms::utf8::ByteOffset(text, std::max(0, laenge - 4)));
  const double wert = numbers::RundeHalbGerade(numbers::ZahlLesen(letzte));
  if (!(wert >= 0 && wert <= z.AnzahlPunkte)) return -1;
  return static_cast<int>(wert);
}

bool PunktAusListe(const core::Zustand& z, std::string_view text, core::Punkt& record) {
  const int n = NummerAmEnde(z, text);
  if (n < 0 || n >= static_cast<int>(z.Punkte.size())) return false;
  record = z.Punkte[static_cast<size_t>(n)];
  record.Nummer = static_cast<core::Integer>(n);
  return true;
}

}  // namespace kolm::points
