// LVVorlageKopieren: the messages, the question and what lies in the
// project folder afterwards.
#include "forms/scripted.h"
#include "quantities/lv/lv_datenbank.h"
#include "quantities/lv/lv_schema.h"

#include "lv_hilfen.h"

namespace kolm::quantities {
namespace {

using forms::Answer;
using testhilfen::Ordner;

struct Vorlage : ::testing::Test {
  Ordner programm, projekt;
  forms::ScriptedMessages meldungen;
  void SetUp() override { ASSERT_TRUE(LVMusterErzeugen(programm.datei("LVMuster.MDB"))); }
  std::string muster() const { return programm.lesen("LVMuster.MDB"); }
};

TEST_F(Vorlage, OhneLVWirdDieVorlageStillKopiert) {
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), &meldungen), LVVorlage::Kopiert);
  EXPECT_TRUE(meldungen.shown().empty());
  EXPECT_EQ(projekt.lesen("LV.MDB"), muster());
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  EXPECT_EQ(programm.dateien(), (std::vector<std::string>{"LVMuster.MDB"}));
}

TEST_F(Vorlage, FehlendeVorlageMeldetUndKopiertNichts) {
  Ordner leer;
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), leer.verzeichnis(), &meldungen), LVVorlage::VorlageFehlt);
  ASSERT_EQ(meldungen.shown().size(), 1u);
  const forms::Message m = meldungen.shown()[0].message;  // a copy: more boxes follow
  EXPECT_EQ(m.text, "Die Leistungsverzeichnisvorlage '" + leer.verzeichnis() +
                        "LVMuster.MDB' konnte nicht gefunden werden!\r"
                        "Eine korrekte Arbeitsweise von Kolm ist nicht mehr gewährleistet!");
  EXPECT_EQ(m.title, "Kopieren der LV-Vorlage");
  EXPECT_EQ(m.icon, forms::Icon::Critical);
  EXPECT_EQ(m.buttons, forms::Buttons::OK);
  EXPECT_TRUE(projekt.dateien().empty());

  // The program folder given without its closing separator names the same file.
  std::string ohne = leer.verzeichnis();
  ohne.pop_back();
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), ohne, &meldungen), LVVorlage::VorlageFehlt);
  EXPECT_EQ(meldungen.shown().back().message.text, m.text);
  // Without a message service: the same outcome, no box.
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), leer.verzeichnis(), nullptr), LVVorlage::VorlageFehlt);
  EXPECT_TRUE(projekt.dateien().empty());
}

TEST_F(Vorlage, BestehendesLVBleibtBeiJa) {
  projekt.schreiben("LV.MDB", "meine Positionen");
  meldungen.queue(Answer::Yes);
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), &meldungen), LVVorlage::Behalten);
  ASSERT_EQ(meldungen.shown().size(), 1u);
  const forms::Message& m = meldungen.shown()[0].message;
  EXPECT_EQ(m.text, "Im Verzeichnis '" + projekt.verzeichnis() +
                        "' existiert bereits ein Leistungsverzeichnis!\r"
                        "Soll dieses Leistungsverzeichnis erhalten bleiben?");
  EXPECT_EQ(m.title, "Kopieren der LV-Vorlage");
  EXPECT_EQ(m.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(projekt.lesen("LV.MDB"), "meine Positionen");

  // No service to ask: kept as well.
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), nullptr), LVVorlage::Behalten);
  EXPECT_EQ(projekt.lesen("LV.MDB"), "meine Positionen");
}

TEST_F(Vorlage, BestehendesLVWirdBeiNeinErsetzt) {
  projekt.schreiben("LV.MDB", "meine Positionen");
  meldungen.queue(Answer::No);
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), &meldungen), LVVorlage::Kopiert);
  EXPECT_EQ(meldungen.shown().size(), 1u);
  EXPECT_EQ(projekt.lesen("LV.MDB"), muster());
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  EXPECT_EQ(testhilfen::Abfrage(projekt.datei("LV.MDB"), "SELECT count(*) FROM Leistungsverzeichnis"),
            (testhilfen::Zeilen{{"0"}}));
}

TEST_F(Vorlage, MisslungenesKopierenLaesstKeineReste) {
  // A folder named LV.MDB cannot be replaced by a file.
  std::filesystem::create_directory(projekt.pfad / "LV.MDB");
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), &meldungen),
            LVVorlage::Fehlgeschlagen);
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  EXPECT_TRUE(std::filesystem::is_directory(projekt.pfad / "LV.MDB"));

  // A project folder that does not exist.
  EXPECT_EQ(LVVorlageKopieren(projekt.datei("fehlt") + "/", programm.verzeichnis(), &meldungen),
            LVVorlage::Fehlgeschlagen);
  EXPECT_FALSE(projekt.gibt("fehlt"));
}

TEST_F(Vorlage, GrosseVorlageWirdVollstaendigKopiert) {
  // More than one copy buffer, and not a multiple of it.
  const std::string gross = testhilfen::Zufallsbytes(3 * 65536 + 123, 11);
  programm.schreiben("LVMuster.MDB", gross);
  EXPECT_EQ(LVVorlageKopieren(projekt.verzeichnis(), programm.verzeichnis(), &meldungen), LVVorlage::Kopiert);
  EXPECT_EQ(projekt.lesen("LV.MDB"), gross);
  EXPECT_EQ(std::filesystem::status(projekt.pfad / "LV.MDB").permissions() & std::filesystem::perms::all,
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                std::filesystem::perms::group_read | std::filesystem::perms::others_read);
}

TEST(LVDateinamen, OrdnerUndName) {
  EXPECT_EQ(LVDatei("/p/Projekt/"), "/p/Projekt/LV.MDB");
  EXPECT_EQ(LVDatei("/p/Projekt"), "/p/Projekt/LV.MDB");
  EXPECT_EQ(LVMusterDatei("/opt/kolm/data/"), "/opt/kolm/data/LVMuster.MDB");
  EXPECT_EQ(LVDatei(""), "LV.MDB");
}

}  // namespace
}  // namespace kolm::quantities
