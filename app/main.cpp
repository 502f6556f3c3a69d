#include <QApplication>
#include <QMessageBox>
#include <iostream>

#include "options.h"
#include "program.h"
#include "shell/qt_services.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Kolm");
  QApplication::setOrganizationName("Kolm");
  kolm::shell::InstallGermanQtTranslations();

  std::vector<std::string> args(argv + 1, argv + argc);
  const kolm::app::Options options = kolm::app::ParseArguments(args);
  if (!options.fehler.empty()) {
    std::cerr << options.fehler << "\n" << kolm::app::Aufruf() << std::endl;
    return 2;
  }

  kolm::app::Program program(options);
  if (!options.makro.empty()) return program.runMacro(options.makro, std::cout);
  return program.runInteractive();
}
