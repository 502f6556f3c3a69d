#include "core/main/help_forms.h"

#include <gtest/gtest.h>

#include <set>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/main/main_form.h"
#include "forms/scripted.h"
#include "forms/utf8.h"
#include "support/test_ordner.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;

// The help pages the program installs.
fs::path InstalledHelp() { return fs::path(KOLM_TEST_DATA).parent_path().parent_path() / "data" / "hilfe"; }

std::string ReadAll(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

struct HelpFixture : ::testing::Test {
  kolm::testhilfen::TestOrdner tmp{"hilfe"};
  const fs::path& dir = tmp.pfad;
  forms::ScriptedServices scripted;
  forms::HeadlessHost host;
  forms::Forms forms{scripted.services};
  FormHelp help{forms};

  void SetUp() override {
    write("index", "<h1>Kolm</h1><p>Inhalt</p>");
    write("menue_datei", "<h1>Menü Datei</h1>");
    write("hilfe_benutzen", "<h1>Hilfe benutzen</h1>");
    write("skizze_kreis", "<h1>Skizze Kreis</h1>");
    forms.setHost(&host);
    scripted.services.help = &help;
    RegisterMainForms(forms, dir.string());
  }

  void write(const std::string& topic, const std::string& body) {
    std::ofstream(dir / (topic + ".html"), std::ios::binary) << "<html><body>" << body << "</body></html>";
  }
  HilfeForm& hilfe() {
    auto* f = dynamic_cast<HilfeForm*>(forms.find("Hilfe"));
    EXPECT_NE(f, nullptr);
    return *f;
  }
  std::string shown() { return hilfe().control("Inhalt").captionText(); }
  int chosen() { return hilfe().control("Themen").listIndex(); }
};

TEST_F(HelpFixture, ContentsOpenAModelessWindowOnTheFirstTopic) {
  help.showTopic("");
  ASSERT_NE(forms.find("Hilfe"), nullptr);
  EXPECT_TRUE(hilfe().shown());
  EXPECT_FALSE(hilfe().modal());
  EXPECT_NE(shown().find("<p>Inhalt</p>"), std::string::npos);
  EXPECT_EQ(chosen(), 0);
  EXPECT_EQ(hilfe().control("Themen").list().front(), "Inhalt");
}

TEST_F(HelpFixture, MenuEntriesOfTheFrameReachTheHelpWindow) {
  forms.show("Main");
  forms.find("Main")->control("MnuHilfeZuFilfe").click();
  EXPECT_NE(shown().find("Hilfe benutzen"), std::string::npos);
  EXPECT_EQ(hilfe().currentTopic(), "hilfe_benutzen");
  forms.find("Main")->control("MnuHilfeHilfe").click();
  EXPECT_EQ(hilfe().currentTopic(), "index");
  EXPECT_EQ(forms.loaded().size(), 2u);  // one help window, not two
}

TEST_F(HelpFixture, ChoosingATopicInTheListShowsItsPage) {
  help.showTopic("");
  int menueDatei = -1;
  for (size_t i = 0; i < HelpTopics().size(); ++i)
    if (HelpTopics()[i].file == "menue_datei") menueDatei = static_cast<int>(i);
  ASSERT_GE(menueDatei, 0);
  hilfe().control("Themen").setListIndex(menueDatei);
  EXPECT_NE(shown().find("Menü Datei"), std::string::npos);
  EXPECT_EQ(hilfe().currentTopic(), "menue_datei");
}

TEST_F(HelpFixture, TopicsOutsideTheListAreShownWithoutAChoice) {
  help.showTopic("menue_datei");
  EXPECT_GE(chosen(), 0);
  help.showTopic("skizze_kreis");
  EXPECT_NE(shown().find("Skizze Kreis"), std::string::npos);
  EXPECT_EQ(chosen(), -1);
  help.showTopic("skizze_kreis.html");
  EXPECT_NE(shown().find("Skizze Kreis"), std::string::npos);
}

TEST_F(HelpFixture, AMissingTopicSaysSo) {
  help.showTopic("gibt_es_nicht");
  EXPECT_NE(shown().find("Hilfethema nicht gefunden"), std::string::npos);
  EXPECT_NE(shown().find("gibt_es_nicht"), std::string::npos);
  EXPECT_EQ(chosen(), -1);

  // Nothing outside the help folder is read.
  std::ofstream(dir.parent_path() / "kolm_geheim.html") << "<p>geheim</p>";
  help.showTopic("../kolm_geheim");
  EXPECT_NE(shown().find("Hilfethema nicht gefunden"), std::string::npos);
  EXPECT_EQ(shown().find("geheim</p>"), std::string::npos);
  fs::remove(dir.parent_path() / "kolm_geheim.html");

  // Text in a topic name is shown as text.
  help.showTopic("<b>");
  EXPECT_NE(shown().find("&lt;b&gt;"), std::string::npos);
}

TEST_F(HelpFixture, TopicsWithUmlautsAndSharpSReachTheirPages) {
  // Calculation dialogs are named so and open their sketch by that name.
  write("Rückwärtsschnitt", "<h1>Rückwärtsschnitt</h1>");
  write("DirekterAnschluß", "<h1>Direkter Anschluß</h1>");
  help.showTopic("Rückwärtsschnitt");
  EXPECT_NE(shown().find("<h1>Rückwärtsschnitt</h1>"), std::string::npos);
  EXPECT_EQ(hilfe().currentTopic(), "Rückwärtsschnitt");
  help.showTopic("DirekterAnschluß");
  EXPECT_NE(shown().find("<h1>Direkter Anschluß</h1>"), std::string::npos);

  // Only whole UTF-8 letters: a cut sequence or a stray byte is no name.
  help.showTopic(std::string("R\xC3"));
  EXPECT_NE(shown().find("Hilfethema nicht gefunden"), std::string::npos);
  help.showTopic(std::string("R\xFC") + "ckw");
  EXPECT_NE(shown().find("Hilfethema nicht gefunden"), std::string::npos);
  help.showTopic("ü/../index");
  EXPECT_NE(shown().find("Hilfethema nicht gefunden"), std::string::npos);
}

TEST_F(HelpFixture, PicturesOfAPageAreFoundInTheHelpFolder) {
  write("bild", "<img src=\"skizzen/a.png\"><img src=\"http://x/b.png\"><img src=\"/abs/c.png\">");
  help.showTopic("bild");
  const std::string folder = fs::absolute(dir).generic_string();
  EXPECT_NE(shown().find("src=\"file://" + folder + "/skizzen/a.png\""), std::string::npos);
  EXPECT_NE(shown().find("src=\"http://x/b.png\""), std::string::npos);
  EXPECT_NE(shown().find("src=\"/abs/c.png\""), std::string::npos);
}

TEST(InstalledHelp, EverySketchOfAPageIsThere) {
  for (const auto& entry : fs::directory_iterator(InstalledHelp())) {
    if (entry.path().extension() != ".html") continue;
    const std::string html = ReadAll(entry.path());
    for (size_t pos = 0; (pos = html.find("src=\"", pos)) != std::string::npos;) {
      pos += 5;
      const std::string bild = html.substr(pos, html.find('"', pos) - pos);
      SCOPED_TRACE(entry.path().filename().string() + ": " + bild);
      EXPECT_TRUE(fs::exists(InstalledHelp() / bild));
    }
  }
}

TEST_F(HelpFixture, CloseButtonClosesTheWindow) {
  help.showTopic("");
  hilfe().control("Cancel").click();
  EXPECT_EQ(forms.find("Hilfe"), nullptr);
  help.showTopic("menue_datei");
  EXPECT_EQ(hilfe().currentTopic(), "menue_datei");
}

TEST(InstalledHelp, EveryPageOfTheHelpFolderIsListed) {
  std::set<std::string> listed;
  for (const HelpTopic& topic : HelpTopics()) listed.insert(topic.file);
  for (const auto& entry : fs::directory_iterator(InstalledHelp())) {
    if (entry.path().extension() != ".html") continue;
    EXPECT_TRUE(listed.count(entry.path().stem().string())) << entry.path().filename() << " cannot be found";
  }
}

TEST(InstalledHelp, EveryListedTopicHasAReadablePage) {
  for (const HelpTopic& topic : HelpTopics()) {
    SCOPED_TRACE(topic.file);
    const fs::path page = InstalledHelp() / (topic.file + ".html");
    ASSERT_TRUE(fs::exists(page));
    const std::string html = ReadAll(page);
    EXPECT_NE(html.find("<h1>"), std::string::npos);
    EXPECT_NE(html.find("charset=\"utf-8\""), std::string::npos);
    // UTF-8 throughout: no byte decodes as a stray Windows-1252 character.
    size_t i = 0;
    bool clean = true;
    while (i < html.size()) {
      const size_t at = i;
      const char32_t ch = forms::utf8::Next(html, i);
      if (static_cast<unsigned char>(html[at]) >= 0x80 && i - at == 1 && ch < 0x100) clean = false;
    }
    EXPECT_TRUE(clean);
  }
}

TEST(InstalledHelp, TheHelpWindowShowsTheInstalledContents) {
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  RegisterMainForms(forms, InstalledHelp().string());
  FormHelp help(forms);
  help.showTopic("");
  const std::string html = forms.find("Hilfe")->control("Inhalt").captionText();
  EXPECT_EQ(html.find("Hilfethema nicht gefunden"), std::string::npos);
  EXPECT_NE(html.find("Kolm"), std::string::npos);
}

}  // namespace
}  // namespace kolm::core
