#include "points/numbers/format.h"

#include <cmath>
#include <string>
#include <vector>

#include "points/numbers/digits.h"

namespace kolm::numbers {
namespace {

using detail::Ziffern;

enum class Art { Null, Raute, Text, Komma };

struct Element {
  Art art;
  std::string text;  // for Text only
  bool Platzhalter() const { return art == Art::Null || art == Art::Raute; }
};

// One section of a pattern, split at its decimal point and exponent.
struct Abschnitt {
  std::vector<Element> ganz, bruch, exponent;
  bool punkt = false;
  bool wissenschaftlich = false;
  bool expPlus = false;
  char expBuchstabe = 'E';
  bool gruppieren = false;
  int tausendTeiler = 0;
  bool prozent = false;
  int ganzPlatz = 0, ganzPflicht = 0;
  int bruchPlatz = 0, bruchPflicht = 0;
  int expPflicht = 0;
};

std::size_t Utf8Laenge(unsigned char c) {
  if (c >= 0xF0) return 4;
  if (c >= 0xE0) return 3;
  if (c >= 0xC0) return 2;
  return 1;
}

// Splits at ";" outside quotes and escapes.
std::vector<std::string_view> Abschnitte(std::string_view muster) {
  std::vector<std::string_view> teile;
  std::size_t anfang = 0;
  bool zitat = false;
  for (std::size_t i = 0; i < muster.size(); ++i) {
    const char c = muster[i];
    if (c == '"') zitat = !zitat;
    else if (c == '\\' && !zitat) ++i;
    else if (c == ';' && !zitat) {
      teile.push_back(muster.substr(anfang, i - anfang));
      anfang = i + 1;
    }
  }
  teile.push_back(muster.substr(anfang < muster.size() ? anfang : muster.size()));
  return teile;
}

Abschnitt ZerlegeMuster(std::string_view s) {
  Abschnitt a;
  enum { Ganz, Bruch, Exp } teil = Ganz;
  auto liste = [&]() -> std::vector<Element>& {
    return teil == Ganz ? a.ganz : teil == Bruch ? a.bruch : a.exponent;
  };
  auto text = [&](std::string_view t) {
    if (!t.empty()) liste().push_back({Art::Text, std::string(t)});
  };
  for (std::size_t i = 0; i < s.size(); ++i) {
    const char c = s[i];
    if (c == '"') {
      const std::size_t ende = s.find('"', i + 1);
      const std::size_t bis = ende == std::string_view::npos ? s.size() : ende;
      text(s.substr(i + 1, bis - i - 1));
      i = bis;
    } else if (c == '\\') {
      if (i + 1 < s.size()) {
        const std::size_t n = Utf8Laenge(static_cast<unsigned char>(s[i + 1]));
        text(s.substr(i + 1, n));
        i += n;
      }
    } else if (c == '0' || c == '#') {
      liste().push_back({c == '0' ? Art::Null : Art::Raute, {}});
    } else if (c == '.' && teil == Ganz) {
      a.punkt = true;
      teil = Bruch;
    } else if (c == ',' && teil == Ganz) {
      a.ganz.push_back({Art::Komma, {}});
    } else if (c == '%') {
      a.prozent = true;
      text("%");
    } else if ((c == 'E' || c == 'e') && teil != Exp && i + 2 < s.size() && (s[i + 1] == '+' || s[i + 1] == '-') &&
               (s[i + 2] == '0' || s[i + 2] == '#')) {
      a.wissenschaftlich = true;
      a.expPlus = s[i + 1] == '+';
      a.expBuchstabe = c;
      teil = Exp;
      ++i;
    } else {
      const std::size_t n = Utf8Laenge(static_cast<unsigned char>(c));
      text(s.substr(i, n));
      i += n - 1;
    }
  }
  // A comma between digit placeholders groups, one after the last of them
  // divides by 1000, one before all of them is plain text.
  std::vector<Element> ganz;
  for (std::size_t k = 0; k < a.ganz.size(); ++k) {
    if (a.ganz[k].art != Art::Komma) {
      ganz.push_back(a.ganz[k]);
      continue;
    }
    bool links = false, rechts = false;
    for (std::size_t j = 0; j < a.ganz.size(); ++j)
      if (a.ganz[j].Platzhalter()) (j < k ? links : rechts) = true;
    if (links && rechts) a.gruppieren = true;
    else if (links) ++a.tausendTeiler;
    else ganz.push_back({Art::Text, ","});
  }
  a.ganz = std::move(ganz);
  bool nullGesehen = false;
  for (const Element& e : a.ganz) {
    if (!e.Platzhalter()) continue;
    ++a.ganzPlatz;
    if (e.art == Art::Null) nullGesehen = true;
    if (nullGesehen) ++a.ganzPflicht;
  }
  for (const Element& e : a.bruch) {
    if (!e.Platzhalter()) continue;
    ++a.bruchPlatz;
    if (e.art == Art::Null) a.bruchPflicht = a.bruchPlatz;
  }
  for (const Element& e : a.exponent)
    if (e.art == Art::Null) ++a.expPflicht;
  return a;
}

// Fills the digits into the placeholders from the right; the leftmost
// placeholder takes all digits left over, and without any placeholder the
// digits stand after the text.
std::string FuelleGanz(const std::vector<Element>& elemente, const std::string& ziffern, bool gruppieren,
                       const std::string& trenner) {
  std::size_t erster = elemente.size();
  for (std::size_t i = 0; i < elemente.size(); ++i)
    if (elemente[i].Platzhalter()) {
      erster = i;
      break;
    }
  std::string aus;
  std::size_t rest = ziffern.size();
  std::size_t gesetzt = 0;
  auto ziffer = [&] {
    if (gruppieren && gesetzt > 0 && gesetzt % 3 == 0) aus.insert(0, trenner);
    aus.insert(aus.begin(), ziffern[--rest]);
    ++gesetzt;
  };
  if (erster == elemente.size())
    while (rest > 0) ziffer();
  for (std::size_t i = elemente.size(); i-- > 0;) {
    const Element& e = elemente[i];
    if (!e.Platzhalter()) {
      aus.insert(0, e.text);
    } else if (i == erster) {
      while (rest > 0) ziffer();
    } else if (rest > 0) {
      ziffer();
    }
  }
  return aus;
}

std::string Texte(const std::vector<Element>& elemente) {
  std::string aus;
  for (const Element& e : elemente) aus += e.text;
  return aus;
}

// betrag >= 0 and finite; minus puts "-" in front.
std::string FormatAbschnitt(double betrag, const Abschnitt& a, bool minus, const Zahlzeichen& zz) {
  std::string aus = minus ? "-" : "";
  if (a.ganzPlatz == 0 && a.bruchPlatz == 0 && !a.wissenschaftlich) {
    // Text only, as a blank zero section.
    aus += Texte(a.ganz);
    if (a.punkt) aus += zz.dezimal;
    return aus + Texte(a.bruch);
  }
  Ziffern z = detail::Zerlege(betrag);
  if (!z.ziffern.empty()) z.punkt += (a.prozent ? 2 : 0) - 3 * a.tausendTeiler;
  int exponent = 0;
  if (a.wissenschaftlich && !z.ziffern.empty()) {
    exponent = z.punkt - a.ganzPlatz;
    z.punkt = a.ganzPlatz;
    detail::RundeNachkomma(z, a.bruchPlatz);
    if (z.punkt > a.ganzPlatz) {  // 9.99 became 10.0
      ++exponent;
      --z.punkt;
    }
  } else {
    detail::RundeNachkomma(z, a.bruchPlatz);
  }
  const long laenge = static_cast<long>(z.ziffern.size());
  std::string ganz;
  if (z.punkt > 0) {
    ganz = z.ziffern.substr(0, static_cast<std::size_t>(std::min<long>(z.punkt, laenge)));
    if (z.punkt > laenge) ganz.append(static_cast<std::size_t>(z.punkt - laenge), '0');
  }
  if (static_cast<int>(ganz.size()) < a.ganzPflicht) ganz.insert(0, a.ganzPflicht - ganz.size(), '0');
  std::string bruch;
  for (int i = 0; i < a.bruchPlatz; ++i) {
    const long k = static_cast<long>(z.punkt) + i;
    bruch.push_back(k >= 0 && k < laenge ? z.ziffern[static_cast<std::size_t>(k)] : '0');
  }
  while (static_cast<int>(bruch.size()) > a.bruchPflicht && bruch.back() == '0') bruch.pop_back();

  aus += FuelleGanz(a.ganz, ganz, a.gruppieren, zz.gruppe);
  if (a.punkt) aus += zz.dezimal;
  std::size_t naechste = 0;
  for (const Element& e : a.bruch) {
    if (!e.Platzhalter()) aus += e.text;
    else if (naechste < bruch.size()) aus += bruch[naechste++];
  }
  if (a.wissenschaftlich) {
    aus += a.expBuchstabe;
    if (exponent < 0) aus += '-';
    else if (a.expPlus) aus += '+';
    std::string e = std::to_string(exponent < 0 ? -exponent : exponent);
    const std::size_t pflicht = a.expPflicht > 1 ? static_cast<std::size_t>(a.expPflicht) : 1;
    if (e.size() < pflicht) e.insert(0, pflicht - e.size(), '0');
    aus += FuelleGanz(a.exponent, e, false, {});
  }
  return aus;
}

std::string NichtEndlich(double x, std::string_view dezimal) {
  std::string aus = std::signbit(x) ? "-1" : "1";
  aus += dezimal;
  if (std::isinf(x)) return aus + "#INF";
  return aus + (std::signbit(x) ? "#IND" : "#QNAN");
}

}  // namespace

std::string Format(double x, std::string_view muster, const Zahlzeichen& zz) {
  if (!std::isfinite(x)) return NichtEndlich(x, zz.dezimal);
  const std::vector<std::string_view> teile = Abschnitte(muster);
  std::string_view abschnitt = teile[0];
  double betrag = std::fabs(x);
  bool minus = false;
  if (x == 0) {
    if (teile.size() >= 3 && !teile[2].empty()) abschnitt = teile[2];
  } else if (x < 0) {
    if (teile.size() >= 2 && !teile[1].empty()) abschnitt = teile[1];
    else minus = true;
  }
  if (abschnitt.empty()) return ZahlAlsText(x, zz.dezimal);
  return FormatAbschnitt(betrag, ZerlegeMuster(abschnitt), minus, zz);
}

std::string ZahlText(double x, std::string_view muster) {
  std::string t = Format(x, muster);
  for (char& c : t)
    if (c == ',') c = '.';
  return t;
}

std::string ZahlOderLeer(double x, std::string_view muster) {
  if (x == 0) return {};
  return ZahlText(x, muster);
}

std::string ZahlAlsText(double x, std::string_view dezimal) {
  if (!std::isfinite(x)) return NichtEndlich(x, dezimal);
  const Ziffern z = detail::Zerlege(x);
  if (z.ziffern.empty()) return "0";
  std::string aus = x < 0 ? "-" : "";
  const std::string& d = z.ziffern;
  const int exp10 = z.punkt - 1;
  if (exp10 < -4 || exp10 >= 15) {
    aus += d[0];
    if (d.size() > 1) aus += std::string(dezimal) + d.substr(1);
    aus += exp10 < 0 ? "E-" : "E+";
    const int betrag = exp10 < 0 ? -exp10 : exp10;
    if (betrag < 10) aus += '0';
    return aus + std::to_string(betrag);
  }
  const long laenge = static_cast<long>(d.size());
  if (z.punkt <= 0) return aus + "0" + std::string(dezimal) + std::string(static_cast<std::size_t>(-z.punkt), '0') + d;
  if (z.punkt >= laenge) return aus + d + std::string(static_cast<std::size_t>(z.punkt - laenge), '0');
  return aus + d.substr(0, static_cast<std::size_t>(z.punkt)) + std::string(dezimal) + d.substr(static_cast<std::size_t>(z.punkt));
}

}  // namespace kolm::numbers
