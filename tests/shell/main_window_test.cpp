#include "shell/main_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <memory>
#include <set>

#include "core/main/main_form.h"
#include "forms/scripted.h"
#include "shell/icons.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using core::MainForm;

using test::App;

struct MainWindowFixture : ::testing::Test {
  forms::ScriptedServices scripted;
  forms::HeadlessHost host;
  forms::Forms forms{scripted.services};
  MainForm* main = nullptr;
  std::unique_ptr<MainWindow> window;

  void SetUp() override {
    App();
    forms.setHost(&host);
    core::RegisterMainForms(forms, "");
    main = static_cast<MainForm*>(forms.show("Main"));
    ASSERT_NE(main, nullptr);
    window = std::make_unique<MainWindow>(*main);
  }
  void TearDown() override { window.reset(); }

  // Top-level menus of the bar in order.
  std::vector<QMenu*> barMenus() {
    std::vector<QMenu*> list;
    for (QAction* a : window->menuBar()->actions())
      if (a->menu()) list.push_back(a->menu());
    return list;
  }
};

TEST_F(MainWindowFixture, MenuBarShowsTheMenusOfTheModel) {
  std::vector<std::string> titles;
  for (QMenu* m : barMenus()) titles.push_back(m->title().toStdString());
  EXPECT_EQ(titles, (std::vector<std::string>{"&Datei", "&Bearbeiten", "&Ansicht", "&Werkzeuge",
                                              "&Fenster", "&Hilfe"}));

  // Every entry of the model has its action, with the caption, in its menu.
  for (forms::Control* c : main->menuControls()) {
    QAction* a = window->action(c->name());
    ASSERT_NE(a, nullptr) << c->name();
    EXPECT_EQ(a->text().toStdString(), c->captionText()) << c->name();
    if (c->placement().container.empty()) continue;
    QMenu* parent = window->menu(c->placement().container);
    ASSERT_NE(parent, nullptr) << c->name();
    EXPECT_TRUE(parent->actions().contains(a)) << c->name();
  }
}

TEST_F(MainWindowFixture, EntriesKeepTheirOrderAndSeparators) {
  QMenu* datei = window->menu("mnuDatei");
  ASSERT_NE(datei, nullptr);
  std::vector<std::string> shown;
  for (QAction* a : datei->actions()) shown.push_back(a->isSeparator() ? "-" : a->text().toStdString());
  EXPECT_EQ(shown, (std::vector<std::string>{
                       "&Neu", "Ö&ffnen...", "&Speichern", "&Eigenschaften ändern...",
                       "Duplizieren (&Klonen)", "-", "Neues &Projekt...", "P&rojekt Öffnen...",
                       "Projekt kopieren &nach...", "-", "&Drucken", "Seitenaus&wurf (Puffer leeren)",
                       "Dr&uckereinstellungen", "-", "&Importieren", "E&xportieren", "D&atenübernahme",
                       "-", "&Beenden"}));
}

TEST_F(MainWindowFixture, EnabledStateAndShortcutsFollowTheModel) {
  EXPECT_FALSE(window->action("MnuDateiNeuTabelle")->isEnabled());
  EXPECT_TRUE(window->action("MnuFensterKaskade")->isEnabled());
  EXPECT_FALSE(window->action("FnLButton", 0)->isEnabled());

  int runs = 0;
  main->setCommand("MnuDateiÖffnenTabelle", [&] { ++runs; });
  EXPECT_TRUE(window->action("MnuDateiÖffnenTabelle")->isEnabled());
  EXPECT_TRUE(window->action("FnLButton", 0)->isEnabled());
  window->action("MnuDateiÖffnenTabelle")->trigger();
  window->action("FnLButton", 0)->trigger();
  EXPECT_EQ(runs, 2);

  EXPECT_EQ(window->action("MnuAnsichtBeschriftung")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_B));
  EXPECT_EQ(window->action("mnuAnsichtTaschenrechner")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
}

TEST_F(MainWindowFixture, ButtonBarsShowIconsAndTooltips) {
  QToolBar* fn = window->bar(MainForm::Bar::Funktionen);
  ASSERT_NE(fn, nullptr);
  int buttons = 0;
  for (QAction* a : fn->actions()) {
    if (a->isSeparator()) continue;
    EXPECT_FALSE(a->icon().isNull()) << a->toolTip().toStdString();
    ++buttons;
  }
  EXPECT_EQ(buttons, 21);
  EXPECT_EQ(window->action("FnLButton", 0)->toolTip().toStdString(), "Tabelle öffnen");
  EXPECT_EQ(window->action("FnLButton", 20)->toolTip().toStdString(), "Einfügen");
  EXPECT_EQ(window->action("GerButton", 7)->toolTip().toStdString(), "Vorwärtsschnitt");
  EXPECT_EQ(window->action("KreisButton", 13)->toolTip().toStdString(), "Eilinie");
  EXPECT_FALSE(window->action("KreisButton", 13)->icon().isNull());
}

TEST_F(MainWindowFixture, AnsichtEntriesHideAndShowTheirBarsWithCheckMark) {
  QAction* ger = window->action("MnuAnsichtGeradenschnitte");
  QToolBar* bar = window->bar(MainForm::Bar::Geradenschnitte);
  EXPECT_TRUE(ger->isCheckable());
  EXPECT_TRUE(ger->isChecked());
  EXPECT_FALSE(bar->isHidden());

  ger->trigger();
  EXPECT_TRUE(bar->isHidden());
  EXPECT_FALSE(ger->isChecked());
  EXPECT_FALSE(main->barVisible(MainForm::Bar::Geradenschnitte));

  ger->trigger();
  EXPECT_FALSE(bar->isHidden());
  EXPECT_TRUE(ger->isChecked());

  // The strip is a bar of its own.
  window->action("MnuAnsichtInfoLeiste")->trigger();
  EXPECT_TRUE(window->bar(MainForm::Bar::Informationen)->isHidden());
  // A change in the model reaches the window too.
  main->setBarVisible(MainForm::Bar::Informationen, true);
  EXPECT_FALSE(window->bar(MainForm::Bar::Informationen)->isHidden());
  EXPECT_TRUE(window->action("MnuAnsichtInfoLeiste")->isChecked());
}

TEST_F(MainWindowFixture, OrdinaryEntriesShowNoCheckMark) {
  QAction* kaskade = window->action("MnuFensterKaskade");
  EXPECT_FALSE(kaskade->isCheckable());
  kaskade->trigger();
  EXPECT_FALSE(kaskade->isChecked());
  EXPECT_EQ(scripted.desktop.calls(), std::vector<std::string>{"cascade"});
}

TEST_F(MainWindowFixture, StatusBarFollowsLabelInfo) {
  core::MainStatusLine status(forms);
  status.show("Punkte-Tabelle lesen...");
  EXPECT_EQ(window->statusLabel()->text().toStdString(), "Punkte-Tabelle lesen...");
  main->control("LabelInfo").setCaption("Tabelle Achse 1 geladen");
  EXPECT_EQ(window->statusLabel()->text().toStdString(), "Tabelle Achse 1 geladen");
}

TEST_F(MainWindowFixture, TitleFollowsTheCaption) {
  main->setProjectName("Umfahrung Nord");
  EXPECT_EQ(window->windowTitle().toStdString(), "Kolm: Umfahrung Nord");
}

TEST_F(MainWindowFixture, SettingsStripGoesBothWays) {
  auto* check3d = qobject_cast<QCheckBox*>(window->widget("Check3D"));
  auto* system = qobject_cast<QComboBox*>(window->widget("KoordinatenSystem"));
  auto* unit = qobject_cast<QComboBox*>(window->widget("ComboWinkelEinheit"));
  ASSERT_TRUE(check3d && system && unit);
  EXPECT_EQ(check3d->text().toStdString(), "3D");
  ASSERT_EQ(system->count(), 4);
  EXPECT_EQ(system->itemText(3).toStdString(), "? M31 links");
  EXPECT_EQ(unit->itemText(2).toStdString(), "Radiant");

  // User to model.
  check3d->click();
  EXPECT_EQ(main->control("Check3D").value(), 1);
  EXPECT_TRUE(window->action("MnuWerKoorDreiD")->isChecked());
  system->setCurrentIndex(1);
  emit system->activated(1);
  EXPECT_EQ(main->control("KoordinatenSystem").listIndex(), 1);
  EXPECT_TRUE(window->action("mnuPH")->isVisible());
  EXPECT_FALSE(window->action("mnuPZ")->isVisible());

  // Model to widgets.
  main->control("CheckPolar").setValue(1);
  EXPECT_TRUE(qobject_cast<QCheckBox*>(window->widget("CheckPolar"))->isChecked());
  main->control("ComboWinkelEinheit").setListIndex(1);
  EXPECT_EQ(unit->currentIndex(), 1);
  main->control("LabelAktTab").setCaption("Achse 1 km 0+120");
  EXPECT_EQ(qobject_cast<QLabel*>(window->widget("LabelAktTab"))->text().toStdString(), "Achse 1 km 0+120");
}

TEST_F(MainWindowFixture, BlueBoxShowsItsCaptionWithOneAmpersand) {
  auto* box = qobject_cast<QLabel*>(window->widget("DragContainer"));
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text().toStdString(), "Blue Box für Drag & Drop");
  EXPECT_NE(qobject_cast<QComboBox*>(window->widget("cmbBlueBox")), nullptr);
}

TEST_F(MainWindowFixture, CloseBoxAsksTheModel) {
  QCloseEvent event;
  QCoreApplication::sendEvent(window.get(), &event);
  EXPECT_TRUE(event.isAccepted());
  EXPECT_EQ(forms.find("Main"), nullptr);
  EXPECT_EQ(scripted.desktop.calls(), std::vector<std::string>{"quit"});
  // The window let go of the form: it may be collected before the window goes.
  EXPECT_FALSE(window->isEnabled());
  forms.collect();
}

TEST_F(MainWindowFixture, BeendenLeavesTheWindowInertOnceHidden) {
  window->show();
  window->action("MnuDateiBeenden")->trigger();
  EXPECT_EQ(scripted.desktop.calls(), std::vector<std::string>{"quit"});
  window->hide();  // as the host does for an unloaded form
  EXPECT_FALSE(window->isEnabled());
  forms.collect();
}

TEST_F(MainWindowFixture, RefusedCloseKeepsTheWindow) {
  struct Zaudernd : MainForm {
    using MainForm::MainForm;
    bool QueryUnload() override { return false; }
  };
  forms.registerForm("Zaudernd", [](forms::Forms& f) { return std::make_unique<Zaudernd>(f); });
  auto& zaudernd = static_cast<MainForm&>(*forms.load("Zaudernd"));
  MainWindow other(zaudernd);
  QCloseEvent event;
  QCoreApplication::sendEvent(&other, &event);
  EXPECT_FALSE(event.isAccepted());
  EXPECT_TRUE(other.isEnabled());
  EXPECT_TRUE(scripted.desktop.calls().empty());
  EXPECT_TRUE(zaudernd.loaded());
}

TEST(BarIcons, EveryButtonHasADistinctIcon) {
  App();
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  MainForm main(forms);
  std::set<std::string> used;
  for (const char* bar : {"FnLButton", "GerButton", "KreisButton"})
    for (forms::Control* b : main.array(bar)) {
      EXPECT_FALSE(BarIcon(b->iconName()).isNull()) << b->address();
      EXPECT_TRUE(used.insert(b->iconName()).second) << b->address() << " teilt sein Bild";
    }
  EXPECT_TRUE(BarIcon("gibt_es_nicht").isNull());

  // The drawn glyphs differ from each other and are not blank.
  std::vector<QImage> images;
  for (const std::string& name : BarIconNames()) {
    QImage img = DrawnGlyph(name, 32).toImage();
    bool inked = false;
    for (int y = 0; y < img.height() && !inked; ++y)
      for (int x = 0; x < img.width() && !inked; ++x) inked = qAlpha(img.pixel(x, y)) > 0;
    EXPECT_TRUE(inked) << name;
    for (const QImage& other : images) EXPECT_NE(img, other) << name;
    images.push_back(img);
  }
}

}  // namespace
}  // namespace kolm::shell
