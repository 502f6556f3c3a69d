#include "quantities/lv/lv_datenbank.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "core/io/files.h"
#include "forms/utf8.h"
#include "quantities/lv/lv_schema.h"
#include "quantities/lv/sqlite.h"

namespace kolm::quantities {

namespace io = core::io;

namespace {

constexpr const char* kTitelVorlage = "Kopieren der LV-Vorlage";

std::string ImVerzeichnis(const std::string& verzeichnis, std::string_view name) {
  std::string pfad = verzeichnis;
  if (!pfad.empty() && pfad.back() != '/') pfad += '/';
  pfad += name;
  return pfad;
}

// The first n characters (code points) of a UTF-8 text.
std::string Links(std::string_view text, int n) {
  return std::string(text.substr(0, forms::utf8::ByteOffset(text, n)));
}

bool Offen(Database& db, const std::string& projektVerzeichnis, Database::Access zugriff) {
  const std::string pfad = LVDatei(projektVerzeichnis);
  // A regular file only: a folder or a device is never handed to SQLite.
  return io::FileExists(pfad) && db.open(pfad, zugriff);
}

bool StilSpaltenErgaenzen(Database& db) {
  if (!db.execute("BEGIN IMMEDIATE")) return false;
  bool ok = true;
  for (const LVSpalte& spalte : LVStilSpalten()) {
    if (db.hasColumn(kLVTabelle, spalte.name)) continue;
    ok = db.execute("ALTER TABLE Leistungsverzeichnis ADD COLUMN " + LVSpaltenDefinition(spalte));
    if (!ok) break;
  }
  ok = ok && db.execute(SqliteDialekt(kLVStilUpdate)) && db.setUserVersion(kLVSchemaVersion);
  if (ok && db.execute("COMMIT")) return true;
  db.execute("ROLLBACK");
  return false;
}

bool Zahl(std::string_view text, size_t von, size_t laenge, int& wert) {
  if (von + laenge > text.size()) return false;
  wert = 0;
  for (size_t i = von; i < von + laenge; ++i) {
    if (text[i] < '0' || text[i] > '9') return false;
    wert = wert * 10 + (text[i] - '0');
  }
  return true;
}

int TageImMonat(int jahr, int monat) {
  static constexpr int tage[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool schalt = (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
  return monat == 2 && schalt ? 29 : tage[monat - 1];
}

}  // namespace

std::string LVDatei(const std::string& projektVerzeichnis) {
  return ImVerzeichnis(projektVerzeichnis, kLVDateiname);
}

std::string LVMusterDatei(const std::string& programmVerzeichnis) {
  return ImVerzeichnis(programmVerzeichnis, kLVMusterDateiname);
}

bool LVAccessDatei(const std::string& pfad) {
  const auto kopf = io::ReadFile(pfad, 19);
  if (!kopf || kopf->size() < 19) return false;
  const std::string_view k(*kopf);
  return k.substr(0, 4) == std::string_view("\x00\x01\x00\x00", 4) &&
         (k.substr(4) == "Standard Jet DB" || k.substr(4) == "Standard ACE DB");
}

LVVorlage LVVorlageKopieren(const std::string& projektVerzeichnis, const std::string& programmVerzeichnis,
                            forms::MessageService* meldungen) {
  const std::string muster = LVMusterDatei(programmVerzeichnis);
  if (!io::FileExists(muster)) {
    if (meldungen) {
      meldungen->show({"Die Leistungsverzeichnisvorlage '" + muster + "' konnte nicht gefunden werden!\r" +
                           "Eine korrekte Arbeitsweise von Kolm ist nicht mehr gewährleistet!",
                       kTitelVorlage, forms::Buttons::OK, forms::Icon::Critical});
    }
    return LVVorlage::VorlageFehlt;
  }
  const std::string ziel = LVDatei(projektVerzeichnis);
  if (io::FileExists(ziel)) {
    const forms::Answer antwort =
        meldungen ? meldungen->show({"Im Verzeichnis '" + projektVerzeichnis +
                                         "' existiert bereits ein Leistungsverzeichnis!\r" +
                                         "Soll dieses Leistungsverzeichnis erhalten bleiben?",
                                     kTitelVorlage, forms::Buttons::YesNo, forms::Icon::Question})
                  : forms::Answer::Yes;
    if (antwort == forms::Answer::Yes) return LVVorlage::Behalten;
  }
  return io::CopyFileAtomically(muster, ziel) ? LVVorlage::Kopiert : LVVorlage::Fehlgeschlagen;
}

bool LVAktualisieren(const std::string& projektVerzeichnis, forms::StatusLine* status) {
  const std::string pfad = LVDatei(projektVerzeichnis);
  if (!io::FileExists(pfad)) return true;

  if (LVAccessDatei(pfad)) {
    // No reader of the Access format is built: the old file is kept as the
    // safety copy and the project goes on with an empty database.
    if (!io::CopyFileAtomically(pfad, ImVerzeichnis(projektVerzeichnis, kLVAltDateiname))) return false;
    if (!LVMusterErzeugen(pfad)) return false;
    if (status) {
      status->show("Das Leistungsverzeichnis im alten Access-Format wurde als LV_ALT.MDB gesichert "
                   "und durch ein leeres ersetzt.");
    }
    return true;
  }

  Database db;
  if (!db.open(pfad, Database::Access::ReadWrite)) return false;
  // Nothing is written to a file that SQLite finds damaged or that is not
  // a bill-of-quantities database.
  if (!db.intact() || !db.hasTable(kLVTabelle)) return false;
  if (db.hasColumn(kLVTabelle, "Linienfarbe")) return true;
  return StilSpaltenErgaenzen(db);
}

std::string LVNrAusrichten(std::string_view lvnr) {
  std::string text = Links(lvnr, 12);
  const int laenge = forms::utf8::Length(text);
  return std::string(static_cast<size_t>(12 - laenge), ' ') + text;
}

std::string LVKurzText(const std::string& projektVerzeichnis, std::string_view lvnr12) {
  Database db;
  if (!Offen(db, projektVerzeichnis, Database::Access::ReadOnly)) return {};
  Statement s = db.prepare("SELECT KurzText FROM Leistungsverzeichnis WHERE LVNr = ?1 LIMIT 1");
  if (!s.bind(1, Links(lvnr12, 12))) return {};
  if (s.step() != Statement::Step::Row) return {};
  return s.text(0);
}

std::optional<std::vector<LVListenEintrag>> LVListeLesen(const std::string& projektVerzeichnis) {
  Database db;
  if (!Offen(db, projektVerzeichnis, Database::Access::ReadOnly)) return std::nullopt;
  Statement s = db.prepare("SELECT LVNr, KurzText, KurzBez FROM Leistungsverzeichnis;");
  if (!s) return std::nullopt;
  std::vector<LVListenEintrag> zeilen;
  for (;;) {
    switch (s.step()) {
      case Statement::Step::Row: zeilen.push_back({s.text(0), s.text(1), s.text(2)}); break;
      case Statement::Step::Done: return zeilen;
      case Statement::Step::Error: return std::nullopt;
    }
  }
}

bool LVPositionHinzufuegen(const std::string& projektVerzeichnis, const LVPosition& p, LVNrForm form) {
  Database db;
  if (!Offen(db, projektVerzeichnis, Database::Access::ReadWrite)) return false;
  Statement s = db.prepare(
      "INSERT INTO Leistungsverzeichnis (LVNr, MLVNr, KurzText, KurzBez, Einheit, Lohn, Sonstiges, "
      "Einheitspreis, EndAusmaß, GesamtPreis, Datum, Linienfarbe, Linienstärke, Flächenfüllung, Muster, "
      "Füllfarbe) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16)");
  if (!s) return false;
  auto zahl = [&s](int i, const std::optional<double>& v) { return v ? s.bind(i, *v) : s.bindNull(i); };
  bool ok = s.bind(1, form == LVNrForm::Ausrichten ? LVNrAusrichten(p.lvnr) : p.lvnr) &&
            s.bind(2, Links(p.mlvnr, 12)) && s.bind(3, Links(p.kurzText, 50)) &&
            s.bind(4, Links(p.kurzBez, 2)) &&
            (p.einheit ? s.bind(5, Links(*p.einheit, 10)) : s.bindNull(5)) && zahl(6, p.lohn) &&
            zahl(7, p.sonstiges) && zahl(8, p.einheitspreis) && zahl(9, p.endAusmass) &&
            zahl(10, p.gesamtPreis) && (p.datum ? s.bind(11, LVDatumText(*p.datum)) : s.bindNull(11)) &&
            s.bind(12, p.linienfarbe) && s.bind(13, p.linienstaerke) &&
            s.bind(14, p.flaechenfuellung ? kWahr : 0) && s.bind(15, p.muster) && s.bind(16, p.fuellfarbe);
  return ok && s.run();
}

std::string LVDatumText(const numbers::Zeitpunkt& t) {
  return numbers::DatumText(t, "yyyy-mm-dd hh:nn:ss");
}

std::optional<numbers::Zeitpunkt> LVDatumLesen(std::string_view text) {
  numbers::Zeitpunkt t;
  if (text.size() != 10 && text.size() != 19) return std::nullopt;
  if (!Zahl(text, 0, 4, t.jahr) || text[4] != '-' || !Zahl(text, 5, 2, t.monat) || text[7] != '-' ||
      !Zahl(text, 8, 2, t.tag))
    return std::nullopt;
  t.stunde = t.minute = t.sekunde = 0;
  if (text.size() == 19 && (text[10] != ' ' || !Zahl(text, 11, 2, t.stunde) || text[13] != ':' ||
                            !Zahl(text, 14, 2, t.minute) || text[16] != ':' || !Zahl(text, 17, 2, t.sekunde)))
    return std::nullopt;
  if (t.monat < 1 || t.monat > 12 || t.tag < 1 || t.tag > TageImMonat(t.jahr, t.monat) || t.stunde > 23 ||
      t.minute > 59 || t.sekunde > 59)
    return std::nullopt;
  return t;
}

}  // namespace kolm::quantities
