#include "core/main/help_forms.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace kolm::core {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

const char* const kProgrammName = "Kolm";
const char* const kProgrammVersion = "0.1.0";
const char* const kProgrammBeschreibung =
    "Vermessungsberechnungen, Querprofile und Massenermittlung für den Straßen- und Erdbau";

const std::vector<HelpTopic>& HelpTopics() {
  static const std::vector<HelpTopic> topics = {
      {"index", "Inhalt"},
      {"hilfe_benutzen", "Hilfe benutzen"},
      {"menue_datei", "Menü Datei"},
      {"menue_bearbeiten", "Menü Bearbeiten"},
      {"menue_ansicht", "Menü Ansicht"},
      {"menue_werkzeuge", "Menü Werkzeuge"},
      {"menue_fenster", "Menü Fenster"},
      {"menue_hilfe", "Menü Hilfe"},
      {"koordinatensystem", "Koordinatensysteme"},
      // The calculations, in the order of the Werkzeuge menu.
      {"Distanz", "Distanz zwischen 2 Punkten"},
      {"WinkelZwischen3", "Winkel zwischen 3 Punkten"},
      {"Polygonzug", "Polygonzug"},
      {"Absteckdaten", "Absteckdaten"},
      {"Einrechnen", "Einrechnen"},
      {"Kleinpunkte", "Kleinpunkte"},
      {"Form3PktGeradenschnitt", "Rechtwinkeliger Geradenschnitt"},
      {"FormGeradenschnitt", "Geradenschnitt"},
      {"FormParallelenSchnitt", "Geraden-Parallelenschnitt"},
      {"Vorwärtsschnitt", "Vorwärtsschnitt"},
      {"Rückwärtsschnitt", "Rückwärtsschnitt"},
      {"DirekterAnschluß", "Direkter Anschluß"},
      {"IndirekterAnschluß", "Indirekter Anschluß"},
      {"KreisKreis", "Schnittpunkte zweier Kreise"},
      {"GeradeKreis", "Kreis-Geraden-Schnittpunkt"},
      {"KreisTangenten", "Tangenten an Kreis"},
      {"UmkreisMittelpunkt", "Umkreis-Mittelpunkt aus drei Punkten"},
      {"BogenElementeW", "Bogenelemente mit Winkel"},
      {"BogenElementeB", "Bogenelemente mit BA, BE"},
      {"BogenElementeS", "Bogenelemente mit Sehne"},
      {"KreisAbsteckXYS", "Kreisbogenabsteckung mit x, y, s"},
      {"KreisAbsteckB", "Kreisbogenabsteckung mit b"},
      {"FlächeBogenS", "Kreissegment-Fläche mit S"},
      {"FlächeBogenB", "Kreissegment-Fläche mit BA, BE"},
      {"Ausrundung", "Ausrundung"},
      {"FormKlotoide", "Klotoidenberechnung"},
      {"Eilinie", "Eilinie"},
      {"Wendelinie", "Wendelinie"},
      {"Taschenrechner", "Taschenrechner"},
  };
  return topics;
}

namespace {

// Topic names come from forms and buttons; anything that could leave the
// help folder is no topic. Letters beyond ASCII (ä, ö, ü, ß of the form
// names) are whole UTF-8 sequences: none of their bytes is a '/' or '.'.
bool IsTopicName(const std::string& topic) {
  if (topic.empty()) return false;
  for (size_t i = 0; i < topic.size(); ++i) {
    const auto c = static_cast<unsigned char>(topic[i]);
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-')
      continue;
    const size_t folge = (c >= 0xC2 && c <= 0xDF) ? 1 : (c >= 0xE0 && c <= 0xEF) ? 2 : (c >= 0xF0 && c <= 0xF4) ? 3 : 0;
    if (folge == 0 || i + folge >= topic.size()) return false;
    for (size_t k = 1; k <= folge; ++k)
      if ((static_cast<unsigned char>(topic[i + k]) & 0xC0) != 0x80) return false;
    i += folge;
  }
  return true;
}

// Pictures of a page name their file relative to the help folder
// (src="skizzen/x.png"); the page is shown from text, so such a source is
// made a file URL of the help folder. Sources with a scheme or an absolute
// path stay as they are.
std::string BilderAusDemHilfeOrdner(const std::string& html, const std::string& dir) {
  std::error_code fehler;
  std::string basis = std::filesystem::absolute(std::filesystem::path(dir), fehler).generic_string();
  if (fehler) basis = dir;
  if (basis.empty() || basis.front() != '/') basis = "/" + basis;
  std::string out;
  size_t pos = 0;
  static const std::string kSrc = "src=\"";
  for (size_t hit; (hit = html.find(kSrc, pos)) != std::string::npos;) {
    const size_t start = hit + kSrc.size();
    const size_t ende = html.find('"', start);
    out.append(html, pos, start - pos);
    pos = start;
    if (ende == std::string::npos) break;
    const std::string ziel = html.substr(start, ende - start);
    if (!ziel.empty() && ziel.front() != '/' && ziel.find(':') == std::string::npos)
      out += "file://" + basis + "/";
  }
  out.append(html, pos, std::string::npos);
  return out;
}

std::string Escape(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '&': out += "&amp;"; break;
      case '"': out += "&quot;"; break;
      default: out += c;
    }
  }
  return out;
}

}  // namespace

HilfeForm::HilfeForm(forms::Forms& forms, std::string helpDir)
    : Form(forms, "Hilfe", "Kolm-Hilfe"), dir_(std::move(helpDir)) {
  std::vector<std::string> titles;
  for (const HelpTopic& t : HelpTopics()) titles.push_back(t.title);
  add(ControlKind::ListBox, "Themen").items(titles).at(0, 0).width(22);
  add(ControlKind::RichText, "Inhalt").at(0, 1).width(64);
  add(ControlKind::CommandButton, "Cancel").caption("&Schließen").asCancel().at(1, 1);
  setPreferredSize(860, 600);

  on("Themen", Event::Click, [this](Control& c, EventArgs&) {
    const int i = c.listIndex();
    if (choosing_ || i < 0 || i >= static_cast<int>(HelpTopics().size())) return;
    showTopic(HelpTopics()[i].file);
  });
  on("Cancel", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });

  showTopic("");
}

void HilfeForm::showTopic(const std::string& topic) {
  std::string stem = topic.empty() ? "index" : topic;
  if (stem.size() > 5 && stem.compare(stem.size() - 5, 5, ".html") == 0) stem.resize(stem.size() - 5);
  current_ = stem;
  control("Inhalt").setCaption(page(stem));
  int index = -1;
  for (size_t i = 0; i < HelpTopics().size(); ++i)
    if (HelpTopics()[i].file == stem) index = static_cast<int>(i);
  choosing_ = true;
  control("Themen").setListIndex(index);
  choosing_ = false;
}

std::string HilfeForm::page(const std::string& topic) const {
  if (IsTopicName(topic)) {
    std::ifstream in(dir_ + "/" + topic + ".html", std::ios::binary);
    if (in) {
      std::ostringstream text;
      text << in.rdbuf();
      if (!text.str().empty()) return BilderAusDemHilfeOrdner(text.str(), dir_);
    }
  }
  return "<html><body><h1>Hilfethema nicht gefunden</h1>"
         "<p>Zum Thema „" + Escape(topic) + "“ gibt es keine Hilfeseite.</p>"
         "<p>Wählen Sie links ein Thema aus der Liste.</p></body></html>";
}

InfoForm::InfoForm(forms::Forms& forms) : Form(forms, "Info", std::string("Info über ") + kProgrammName) {
  add(ControlKind::Label, "LabelProgramm").caption(kProgrammName).at(0, 0);
  add(ControlKind::Label, "LabelVersion").caption(std::string("Version ") + kProgrammVersion).at(1, 0);
  add(ControlKind::Label, "LabelBeschreibung").caption(kProgrammBeschreibung).at(2, 0);
  add(ControlKind::CommandButton, "OK").caption("OK").asDefault().asCancel().at(3, 0);
  setResizable(false);
  on("OK", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
}

void FormHelp::showTopic(const std::string& topic) {
  forms::Form* form = forms_.show("Hilfe");
  if (auto* hilfe = dynamic_cast<HilfeForm*>(form)) hilfe->showTopic(topic);
}

}  // namespace kolm::core
