// Loading, finding, refreshing and unloading forms.
#include <gtest/gtest.h>

#include "test_forms.h"

namespace kolm::forms::testing {
namespace {

class Leer : public Form {
 public:
  Leer(Forms& forms, std::string name) : Form(forms, std::move(name), "Leer") {
    add(ControlKind::CommandButton, "ReRead").hidden();
    on("ReRead", Event::Click, [this](Control&, EventArgs&) { ++rereads; });
  }
  int rereads = 0;
};

struct Collection : FormsFixture {
  Collection() {
    forms.registerForm("Grafik", [](Forms& f) { return std::make_unique<Leer>(f, "Grafik"); });
    forms.registerForm("PunkteTabelle", [](Forms& f) { return std::make_unique<Leer>(f, "PunkteTabelle"); });
  }
};

TEST(FormGeladen, GivesThePositionAmongLoadedFormsOrMinusOne) {
  Collection c;
  EXPECT_EQ(c.forms.FormGeladen("Grafik"), -1);
  c.forms.load("Eingabe");
  c.forms.load("Grafik");
  c.forms.load("PunkteTabelle");
  EXPECT_EQ(c.forms.FormGeladen("Eingabe"), 0);
  EXPECT_EQ(c.forms.FormGeladen("grafik"), 1);
  EXPECT_EQ(c.forms.FormGeladen("PUNKTETABELLE"), 2);
  c.forms.unload(*c.forms.find("Grafik"));
  EXPECT_EQ(c.forms.FormGeladen("Grafik"), -1);
  EXPECT_EQ(c.forms.FormGeladen("PunkteTabelle"), 1);
  EXPECT_EQ(c.forms.FormGeladen("Unbekannt"), -1);
}

TEST(Loading, AFormLoadsOnceAndAnUnknownNameLoadsNothing) {
  Collection c;
  Form* first = c.forms.load("Eingabe");
  Form* second = c.forms.show("eingabe");
  EXPECT_EQ(first, second);
  EXPECT_EQ(static_cast<Eingabe*>(first)->loads, 1);
  EXPECT_TRUE(first->shown());
  EXPECT_EQ(c.forms.load("GibtEsNicht"), nullptr);
  EXPECT_EQ(c.forms.loaded().size(), 1u);
}

TEST(Loading, EveryRegisteredNameIsListedInOrder) {
  Collection c;
  EXPECT_EQ(c.forms.registeredNames(), (std::vector<std::string>{"Eingabe", "Grafik", "PunkteTabelle"}));
  EXPECT_TRUE(c.forms.isRegistered("grafik"));
  EXPECT_FALSE(c.forms.isRegistered("Main"));
}

TEST(Refresh, TriggersTheHiddenCommandOfALoadedFormOnly) {
  Collection c;
  c.forms.trigger("PunkteTabelle", "ReRead");  // not loaded: nothing happens
  EXPECT_EQ(c.forms.FormGeladen("PunkteTabelle"), -1) << "a refresh never loads a form";
  auto* tabelle = static_cast<Leer*>(c.forms.load("PunkteTabelle"));
  c.forms.trigger("PunkteTabelle", "ReRead");
  c.forms.trigger("PunkteTabelle", "Repaint");  // a command the form lacks
  EXPECT_EQ(tabelle->rereads, 1);
  Eingabe& e = c.eingabe();
  EXPECT_TRUE(e.trigger("Repaint"));
  EXPECT_EQ(e.repaints, 1) << "hidden commands run although they are invisible";
}

TEST(Unloading, AFormThatRefusesStaysLoaded) {
  Collection c;
  Eingabe& e = c.eingabe();
  e.refuseUnload = true;
  EXPECT_FALSE(c.forms.unload(e));
  EXPECT_EQ(c.forms.FormGeladen("Eingabe"), 0);
  EXPECT_EQ(e.unloads, 0);
  e.refuseUnload = false;
  EXPECT_TRUE(c.forms.unload(e));
  EXPECT_EQ(e.unloads, 1);  // still alive until collect()
  c.forms.collect();
  EXPECT_EQ(c.forms.FormGeladen("Eingabe"), -1);
}

TEST(Unloading, AFormMayCloseItselfFromItsOwnHandler) {
  Collection c;
  Eingabe& e = c.eingabe();
  e.control("Schließen").click();  // the handler unloads its own form
  EXPECT_EQ(c.forms.FormGeladen("Eingabe"), -1);
  c.forms.collect();
  Eingabe& again = c.eingabe();
  EXPECT_EQ(again.loads, 1) << "a new instance loads afresh";
}

TEST(Unloading, UnloadAllClosesEveryFormWithoutAsking) {
  Collection c;
  Eingabe& e = c.eingabe();
  e.refuseUnload = true;
  c.forms.load("Grafik");
  c.forms.unloadAll();
  EXPECT_TRUE(c.forms.loaded().empty());
}

TEST(Placement, APositionIsStoredOnUnloadAndReadOnTheNextLoad) {
  Collection c;
  Eingabe& e = c.eingabe();
  e.placement() = {120, 80, 400, 300, false};
  c.forms.unload(e);
  c.forms.collect();
  Eingabe& again = c.eingabe();
  EXPECT_EQ(again.placement().left, 120);
  EXPECT_EQ(again.placement().top, 80);
  EXPECT_EQ(again.placement().width, 400);
  EXPECT_EQ(again.placement().height, 300);
}

TEST(Modal, ShowingModallyWaitsForTheHostAndSeesWhatWasEntered) {
  Collection c;
  c.host.onModal([](Form& dialog) {
    dialog.control("PP1Nr").setText("17");
    dialog.control("Schließen").click();
  });
  Form* e = c.forms.show("Eingabe", true);
  ASSERT_NE(e, nullptr);
  EXPECT_FALSE(e->loaded()) << "the dialog closed before show returned";
  EXPECT_EQ(e->control("PP1Nr").text(), "17");
}

TEST(Handlers, AnExceptionInAHandlerBecomesAMessageAndGoesNoFurther) {
  Collection c;
  Eingabe& e = c.eingabe();
  e.on("Berechnen", Event::Click, [](Control&, EventArgs&) { throw std::runtime_error("kaputt"); });
  e.control("Berechnen").click();
  ASSERT_EQ(c.scripted.messages.shown().size(), 1u);
  EXPECT_EQ(c.scripted.messages.shown()[0].message.text, "Interner Fehler: kaputt");
}

}  // namespace
}  // namespace kolm::forms::testing

namespace kolm::forms::testing {
namespace {

struct Beobachter : FormObserver {
  void propertyChanged(Control&, Property, int, int) override {}
  void formUnloaded() override { ++unloads; }
  int unloads = 0;
};

TEST(Unloading, ViewsAreToldSoTheyLetGoOfTheForm) {
  FormsFixture f;
  Beobachter view;
  f.eingabe().addObserver(&view);
  f.forms.unload(f.eingabe());
  EXPECT_EQ(view.unloads, 1);
  Beobachter other;
  f.eingabe().addObserver(&other);  // a new instance
  f.forms.unloadAll();
  EXPECT_EQ(other.unloads, 1);
}

}  // namespace
}  // namespace kolm::forms::testing

namespace kolm::forms::testing {
namespace {

TEST(ActiveForm, IsTheOneShownLastAndFallsBackWhenItCloses) {
  FormsFixture f;
  f.forms.registerForm("Zweite", [](Forms& fs) {
    auto form = std::make_unique<Form>(fs, "Zweite", "Zweite");
    return form;
  });
  EXPECT_EQ(f.forms.active(), nullptr);
  Form* eingabe = f.forms.show("Eingabe");
  Form* zweite = f.forms.show("Zweite");
  EXPECT_EQ(f.forms.active(), zweite);
  f.forms.setActive(eingabe);  // the user clicked the other window
  EXPECT_EQ(f.forms.active(), eingabe);
  f.forms.unload(*eingabe);
  EXPECT_EQ(f.forms.active(), zweite);
  f.forms.hide(*zweite);
  EXPECT_EQ(f.forms.active(), nullptr) << "a hidden form is not worked in";
}

}  // namespace
}  // namespace kolm::forms::testing
