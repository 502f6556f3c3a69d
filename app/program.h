#pragma once
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

#include "forms/forms.h"
#include "forms/services.h"
#include "options.h"

namespace kolm::core {
class Anwendung;
class MainForm;
class Zustand;
}
namespace kolm::shell {
class MainWindow;
class QtHost;
}

namespace kolm::app {

// The running program: its services, its forms, the main window and the
// host that shows every other form. Needs a QApplication.
class Program {
 public:
  // extraForms registers forms beside the program's own (test forms).
  explicit Program(const Options& options,
                   std::function<void(forms::Forms&)> extraForms = nullptr);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  forms::Forms& forms() { return *forms_; }
  forms::Services& services() { return services_; }
  core::MainForm& main() { return *main_; }
  core::Zustand& zustand() { return *zustand_; }
  core::Anwendung& anwendung() { return *anwendung_; }
  shell::MainWindow& window() { return *window_; }
  shell::QtHost& host() { return *host_; }
  // Folder of the program data (help, templates, demo project), ending in "/".
  const std::string& programmVerzeichnis() const { return programmVerzeichnis_; }

  // Shows the main window and runs until the program ends.
  int runInteractive();
  // Runs a macro without timers and without dialogs on screen; the exit
  // status of the macro.
  int runMacro(const std::string& file, std::ostream& out);

 private:
  struct Parts;
  void registerForms();
  void wireCore();
  void writeScreenshotLater(const std::string& path, bool thenQuit);

  Options options_;
  std::string programmVerzeichnis_;
  forms::Services services_;
  std::unique_ptr<Parts> parts_;
  std::unique_ptr<core::Zustand> zustand_;
  std::unique_ptr<forms::Forms> forms_;
  std::unique_ptr<core::Anwendung> anwendung_;
  core::MainForm* main_ = nullptr;
  std::unique_ptr<shell::MainWindow> window_;
  std::unique_ptr<shell::QtHost> host_;
};

// Folder of the program data next to the program: <bin>/../data, where the
// build prepares it.
std::string FindProgrammVerzeichnis();

}  // namespace kolm::app
