#include "core/dialogs/projekt_oeffnen.h"

#include <filesystem>

#include "core/app/anwendung.h"
#include "core/catalog/katalog_hilfen.h"
#include "core/catalog/projekte.h"
#include "core/dialogs/projekt_eingabe.h"
#include "core/profile/profile.h"

namespace kolm::core {

namespace fs = std::filesystem;
using forms::Answer;
using forms::Buttons;
using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;
using forms::Icon;

namespace {

// Folders in "projects" are read as at the start, so the list offers what
// the start would find.
constexpr std::size_t kOrdnerPuffer = 100;

bool Blank(const std::string& text) { return text.find_first_not_of(" \t") == std::string::npos; }

}  // namespace

ProjektOeffnenForm::ProjektOeffnenForm(forms::Forms& forms, Anwendung& anwendung)
    : Form(forms, "ProjektÖffnen", "Projekt öffnen"), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::Label, "LabelListe").caption("&Bekannte Projekte:").at(0, 0);
  add(ControlKind::ListBox, "List").width(46).at(1, 0, 4, 1);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().disabled().width(20).at(1, 1);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().width(20).at(2, 1);
  add(ControlKind::CommandButton, "cmdRemove").caption("Aus &Liste entfernen").disabled().width(20).at(3, 1);
  add(ControlKind::Label, "LabelVerzeichnis").caption("&Verzeichnis:").at(5, 0);
  add(ControlKind::TextBox, "Directory").width(46).at(6, 0);
  add(ControlKind::CommandButton, "Drive").caption("&Durchsuchen...").width(20).at(6, 1);
  add(ControlKind::Label, "lblInfo").at(7, 0, 1, 2);

  on("List", Event::Click, [this](Control&, EventArgs&) { eintragGewaehlt(); });
  on("List", Event::DblClick, [this](Control&, EventArgs&) {
    if (control("OK").enabled()) ok();
  });
  on("Directory", Event::Change, [this](Control&, EventArgs&) { ordnerGeaendert(); });
  on("Drive", Event::Click, [this](Control&, EventArgs&) { durchsuchen(); });
  on("cmdRemove", Event::Click, [this](Control&, EventArgs&) { entfernen(); });
  on("OK", Event::Click, [this](Control&, EventArgs&) { ok(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void ProjektOeffnenForm::Load() {
  const Zustand& z = anwendung_.zustand();
  const BekannteProjekte bekannt = BekannteProjekteLesen(z.ProgrammIni);
  if (bekannt.meldung && services().messages) services().messages->show(*bekannt.meldung);
  control("List").setList(bekannt.namen);
  // The open project stands selected, so the list shows where one is.
  const std::u32string offen = katalog_hilfen::Zeichen(z.ProjektName);
  for (int i = 0; i < static_cast<int>(bekannt.namen.size()); ++i)
    if (katalog_hilfen::VergleichOhneGrossKlein(katalog_hilfen::Zeichen(bekannt.namen[i]), offen) == 0) {
      control("List").setListIndex(i);
      break;
    }
  control("List").setFocus();
}

void ProjektOeffnenForm::eintragGewaehlt() {
  Control& liste = control("List");
  const int i = liste.listIndex();
  control("cmdRemove").setEnabled(i >= 0);
  if (i < 0 || i >= liste.listCount()) return;
  // An entry without a folder reads as the program's folder, as at the start.
  const Zustand& z = anwendung_.zustand();
  const std::string ordner =
      profile::ReadString(z.ProgrammIni, "projects", liste.list()[i], z.ProgrammVerzeichnis, kOrdnerPuffer);
  control("Directory").setText(ordner);
  ordnerGeaendert();  // also when the field held that folder already
}

void ProjektOeffnenForm::ordnerGeaendert() {
  const std::string text = control("Directory").text();
  if (Blank(text)) {
    control("lblInfo").setCaption("");
    control("OK").setEnabled(false);
    return;
  }
  const ProjektOrdnerInfo info = ProjektOrdnerPruefen(OrdnerAusEingabe(text));
  control("lblInfo").setCaption(info.text);
  control("OK").setEnabled(info.istProjekt);
}

void ProjektOeffnenForm::entfernen() {
  Control& liste = control("List");
  const int i = liste.listIndex();
  if (i < 0 || i >= liste.listCount() || !services().messages) return;
  const std::string name = liste.list()[i];
  const Answer a = services().messages->show({"Wollen Sie das Projekt [" + name +
                                                  "] aus dieser Liste entfernen?\nHinweis: Das Verzeichnis "
                                                  "wird nicht gelöscht.",
                                              "Projekt entfernen", Buttons::YesNo, Icon::Question});
  if (a != Answer::Yes) return;
  profile::DeleteKey(anwendung_.zustand().ProgrammIni, "projects", name);
  liste.removeItem(i);
  liste.setListIndex(-1);
  control("cmdRemove").setEnabled(false);
}

void ProjektOeffnenForm::durchsuchen() {
  forms::FileDialogService* dateien = services().files;
  if (!dateien) return;
  const std::string jetzt = control("Directory").text();
  forms::FileRequest r;
  r.title = "Projekt öffnen";
  r.filter = std::string("Kolm-Projekte (") + ProjektDatei + ")|" + ProjektDatei + "|Alle Dateien (*.*)|*.*";
  r.directory = Blank(jetzt) ? StandardBasisOrdner(anwendung_.zustand(), anwendung_.DemoVerzeichnis())
                             : OrdnerAusEingabe(jetzt);
  const std::optional<std::string> gewaehlt = dateien->choose(r);
  if (!gewaehlt || Blank(*gewaehlt)) return;
  // A file stands for its folder; a folder for itself.
  std::error_code ec;
  std::string pfad = katalog_hilfen::Ordner(*gewaehlt);
  while (pfad.size() > 1 && pfad.back() == '/') pfad.pop_back();
  const std::string ordner = fs::is_directory(pfad, ec) ? pfad : fs::path(pfad).parent_path().string();
  control("Directory").setText(OrdnerAusEingabe(ordner));
}

void ProjektOeffnenForm::ok() {
  const std::string ordner = OrdnerAusEingabe(control("Directory").text());
  if (ordner.empty() || !IstProjektOrdner(ordner)) return;
  this->forms().unload(*this);
  forms::BusyGuard busy(anwendung_.dienste().busy);
  anwendung_.ProjektOeffnen(ordner);
}

}  // namespace kolm::core
