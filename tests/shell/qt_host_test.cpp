#include "shell/qt_host.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>
#include <string>

#include "forms/forms.h"
#include "forms/scripted.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

class Fenster final : public forms::Form {
 public:
  bool refuse = false;
  int unloads = 0;

  Fenster(forms::Forms& forms, std::string name) : Form(forms, name, name + " bearbeiten") {
    add(ControlKind::TextBox, "Wert").at(0, 0).width(10);
    add(ControlKind::CommandButton, "OK").caption("OK").asDefault().at(1, 0);
    add(ControlKind::Timer, "Uhr").interval(10);
    on("OK", Event::Click, [this](Control&, EventArgs&) { this->forms().unload(*this); });
  }

 protected:
  bool QueryUnload() override { return !refuse; }
  void Unload() override { ++unloads; }
};

struct HostFixture : ::testing::Test {
  forms::ScriptedServices scripted;
  forms::Forms forms{scripted.services};
  std::unique_ptr<QMainWindow> frame;
  QMdiArea* area = nullptr;
  std::unique_ptr<QtHost> host;

  void SetUp() override {
    test::App();
    frame = std::make_unique<QMainWindow>();
    area = new QMdiArea;
    frame->setCentralWidget(area);
    frame->resize(1000, 800);
    frame->show();
    host = std::make_unique<QtHost>(area, frame.get());
    forms.setHost(host.get());
    for (const char* name : {"Punkt", "Linie", "Kreis"})
      forms.registerForm(name, [name](forms::Forms& f) { return std::make_unique<Fenster>(f, name); });
  }
  void TearDown() override {
    forms.unloadAll();
    test::RunDeferredDeletes();
    host.reset();
    frame.reset();
  }

  Fenster* show(const char* name) { return static_cast<Fenster*>(forms.show(name)); }
  QMdiSubWindow* subOf(forms::Form& form) { return qobject_cast<QMdiSubWindow*>(host->windowOf(form)); }
};

TEST_F(HostFixture, ModelessFormBecomesAnMdiChildTitledWithItsCaption) {
  Fenster* punkt = show("Punkt");
  ASSERT_NE(punkt, nullptr);
  QMdiSubWindow* sub = subOf(*punkt);
  ASSERT_NE(sub, nullptr);
  EXPECT_EQ(area->subWindowList().size(), 1);
  EXPECT_EQ(sub->windowTitle(), "Punkt bearbeiten");
  EXPECT_TRUE(sub->isVisible());
  EXPECT_EQ(sub->widget(), host->viewOf(*punkt));
  punkt->setCaption("Punkt 4711");
  EXPECT_EQ(sub->windowTitle(), "Punkt 4711");
}

TEST_F(HostFixture, SecondShowBringsTheWindowToTheFront) {
  Fenster* punkt = show("Punkt");
  Fenster* linie = show("Linie");
  EXPECT_EQ(area->activeSubWindow(), subOf(*linie));
  EXPECT_EQ(show("Punkt"), punkt);
  EXPECT_EQ(area->subWindowList().size(), 2);
  EXPECT_EQ(area->activeSubWindow(), subOf(*punkt));
}

TEST_F(HostFixture, HiddenFormHidesItsWindow) {
  Fenster* punkt = show("Punkt");
  forms.hide(*punkt);
  EXPECT_FALSE(subOf(*punkt)->isVisible());
  forms.show(*punkt);
  EXPECT_TRUE(subOf(*punkt)->isVisible());
}

TEST_F(HostFixture, ClosingTheWindowUnloadsTheForm) {
  Fenster* punkt = show("Punkt");
  QMdiSubWindow* sub = subOf(*punkt);
  QPointer<QMdiSubWindow> watch(sub);
  sub->close();
  EXPECT_EQ(punkt->unloads, 1);
  EXPECT_EQ(forms.find("Punkt"), nullptr);
  EXPECT_FALSE(sub->isVisible());
  test::RunDeferredDeletes();
  EXPECT_TRUE(watch.isNull());
  EXPECT_TRUE(area->subWindowList().isEmpty());
  // Shown again, it is a new form in a new window.
  Fenster* again = show("Punkt");
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(area->subWindowList().size(), 1);
}

TEST_F(HostFixture, RefusingQueryUnloadKeepsTheWindow) {
  Fenster* punkt = show("Punkt");
  punkt->refuse = true;
  QMdiSubWindow* sub = subOf(*punkt);
  EXPECT_FALSE(sub->close());
  test::RunDeferredDeletes();
  EXPECT_EQ(forms.find("Punkt"), punkt);
  EXPECT_TRUE(sub->isVisible());
  EXPECT_EQ(punkt->unloads, 0);
  punkt->refuse = false;
}

TEST_F(HostFixture, ButtonThatUnloadsItsFormClosesTheWindow) {
  Fenster* punkt = show("Punkt");
  QPointer<QMdiSubWindow> sub(subOf(*punkt));
  auto* edit = qobject_cast<QLineEdit*>(host->viewOf(*punkt)->widgetOf(punkt->control("Wert")));
  ASSERT_NE(edit, nullptr);
  QTest::keyClicks(edit, "12");
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(forms.find("Punkt"), nullptr);
  test::RunDeferredDeletes();
  EXPECT_TRUE(sub.isNull());
}

TEST_F(HostFixture, RunModalReturnsWhenTheFormUnloads) {
  bool wasDialog = false, wasModal = false;
  QTimer::singleShot(0, [&] {
    forms::Form* f = forms.find("Kreis");
    ASSERT_NE(f, nullptr);
    auto* dialog = qobject_cast<QDialog*>(host->windowOf(*f));
    wasDialog = dialog != nullptr;
    wasModal = dialog && dialog->isModal() && dialog->isVisible();
    // Closed by its close button, as the user would.
    host->windowOf(*f)->close();
  });
  forms::Form* kreis = forms.show("Kreis", true);
  ASSERT_NE(kreis, nullptr);
  EXPECT_TRUE(wasDialog);
  EXPECT_TRUE(wasModal);
  EXPECT_FALSE(kreis->loaded());
  EXPECT_EQ(forms.find("Kreis"), nullptr);
}

TEST_F(HostFixture, RunModalReturnsWhenTheFormHides) {
  QTimer::singleShot(0, [&] { forms.hide(*forms.find("Kreis")); });
  forms::Form* kreis = forms.show("Kreis", true);
  ASSERT_NE(kreis, nullptr);
  EXPECT_TRUE(kreis->loaded());
  EXPECT_FALSE(host->windowOf(*kreis)->isVisible());
}

TEST_F(HostFixture, ModalRunnerDrivesTheModalForm) {
  std::string seen;
  host->setModalRunner([&](forms::Form& f) {
    seen = f.name();
    auto* dialog = qobject_cast<QDialog*>(host->windowOf(f));
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    f.control("Wert").setText("3");
    f.control("OK").click();  // unloads the form
  });
  forms::Form* kreis = forms.show("Kreis", true);
  EXPECT_EQ(seen, "Kreis");
  ASSERT_NE(kreis, nullptr);
  EXPECT_EQ(kreis->control("Wert").text(), "3");  // still readable by the caller
  EXPECT_FALSE(kreis->loaded());
}

TEST_F(HostFixture, PlacementIsAppliedOnShowAndWrittenBackOnResize) {
  scripted.placements.write("Linie", {40, 30, 420, 260, false});
  Fenster* linie = show("Linie");
  QMdiSubWindow* sub = subOf(*linie);
  EXPECT_EQ(sub->pos(), QPoint(40, 30));
  EXPECT_EQ(sub->size(), QSize(420, 260));
  sub->resize(500, 350);
  sub->move(60, 70);
  EXPECT_EQ(linie->placement().width, 500);
  EXPECT_EQ(linie->placement().height, 350);
  EXPECT_EQ(linie->placement().left, 60);
  EXPECT_EQ(linie->placement().top, 70);
  sub->showMaximized();
  EXPECT_TRUE(linie->placement().maximized);
  EXPECT_EQ(linie->placement().width, 500);  // the size to come back to
  forms.unload(*linie);
  const auto stored = scripted.placements.read("Linie");
  ASSERT_TRUE(stored.has_value());
  EXPECT_TRUE(stored->maximized);
  EXPECT_EQ(stored->left, 60);
}

TEST_F(HostFixture, WithoutStoredPlacementTheFormTakesItsPreferredSize) {
  class Gross final : public forms::Form {
   public:
    explicit Gross(forms::Forms& f) : Form(f, "Gross", "Gross") {
      add(ControlKind::Label, "Text").caption("Hallo").at(0, 0);
      setPreferredSize(480, 320);
    }
  };
  forms.registerForm("Gross", [](forms::Forms& f) { return std::make_unique<Gross>(f); });
  forms::Form* gross = forms.show("Gross");
  EXPECT_EQ(host->viewOf(*gross)->size(), QSize(480, 320));
}

TEST_F(HostFixture, FixedDialogIsAtLeastAsWideAsItsCaptionAndSpreadsItsColumns) {
  class Schmal final : public forms::Form {
   public:
    explicit Schmal(forms::Forms& f)
        : Form(f, "Schmal", "Schnittpunkte zweier Kreise mit einer sehr langen Überschrift") {
      add(ControlKind::Frame, "Rahmen").caption("Punkt").at(0, 0, 1, 2);
      add(ControlKind::CommandButton, "Berechnen").caption("&Berechnen").at(1, 0);
      add(ControlKind::CommandButton, "Skizze").caption("S&kizze").at(1, 1);
      setResizable(false);
    }
  };
  forms.registerForm("Schmal", [](forms::Forms& f) { return std::make_unique<Schmal>(f); });
  forms::Form* schmal = forms.show("Schmal");
  QWidget* view = host->viewOf(*schmal);
  QWidget* window = host->windowOf(*schmal);
  const int title = TitleWidth(window->font(), window->windowTitle());
  EXPECT_GE(window->width(), title);
  EXPECT_GE(view->width(), title - 20);
  // The frame spans both button columns and takes the extra width with them.
  auto* rahmen = view->findChild<QWidget*>("Rahmen");
  ASSERT_NE(rahmen, nullptr);
  EXPECT_GE(rahmen->width(), view->width() - 40);
}

TEST_F(HostFixture, TimersFollowTheHost) {
  Fenster* punkt = show("Punkt");
  QTimer* timer = host->viewOf(*punkt)->timerOf(punkt->control("Uhr"));
  ASSERT_NE(timer, nullptr);
  EXPECT_TRUE(timer->isActive());
  host->setTimersEnabled(false);
  EXPECT_FALSE(timer->isActive());
  Fenster* linie = show("Linie");
  EXPECT_FALSE(host->viewOf(*linie)->timerOf(linie->control("Uhr"))->isActive());
  host->setTimersEnabled(true);
  EXPECT_TRUE(timer->isActive());
}

TEST_F(HostFixture, GrabWritesAPictureOfTheWindow) {
  Fenster* punkt = show("Punkt");
  QTemporaryDir dir;
  ASSERT_TRUE(dir.isValid());
  const QString path = dir.filePath("punkt.png");
  ASSERT_TRUE(host->grab(*punkt, path));
  const QImage image(path);
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.size(), host->windowOf(*punkt)->size());
}

TEST_F(HostFixture, SpecialWindowIsShownInsteadOfAView) {
  auto* own = new QWidget(frame.get(), Qt::Window);
  host->registerWindow("Main", [own](forms::Form&) { return own; });
  class Haupt final : public forms::Form {
   public:
    explicit Haupt(forms::Forms& f) : Form(f, "Main", "Kolm") {}
  };
  forms.registerForm("Main", [](forms::Forms& f) { return std::make_unique<Haupt>(f); });
  forms::Form* main = forms.show("Main");
  EXPECT_EQ(host->viewOf(*main), nullptr);
  EXPECT_EQ(host->windowOf(*main), own);
  EXPECT_TRUE(own->isVisible());
  EXPECT_TRUE(area->subWindowList().isEmpty());
  forms.unload(*main);
  test::RunDeferredDeletes();
  EXPECT_FALSE(own->isVisible());  // hidden, and left to its owner
}

}  // namespace
}  // namespace kolm::shell
