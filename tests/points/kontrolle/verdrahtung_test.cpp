// The entries of the main window open the dialogs.
#include <gtest/gtest.h>

#include "core/main/main_form.h"
#include "kontrolle_hilfen.h"

namespace kolm::points::test {
namespace {

struct MitHauptfenster : Umgebung {
  core::MainForm* main = nullptr;
  MitHauptfenster() {
    core::RegisterMainForms(forms, "/nicht/da");
    main = static_cast<core::MainForm*>(forms.show("Main"));
    anwendung.setMain(main);
    PunkteKontrolleVerbinden(*main, anwendung);
  }
  bool offen(const char* name) const {
    const forms::Form* f = forms.find(name);
    return f && f->shown();
  }
};

TEST(PunkteKontrolleVerdrahtung, MenuEntriesOpenTheirDialogs) {
  const std::vector<std::pair<const char*, const char*>> faelle = {
      {"MnuWerkzeugePunkteKontrolle", "PunkteKontrolle"},
      {"mnuAnsichtPunkteKontrolle", "PunkteKontrolle"},
      {"MnuTabelleBezeichnung", "PunktBezeichnungen"},
      {"MnuTabelleVariablen", "VariablenTabelle"},
  };
  for (const auto& [eintrag, dialog] : faelle) {
    SCOPED_TRACE(eintrag);
    MitHauptfenster m;
    EXPECT_TRUE(m.main->control(eintrag).enabled());
    m.main->control(eintrag).click();
    EXPECT_TRUE(m.offen(dialog));
    EXPECT_EQ(m.forms.active(), m.forms.find(dialog));
  }
  // The buttons of the bar run their entries' commands (the main window's
  // tests), so they open the same dialogs.
}

}  // namespace
}  // namespace kolm::points::test
