// The program with the form "Probe" added: a field, a button that asks a
// question, and a label that shows the outcome.
#include <QApplication>
#include <iostream>

#include "forms/forms.h"
#include "options.h"
#include "program.h"

namespace {

class Probe : public kolm::forms::Form {
 public:
  explicit Probe(kolm::forms::Forms& forms) : Form(forms, "Probe", "Makro-Probe") {
    using kolm::forms::ControlKind;
    using kolm::forms::Event;
    add(ControlKind::Label, "LabelEingabe").caption("&Wert:").at(0, 0);
    add(ControlKind::TextBox, "Eingabe").at(0, 1).width(12);
    add(ControlKind::CommandButton, "Pruefen").caption("&Prüfen").asDefault().at(1, 1);
    add(ControlKind::Label, "Ergebnis").at(2, 0, 1, 2);
    on("Eingabe", Event::KeyPress, [](kolm::forms::Control&, kolm::forms::EventArgs& a) {
      if (a.keyAscii >= 'A' && a.keyAscii <= 'z') a.keyAscii = 0;  // numbers only
    });
    on("Pruefen", Event::Click, [this](kolm::forms::Control&, kolm::forms::EventArgs&) {
      const std::string wert = control("Eingabe").text();
      const auto answer = services().messages->show({"Eingabe " + wert + " übernehmen?", "Probe",
                                                     kolm::forms::Buttons::YesNo,
                                                     kolm::forms::Icon::Question});
      control("Ergebnis").setCaption(answer == kolm::forms::Answer::Yes ? "Übernommen: " + wert
                                                                        : "Verworfen");
    });
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  std::vector<std::string> args(argv + 1, argv + argc);
  const kolm::app::Options options = kolm::app::ParseArguments(args);
  if (!options.fehler.empty() || options.makro.empty()) {
    std::cerr << "Aufruf: kolm_probe --makro DATEI [PROJEKTVERZEICHNIS]" << std::endl;
    return 2;
  }
  kolm::app::Program program(options, [](kolm::forms::Forms& forms) {
    forms.registerForm("Probe", [](kolm::forms::Forms& f) { return std::make_unique<Probe>(f); });
  });
  return program.runMacro(options.makro, std::cout);
}
