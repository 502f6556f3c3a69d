// Every form the program registers opens in the real shell and closes again.
#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "forms/scripted.h"
#include <filesystem>
#include <fstream>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "shell/main_window.h"
#include "program.h"
#include "shell/qt_host.h"

namespace kolm::app {
namespace {

QApplication& App() {
  static int argc = 1;
  static char name[] = "kolm-smoke";
  static char* argv[] = {name, nullptr};
  // Never destroyed: Qt's input devices outlive a static application at exit.
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

TEST(Smoke, EveryRegisteredFormOpensAndClosesWithoutAnError) {
  App();
  forms::ScriptedMessages messages;  // outlive the program, which may ask as it ends
  forms::ScriptedInput input;
  forms::ScriptedFiles files;
  Program program(Options{});
  program.services().messages = &messages;
  program.services().input = &input;
  program.services().files = &files;
  program.host().setTimersEnabled(false);
  program.forms().show("Main");

  const auto names = program.forms().registeredNames();
  ASSERT_GE(names.size(), 3u) << "Main, Hilfe and Info at least";
  for (const std::string& name : names) {
    if (name == "Main") continue;
    SCOPED_TRACE(name);
    forms::Form* form = program.forms().show(name);  // modeless, so the test goes on
    ASSERT_NE(form, nullptr);
    QCoreApplication::processEvents();
    QWidget* window = program.host().windowOf(*form);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->windowTitle().isEmpty()) << "every window has a caption";
    EXPECT_TRUE(program.forms().unload(*form));
    QCoreApplication::processEvents();
    program.forms().collect();
    EXPECT_EQ(program.forms().FormGeladen(name), -1);
  }
  for (const auto& shown : messages.shown())
    ADD_FAILURE() << "unexpected message: " << shown.message.text;
}

TEST(Smoke, TheMainWindowCarriesTheProjectInItsTitle) {
  App();
  namespace fs = std::filesystem;
  const fs::path dir = fs::temp_directory_path() / ("kolm-smoke-" + std::to_string(::getpid()));
  fs::create_directories(dir / "B12" / "KOLM");
  {
    std::ofstream ini(dir / "B12" / "KOLM" / "Kolmproj.ini");
    ini << "[Project]\r\nName=Baustelle B12\r\n";
  }
  ::setenv("KOLM_INI", (dir / "Kolm.ini").c_str(), 1);
  {
    forms::ScriptedMessages messages;
    Program program(Options{});
    program.services().messages = &messages;
    ASSERT_TRUE(program.anwendung().Starten((dir / "B12").string()));
    EXPECT_EQ(program.main().caption(), "Kolm: Baustelle B12");
    EXPECT_EQ(program.window().windowTitle().toStdString(), "Kolm: Baustelle B12");
  }
  ::unsetenv("KOLM_INI");
  fs::remove_all(dir);
}

}  // namespace
}  // namespace kolm::app
