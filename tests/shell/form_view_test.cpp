#include "shell/form_view.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/scripted.h"
#include "shell/picture_widget.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

// A point input dialog as form logic declares one.
class PunktForm final : public forms::Form {
 public:
  std::vector<std::string> log;
  std::function<void(EventArgs&)> keyPress;

  explicit PunktForm(forms::Forms& forms) : Form(forms, "PunktEingabe", "Punkt eingeben") {
    add(ControlKind::Label, "LabelNr").caption("&Nummer:").at(0, 0);
    add(ControlKind::TextBox, "Nr").at(0, 1).width(12).tip("Punktnummer");
    add(ControlKind::Label, "LabelInfo").caption("Lage && Höhe").at(1, 0, 1, 2);
    add(ControlKind::CheckBox, "Merken").caption("&Merken").at(2, 0);
    add(ControlKind::Frame, "Art").caption("Art").at(3, 0, 1, 2);
    add(ControlKind::OptionButton, "Typ", 0).caption("Lage").in("Art").at(0, 0);
    add(ControlKind::OptionButton, "Typ", 1).caption("Höhe").in("Art").at(0, 1);
    add(ControlKind::ComboBox, "Format").items({"Rechts/Hoch", "Hoch/Rechts", "Polar"}).at(4, 1);
    add(ControlKind::ComboBox, "Liste").items({"eins", "zwei"}).dropDownList().at(5, 1);
    add(ControlKind::ListBox, "Punkte").items({"100", "101", "102", "103"}).at(6, 0, 1, 2);
    add(ControlKind::ListBox, "Auswahl").items({"a", "b", "c"}).multiSelect().at(7, 0, 1, 2);
    add(ControlKind::TextBox, "Bemerkung").multiLine().at(8, 0, 1, 2);
    add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(9, 0);
    add(ControlKind::CommandButton, "Cancel").caption("Abbrechen").asCancel().at(9, 1);
    add(ControlKind::CommandButton, "Aktualisieren").hidden();
    add(ControlKind::Timer, "Uhr").interval(50);

    for (const char* name : {"Nr", "Format", "Bemerkung"})
      on(name, Event::Change, [this](Control& c, EventArgs&) { log.push_back("Change " + c.name() + ": " + c.text()); });
    on("Nr", Event::KeyPress, [this](Control&, EventArgs& a) {
      log.push_back("KeyPress " + std::to_string(a.keyAscii));
      if (keyPress) keyPress(a);
    });
    for (const char* name : {"OK", "Cancel", "Merken", "Typ", "Format", "Liste", "Punkte", "Auswahl", "LabelNr"})
      on(name, Event::Click, [this](Control& c, EventArgs&) { log.push_back("Click " + c.address()); });
    on("Punkte", Event::DblClick, [this](Control& c, EventArgs&) { log.push_back("DblClick " + c.name()); });
    on("Nr", Event::GotFocus, [this](Control& c, EventArgs&) { log.push_back("GotFocus " + c.name()); });
    on("Nr", Event::LostFocus, [this](Control& c, EventArgs&) { log.push_back("LostFocus " + c.name()); });
  }

  int count(const std::string& entry) const { return static_cast<int>(std::count(log.begin(), log.end(), entry)); }
};

// Types any text, umlauts included, key by key.
void Type(QWidget* w, const QString& text) {
  for (const QChar ch : text) {
    const auto key = static_cast<Qt::Key>(ch.isLetter() ? ch.toUpper().unicode() : ch.unicode());
    QTest::sendKeyEvent(QTest::Click, w, key, QString(ch), Qt::NoModifier);
  }
}

struct FormViewFixture : ::testing::Test {
  forms::ScriptedServices scripted;
  forms::Forms forms{scripted.services};
  std::unique_ptr<PunktForm> form;
  std::unique_ptr<FormWidget> view;

  void SetUp() override {
    test::App();
    form = std::make_unique<PunktForm>(forms);
    view = std::make_unique<FormWidget>(*form);
    view->show();
  }
  void TearDown() override {
    view.reset();
    form.reset();
  }

  Control& control(const char* name, int index = -1) { return form->control(name, index); }
  template <typename W>
  W* widget(const char* name, int index = -1) {
    auto* w = qobject_cast<W*>(view->widgetOf(control(name, index)));
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
};

// ---- building ---------------------------------------------------------------------------------

TEST_F(FormViewFixture, EachKindBecomesItsWidget) {
  EXPECT_NE(widget<QLabel>("LabelNr"), nullptr);
  EXPECT_NE(widget<QLineEdit>("Nr"), nullptr);
  EXPECT_NE(widget<QCheckBox>("Merken"), nullptr);
  EXPECT_NE(widget<QGroupBox>("Art"), nullptr);
  EXPECT_NE(widget<QRadioButton>("Typ", 1), nullptr);
  EXPECT_NE(widget<QListWidget>("Punkte"), nullptr);
  EXPECT_NE(widget<QPlainTextEdit>("Bemerkung"), nullptr);
  EXPECT_TRUE(widget<QComboBox>("Format")->isEditable());
  EXPECT_FALSE(widget<QComboBox>("Liste")->isEditable());
  EXPECT_EQ(widget<QListWidget>("Auswahl")->selectionMode(), QAbstractItemView::ExtendedSelection);
  EXPECT_EQ(widget<QListWidget>("Punkte")->selectionMode(), QAbstractItemView::SingleSelection);
  EXPECT_TRUE(widget<QPushButton>("OK")->isDefault());
  EXPECT_EQ(view->widgetOf(control("Uhr")), nullptr);
  EXPECT_NE(view->timerOf(control("Uhr")), nullptr);
  EXPECT_EQ(view->windowTitle(), QString::fromUtf8("Punkt eingeben"));
}

TEST_F(FormViewFixture, ControlsStandInTheirContainers) {
  auto* frame = widget<QGroupBox>("Art");
  EXPECT_EQ(frame->title(), "Art");
  EXPECT_TRUE(frame->isAncestorOf(widget<QRadioButton>("Typ", 0)));
  EXPECT_TRUE(frame->isAncestorOf(widget<QRadioButton>("Typ", 1)));
  EXPECT_FALSE(frame->isAncestorOf(widget<QLineEdit>("Nr")));
  // Row 0: the label left of its field.
  EXPECT_LT(widget<QLabel>("LabelNr")->geometry().center().x(), widget<QLineEdit>("Nr")->geometry().center().x());
  EXPECT_LT(widget<QLineEdit>("Nr")->geometry().bottom(), widget<QCheckBox>("Merken")->geometry().top());
  // Twelve characters fit into the number field.
  const QLineEdit* nr = widget<QLineEdit>("Nr");
  EXPECT_GE(nr->width(), nr->fontMetrics().averageCharWidth() * 12);
}

TEST_F(FormViewFixture, HiddenCommandsAreNotShown) {
  EXPECT_FALSE(widget<QPushButton>("Aktualisieren")->isVisible());
  EXPECT_TRUE(widget<QPushButton>("OK")->isVisible());
}

TEST_F(FormViewFixture, AccessKeysOfCaptions) {
  // The label acts for the field after it, so its "&" marks the access key.
  auto* label = widget<QLabel>("LabelNr");
  EXPECT_EQ(label->buddy(), widget<QLineEdit>("Nr"));
  EXPECT_EQ(label->text(), "&Nummer:");
  EXPECT_EQ(WithoutAccessKey("Lage && Höhe"), QString::fromUtf8("Lage & Höhe"));
  EXPECT_EQ(WithoutAccessKey("&Datei"), "Datei");
  EXPECT_EQ(widget<QCheckBox>("Merken")->text(), "&Merken");
}

TEST_F(FormViewFixture, TabControlPagesHoldTheirControls) {
  class Register final : public forms::Form {
   public:
    explicit Register(forms::Forms& f) : Form(f, "Register", "Register") {
      add(ControlKind::TabControl, "Seiten").items({"&Allgemein", "Punkte"}).at(0, 0);
      add(ControlKind::TextBox, "Name").in("Seiten", 0).at(0, 0);
      add(ControlKind::TextBox, "Anzahl").in("Seiten", 1).at(0, 0);
      on("Seiten", Event::Click, [this](Control& c, EventArgs&) { clicks.push_back(c.listIndex()); });
    }
    std::vector<int> clicks;
  } reg(forms);
  FormWidget w(reg);
  auto* tabs = qobject_cast<QTabWidget*>(w.widgetOf(reg.control("Seiten")));
  ASSERT_NE(tabs, nullptr);
  ASSERT_EQ(tabs->count(), 2);
  EXPECT_EQ(tabs->tabText(0), "&Allgemein");
  EXPECT_TRUE(tabs->widget(0)->isAncestorOf(w.widgetOf(reg.control("Name"))));
  EXPECT_TRUE(tabs->widget(1)->isAncestorOf(w.widgetOf(reg.control("Anzahl"))));
  // The page is ListIndex, both ways.
  reg.control("Seiten").setListIndex(1);
  EXPECT_EQ(tabs->currentIndex(), 1);
  tabs->setCurrentIndex(0);
  EXPECT_EQ(reg.control("Seiten").listIndex(), 0);
  EXPECT_EQ(reg.clicks, (std::vector<int>{1, 0}));
}

// ---- typing -------------------------------------------------------------------------------------

TEST_F(FormViewFixture, OnlyAMultiLineLabelWrapsItsText) {
  class Notiz final : public forms::Form {
   public:
    explicit Notiz(forms::Forms& f) : Form(f, "Notiz", "Notiz") {
      add(ControlKind::Label, "Hinweis").caption("Ein langer Hinweis bricht an Leerzeichen um").multiLine();
      add(ControlKind::Label, "Titel").caption("Kurz").at(1, 0);
    }
  };
  Notiz notiz(forms);
  FormWidget notizView(notiz);
  EXPECT_TRUE(notizView.findChild<QLabel*>("Hinweis")->wordWrap());
  EXPECT_FALSE(notizView.findChild<QLabel*>("Titel")->wordWrap());
}

TEST_F(FormViewFixture, F1InAFieldOpensTheFormsHelpTopicAndLeavesTheText) {
  form->setHelpTopic("Punkt");
  auto* nr = widget<QLineEdit>("Nr");
  QTest::keyClicks(nr, "7");
  QTest::keyClick(nr, Qt::Key_F1);
  EXPECT_EQ(scripted.help.topics(), (std::vector<std::string>{"Punkt"}));
  EXPECT_EQ(control("Nr").text(), "7");
}

TEST_F(FormViewFixture, TypingReachesTheModelWithChangeAndKeyPress) {
  auto* nr = widget<QLineEdit>("Nr");
  QTest::keyClicks(nr, "12a");
  EXPECT_EQ(control("Nr").text(), "12a");
  EXPECT_EQ(nr->text(), "12a");
  EXPECT_EQ(form->count("Change Nr: 1"), 1);
  EXPECT_EQ(form->count("Change Nr: 12"), 1);
  EXPECT_EQ(form->count("Change Nr: 12a"), 1);
  EXPECT_EQ(form->count("KeyPress 49"), 1);
  EXPECT_EQ(form->count("KeyPress 97"), 1);
  EXPECT_EQ(control("Nr").selStart(), 3);
  // Backspace edits natively and still reaches the model once.
  QTest::keyClick(nr, Qt::Key_Backspace);
  EXPECT_EQ(control("Nr").text(), "12");
  EXPECT_EQ(form->count("Change Nr: 12"), 2);
  EXPECT_EQ(form->count("KeyPress 8"), 1);
}

TEST_F(FormViewFixture, CaretAndSelectionReachTheModel) {
  auto* nr = widget<QLineEdit>("Nr");
  Type(nr, QString::fromUtf8("Höhe"));
  QTest::keyClick(nr, Qt::Key_Home);
  QTest::keyClick(nr, Qt::Key_Right);
  EXPECT_EQ(control("Nr").selStart(), 1);
  EXPECT_EQ(control("Nr").selLength(), 0);
  QTest::keyClick(nr, Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(nr, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(control("Nr").selStart(), 1);
  EXPECT_EQ(control("Nr").selLength(), 2);
  EXPECT_EQ(control("Nr").selectedText(), "öh");
  // And from the model to the field.
  control("Nr").setSelection(0, 1);
  EXPECT_EQ(nr->selectedText(), "H");
}

TEST_F(FormViewFixture, KeyPressHandlerSwallowsCharacters) {
  form->keyPress = [](EventArgs& a) {
    if (a.keyAscii >= 32 && (a.keyAscii < '0' || a.keyAscii > '9')) a.keyAscii = 0;
  };
  auto* nr = widget<QLineEdit>("Nr");
  QTest::keyClicks(nr, "1a2b");
  EXPECT_EQ(nr->text(), "12");
  EXPECT_EQ(control("Nr").text(), "12");
  EXPECT_EQ(form->count("Change Nr: 1a"), 0);
}

TEST_F(FormViewFixture, KeyPressHandlerTypesAnotherCharacter) {
  form->keyPress = [](EventArgs& a) {
    if (a.keyAscii == ',') a.keyAscii = '.';
    if (a.keyAscii >= 'a' && a.keyAscii <= 'z') a.keyAscii -= 32;
  };
  auto* nr = widget<QLineEdit>("Nr");
  QTest::keyClicks(nr, "1,5x");
  EXPECT_EQ(nr->text(), "1.5X");
  EXPECT_EQ(control("Nr").text(), "1.5X");
  EXPECT_EQ(nr->cursorPosition(), 4);
  EXPECT_EQ(form->count("Change Nr: 1."), 1);
  // In the middle of the text, too.
  QTest::keyClick(nr, Qt::Key_Left);
  QTest::keyClicks(nr, "y");
  EXPECT_EQ(nr->text(), "1.5YX");
  EXPECT_EQ(nr->cursorPosition(), 4);
}

TEST_F(FormViewFixture, EnterClicksTheDefaultButtonAndEscTheCancelButton) {
  auto* nr = widget<QLineEdit>("Nr");
  QTest::keyClicks(nr, "7");
  QTest::keyClick(nr, Qt::Key_Return);
  EXPECT_EQ(form->count("Click OK"), 1);
  EXPECT_EQ(nr->text(), "7");
  QTest::keyClick(nr, Qt::Key_Escape);
  EXPECT_EQ(form->count("Click Cancel"), 1);
  EXPECT_EQ(form->count("Click OK"), 1);
  // Without a default button Enter stays with the field.
  control("OK").setEnabled(false);
  QTest::keyClick(nr, Qt::Key_Return);
  EXPECT_EQ(form->count("Click OK"), 1);
  EXPECT_EQ(form->count("KeyPress 13"), 1);
}

TEST_F(FormViewFixture, MultiLineFieldKeepsCrLfInTheModel) {
  auto* memo = widget<QPlainTextEdit>("Bemerkung");
  QTest::keyClicks(memo, "ab");
  QTest::keyClick(memo, Qt::Key_Return);  // a new line, not the default button
  QTest::keyClicks(memo, "c");
  EXPECT_EQ(control("Bemerkung").text(), "ab\r\nc");
  EXPECT_EQ(control("Bemerkung").selStart(), 5);
  EXPECT_EQ(form->count("Click OK"), 0);
  control("Bemerkung").setText("x\r\ny");
  EXPECT_EQ(memo->toPlainText(), "x\ny");
}

TEST(FormViewPositions, CodePointsAndUtf16) {
  EXPECT_EQ(WidgetPosition("a\xF0\x9F\x98\x80" "b", 2, false), 3);  // an emoji takes two UTF-16 units
  EXPECT_EQ(ModelPosition("a\xF0\x9F\x98\x80" "b", 3, false), 2);
  EXPECT_EQ(WidgetPosition("ab\r\ncd", 4, true), 3);  // CR LF is one line break
  EXPECT_EQ(ModelPosition("ab\r\ncd", 3, true), 4);
  EXPECT_EQ(WidgetPosition("ab", 9, false), 2);
}

// ---- the model shows in the widgets ------------------------------------------------------------

TEST_F(FormViewFixture, ModelChangesShowInTheWidgets) {
  control("Nr").setText("4711");
  EXPECT_EQ(widget<QLineEdit>("Nr")->text(), "4711");
  control("LabelInfo").setCaption("Nur && Lage");
  {
    // Drawn as a plain label with the single "&" would be.
    QLabel* label = widget<QLabel>("LabelInfo");
    QLabel plain("Nur & Lage", label->parentWidget());
    plain.setTextFormat(Qt::PlainText);
    plain.setAlignment(label->alignment());
    plain.setGeometry(label->geometry());
    plain.show();
    EXPECT_EQ(label->grab().toImage(), plain.grab().toImage());
    control("LabelInfo").setCaption("Nur & Lage");
    EXPECT_NE(label->grab().toImage(), plain.grab().toImage());
  }
  control("Art").setCaption("Punktart");
  EXPECT_EQ(widget<QGroupBox>("Art")->title(), "Punktart");
  control("OK").setCaption("&Übernehmen");
  EXPECT_EQ(widget<QPushButton>("OK")->text(), QString::fromUtf8("&Übernehmen"));
  control("Nr").setEnabled(false);
  EXPECT_FALSE(widget<QLineEdit>("Nr")->isEnabled());
  control("Nr").setEnabled(true);
  EXPECT_TRUE(widget<QLineEdit>("Nr")->isEnabled());
  control("Merken").setVisible(false);
  EXPECT_FALSE(widget<QCheckBox>("Merken")->isVisible());
  control("Aktualisieren").setVisible(true);
  EXPECT_TRUE(widget<QPushButton>("Aktualisieren")->isVisible());
  control("Nr").setToolTip("Nummer des Punktes");
  EXPECT_EQ(widget<QLineEdit>("Nr")->toolTip(), "Nummer des Punktes");
  control("Merken").setValue(1);
  EXPECT_TRUE(widget<QCheckBox>("Merken")->isChecked());
  control("Typ", 1).setValue(1);
  EXPECT_TRUE(widget<QRadioButton>("Typ", 1)->isChecked());
  control("Typ", 0).setValue(1);
  EXPECT_TRUE(widget<QRadioButton>("Typ", 0)->isChecked());
  EXPECT_FALSE(widget<QRadioButton>("Typ", 1)->isChecked());
  form->setCaption("Punkt ändern");
  EXPECT_EQ(view->windowTitle(), QString::fromUtf8("Punkt ändern"));
}

TEST_F(FormViewFixture, ListChangesShowInListsAndCombos) {
  control("Punkte").addItem("104");
  EXPECT_EQ(widget<QListWidget>("Punkte")->count(), 5);
  EXPECT_EQ(widget<QListWidget>("Punkte")->item(4)->text(), "104");
  control("Format").setList({"X", "Y"});
  EXPECT_EQ(widget<QComboBox>("Format")->count(), 2);
  EXPECT_EQ(widget<QComboBox>("Format")->itemText(1), "Y");
  control("Punkte").clearList();
  EXPECT_EQ(widget<QListWidget>("Punkte")->count(), 0);
}

// ---- user actions reach the model ----------------------------------------------------------------

TEST_F(FormViewFixture, ButtonClickReachesTheModelOnce) {
  QTest::mouseClick(widget<QPushButton>("OK"), Qt::LeftButton);
  EXPECT_EQ(form->count("Click OK"), 1);
  EXPECT_EQ(form->count("Click Cancel"), 0);
}

TEST_F(FormViewFixture, CheckBoxClickTogglesTheModelOnce) {
  auto* box = widget<QCheckBox>("Merken");
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(control("Merken").value(), 1);
  EXPECT_TRUE(box->isChecked());
  EXPECT_EQ(form->count("Click Merken"), 1);
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(control("Merken").value(), 0);
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(form->count("Click Merken"), 2);
}

TEST_F(FormViewFixture, OptionChoiceReachesTheModelOnce) {
  auto* lage = widget<QRadioButton>("Typ", 0);
  auto* hoehe = widget<QRadioButton>("Typ", 1);
  QTest::mouseClick(hoehe, Qt::LeftButton);
  EXPECT_EQ(control("Typ", 1).value(), 1);
  EXPECT_EQ(control("Typ", 0).value(), 0);
  EXPECT_EQ(form->count("Click Typ(1)"), 1);
  QTest::mouseClick(lage, Qt::LeftButton);
  EXPECT_EQ(control("Typ", 0).value(), 1);
  EXPECT_EQ(control("Typ", 1).value(), 0);
  EXPECT_FALSE(hoehe->isChecked());
  EXPECT_EQ(form->count("Click Typ(0)"), 1);
  // Choosing the chosen option again keeps it chosen.
  QTest::mouseClick(lage, Qt::LeftButton);
  EXPECT_TRUE(lage->isChecked());
  EXPECT_EQ(control("Typ", 0).value(), 1);
}

TEST_F(FormViewFixture, ComboChoiceMirrorsBothWays) {
  auto* combo = widget<QComboBox>("Format");
  control("Format").setListIndex(2);
  EXPECT_EQ(combo->currentIndex(), 2);
  EXPECT_EQ(combo->currentText(), "Polar");
  form->log.clear();
  // The arrow key chooses the entry before, as the user sees it.
  QTest::keyClick(combo, Qt::Key_Up);
  EXPECT_EQ(control("Format").listIndex(), 1);
  EXPECT_EQ(control("Format").text(), "Hoch/Rechts");
  EXPECT_EQ(form->count("Click Format"), 1);
  // Typing into the combo box is its text.
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo, "frei");
  EXPECT_EQ(control("Format").text(), "frei");

  auto* fixed = widget<QComboBox>("Liste");
  EXPECT_EQ(fixed->currentIndex(), -1);
  QTest::keyClick(fixed, Qt::Key_Down);
  QTest::keyClick(fixed, Qt::Key_Down);
  EXPECT_EQ(control("Liste").listIndex(), 1);
  EXPECT_EQ(fixed->currentText(), "zwei");
  EXPECT_EQ(form->count("Click Liste"), 2);
}

TEST_F(FormViewFixture, ListChoiceMirrorsBothWays) {
  auto* list = widget<QListWidget>("Punkte");
  control("Punkte").setListIndex(2);
  EXPECT_EQ(list->currentRow(), 2);
  EXPECT_TRUE(list->item(2)->isSelected());
  form->log.clear();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
  EXPECT_EQ(control("Punkte").listIndex(), 1);
  EXPECT_TRUE(control("Punkte").selected(1));
  EXPECT_FALSE(control("Punkte").selected(2));
  EXPECT_EQ(form->count("Click Punkte"), 1);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
  EXPECT_EQ(form->count("DblClick Punkte"), 1);
}

TEST_F(FormViewFixture, MultiSelectListMirrorsBothWays) {
  auto* list = widget<QListWidget>("Auswahl");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    list->visualItemRect(list->item(2)).center());
  EXPECT_TRUE(control("Auswahl").selected(0));
  EXPECT_FALSE(control("Auswahl").selected(1));
  EXPECT_TRUE(control("Auswahl").selected(2));
  EXPECT_EQ(control("Auswahl").listIndex(), 2);
  control("Auswahl").setSelected(1, true);
  control("Auswahl").setSelected(0, false);
  EXPECT_FALSE(list->item(0)->isSelected());
  EXPECT_TRUE(list->item(1)->isSelected());
  EXPECT_TRUE(list->item(2)->isSelected());
}

TEST_F(FormViewFixture, LabelClickActs) {
  QTest::mouseClick(widget<QLabel>("LabelNr"), Qt::LeftButton);
  EXPECT_EQ(form->count("Click LabelNr"), 1);
}

TEST_F(FormViewFixture, FocusFollowsTheUserAndTheModel) {
  view->activateWindow();
  QApplication::setActiveWindow(view.get());
  widget<QLineEdit>("Nr")->setFocus();
  EXPECT_EQ(form->activeControl(), &control("Nr"));
  EXPECT_EQ(form->count("GotFocus Nr"), 1);
  control("Format").setFocus();
  EXPECT_TRUE(widget<QComboBox>("Format")->hasFocus());
  EXPECT_EQ(form->count("LostFocus Nr"), 1);
  EXPECT_EQ(form->activeControl(), &control("Format"));
}

// ---- timers, pictures, rich text -------------------------------------------------------------------

TEST_F(FormViewFixture, TimersRunOnlyWhileEnabledEverywhere) {
  QTimer* timer = view->timerOf(control("Uhr"));
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 50);
  view->setTimersEnabled(false);
  EXPECT_FALSE(timer->isActive());
  view->setTimersEnabled(true);
  control("Uhr").setEnabled(false);
  EXPECT_FALSE(timer->isActive());
  control("Uhr").setEnabled(true);
  control("Uhr").setInterval(20);
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 20);
  int fired = 0;
  form->on("Uhr", Event::Timer, [&](Control&, EventArgs&) { ++fired; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return fired > 0; }, 5000));
  view->detach();
  EXPECT_FALSE(timer->isActive());
}

TEST(FormViewPicture, DrawingAndMouseUseTheControlsScale) {
  test::App();
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  class Zeichnung final : public forms::Form {
   public:
    explicit Zeichnung(forms::Forms& f) : Form(f, "Zeichnung", "Zeichnung") {
      add(ControlKind::PictureBox, "Bild").at(0, 0);
      on("Bild", Event::MouseDown, [this](Control&, EventArgs& a) { downs.push_back(a); });
    }
    std::vector<EventArgs> downs;
  } form(forms);
  FormWidget w(form);
  auto* picture = qobject_cast<PictureWidget*>(w.widgetOf(form.control("Bild")));
  ASSERT_NE(picture, nullptr);
  w.resize(300, 300);
  w.show();
  picture->setFixedSize(200, 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(form.control("Bild").picture().deviceWidth(), 200);

  forms::DisplayList& list = form.control("Bild").picture();
  list.clear(0xFFFFFF);
  list.setScale(0, 10, 20, 0);
  list.setPen(0xFF0000, 3, forms::LineStyle::Solid);
  list.line(0, 5, 20, 5);
  const QImage shown = picture->grab().toImage();
  EXPECT_EQ(shown.pixel(100, 50) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(shown.pixel(100, 20) & 0xFFFFFF, 0xFFFFFFu);

  QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(50, 25));
  ASSERT_EQ(form.downs.size(), 1u);
  EXPECT_NEAR(form.downs[0].x, 5.0, 0.01);
  EXPECT_NEAR(form.downs[0].y, 7.5, 0.01);
  EXPECT_EQ(form.downs[0].button, 1);
  QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(50, 25));
}

TEST(FormViewSpin, ArrowsRaiseSpinUpAndSpinDown) {
  test::App();
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  class Zaehler final : public forms::Form {
   public:
    explicit Zaehler(forms::Forms& f) : Form(f, "Zaehler", "Zähler") {
      add(ControlKind::TextBox, "Anzahl").at(0, 0);
      add(ControlKind::SpinButton, "Pfeile").at(0, 1);
      on("Pfeile", Event::SpinUp, [this](Control&, EventArgs&) { control("Anzahl").setText(std::to_string(++n)); });
      on("Pfeile", Event::SpinDown, [this](Control&, EventArgs&) { control("Anzahl").setText(std::to_string(--n)); });
    }
    int n = 0;
  } form(forms);
  FormWidget w(form);
  w.show();
  QWidget* spin = w.widgetOf(form.control("Pfeile"));
  ASSERT_NE(spin, nullptr);
  const QList<QToolButton*> arrows = spin->findChildren<QToolButton*>();
  ASSERT_EQ(arrows.size(), 2);
  QToolButton* up = arrows[0]->arrowType() == Qt::UpArrow ? arrows[0] : arrows[1];
  QToolButton* down = up == arrows[0] ? arrows[1] : arrows[0];
  QTest::mouseClick(up, Qt::LeftButton);
  QTest::mouseClick(up, Qt::LeftButton);
  QTest::mouseClick(down, Qt::LeftButton);
  EXPECT_EQ(form.n, 1);
  QTest::keyClick(spin, Qt::Key_Up);
  EXPECT_EQ(form.n, 2);
  EXPECT_EQ(qobject_cast<QLineEdit*>(w.widgetOf(form.control("Anzahl")))->text(), "2");
  form.control("Pfeile").setEnabled(false);
  EXPECT_FALSE(spin->isEnabled());
}

TEST(FormViewRichText, InternalLinksSetTagAndClick) {
  test::App();
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  class Hilfe final : public forms::Form {
   public:
    explicit Hilfe(forms::Forms& f) : Form(f, "Hilfe", "Hilfe") {
      add(ControlKind::RichText, "Text").caption("<p>Siehe <a href=\"polar\">Polarpunkte</a></p>").at(0, 0);
      on("Text", Event::Click, [this](Control& c, EventArgs&) { topics.push_back(c.tag()); });
    }
    std::vector<std::string> topics;
  } form(forms);
  FormWidget w(form);
  auto* browser = qobject_cast<QTextBrowser*>(w.widgetOf(form.control("Text")));
  ASSERT_NE(browser, nullptr);
  EXPECT_TRUE(browser->toPlainText().contains("Polarpunkte"));
  emit browser->anchorClicked(QUrl("polar"));
  EXPECT_EQ(form.topics, std::vector<std::string>{"polar"});
}

}  // namespace
}  // namespace kolm::shell
