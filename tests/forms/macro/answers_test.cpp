// Answers to message boxes, input boxes and file dialogs: queued by
// antworte, taken in order by the boxes they fit, defaults without one.
#include <gtest/gtest.h>

#include "macro_fixture.h"

namespace kolm::forms::macro::testing {
namespace {

TEST(MacroAnswers, AMessageBoxTakesTheQueuedAnswer) {
  MacroFixture f;
  f.forms.show("Eingabe");
  ASSERT_EQ(f.run("antworte Nein\nklicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Nein\""), 0) << f.out.str();
  ASSERT_EQ(f.dialogs.messages.shown().size(), 1u);
  const ShownBox& box = f.dialogs.messages.shown()[0];
  EXPECT_EQ(box.message.title, "Löschen");
  EXPECT_EQ(box.answer, Answer::No);
  EXPECT_TRUE(box.queued);
  EXPECT_EQ(box.origin.line, 2);
}

TEST(MacroAnswers, WithoutAnAnswerOrWithOneNotOfferedTheFirstButton) {
  MacroFixture f;
  f.forms.show("Eingabe");
  ASSERT_EQ(f.run("klicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Ja\"\n"
                  "antworte Wiederholen\nklicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Ja\""),
            0)
      << f.out.str();
  ASSERT_EQ(f.dialogs.messages.shown().size(), 2u);
  EXPECT_FALSE(f.dialogs.messages.shown()[0].queued);
  EXPECT_TRUE(f.dialogs.messages.shown()[1].queued) << "the answer was used up";
  EXPECT_EQ(f.dialogs.queue.pending().size(), 0u);
}

TEST(MacroAnswers, AbbrechenFitsMessageAndInputBoxes) {
  MacroFixture f;
  f.forms.show("Eingabe");
  ASSERT_EQ(f.run("antworte Abbrechen\nmenue MnuDateiOeffnen\nantworte Abbrechen\nklicke Eingabe.Frage\n"
                  "pruefe Eingabe.Ergebnis \"abgebrochen\""),
            0)
      << f.out.str();
  EXPECT_EQ(f.log, (Log{"Speichern? Abbrechen"}));
  ASSERT_EQ(f.dialogs.input.asked().size(), 1u);
  EXPECT_EQ(f.dialogs.input.asked()[0].prompt, "Punktnummer?");
  EXPECT_FALSE(f.dialogs.input.asked()[0].answer.has_value());
}

TEST(MacroAnswers, InputBoxesTakeOkWithTextAndAreCancelledWithoutIt) {
  MacroFixture f;
  f.forms.show("Eingabe");
  ASSERT_EQ(f.run("antworte OK \"12\"\nklicke Eingabe.Frage\npruefe Eingabe.Ergebnis \"Nummer 12\"\n"
                  "klicke Eingabe.Frage\npruefe Eingabe.Ergebnis \"abgebrochen\"\n"
                  "antworte OK \"\"\nklicke Eingabe.Frage\npruefe Eingabe.Ergebnis \"Nummer \""),
            0)
      << f.out.str();
}

TEST(MacroAnswers, OneQueueInMacroOrderAndAnAnswerWaitsForABoxItFits) {
  MacroFixture f;
  f.forms.show("Eingabe");
  // The input answer stands first: the message box does not take it and
  // gets its first button; the input box then finds its answer.
  ASSERT_EQ(f.run("antworte OK \"7\"\nantworte Nein\nklicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Ja\"\n"
                  "klicke Eingabe.Frage\npruefe Eingabe.Ergebnis \"Nummer 7\"\n"
                  "klicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Nein\""),
            0)
      << f.out.str();
  // A bare OK fits no input box: the box is cancelled and OK waits.
  ASSERT_EQ(f.run("antworte OK\nklicke Eingabe.Frage\npruefe Eingabe.Ergebnis \"abgebrochen\""), 0) << f.out.str();
  EXPECT_EQ(f.lines(), (Log{"test.makro:1: Hinweis: Die Antwort OK hat kein Dialog abgeholt",
                            "test.makro: 1 Prüfung, bestanden"}));
  EXPECT_TRUE(f.dialogs.queue.pending().empty()) << "a run leaves no answers for the next";
}

TEST(MacroAnswers, FileDialogsTakeAPathEmptyOrNoneCancels) {
  MacroFixture f;
  f.forms.show("Eingabe");
  ASSERT_EQ(f.run("antworte Datei \"/tmp/aus.pkt\"\nantworte Datei \"\"\nantworte Nein\n"
                  "klicke Eingabe.Datei\npruefe Eingabe.Ergebnis \"/tmp/aus.pkt\"\n"
                  "klicke Eingabe.Datei\npruefe Eingabe.Ergebnis \"keine Datei\"\n"
                  "klicke Eingabe.Datei\npruefe Eingabe.Ergebnis \"keine Datei\"\n"
                  "klicke Eingabe.Löschen\npruefe Eingabe.Ergebnis \"Nein\""),
            0)
      << f.out.str();
  ASSERT_EQ(f.dialogs.files.asked().size(), 3u);
  EXPECT_TRUE(f.dialogs.files.asked()[0].request.save);
  EXPECT_EQ(f.dialogs.files.asked()[0].request.title, "Speichern unter");
}

TEST(MacroAnswers, TheRunnerStandsInForTheProgramsDialogsWhileItLives) {
  MacroFixture f;
  EXPECT_EQ(f.scripted.services.messages, &f.dialogs.messages);
  EXPECT_EQ(f.scripted.services.input, &f.dialogs.input);
  EXPECT_EQ(f.scripted.services.files, &f.dialogs.files);
  EXPECT_EQ(f.forms.host(), f.runner.get());
  f.runner.reset();
  EXPECT_EQ(f.scripted.services.messages, &f.scripted.messages);
  EXPECT_EQ(f.scripted.services.input, &f.scripted.input);
  EXPECT_EQ(f.scripted.services.files, &f.scripted.files);
  EXPECT_EQ(f.forms.host(), &f.host);
}

}  // namespace
}  // namespace kolm::forms::macro::testing
