// The table dialogs' rules: stems from names, what the stem fields accept,
// the proposed name, the checks on OK with their messages and answers,
// filling a row.
#include "core/catalog/tabellen_eingabe.h"

#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;
using Art = TabellenBefund::Art;

// ---- Stems -------------------------------------------------------------------------

TEST(DateinameAusName, WalksFromTheEndUntilALetterBeforeADigit) {
  const std::vector<std::pair<std::string, std::string>> faelle = {
      {"Profil 12", "P12"},
      {"A-1", "A-1"},
      {"x_1-2", "x_1-2"},
      {"Km 1+250", "K1250"},     // "+" and blanks skipped
      {"Straße 3a", "S3a"},      // a letter after the number is kept
      {"12 Profil", "12Profil"},  // the walk reached the start: nothing put in front
      {"Profil", "Profil"},
      {"Abschnitt Nord", "Abschnit"},
      {"Profil 123456789", "P1234567"},  // cut to 8 after the first character went in front
      {"Ölfeld 2", "Ö2"},                // the first character, whatever it is
      {"Maß 1", "M1"},
      {"   ", ""},
      {"", ""},
      {"...", ""},
      {"7", "7"},
  };
  for (const auto& [name, stamm] : faelle) EXPECT_EQ(DateinameAusName(name), stamm) << name;
}

TEST(StammZeichen, DigitsLettersUnderscoreAndHyphenOnly) {
  for (char32_t c : {U'0', U'9', U'a', U'z', U'A', U'Z', U'_', U'-'}) EXPECT_TRUE(StammZeichenZulaessig(c)) << static_cast<unsigned>(c);
  for (char32_t c : {U' ', U'.', U'/', U'\\', U'ä', U'ß', U'+', U'*', U'"', U':', U'€'})
    EXPECT_FALSE(StammZeichenZulaessig(c)) << static_cast<unsigned>(c);
  EXPECT_TRUE(StammZeichenZulaessig(8)) << "Backspace still deletes";
  EXPECT_EQ(StammFiltern("P 1.ä-_x\b/"), "P1-_x");
  EXPECT_EQ(StammKuerzen("ABCDEFGHIJ"), "ABCDEFGH");
  EXPECT_EQ(StammKuerzen("ÄÖÜäöüßxyz"), "ÄÖÜäöüßx") << "eight characters, not bytes";
  EXPECT_EQ(StammKuerzen("kurz"), "kurz");
}

// ---- Proposed name --------------------------------------------------------------------

TEST(NamensVorschlag, ATrailingNumberIsRaisedByOne) {
  const std::vector<std::pair<std::string, std::string>> faelle = {
      {"Profil 7", "Profil 8"}, {"Profil 09", "Profil 10"}, {"Profil 99", "Profil 100"},
      {"7", "8"},               {"Km 1.5", "Km 1.6"},       {"Profil 7  ", "Profil 8"},
      {"Achse", "Achse 2"},     {"", "Profil 1"},           {"   ", "Profil 1"},
  };
  for (const auto& [name, vorschlag] : faelle) EXPECT_EQ(NamensVorschlag(name), vorschlag) << name;
  EXPECT_FALSE(NamensVorschlag("P 99999999999999999999999").empty());
}

TEST(NamensVorschlag, ComesFromTheActiveRow) {
  Umgebung u;
  EXPECT_EQ(NamensVorschlag(u.z()), "Profil 1");
  u.zeile(4) = Zeile("Querprofil 41");
  u.z().AktiveTabelle = 4;
  EXPECT_EQ(NamensVorschlag(u.z()), "Querprofil 42");
  u.z().AktiveTabelle = 5;  // a blank row
  EXPECT_EQ(NamensVorschlag(u.z()), "Profil 1");
  u.z().AktiveTabelle = 501;
  EXPECT_EQ(NamensVorschlag(u.z()), "Profil 1");
}

TEST(KoordinatenSystem, EntriesOneAndThreeAreM31TwoAndThreeFalschdrehend) {
  EXPECT_EQ(KoordinatenSystemEintrag(false, false), 0);
  EXPECT_EQ(KoordinatenSystemEintrag(true, false), 1);
  EXPECT_EQ(KoordinatenSystemEintrag(false, true), 2);
  EXPECT_EQ(KoordinatenSystemEintrag(true, true), 3);
  for (int e = 0; e < 4; ++e) {
    EXPECT_EQ(KoordinatenSystemEintrag(KoordinatenSystemM31(e), KoordinatenSystemFalschdrehend(e)), e);
  }
  EXPECT_FALSE(KoordinatenSystemM31(-1));
  EXPECT_FALSE(KoordinatenSystemFalschdrehend(4));
}

// ---- Checks on OK -----------------------------------------------------------------------

TabellenEingabe Eingabe(const std::string& name, const std::string& datei, const std::string& pkt,
                        const std::string& station = "") {
  TabellenEingabe e;
  e.TablName = name;
  e.Dateiname = datei;
  e.PktDateiName = pkt;
  e.Stationierung = station;
  return e;
}

struct Pruefen : ::testing::Test {
  Umgebung u;
  forms::ScriptedMessages antworten;
  void SetUp() override {
    u.zeile(0) = Zeile("Profil 1", 1.5, "P1", "P1");
    u.zeile(2) = Zeile("Profil 2", 2.25, "P2", "P2");
    u.zeile(3) = Zeile("Achse", 0, "ACHSE", "P2");
  }
  TabellenEntscheidung Abarbeiten(const TabellenPruefung& p) { return TabellenPruefungAbarbeiten(p, antworten); }
  std::vector<std::string> Gezeigt() {
    std::vector<std::string> t;
    for (const auto& m : antworten.shown()) t.push_back(m.message.text);
    return t;
  }
};

TEST_F(Pruefen, AFreshNameAndStemsTakeTheFirstBlankRow) {
  const TabellenPruefung p =
      TabellenEingabePruefen(u.z(), Eingabe("Profil 3", "P3", "P3", "12,5"), TabellenDialog::Neu);
  EXPECT_TRUE(p.befunde.empty());
  EXPECT_EQ(p.zeile, 1);
  EXPECT_EQ(p.stationierung, 12.5) << "read comma-tolerant";
  const TabellenEntscheidung e = Abarbeiten(p);
  EXPECT_TRUE(e.weiter);
  EXPECT_EQ(e.zeile, 1);
  EXPECT_EQ(e.stationierung, 12.5);
  EXPECT_FALSE(e.punkteGemeinsam);
  EXPECT_TRUE(antworten.shown().empty());
}

TEST_F(Pruefen, ANameInUseIsRefusedBeforeAnythingElseOfThatRow) {
  const TabellenPruefung p = TabellenEingabePruefen(u.z(), Eingabe("Profil 2", "P2", "P2"), TabellenDialog::Neu);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::NameVergeben);
  EXPECT_EQ(p.befunde[0].zeile, 2);
  EXPECT_EQ(p.befunde[0].meldung.buttons, forms::Buttons::OK);  // its text: the dialog's tests
  const TabellenEntscheidung e = Abarbeiten(p);
  EXPECT_FALSE(e.weiter);
  EXPECT_EQ(Gezeigt().size(), 1u);
  // Names compare exactly.
  EXPECT_TRUE(TabellenEingabePruefen(u.z(), Eingabe("profil 2", "X", "X"), TabellenDialog::Neu).befunde.empty());
}

TEST_F(Pruefen, AStemInUseIsRefusedWithTheStemAsItWouldBeStored) {
  u.zeile(5) = Zeile("Lang", 0, "ABCDEFGH", "L");
  const TabellenPruefung p =
      TabellenEingabePruefen(u.z(), Eingabe("Neu", "ABCDEFGHIJ", "N"), TabellenDialog::Duplizieren);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::DateinameVergeben);
  EXPECT_NE(p.befunde[0].meldung.text.find("Der Dateiname ABCDEFGH "), std::string::npos);
  EXPECT_FALSE(Abarbeiten(p).weiter);
}

TEST_F(Pruefen, ASharedPointFileAsksAndOkSharesItCancelKeepsTheDialog) {
  const TabellenPruefung p =
      TabellenEingabePruefen(u.z(), Eingabe("Profil 1a", "P1A", "P1", "1,5"), TabellenDialog::Neu, -1, ",");
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::PunkteGemeinsam);  // its text and buttons: the dialog's tests
  antworten.queue(forms::Answer::OK);
  const TabellenEntscheidung e = Abarbeiten(p);
  EXPECT_TRUE(e.weiter);
  EXPECT_TRUE(e.punkteGemeinsam);
  EXPECT_EQ(e.stationierung, 1.5);
  EXPECT_EQ(Gezeigt().size(), 1u) << "equal stationing: no question";
  antworten.queue(forms::Answer::Cancel);
  EXPECT_FALSE(Abarbeiten(p).weiter);
}

TEST_F(Pruefen, AnotherStationingIsOfferedAndYesTakesItOver) {
  for (const auto antwort : {forms::Answer::Yes, forms::Answer::No}) {
    antworten.shown().clear();
    const TabellenPruefung p =
        TabellenEingabePruefen(u.z(), Eingabe("Neu", "N", "P1", "7"), TabellenDialog::Neu, -1, ",");
    antworten.queue(forms::Answer::OK);
    antworten.queue(antwort);
    const TabellenEntscheidung e = Abarbeiten(p);
    ASSERT_EQ(Gezeigt().size(), 2u);
    EXPECT_EQ(Gezeigt()[1], "Soll die Stationierung 1,5 aus Tabelle 'Profil 1' übernommen werden?");
    EXPECT_EQ(antworten.shown()[1].message.buttons, forms::Buttons::YesNo);
    EXPECT_TRUE(e.weiter);
    EXPECT_EQ(e.stationierung, antwort == forms::Answer::Yes ? 1.5 : 7);
  }
}

TEST_F(Pruefen, EveryRowSharingThePointFileIsAskedAboutInRowOrder) {
  // Rows 2 and 3 share "P2"; the second question compares with the value
  // taken over from the first.
  const TabellenPruefung p =
      TabellenEingabePruefen(u.z(), Eingabe("Neu", "N", "P2", "0"), TabellenDialog::Neu, -1, ".");
  ASSERT_EQ(p.befunde.size(), 2u);
  EXPECT_EQ(p.befunde[0].zeile, 2);
  EXPECT_EQ(p.befunde[1].zeile, 3);
  antworten.queue(forms::Answer::OK);
  antworten.queue(forms::Answer::Yes);
  antworten.queue(forms::Answer::OK);
  antworten.queue(forms::Answer::No);
  const TabellenEntscheidung e = Abarbeiten(p);
  EXPECT_EQ(Gezeigt().size(), 4u);
  EXPECT_EQ(Gezeigt()[3], "Soll die Stationierung 0 aus Tabelle 'Achse' übernommen werden?");
  EXPECT_EQ(e.stationierung, 2.25);
}

TEST_F(Pruefen, ARefusalAfterASharedPointFileStillStops) {
  u.zeile(9) = Zeile("Doppelt", 0, "D", "D");
  const TabellenPruefung p = TabellenEingabePruefen(u.z(), Eingabe("Doppelt", "N", "P1", "1,5"), TabellenDialog::Neu);
  ASSERT_EQ(p.befunde.size(), 2u);
  EXPECT_EQ(p.befunde[0].art, Art::PunkteGemeinsam);
  EXPECT_EQ(p.befunde[1].art, Art::NameVergeben);
  antworten.queue(forms::Answer::OK);
  EXPECT_FALSE(Abarbeiten(p).weiter);
  EXPECT_EQ(Gezeigt().size(), 2u);
}

TEST_F(Pruefen, BlankRowsAndBlankStemsAreNotCompared) {
  u.zeile(7) = Zeile("", 0, "LEER", "LEER");  // a row without a name is not in use
  EXPECT_TRUE(TabellenEingabePruefen(u.z(), Eingabe("Neu", "LEER", "LEER"), TabellenDialog::Neu).befunde.empty());
  u.zeile(8) = Zeile("Ohne Stamm");
  EXPECT_TRUE(TabellenEingabePruefen(u.z(), Eingabe("Neu2", "", ""), TabellenDialog::Neu).befunde.empty());
}

TEST_F(Pruefen, ABlankNameIsRefused) {
  const TabellenPruefung p = TabellenEingabePruefen(u.z(), Eingabe("  ", "X", "X"), TabellenDialog::Neu);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::NameLeer);
  EXPECT_FALSE(Abarbeiten(p).weiter);
}

TEST_F(Pruefen, The502ndTableIsRefused) {
  for (int i = 0; i < 501; ++i) {
    const std::string n = std::to_string(i);
    u.zeile(i) = Zeile("T" + n, 0, "T" + n, "T" + n);
  }
  const TabellenPruefung p = TabellenEingabePruefen(u.z(), Eingabe("Neu", "N", "T7"), TabellenDialog::Neu);
  EXPECT_EQ(p.zeile, -1);
  ASSERT_EQ(p.befunde.size(), 2u);
  EXPECT_EQ(p.befunde[1].art, Art::KeinPlatz);  // its message: NeueTabelle.The502ndTableIsRefused
  antworten.queue(forms::Answer::OK);
  EXPECT_FALSE(Abarbeiten(p).weiter);
  EXPECT_EQ(Gezeigt().size(), 2u);

  u.zeile(500) = Zeile("");
  EXPECT_EQ(TabellenEingabePruefen(u.z(), Eingabe("Neu", "N", "N"), TabellenDialog::Neu).zeile, 500);
}

TEST_F(Pruefen, PropertiesSkipTheirOwnRowAndAskOnlyAboutAChangedPointFile) {
  // Unchanged values of row 3, which shares "P2" with row 2: nothing to ask.
  TabellenPruefung p = TabellenEingabePruefen(u.z(), Eingabe("Achse", "ACHSE", "P2"), TabellenDialog::Eigenschaften, 3);
  EXPECT_TRUE(p.befunde.empty());
  EXPECT_EQ(p.zeile, 3);
  EXPECT_TRUE(Abarbeiten(p).weiter);

  p = TabellenEingabePruefen(u.z(), Eingabe("Achse", "ACHSE", "P1"), TabellenDialog::Eigenschaften, 3);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::PunkteGemeinsam);
  EXPECT_EQ(p.befunde[0].zeile, 0);

  p = TabellenEingabePruefen(u.z(), Eingabe("Profil 1", "ACHSE", "P2"), TabellenDialog::Eigenschaften, 3);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::NameVergeben);

  p = TabellenEingabePruefen(u.z(), Eingabe("Achse", "P1", "P2"), TabellenDialog::Eigenschaften, 3);
  ASSERT_EQ(p.befunde.size(), 1u);
  EXPECT_EQ(p.befunde[0].art, Art::DateinameVergeben);

  // A full catalogue does not matter when a row is changed.
  for (int i = 0; i < 501; ++i)
    if (u.zeile(i).TablName.empty()) u.zeile(i) = Zeile("T" + std::to_string(i));
  p = TabellenEingabePruefen(u.z(), Eingabe("Achse 2", "ACHSE", "P2"), TabellenDialog::Eigenschaften, 3);
  EXPECT_TRUE(p.befunde.empty());
  EXPECT_EQ(p.zeile, 3);
}

// ---- Filling a row -------------------------------------------------------------------

TEST(ZeileFuellen, TakesNameStationingStemsAndTheFlagsOfTheDialog) {
  for (int eintrag = 0; eintrag < 4; ++eintrag) {
    Tabelle t;
    t.Massstab = 250;
    TabellenEingabe e = Eingabe("Profil 5", "ABCDEFGHIJ", "PUNKTE123", "9,9");
    e.KoordinatenSystem = eintrag;
    e.Dritte = eintrag == 1;
    e.Polar = eintrag == 2;
    ZeileFuellen(t, e, 4.5);
    EXPECT_EQ(t.TablName, "Profil 5");
    EXPECT_EQ(t.Stationierung, 4.5);
    EXPECT_EQ(t.Dateiname, "ABCDEFGH");
    EXPECT_EQ(t.PktDateiName, "PUNKTE12");
    EXPECT_EQ(t.M31, eintrag == 1 || eintrag == 3 ? Wahr : Falsch) << eintrag;
    EXPECT_EQ(t.Falschdrehend, eintrag >= 2 ? Wahr : Falsch) << eintrag;
    EXPECT_EQ(t.Dritte, eintrag == 1 ? Wahr : Falsch);
    EXPECT_EQ(t.Polar, eintrag == 2 ? Wahr : Falsch);
    EXPECT_EQ(t.Massstab, 250) << "view fields stay";
  }
}

TEST(ZeileFuellen, TheFirstFreeRowIsTheFirstWithoutAName) {
  Umgebung u;
  EXPECT_EQ(ErsteFreieZeile(u.z()), 0);
  u.zeile(0) = Zeile("A");
  u.zeile(1) = Zeile("   ");
  EXPECT_EQ(ErsteFreieZeile(u.z()), 1);
}

}  // namespace
}  // namespace kolm::core
