// The command line of the program.
#include <gtest/gtest.h>

#include "options.h"

namespace kolm::app {
namespace {

TEST(CommandLine, ProjectMacroAndScreenshotAreRead) {
  Options o = ParseArguments({"--makro", "a.makro", "/daten/Projekt"});
  EXPECT_EQ(o.makro, "a.makro");
  EXPECT_EQ(o.projekt, "/daten/Projekt");
  EXPECT_TRUE(o.fehler.empty());
  o = ParseArguments({"--bildschirmfoto", "x.png", "--beenden-nach-bild"});
  EXPECT_EQ(o.bildschirmfoto, "x.png");
  EXPECT_TRUE(o.beendenNachBild);
  EXPECT_TRUE(o.projekt.empty());
  EXPECT_FALSE(o.demo);
  EXPECT_TRUE(ParseArguments({"--demo"}).demo);
}

TEST(CommandLine, MistakesAreNamedInGerman) {
  EXPECT_EQ(ParseArguments({"--makro"}).fehler, "Zur Option --makro fehlt der Dateiname.");
  EXPECT_EQ(ParseArguments({"--farbe"}).fehler, "Unbekannte Option --farbe.");
  EXPECT_EQ(ParseArguments({"a", "b"}).fehler, "Nur ein Projektverzeichnis kann angegeben werden.");
}

}  // namespace
}  // namespace kolm::app
