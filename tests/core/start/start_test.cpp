// The start: one instance, the project to open, the splash window.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

#include "core/start/einzelinstanz.h"
#include "core/start/intro_form.h"
#include "core/start/projekt_aufloesen.h"
#include "forms/scripted.h"

namespace kolm::core {
namespace {

TEST(OneInstance, ASecondStartFindsTheLockTakenUntilTheFirstEnds) {
  const std::string datei = (std::filesystem::temp_directory_path() /
                             ("kolm-lock-" + std::to_string(::getpid()))).string();
  {
    Einzelinstanz erste(datei);
    ASSERT_TRUE(erste.erhalten());
    Einzelinstanz zweite(datei);
    EXPECT_FALSE(zweite.erhalten());
  }
  Einzelinstanz danach(datei);
  EXPECT_TRUE(danach.erhalten()) << "the lock goes with the first instance";
  std::filesystem::remove(datei);
  EXPECT_STREQ(kMeldungZweiteInstanz,
               "Eine Instanz des Programmes Kolm ist bereits aktiv. Sie können Kolm nicht mehrfach ausführen!");
}

// A file system in memory.
struct Fake {
  std::set<std::string> ordner, dateien;
  std::map<std::string, std::string> namen;  // Kolmproj.ini -> Name
  std::vector<std::pair<std::string, std::string>> kopien;
  Dateisystem fs() {
    Dateisystem d;
    d.verzeichnisDa = [this](const std::string& p) { return ordner.count(p) > 0; };
    d.verzeichnisAnlegen = [this](const std::string& p) { ordner.insert(p); return true; };
    d.dateiDa = [this](const std::string& p) { return dateien.count(p) > 0; };
    d.dateiKopieren = [this](const std::string& a, const std::string& b) {
      kopien.emplace_back(a, b);
      dateien.insert(b);
      return true;
    };
    d.projektName = [this](const std::string& ini, const std::string& vorgabe) {
      auto it = namen.find(ini);
      return it == namen.end() ? vorgabe : it->second;
    };
    return d;
  }
};

TEST(LastProject, AVanishedFolderOpensTheDemoProjectWithOneMessage) {
  Fake f;
  f.ordner = {"/daten/B12/", "/prog/Demo Projekt/"};
  forms::ScriptedMessages m;
  Projektwahl w = LetztesProjektAufloesen("B12", std::string("/daten/B12/"), "/prog/Demo Projekt/", f.fs(), &m);
  EXPECT_EQ(w.name, "B12");
  EXPECT_EQ(w.verzeichnis, "/daten/B12/");
  EXPECT_TRUE(m.shown().empty());
  w = LetztesProjektAufloesen("B13", std::string("/daten/B13/"), "/prog/Demo Projekt/", f.fs(), &m);
  EXPECT_EQ(w.name, "Demo Projekt");
  EXPECT_EQ(w.verzeichnis, "/prog/Demo Projekt/");
  ASSERT_EQ(m.shown().size(), 1u);
  EXPECT_EQ(m.shown()[0].message.text,
            "Das Projekt 'B13' konnte nicht im Verzeichnis [/daten/B13/] gefunden werden. "
            "Kolm öffnet nun das Demo Projekt.");
  EXPECT_EQ(m.shown()[0].message.title, "Nicht vorhandenes Laufwerk oder Ordner");
}

TEST(Parameter, TheKolmFolderBelowTheGivenOneIsTheProjectInAnyCase) {
  for (const char* p : {"/baustelle", "/baustelle/", "/baustelle/KOLM", "/baustelle/kolm/", "/baustelle/Kolm"}) {
    Fake f;
    f.ordner = {"/baustelle/"};
    f.dateien = {"/prog/LVMuster.MDB"};
    forms::ScriptedMessages m;
    auto w = ParameterProjektAufloesen(p, "/prog/", f.fs(), &m);
    ASSERT_TRUE(w.has_value()) << p;
    EXPECT_EQ(w->verzeichnis, "/baustelle/KOLM/") << p;
    EXPECT_TRUE(f.ordner.count("/baustelle/KOLM/")) << "created when missing";
    EXPECT_EQ(w->name, "[/baustelle/KOLM/]") << "an unnamed project shows its folder";
    EXPECT_TRUE(m.shown().empty()) << p;
  }
}

TEST(Parameter, AMissingFolderEndsTheProgramWithItsMessage) {
  Fake f;
  forms::ScriptedMessages m;
  EXPECT_FALSE(ParameterProjektAufloesen("/gibtsnicht", "/prog/", f.fs(), &m).has_value());
  ASSERT_EQ(m.shown().size(), 1u);
  EXPECT_EQ(m.shown()[0].message.text,
            "Fehlerhafter Übergabeparameter: Der Pfad '/gibtsnicht/' konnte nicht gefunden werden. Kolm wird beendet!");
}

TEST(Parameter, TheProjectGetsItsNameAndADatabaseFromTheTemplate) {
  Fake f;
  f.ordner = {"/b/", "/b/KOLM/"};
  f.dateien = {"/prog/LVMuster.MDB"};
  f.namen["/b/KOLM/Kolmproj.ini"] = "Ortsumgehung";
  forms::ScriptedMessages m;
  auto w = ParameterProjektAufloesen("/b", "/prog/", f.fs(), &m);
  ASSERT_TRUE(w);
  EXPECT_EQ(w->name, "Ortsumgehung");
  ASSERT_EQ(f.kopien.size(), 1u);
  EXPECT_EQ(f.kopien[0], std::make_pair(std::string("/prog/LVMuster.MDB"), std::string("/b/KOLM/LV.MDB")));
}

TEST(Parameter, WithoutTemplateTheObjGenFolderIsTriedThenTheStartGoesOnWithAMessage) {
  Fake f;
  f.ordner = {"/srv/obj.123/", "/srv/obj.123/KOLM/"};
  f.dateien = {"/srv/Obj.gen/LVMuster.MDB"};
  forms::ScriptedMessages m;
  auto w = ParameterProjektAufloesen("/srv/obj.123", "/prog/", f.fs(), &m);
  ASSERT_TRUE(w);
  ASSERT_EQ(f.kopien.size(), 0u) << "the folder keeps the path's own letter case: obj.gen, not Obj.gen";
  ASSERT_EQ(m.shown().size(), 1u);
  EXPECT_EQ(m.shown()[0].message.text,
            "/srv/obj.gen/LVMuster.MDB' ist nicht vorhanden! Kolm wird trotzdem gestartet, es sind aber keine LV Daten vorhanden!");
  f.dateien.insert("/srv/obj.gen/LVMuster.MDB");
  auto again = ParameterProjektAufloesen("/srv/obj.123", "/prog/", f.fs(), &m);
  ASSERT_TRUE(again);
  ASSERT_EQ(f.kopien.size(), 1u);
  EXPECT_EQ(f.kopien[0].first, "/srv/obj.gen/LVMuster.MDB");
}

TEST(Splash, ShowsItsLabelsAfterTenTicksAndClosesAfterTheLongTimer) {
  forms::ScriptedServices s;
  forms::Forms forms(s.services);
  int gezeigt = 0;
  forms.registerForm("Intro", [&](forms::Forms& f) {
    return std::make_unique<IntroForm>(f, [&] { ++gezeigt; });
  });
  forms::Form& intro = *forms.show("Intro");
  for (int i = 0; i < 9; ++i) intro.control("Timer2").raise(forms::Event::Timer);
  EXPECT_FALSE(intro.control("LabelVersion").visible());
  intro.control("Timer2").raise(forms::Event::Timer);
  EXPECT_TRUE(intro.control("LabelVersion").visible());
  EXPECT_FALSE(intro.control("Timer2").enabled());
  EXPECT_TRUE(intro.control("Timer1").enabled());
  intro.control("Timer1").raise(forms::Event::Timer);
  EXPECT_EQ(forms.FormGeladen("Intro"), -1);
  EXPECT_EQ(gezeigt, 1);
}

TEST(Splash, AClickClosesItEarlyAndStopsBothTimers) {
  forms::ScriptedServices s;
  forms::Forms forms(s.services);
  int gezeigt = 0;
  forms.registerForm("Intro", [&](forms::Forms& f) {
    return std::make_unique<IntroForm>(f, [&] { ++gezeigt; });
  });
  forms::Form& intro = *forms.show("Intro");
  intro.control("Titel").click();
  EXPECT_EQ(forms.FormGeladen("Intro"), -1);
  EXPECT_FALSE(intro.control("Timer2").enabled());
  EXPECT_EQ(gezeigt, 1);
}

}  // namespace
}  // namespace kolm::core
