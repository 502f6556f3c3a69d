// Tabellenauswahl: the list of tables with what the selected one holds, its
// preview, sorting the catalogue and opening a table.
#include <algorithm>
#include <variant>

#include "core/dialogs/tabellen_auswahl.h"
#include "tabelle_umgebung.h"

namespace kolm::core {
namespace {

using forms::Answer;
using testing::TabellenUmgebung;

// The pictures drawn into a picture box.
int Bilder(const forms::Control& box) {
  const auto& befehle = const_cast<forms::Control&>(box).picture().commands();
  return static_cast<int>(std::count_if(befehle.begin(), befehle.end(), [](const auto& b) {
    return std::holds_alternative<forms::DisplayList::Picture>(b);
  }));
}

std::vector<std::string> Liste(const forms::Form& f) { return f.control("List").list(); }

TEST(Tabellenauswahl, ListsTheNamedRowsAndShowsTheSelectedOnesStemsAndSettings) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1", 0.12);
  Tabelle& b = u.zeile(3, "Bach", "B", 1.5, "BP");
  b.M31 = Wahr;
  b.Polar = Wahr;
  b.Dritte = Wahr;
  b.Falschdrehend = Wahr;
  u.anwendung.TabelleOeffnen(3);
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form& f = *u.dialog("Tabellenauswahl");
  EXPECT_EQ(Liste(f), (std::vector<std::string>{"Profil 1", "Bach"}));
  EXPECT_EQ(f.control("List").listIndex(), 1) << "the active table is selected";
  EXPECT_EQ(f.control("LabelStationierung").captionText(), "1.500000");
  EXPECT_EQ(f.control("LabelDateiname").captionText(), "B");
  EXPECT_EQ(f.control("LabelPunkteDatei").captionText(), "BP");
  EXPECT_EQ(f.control("LabelSystem").captionText(), "M31");
  EXPECT_EQ(f.control("LabelPolar").captionText(), "Polar");
  EXPECT_EQ(f.control("LabelDritte").captionText(), "3-D");
  EXPECT_EQ(f.control("LabelDrehsinn").captionText(), "falsch-dreh.");
  EXPECT_EQ(f.control("FrameKoordinatensystem").captionText(), "Koordinatensystem");

  f.control("List").setListIndex(0);
  EXPECT_EQ(f.control("LabelStationierung").captionText(), "0.120000");
  EXPECT_EQ(f.control("LabelDateiname").captionText(), "P1");
  EXPECT_EQ(f.control("LabelSystem").captionText(), "mathem.");
  EXPECT_EQ(f.control("LabelPolar").captionText(), "Rechtw.");
  EXPECT_EQ(f.control("LabelDritte").captionText(), "2-D");
  EXPECT_EQ(f.control("LabelDrehsinn").captionText(), "richtig-dreh");
}

TEST(Tabellenauswahl, ThePreviewIsTheJpgOfTheStemWhenThereIsOne) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(1, "Profil 2", "P2");
  std::ofstream(u.datei("P2.jpg")) << "JPEG";
  u.anwendung.TabelleOeffnen(0);
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form& f = *u.dialog("Tabellenauswahl");
  const forms::Control& bild = f.control("imgVorschau");
  EXPECT_EQ(Bilder(bild), 0);
  f.control("List").setListIndex(1);
  EXPECT_EQ(Bilder(bild), 1);
  ASSERT_FALSE(u.bilder.gelesen.empty());
  EXPECT_EQ(u.bilder.gelesen.back(), u.datei("P2.jpg").string());
  f.control("List").setListIndex(0);
  EXPECT_EQ(Bilder(bild), 0) << "no picture left over from the other table";
}

TEST(Tabellenauswahl, TheLettersFieldStaysWithin0And40) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form& f = *u.dialog("Tabellenauswahl");
  forms::Control& feld = f.control("MinMatch");
  feld.setText("55");
  EXPECT_EQ(feld.text(), "40");
  f.control("Spin1").raise(forms::Event::SpinUp);
  EXPECT_EQ(feld.text(), "40");
  f.control("Spin1").raise(forms::Event::SpinDown);
  EXPECT_EQ(feld.text(), "39");
  feld.setText("-3");
  EXPECT_EQ(feld.text(), "0");
  f.control("Spin1").raise(forms::Event::SpinDown);
  EXPECT_EQ(feld.text(), "0");
  f.control("Spin1").raise(forms::Event::SpinUp);
  EXPECT_EQ(feld.text(), "1");
  feld.setText("");
  TabellenUmgebung::tippen(feld, U"a2x");
  EXPECT_EQ(feld.text(), "2");
  f.sendKey(feld, forms::keys::Up, 0, 0);
  f.sendKey(f.control("Spin1"), forms::keys::Up, 0, 0);
  EXPECT_EQ(feld.text(), "4") << "the arrow keys step as the spin button does";
  f.sendKey(feld, forms::keys::Down, 0, 0);
  EXPECT_EQ(feld.text(), "3");
}

TEST(Tabellenauswahl, SortingOrdersByTheFirstLettersThenTheStationingAndWritesTheCatalogue) {
  TabellenUmgebung u;
  u.zeile(0, "Nord 2", "N2", 0.3);
  u.zeile(2, "Süd 1", "S1", 0.1);
  u.zeile(5, "Nord 1", "N1", 0.2);
  u.zeile(6, "Nebenweg", "NW", 0.05);
  u.anwendung.TabelleOeffnen(5);
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form& f = *u.dialog("Tabellenauswahl");

  f.control("MinMatch").setText("0");
  f.control("Anwenden").click();
  const std::vector<std::string> nachStation{"Nebenweg", "Süd 1", "Nord 1", "Nord 2"};
  EXPECT_EQ(Liste(f), nachStation);
  EXPECT_EQ(u.namenAufPlatte(), nachStation);
  EXPECT_EQ(u.zustand.AktiveTabelle, 2) << "the active table moved with its row";
  EXPECT_EQ(u.zustand.Tabellen[2].TablName, "Nord 1");
  EXPECT_EQ(TabellenUmgebung::gewaehlt(f), "Nord 1") << "the selection stays on its table";

  f.control("MinMatch").setText("3");
  f.control("Anwenden").click();
  const std::vector<std::string> nachName{"Nebenweg", "Nord 1", "Nord 2", "Süd 1"};
  EXPECT_EQ(Liste(f), nachName);
  EXPECT_EQ(u.namenAufPlatte(), nachName);
  EXPECT_EQ(u.zustand.Tabellen[u.zustand.AktiveTabelle].TablName, "Nord 1");
}

TEST(Tabellenauswahl, OkAndDoubleClickOpenTheSelectedTableAnEmptySelectionNothing) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(1, "Profil 2", "P2");
  u.gespeichert(1, 11, 3.5);
  u.anwendung.TabelleOeffnen(0);
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form* f = u.dialog("Tabellenauswahl");
  f->control("List").setListIndex(-1);
  f->control("OK").click();
  EXPECT_EQ(u.zustand.AktiveTabelle, 0);
  EXPECT_NE(u.forms.FormGeladen("Tabellenauswahl"), -1);

  f->control("List").setListIndex(1);
  f->control("OK").click();
  EXPECT_EQ(u.zustand.AktiveTabelle, 1);
  EXPECT_EQ(u.zustand.Punkte[11].A, 3.5);
  EXPECT_EQ(u.dienste.status.text(), "Tabelle Profil 2 geladen");
  EXPECT_EQ(u.main().control("LabelAktTab").captionText(), "Profil 2");
  EXPECT_EQ(u.forms.FormGeladen("Tabellenauswahl"), -1);

  u.menue("MnuDateiÖffnenTabelle");
  f = u.dialog("Tabellenauswahl");
  f->control("List").setListIndex(0);
  f->control("List").doubleClick();
  EXPECT_EQ(u.zustand.AktiveTabelle, 0);
  EXPECT_TRUE(u.zustand.PunktLeer(11));
  EXPECT_EQ(u.forms.FormGeladen("Tabellenauswahl"), -1);
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(Tabellenauswahl, TheSaveQuestionComesOnceFromTheMenuOrOnOkWhenOpenedFromTheMainWindow) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(1, "Profil 2", "P2");
  u.gespeichert(0);
  u.zustand.Punkte[8].A = 1;
  u.zustand.TabelleGeaendert = Wahr;

  u.dienste.messages.queue(Answer::No);
  u.menue("MnuDateiÖffnenTabelle");
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Aktive Tabelle speichern?"}));
  u.dialog("Tabellenauswahl")->control("List").setListIndex(1);
  u.dialog("Tabellenauswahl")->control("OK").click();
  EXPECT_TRUE(u.meldungen().empty()) << "asked once";
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7}));

  u.anwendung.TabelleOeffnen(0);
  u.zustand.Punkte[8].A = 1;
  u.zustand.TabelleGeaendert = Wahr;
  u.main().control("LabelAktTab").click();
  forms::Form& f = *u.dialog("Tabellenauswahl");
  EXPECT_TRUE(u.meldungen().empty());
  u.dienste.messages.queue(Answer::Yes);
  f.control("List").setListIndex(1);
  f.control("OK").click();
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Aktive Tabelle speichern?"}));
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7, 8}));
  EXPECT_EQ(u.zustand.AktiveTabelle, 1);
}

TEST(Tabellenauswahl, WithoutAnyTableTheMenuSaysSoAndOpensNeueTabelle) {
  TabellenUmgebung u;
  u.menue("MnuDateiÖffnenTabelle");
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(u.letzteMeldung().text, "Es sind noch keine Punktetabellen angelegt!");
  EXPECT_EQ(u.letzteMeldung().title, "Öffnen einer Punktetabelle");
  EXPECT_EQ(u.forms.FormGeladen("Tabellenauswahl"), -1);
  ASSERT_NE(u.dialog("NeueTabelle"), nullptr);
  EXPECT_EQ(u.dialog("NeueTabelle")->control("TablName").text(), "Profil 1");
}

TEST(Tabellenauswahl, AnOpenListFollowsNewAndDeletedTables) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.anwendung.TabelleOeffnen(0);
  u.menue("MnuDateiÖffnenTabelle");
  forms::Form& f = *u.dialog("Tabellenauswahl");
  u.menue("MnuDateiNeuTabelle");
  u.dialog("NeueTabelle")->control("OK").click();
  EXPECT_EQ(Liste(f), (std::vector<std::string>{"Profil 1", "Profil 2"}));
  EXPECT_EQ(TabellenUmgebung::gewaehlt(f), "Profil 1") << "the selection stays";
  u.menue("MnuDateiEigenschaftenTabelle");
  u.dienste.messages.queue(Answer::OK);
  u.dialog("TabelleEigenschaften")->control("Löschen").click();
  EXPECT_EQ(Liste(f), (std::vector<std::string>{"Profil 1"}));
}

}  // namespace
}  // namespace kolm::core
