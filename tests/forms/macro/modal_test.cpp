// Modal forms: the command that opens one completes when it closes, and the
// lines in between address the modal form.
#include <gtest/gtest.h>

#include "macro_fixture.h"

namespace kolm::forms::macro::testing {
namespace {

// Records what the runner passes on to the host it wraps.
class RecordingHost final : public FormHost {
 public:
  void formLoaded(Form& f) override { calls.push_back("geladen " + f.name()); }
  void formShown(Form& f) override { calls.push_back("gezeigt " + f.name()); }
  void formHidden(Form& f) override { calls.push_back("versteckt " + f.name()); }
  void formUnloaded(Form& f) override { calls.push_back("entladen " + f.name()); }
  void runModal(Form& f) override {
    calls.push_back("modal " + f.name());
    f.forms().unload(f);
  }
  Log calls;
};

TEST(MacroModal, TheFollowingLinesFillTheDialogAndTheOpenerSeesTheResult) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\n"
                           "pruefe Punkt \"Punkt eingeben\"\n"
                           "setze Punkt.Nr \"12\"\n"
                           "tippe Punkt.Y \"100{ENTER}\"\n"
                           "pruefe Eingabe.Ergebnis \"12;100\"\n"),
            0)
      << f.out.str();
  EXPECT_EQ(f.log, (Log{"Eingeben: Dialog auf", "Punkt OK", "Eingeben: Dialog zu"}));
  EXPECT_EQ(f.forms.find("Punkt"), nullptr);
}

TEST(MacroModal, NestedModalForms) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\n"
                           "klicke Punkt.Mehr\n"
                           "pruefe Bestaetigung \"Wirklich?\"\n"
                           "klicke Bestätigung.Ja\n"
                           "setze Punkt.Nr \"5\"\n"
                           "klicke Punkt.OK\n"
                           "pruefe Eingabe.Ergebnis \"5;\"\n"),
            0)
      << f.out.str();
  EXPECT_EQ(f.log, (Log{"Eingeben: Dialog auf", "Bestätigt", "Bestätigung zu", "Punkt OK", "Eingeben: Dialog zu"}));
}

TEST(MacroModal, FormsBehindAModalFormCannotBeOperated) {
  MacroFixture f;
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\npruefe Eingabe.Ergebnis \"\"\nklicke Eingabe.Berechnen\n"
                           "klicke Punkt.OK"),
            2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:3: Fehler: Solange das modale Formular Punkt offen ist, ist das Formular "
                            "Eingabe nicht zu bedienen"}));
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nmenue MnuPunkte"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:2: Fehler: Solange das modale Formular Punkt offen ist, ist das Formular "
                            "Main nicht zu bedienen"}));
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\noeffne Fremd"), 2);
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nschliesse Eingabe"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:2: Fehler: Solange das modale Formular Punkt offen ist, lässt sich "
                            "Eingabe nicht schließen"}));
}

TEST(MacroModal, ClosingTheModalFormLikeItsCloseButton) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nschliesse Punkt\npruefe Eingabe.Ergebnis \"\""), 0)
      << f.out.str();
  EXPECT_EQ(f.log, (Log{"Eingeben: Dialog auf", "Eingeben: Dialog zu"}));
}

TEST(MacroModal, AMacroEndingWithAModalFormOpenCannotRun) {
  MacroFixture f;
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nsetze Punkt.Nr \"1\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Das Makro ist zu Ende, aber das modale Formular Punkt ist noch offen"}));

  f.forms.unloadAll();
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nklicke Punkt.Mehr\n"), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:2: Fehler: Das Makro ist zu Ende, aber das modale Formular Bestätigung "
                            "ist noch offen"}));
}

TEST(MacroModal, UnloadedFormsLiveUntilTheOpenersHandlerHasReturned) {
  MacroFixture f;
  ASSERT_EQ(f.runInEingabe("klicke Eingabe.Eingeben\nklicke Punkt.Alles\npruefe Main \"Kolm\""), 0) << f.out.str();
  EXPECT_EQ(f.log, (Log{"Eingeben: Dialog auf", "Eingeben: Dialog zu", "Eingabe zerstört"}));
  EXPECT_EQ(f.forms.find("Eingabe"), nullptr);
}

TEST(MacroModal, AHandlerThatKeepsReopeningAfterAnErrorIsLeft) {
  MacroFixture f;
  EXPECT_EQ(f.runInEingabe("klicke Eingabe.Schleife\nsetze Punkt.Nr \"1\""), 2);
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Fehler: Das Makro ist zu Ende, aber das modale Formular Punkt ist noch offen"}));
}

TEST(MacroModal, TheWrappedHostShowsFormsButTheRunnerRunsTheModalOnes) {
  MacroFixture f;
  RecordingHost shell;
  f.runner->setInner(&shell);
  f.forms.show("Eingabe");
  shell.calls.clear();
  ASSERT_EQ(f.run("klicke Eingabe.Eingeben\nklicke Punkt.Cancel"), 0) << f.out.str();
  EXPECT_EQ(shell.calls, (Log{"geladen Punkt", "gezeigt Punkt", "entladen Punkt"}));

  // Outside a run the wrapped host runs modal forms itself.
  shell.calls.clear();
  f.forms.show("Punkt", true);
  EXPECT_EQ(shell.calls, (Log{"geladen Punkt", "gezeigt Punkt", "modal Punkt", "entladen Punkt"}));
}

}  // namespace
}  // namespace kolm::forms::macro::testing
