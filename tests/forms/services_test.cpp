// The scripted services and the platform rules behind the service interfaces.
#include <gtest/gtest.h>

#include <set>

#include "forms/scripted.h"
#include "forms/utf8.h"

namespace kolm::forms {
namespace {

TEST(MessageBoxes, ButtonsStandInTheirClassicOrder) {
  EXPECT_EQ(AnswersOf(Buttons::YesNoCancel), (std::vector<Answer>{Answer::Yes, Answer::No, Answer::Cancel}));
  EXPECT_EQ(AnswersOf(Buttons::AbortRetryIgnore),
            (std::vector<Answer>{Answer::Abort, Answer::Retry, Answer::Ignore}));
  EXPECT_EQ(static_cast<int>(Answer::Yes), 6);
  EXPECT_EQ(static_cast<int>(Answer::No), 7);
  EXPECT_STREQ(AnswerCaption(Answer::Cancel), "Abbrechen");
  EXPECT_STREQ(AnswerCaption(Answer::Retry), "Wiederholen");
}

TEST(MessageBoxes, ScriptedAnswersAreTakenInOrderAndFallBackToTheFirstButton) {
  ScriptedMessages m;
  m.queue(Answer::No);
  m.queue(Answer::Retry);  // not offered by a yes/no box
  Message question{"Aktive Tabelle speichern?", "Kolm", Buttons::YesNo, Icon::Question};
  EXPECT_EQ(m.show(question), Answer::No);
  EXPECT_EQ(m.show(question), Answer::Yes);
  EXPECT_EQ(m.show({"Fertig", "", Buttons::OK}), Answer::OK);
  ASSERT_EQ(m.shown().size(), 3u);
  EXPECT_EQ(m.shown()[0].message.text, "Aktive Tabelle speichern?");
  EXPECT_EQ(m.pending(), 0u);
}

TEST(InputAndFiles, WithoutAnAnswerTheyAreCancelled) {
  ScriptedInput in;
  in.queue(std::string("Neue Tabelle"));
  EXPECT_EQ(in.ask("Name?", "Kolm", "").value_or("-"), "Neue Tabelle");
  EXPECT_FALSE(in.ask("Name?", "Kolm", "").has_value());
  ScriptedFiles files;
  files.queue("");
  files.queue("/tmp/a.pkt");
  EXPECT_FALSE(files.choose({}).has_value()) << "an empty path cancels";
  EXPECT_EQ(files.choose({}).value_or(""), "/tmp/a.pkt");
  EXPECT_FALSE(files.choose({}).has_value());
}

TEST(SerialPorts, DeviceComesFromTheEnvironmentThenTtySThenTtyUSB) {
  std::set<std::string> present = {"/dev/ttyUSB1", "/dev/ttyS0"};
  auto exists = [&](const std::string& p) { return present.count(p) > 0; };
  auto none = [](const char*) -> const char* { return nullptr; };
  auto named = [](const char* v) -> const char* {
    return std::string(v) == "KOLM_COM2" ? "/tmp/pty-kolm" : nullptr;
  };
  EXPECT_EQ(SerialDeviceName(1, none, exists), "/dev/ttyS0");
  EXPECT_EQ(SerialDeviceName(2, none, exists), "/dev/ttyUSB1");
  EXPECT_EQ(SerialDeviceName(2, named, exists), "/tmp/pty-kolm");
  EXPECT_EQ(SerialDeviceName(3, none, exists), "/dev/ttyS2") << "nothing there: the first name";
}

TEST(SerialPorts, LoopbackDeliversFedBytesAndKeepsWrittenOnes) {
  LoopbackPorts ports;
  auto port = ports.create();
  int calls = 0;
  port->onReceive([&] { ++calls; });
  EXPECT_FALSE(port->open(5, "9600,n,8,1"));
  ASSERT_TRUE(port->open(1, "9600,n,8,1"));
  auto* loop = ports.created().front();
  loop->feed("ABC\r\n");
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(port->inBufferCount(), 5);
  EXPECT_EQ(port->read(), "ABC\r\n");
  EXPECT_EQ(port->inBufferCount(), 0);
  port->write("?");
  EXPECT_EQ(loop->written(), "?");
}

TEST(Printing, PagesOfAJobAreKeptInOrder) {
  RecordingPrinter printer;
  auto job = printer.begin("Punktliste");
  job->page().text(10, 10, "Seite 1");
  job->newPage();
  job->page().text(10, 10, "Seite 2");
  EXPECT_TRUE(job->finish());
  ASSERT_EQ(printer.jobs().size(), 1u);
  ASSERT_EQ(printer.jobs()[0].size(), 2u);
  const auto& last = printer.jobs()[0][1].commands().back();
  ASSERT_TRUE(std::holds_alternative<DisplayList::Text>(last));
  EXPECT_EQ(std::get<DisplayList::Text>(last).text, "Seite 2");
}

TEST(Utf8, DecodesAndEncodesAndSurvivesBrokenBytes) {
  const std::string text = "Gr\xC3\xB6\xC3\x9F" "e";  // Größe
  EXPECT_EQ(utf8::Length(text), 5);
  EXPECT_EQ(utf8::ByteOffset(text, 3), 4u);
  size_t i = 2;
  EXPECT_EQ(utf8::Next(text, i), U'ö');
  EXPECT_EQ(i, 4u);
  EXPECT_EQ(utf8::Encode(U'ß'), "\xC3\x9F");
  EXPECT_EQ(utf8::Encode(U'€'), "\xE2\x82\xAC");
  const std::string broken = "a\xC3";  // cut in the middle of a character
  i = 1;
  EXPECT_EQ(utf8::Next(broken, i), 0xC3u);
  EXPECT_EQ(i, 2u);
}

}  // namespace
}  // namespace kolm::forms
