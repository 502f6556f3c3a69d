#include "options.h"

namespace kolm::app {

const char* Aufruf() {
  return "Aufruf: kolm [--demo] [PROJEKTVERZEICHNIS]\n"
         "       kolm --makro DATEI [PROJEKTVERZEICHNIS]\n"
         "       kolm --bildschirmfoto DATEI.png [--beenden-nach-bild] [PROJEKTVERZEICHNIS]";
}

Options ParseArguments(const std::vector<std::string>& args) {
  Options o;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&](std::string& into) {
      if (i + 1 >= args.size()) {
        o.fehler = "Zur Option " + a + " fehlt der Dateiname.";
        return;
      }
      into = args[++i];
    };
    if (a == "--makro") {
      value(o.makro);
    } else if (a == "--bildschirmfoto") {
      value(o.bildschirmfoto);
    } else if (a == "--demo") {
      o.demo = true;
    } else if (a == "--beenden-nach-bild") {
      o.beendenNachBild = true;
    } else if (a.size() > 1 && a[0] == '-' && a[1] == '-') {
      o.fehler = "Unbekannte Option " + a + ".";
    } else if (o.projekt.empty()) {
      o.projekt = a;
    } else {
      o.fehler = "Nur ein Projektverzeichnis kann angegeben werden.";
    }
    if (!o.fehler.empty()) break;
  }
  return o;
}

}  // namespace kolm::app
