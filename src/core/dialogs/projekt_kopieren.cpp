#include "core/dialogs/projekt_kopieren.h"

#include <filesystem>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/io/files.h"
#include "core/catalog/projekte.h"
#include "core/dialogs/fortschritt.h"
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

constexpr const char* kTitel = "Projekt kopieren";

bool GleicherOrdner(const std::string& a, const std::string& b) {
  std::error_code ec;
  return fs::path(a).lexically_normal() == fs::path(b).lexically_normal() || fs::equivalent(a, b, ec);
}

}  // namespace

void ProjektKopieren(Anwendung& anwendung, const ProjektKopieAuftrag& auftrag) {
  Zustand& z = anwendung.zustand();
  forms::Forms& forms = anwendung.forms();
  for (const char* offen : {"Berechnen", "LVEditieren"})
    if (forms::Form* f = forms.find(offen)) forms.unload(*f);

  forms::BusyGuard busy(anwendung.dienste().busy);
  // The copy takes the catalogue and active table as they are now.
  anwendung.KatalogSpeichern();
  if (!z.ProjektIni.empty())
    profile::WriteString(z.ProjektIni, "Defaults", "Aktive Tabelle", std::to_string(z.AktiveTabelle));

  auto* fortschritt = dynamic_cast<FortschrittForm*>(forms.load("frmProgress"));
  if (fortschritt) {
    fortschritt->setCaption(kTitel);
    forms.show(*fortschritt);
  }
  const auto zeigen = [&](const std::string& text, double anteil) {
    if (fortschritt && fortschritt->loaded()) fortschritt->Zeigen(text, anteil);
  };

  const std::vector<KopierSchritt> schritte = ProjektKopieDateien(z, z.ProjektVerzeichnis, auftrag.ordner);
  const double gesamt = static_cast<double>(schritte.size() + 1);
  zeigen("Projekt " + auftrag.name + " erstellen", 0);
  bool benannt = false;
  const auto benennen = [&] {
    if (benannt) return;
    benannt = true;
    profile::WriteString(auftrag.ordner + ProjektDatei, "Project", "Name", auftrag.name);
  };
  for (std::size_t i = 0; i < schritte.size(); ++i) {
    const KopierSchritt& s = schritte[i];
    if (!s.text.empty()) {
      benennen();  // the project files are all copied by now
      zeigen(s.text, static_cast<double>(i + 1) / gesamt);
    }
    // A failed file is left out, as the copy goes on with the others.
    io::CopyFileAtomically(s.quelle, s.ziel);
  }
  benennen();
  zeigen("Projekt " + auftrag.name + " erstellen", 1);
  if (fortschritt && fortschritt->loaded()) forms.unload(*fortschritt);

  anwendung.Status("Projekt " + auftrag.name + " wurde kopiert");
  if (auftrag.eintragen) profile::WriteString(z.ProgrammIni, "projects", auftrag.name, auftrag.ordner);
  if (auftrag.danachOeffnen) {
    if (IstProjektOrdner(auftrag.ordner)) {
      anwendung.ProjektOeffnen(auftrag.ordner);
    } else if (forms::MessageService* m = anwendung.dienste().messages) {
      // The exclamation icon brings the system's warning sound along.
      m->show({"Konnte kopiertes Projekt nicht öffnen!", kTitel, Buttons::OK, Icon::Exclamation});
    }
  }
}

ProjektKopierenForm::ProjektKopierenForm(forms::Forms& forms, Anwendung& anwendung)
    : Form(forms, "ProjektKopieren", "Projekt kopieren nach"), anwendung_(anwendung) {
  setResizable(false);
  add(ControlKind::Label, "LabelName").caption("&Name der Kopie:").at(0, 0);
  add(ControlKind::TextBox, "TextProjektName").width(24).at(0, 1);
  add(ControlKind::Label, "LabelPfad").caption("&Verzeichnis:").at(1, 0);
  add(ControlKind::TextBox, "TextDir").width(46).at(1, 1);
  add(ControlKind::CommandButton, "cmdDurchsuchen").caption("&Durchsuchen...").at(1, 2);
  add(ControlKind::CheckBox, "chkEintragen").caption("In die &Liste der Projekte eintragen").at(2, 1, 1, 2);
  add(ControlKind::CheckBox, "chkOpenAfterwards").caption("Kopie anschließend ö&ffnen").at(3, 1, 1, 2);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().width(12).at(0, 3);
  add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().width(12).at(1, 3);

  felder_ = std::make_unique<NameUndOrdner>(
      *this, StandardBasisOrdner(anwendung_.zustand(), anwendung_.DemoVerzeichnis()));
  on("OK", Event::Click, [this](Control&, EventArgs&) { ok(); });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void ProjektKopierenForm::Load() {
  control("chkEintragen").setValue(1);
  control("chkOpenAfterwards").setValue(0);
  control("TextProjektName").setFocus();
}

void ProjektKopierenForm::ok() {
  ProjektKopieAuftrag auftrag;
  auftrag.name = felder_->name();
  auftrag.ordner = felder_->ordner();
  auftrag.eintragen = control("chkEintragen").value() == 1;
  auftrag.danachOeffnen = control("chkOpenAfterwards").value() == 1;
  if (auftrag.name.empty() || auftrag.ordner.empty()) return;
  forms::MessageService* meldungen = services().messages;
  const auto frage = [&](std::string text, Buttons knoepfe) {
    forms::Message m{std::move(text), kTitel, knoepfe, Icon::Exclamation};
    return meldungen ? meldungen->show(m) : Answer::OK;
  };

  const Zustand& z = anwendung_.zustand();
  // Copying a project onto itself would only rename it.
  if (GleicherOrdner(auftrag.ordner, z.ProjektVerzeichnis)) {
    frage("Ein Projekt kann nicht in sein eigenes Verzeichnis kopiert werden!", Buttons::OK);
    return;
  }
  if (ProjektNameBekannt(z.ProgrammIni, auftrag.name) &&
      frage("Es existiert schon ein Projekt unter dem Namen '" + auftrag.name +
                "'!\nWollen Sie den Projektnamen nun für diese Kopie verwenden und das Kopieren fortsetzen?",
            Buttons::OKCancel) != Answer::OK)
    return;
  std::error_code ec;
  if (fs::is_directory(auftrag.ordner, ec)) {
    if (frage("Ordner '" + auftrag.ordner + "' existiert bereits!\nEventuell vorhandene Daten werden überschrieben.",
              Buttons::OKCancel) != Answer::OK)
      return;
  } else {
    bool warDa = false;
    if (!OrdnerAnlegen(auftrag.ordner, warDa)) {
      frage("Das Verzeichnis " + auftrag.ordner + " konnte nicht angelegt werden!", Buttons::OK);
      return;
    }
  }
  this->forms().unload(*this);
  ProjektKopieren(anwendung_, auftrag);
}

}  // namespace kolm::core
