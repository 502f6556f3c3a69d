#pragma once
#include <string>
#include <vector>

namespace kolm::app {

// What the command line asks for.
struct Options {
  std::string projekt;         // project folder given as parameter, empty: the last one
  std::string makro;           // --makro DATEI: run this macro headless and end
  std::string bildschirmfoto;  // --bildschirmfoto DATEI: PNG of the main window once shown
  bool beendenNachBild = false;  // --beenden-nach-bild: end after writing that picture
  bool demo = false;           // --demo: open the demo project whatever was open last
  std::string fehler;          // a German message when the command line is wrong
};

// Reads the arguments after the program name.
Options ParseArguments(const std::vector<std::string>& args);

// One line on how to call the program, for a wrong command line.
const char* Aufruf();

}  // namespace kolm::app
