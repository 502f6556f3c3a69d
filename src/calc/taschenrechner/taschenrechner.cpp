#include "calc/taschenrechner/taschenrechner.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "core/app/anwendung.h"
#include "forms/forms.h"
#include "forms/keys.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"
#include "points/variablen.h"
#include "points/zahl_feld.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {

// The pi key's own value, coarser than the Pi of the calculations.
constexpr double kPiTaste = 3.1415927;

// Factorials above this overflow a Double.
constexpr double kFakultaetGrenze = 171;

constexpr const char* kFehler = "Taschenrechner Fehler";
constexpr const char* kFehlerStrich = "Taschenrechner-Fehler";

}  // namespace

std::optional<double> ZahlWennZahl(const std::string& text) {
  if (text.empty()) return std::nullopt;
  const char c = text.front();
  if (!(c >= '0' && c <= '9') && c != '.' && c != '-' && c != ',') return std::nullopt;
  return numbers::ZahlLesen(text);
}

TaschenrechnerForm::TaschenrechnerForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "Taschenrechner", "Taschenrechner"), anwendung_(anwendung) {
  setResizable(false);
  setHelpTopic("Taschenrechner");
  add(ControlKind::ListBox, "Stack").at(0, 0, 1, 5).tip("Der Stack: unten steht der oberste Wert (y)");
  add(ControlKind::TextBox, "Text").at(1, 0, 1, 5).draggable().dropTarget()
      .tip("X: Zahl eintippen, Operatoren + - * / % ! ^ rechnen sofort, Leertaste wechselt das Vorzeichen");

  Knopf("Enter", -1, "Enter", 2, 0, [this] { Eingabe(); }, 1, 3);
  control("Enter").asDefault().tip("X auf den Stack legen");
  Knopf("Calc", 0, "±C&hs", 2, 3, [this] { VorzeichenWechseln(); });
  Knopf("Calc", 1, "←", 2, 4, [this] { Zurueck(); });
  control("Calc", 1).tip("Letzte Ziffer löschen");

  Knopf("Trig", 0, "&SIN", 3, 0, [this] { Einstellig([this](double x) { return std::sin(x * anwendung_.zustand().WinkelFaktor); }); });
  Knopf("Trig", 1, "ArcS&IN", 3, 1, [this] {
    Einstellig([this](double x) { return kernel::ArcusSinus(x) / anwendung_.zustand().WinkelFaktor; },
               [](double x) -> std::optional<Fehler> {
                 if (std::fabs(x) > 1) return Fehler{kFehlerStrich, "Arcus-Sinus ist nur zwischen -1 und 1 möglich!"};
                 return std::nullopt;
               });
  });
  Knopf("Trig", 2, "&COS", 4, 0, [this] { Einstellig([this](double x) { return std::cos(x * anwendung_.zustand().WinkelFaktor); }); });
  Knopf("Trig", 3, "ArcC&OS", 4, 1, [this] {
    Einstellig([this](double x) { return kernel::ArcusCosinus(x) / anwendung_.zustand().WinkelFaktor; },
               [](double x) -> std::optional<Fehler> {
                 if (std::fabs(x) > 1) return Fehler{kFehlerStrich, "Arcus-Cosinus ist nur zwischen -1 und 1 möglich!"};
                 return std::nullopt;
               });
  });
  Knopf("Trig", 4, "&TAN", 5, 0, [this] { Einstellig([this](double x) { return std::tan(x * anwendung_.zustand().WinkelFaktor); }); });
  Knopf("Trig", 5, "ArcT&AN", 5, 1, [this] { Einstellig([this](double x) { return std::atan(x) / anwendung_.zustand().WinkelFaktor; }); });

  const Pruefung logarithmus = [](double x) -> std::optional<Fehler> {
    if (x <= 0) return Fehler{kFehlerStrich, "Der Logarithmus von negativen Zahlen ist nicht definiert!"};
    return std::nullopt;
  };
  Knopf("Log", 0, "L&N x", 6, 0, [this, logarithmus] { Einstellig([](double x) { return std::log(x); }, logarithmus); });
  Knopf("Log", 1, "e^x", 6, 1, [this] { Einstellig([](double x) { return std::exp(x); }); });
  Knopf("Log", 2, "LO&G x", 7, 0, [this, logarithmus] { Einstellig([](double x) { return std::log10(x); }, logarithmus); });
  Knopf("Log", 3, "1&0^x", 7, 1, [this] { Einstellig([](double x) { return std::pow(10.0, x); }); });

  Knopf("Funk", 0, "&1/x", 3, 2, [this] {
    Einstellig([](double x) { return 1 / x; }, [](double x) -> std::optional<Fehler> {
      if (x == 0) return Fehler{kFehler, "Der Kehrwert von 0 ist nicht definiert!"};
      return std::nullopt;
    });
  });
  Knopf("Funk", 1, "π", 3, 3, [this] { PiTaste(); });
  Knopf("Funk", 2, "x²", 4, 2, [this] { Einstellig([](double x) { return x * x; }); });
  Knopf("Funk", 3, "√x", 4, 3, [this] {
    Einstellig([](double x) { return std::sqrt(x); }, [](double x) -> std::optional<Fehler> {
      if (x < 0) return Fehler{kFehler, "Wurzelziehen kann man nur von positiven Zahlen!"};
      return std::nullopt;
    });
  });
  Knopf("Funk", 6, "y^x", 5, 2, [this] { Zweistellig([](double y, double x) { return std::pow(y, x); }); });
  Knopf("Funk", 7, "y^(1/x)", 5, 3, [this] {
    Zweistellig([](double y, double x) { return std::pow(y, 1 / x); }, [](double x) -> std::optional<Fehler> {
      if (x == 0)
        return Fehler{kFehlerStrich,
                      "Glauben Sie wirklich, daß man heutzutage\nschon die Nullte Wurzel ziehen kann?"};
      return std::nullopt;
    });
  });
  Knopf("Funk", 4, "%", 6, 2, [this] { Einstellig([](double x) { return x / 100; }); });
  Knopf("Funk", 5, "x!", 6, 3, [this] { Fakultaet(); });

  Knopf("Calc", 4, "/", 3, 4, [this] {
    Zweistellig([](double y, double x) { return y / x; }, [](double x) -> std::optional<Fehler> {
      if (x == 0) return Fehler{"Overflow", "Die Division durch 0 ist nicht definiert"};
      return std::nullopt;
    });
  });
  Knopf("Calc", 3, "*", 4, 4, [this] { Zweistellig([](double y, double x) { return y * x; }); });
  Knopf("Calc", 7, "-", 5, 4, [this] { Zweistellig([](double y, double x) { return y - x; }); });
  Knopf("Calc", 6, "+", 6, 4, [this] { Zweistellig([](double y, double x) { return y + x; }); }, 2, 1);
  Knopf("Calc", 2, "x ~ y", 7, 2, [this] { Tauschen(); }, 1, 2);
  control("Calc", 2).tip("X mit dem obersten Wert des Stacks tauschen");

  Knopf("LetztLöschen", -1, "Let&ztes löschen", 8, 0, [this] { LetztesLoeschen(); }, 1, 2);
  Knopf("Löschen", -1, "Stack &löschen", 8, 2, [this] { StackLoeschen(); }, 1, 3);

  // The Bearbeiten menu runs these instead of working on the active field.
  add(ControlKind::CommandButton, "Ausschneiden").hidden();
  add(ControlKind::CommandButton, "Kopieren").hidden();
  add(ControlKind::CommandButton, "Einfügen").hidden();
  on("Ausschneiden", Event::Click, [this](forms::Control&, forms::EventArgs&) { Ausschneiden(); });
  on("Kopieren", Event::Click, [this](forms::Control&, forms::EventArgs&) { Kopieren(); });
  on("Einfügen", Event::Click, [this](forms::Control&, forms::EventArgs&) { Einfuegen(); });

  on("Text", Event::KeyPress, [this](forms::Control& feld, forms::EventArgs& args) { Tasten(feld, args); });
  on("Text", Event::DragDrop, [this](forms::Control&, forms::EventArgs& args) {
    if (!args.source) return;
    if (const std::optional<double> wert = ZahlAusQuelle(*args.source)) WertSetzen(*wert);
  });
}

void TaschenrechnerForm::Knopf(const std::string& name, int index, const std::string& caption, int zeile,
                               int spalte, std::function<void()> befehl, int zeilen, int spalten) {
  add(ControlKind::CommandButton, name, index).caption(caption).at(zeile, spalte, zeilen, spalten);
  auto& befehle = befehle_[name];
  // One handler serves a whole control array.
  if (befehle.empty())
    on(name, Event::Click, [this, name](forms::Control& knopf, forms::EventArgs&) {
      const auto& liste = befehle_.at(name);
      const auto it = liste.find(knopf.index());
      if (it == liste.end()) return;
      it->second();
      // Every button hands the focus back to the display, so typing goes on.
      if (loaded()) control("Text").setFocus();
    });
  befehle[index] = std::move(befehl);
}

void TaschenrechnerForm::Load() {
  stapel_.Leeren();
  fertig_ = false;
  StapelZeigen();
  control("Text").setFocus();
}

// ---- keys

void TaschenrechnerForm::Tasten(forms::Control& feld, forms::EventArgs& args) {
  std::string text = feld.text();
  switch (points::VariablenTaste(anwendung_.zustand(), args.keyAscii, text)) {
    case points::VariablenWirkung::Eingesetzt:
      feld.setText(text);
      feld.setSelection(forms::utf8::Length(text), 0);
      fertig_ = false;
      return;
    case points::VariablenWirkung::Gespeichert:
      anwendung_.RefreshVariablen();
      return;
    case points::VariablenWirkung::Keine:
      break;
  }
  const int taste = args.keyAscii;
  if ((taste >= '0' && taste <= '9') || taste == ',' || taste == '.') {
    if (fertig_) {
      feld.setText("");
      fertig_ = false;
    }
    return;  // the field takes the character
  }
  if (taste < 32 && taste != 8 && taste != 13) return;  // control keys keep their own meaning
  args.keyAscii = 0;
  auto knopf = [this](const char* name, int index = -1) { control(name, index).click(); };
  switch (taste) {
    case ' ': knopf("Calc", 0); break;
    case 8: knopf("Calc", 1); break;
    case '*': knopf("Calc", 3); break;
    case '/': knopf("Calc", 4); break;
    case '+': knopf("Calc", 6); break;
    case '-': knopf("Calc", 7); break;
    case 13: knopf("Enter"); break;
    case '%': knopf("Funk", 4); break;
    case '!': knopf("Funk", 5); break;
    case '^': knopf("Funk", 6); break;
    default: break;  // nothing else belongs in a number
  }
}

// ---- X and the display

std::optional<double> TaschenrechnerForm::X() {
  return points::FeldZahl(services().messages, control("Text").text());
}

bool TaschenrechnerForm::Zeigbar(double wert) {
  if (std::isnan(wert)) return false;  // a failed statement: nothing changes
  if (std::isinf(wert)) {
    if (services().messages)
      services().messages->show({std::string(numbers::UeberlaufMeldung), forms::ProgrammName, forms::Buttons::OK,
                                 forms::Icon::Critical});
    return false;
  }
  return true;
}

void TaschenrechnerForm::Zeigen(double wert) {
  forms::Control& text = control("Text");
  text.setText(numbers::ZahlText(wert, RechnerMuster(wert)));
  text.setSelection(forms::utf8::Length(text.text()), 0);
  fertig_ = true;
}

void TaschenrechnerForm::StapelZeigen() {
  forms::Control& liste = control("Stack");
  liste.setList(stapel_.Zeilen());
  // The top stands last; selecting it keeps it in view.
  if (liste.listCount() > 0) liste.setListIndex(liste.listCount() - 1);
}

void TaschenrechnerForm::Melden(const Fehler& fehler) {
  if (services().messages)
    services().messages->show({fehler.text, fehler.titel, forms::Buttons::OK, forms::Icon::Exclamation});
}

// ---- operations

void TaschenrechnerForm::Einstellig(const std::function<double(double)>& f, const Pruefung& pruefung) {
  const std::optional<double> x = X();
  if (!x) return;
  if (pruefung) {
    if (const std::optional<Fehler> fehler = pruefung(*x)) return Melden(*fehler);
  }
  const double wert = f(*x);
  if (Zeigbar(wert)) Zeigen(wert);
}

void TaschenrechnerForm::Zweistellig(const std::function<double(double, double)>& f, const Pruefung& pruefung) {
  const std::optional<double> x = X();
  if (!x) return;
  if (pruefung) {
    if (const std::optional<Fehler> fehler = pruefung(*x)) return Melden(*fehler);
  }
  // y is taken only once the result stands: a failure leaves the stack.
  const double wert = f(stapel_.Oben(), *x);
  if (!Zeigbar(wert)) return;
  stapel_.Pop();
  StapelZeigen();
  Zeigen(wert);
}

void TaschenrechnerForm::VorzeichenWechseln() {
  // X = -X like every other key: a number being typed is taken as X first,
  // and the negated value is a finished result in the display's pattern.
  Einstellig([](double x) { return -x; });
}

void TaschenrechnerForm::Zurueck() {
  forms::Control& feld = control("Text");
  if (fertig_) {
    feld.setText("");
    fertig_ = false;
    return;
  }
  std::string text = feld.text();
  if (text.empty()) return;
  text.resize(forms::utf8::ByteOffset(text, forms::utf8::Length(text) - 1));
  feld.setText(text);
  feld.setSelection(forms::utf8::Length(text), 0);
}

void TaschenrechnerForm::Tauschen() {
  const std::optional<double> x = X();
  if (!x) return;
  const double y = stapel_.Pop();
  stapel_.Push(*x, numbers::ZahlText(*x, RechnerMuster(*x)));
  StapelZeigen();
  Zeigen(y);
}

void TaschenrechnerForm::Eingabe() {
  const std::optional<double> x = X();
  if (!x) return;
  stapel_.Push(*x, numbers::ZahlText(*x, RechnerMuster(*x)));
  StapelZeigen();
  // The text stays; the next digit starts a new number.
  fertig_ = true;
}

void TaschenrechnerForm::PiTaste() {
  const std::optional<double> x = X();
  if (!x) return;
  stapel_.Push(*x, numbers::ZahlText(*x, RechnerMuster(*x)));
  StapelZeigen();
  Zeigen(kPiTaste);
}

void TaschenrechnerForm::Fakultaet() {
  Einstellig(
      [](double x) {
        const double n = numbers::RundeHalbGerade(x);
        double f = 1;
        for (double i = 1; i <= n; ++i) f *= i;
        return f;
      },
      [](double x) -> std::optional<Fehler> {
        if (x < 0) return Fehler{kFehler, "Die Fakultät ist nur für positive Zahlen definiert!"};
        if (x >= kFakultaetGrenze)
          return Fehler{kFehler, "Die Fakultät ist nur für Zahlen\nkleiner oder gleich 170 berechenbar!"};
        return std::nullopt;
      });
}

void TaschenrechnerForm::LetztesLoeschen() {
  stapel_.Pop();
  StapelZeigen();
}

void TaschenrechnerForm::StackLoeschen() {
  stapel_.Leeren();
  StapelZeigen();
}

// ---- values from outside

std::optional<double> TaschenrechnerForm::ZahlAusQuelle(const forms::Control& quelle) const {
  return ZahlWennZahl(quelle.shownText());
}

void TaschenrechnerForm::WertSetzen(double wert) {
  if (Zeigbar(wert)) Zeigen(wert);
  control("Text").setFocus();
}

void TaschenrechnerForm::Kopieren() {
  forms::ClipboardService* ablage = services().clipboard;
  const std::string& text = control("Text").text();
  if (ablage && !text.empty()) ablage->setText(numbers::TextMitSystemKomma(text));
}

void TaschenrechnerForm::Ausschneiden() {
  if (control("Text").text().empty()) return;
  Kopieren();
  control("Text").setText("");
  fertig_ = false;
}

void TaschenrechnerForm::Einfuegen() {
  forms::ClipboardService* ablage = services().clipboard;
  if (!ablage) return;
  std::string text = ablage->text();
  text = text.substr(0, text.find_first_of("\r\n"));
  if (!ZahlWennZahl(text)) return;
  if (const std::optional<double> wert = points::FeldZahl(services().messages, text)) WertSetzen(*wert);
}

}  // namespace kolm::calc
