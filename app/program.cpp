#include "program.h"

#include <QApplication>
#include <QMdiArea>
#include <QScreen>
#include <QWindow>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>
#include <ostream>

#include "core/app/anwendung.h"
#include "core/app/kern_verdrahtung.h"
#include "core/main/help_forms.h"
#include "core/start/einzelinstanz.h"
#include "core/start/intro_form.h"
#include "core/settings/einstellungen.h"
#include "core/settings/ini_fenster.h"
#include "core/state/zustand.h"
#include "calc/verdrahtung.h"
#include "points/punkte_verdrahtung.h"
#include "quantities/lv/lv_datenbank.h"
#include "core/main/main_form.h"
#include "forms/macro/dialogs.h"
#include "forms/macro/environment.h"
#include "forms/macro/runner.h"
#include "forms/scripted.h"
#include "shell/main_window.h"
#include "shell/qt_host.h"
#include "shell/qt_services.h"

namespace kolm::app {

namespace {

// What a macro reaches of the running program beyond its forms.
class ProgramMacroEnvironment final : public forms::macro::BasicMacroEnvironment {
 public:
  ProgramMacroEnvironment(forms::Forms& forms, shell::QtHost& host, core::Anwendung& anwendung)
      : BasicMacroEnvironment(forms), host_(host), anwendung_(anwendung) {}

  bool openProject(const std::string& dir, std::string& error) override {
    std::string ordner = dir;
    if (!ordner.empty() && ordner.back() != '/') ordner += '/';
    if (!QFileInfo::exists(QString::fromStdString(ordner + "Kolmproj.ini"))) {
      error = "Kein Projekt in diesem Verzeichnis vorhanden!";
      return false;
    }
    anwendung_.ProjektOeffnen(ordner);
    return true;
  }

  std::optional<std::array<double, 3>> point(int n, bool& empty, std::string& error) override {
    const core::Zustand& z = anwendung_.zustand();
    if (n < 0 || n >= static_cast<int>(z.Punkte.size())) {
      error = "Punktnummer " + std::to_string(n) + " liegt außerhalb der Tabelle";
      return std::nullopt;
    }
    empty = z.PunktLeer(n);
    const core::Punkt& p = z.Punkte[n];
    return std::array<double, 3>{p.A, p.B, p.C};
  }

  void processEvents(int ms) override {
    QElapsedTimer clock;
    clock.start();
    do {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    } while (clock.elapsed() < ms);
  }

  bool writePicture(forms::Form& form, const std::string& path) override {
    QCoreApplication::processEvents();
    return host_.grab(form, QString::fromStdString(path));
  }

 private:
  shell::QtHost& host_;
  core::Anwendung& anwendung_;
};

// The LV database of a project folder: made from the template when asked
// and missing, then brought up to date.
void LVPruefen(core::Anwendung& anwendung, const std::string& projekt, bool anlegen) {
  const std::string programm = anwendung.zustand().ProgrammVerzeichnis;
  if (anlegen && !QFileInfo::exists(QString::fromStdString(quantities::LVDatei(projekt))))
    quantities::LVVorlageKopieren(projekt, programm, anwendung.dienste().messages);
  quantities::LVAktualisieren(projekt, anwendung.dienste().status);
}

}  // namespace

// Services and the other parts the program owns for its whole life.
struct Program::Parts {
  explicit Parts(forms::Forms* forms) : status(*forms), help(*forms) {}
  // Without a parent until the main window exists.
  std::unique_ptr<shell::QtMessages> messages = std::make_unique<shell::QtMessages>();
  std::unique_ptr<shell::QtInput> input = std::make_unique<shell::QtInput>();
  std::unique_ptr<shell::QtFiles> files = std::make_unique<shell::QtFiles>();
  shell::QtClipboard clipboard;
  shell::QtBusyCursor busy;
  shell::QtTextMeasurer measurer;
  std::unique_ptr<shell::QtPrinter> printer;
  shell::QtSerialPorts serial;
  shell::QtImageCodec images;
  std::unique_ptr<core::IniFenster> placements;
  core::MainStatusLine status;
  core::FormHelp help;
  std::unique_ptr<shell::QtDesktop> desktop;
};

std::string FindProgrammVerzeichnis() {
  const QDir bin(QCoreApplication::applicationDirPath());
  for (const char* relative : {"../data", "data", "../../data", "../share/kolm"}) {
    const QString candidate = QDir::cleanPath(bin.absoluteFilePath(relative));
    if (QFileInfo(candidate + "/hilfe").isDir()) return (candidate + "/").toStdString();
  }
  return (QDir::cleanPath(bin.absoluteFilePath("../data")) + "/").toStdString();
}

Program::Program(const Options& options, std::function<void(forms::Forms&)> extraForms)
    : options_(options), programmVerzeichnis_(FindProgrammVerzeichnis()) {
  zustand_ = std::make_unique<core::Zustand>();
  zustand_->ProgrammVerzeichnis = programmVerzeichnis_;
  forms_ = std::make_unique<forms::Forms>(services_);
  anwendung_ = std::make_unique<core::Anwendung>(*zustand_, *forms_);
  parts_ = std::make_unique<Parts>(forms_.get());
  services_.messages = parts_->messages.get();
  services_.input = parts_->input.get();
  services_.files = parts_->files.get();
  services_.clipboard = &parts_->clipboard;
  services_.busy = &parts_->busy;
  services_.measurer = &parts_->measurer;
  services_.serial = &parts_->serial;
  services_.images = &parts_->images;
  parts_->placements = std::make_unique<core::IniFenster>(*zustand_);
  services_.placements = parts_->placements.get();
  services_.status = &parts_->status;
  services_.help = &parts_->help;

  registerForms();
  if (extraForms) extraForms(*forms_);
  main_ = static_cast<core::MainForm*>(forms_->load("Main"));
  anwendung_->setMain(main_);
  core::KernBefehleVerbinden(*main_, *anwendung_);
  points::PunkteBefehleVerbinden(*main_, *anwendung_);
  calc::RechnenVerbinden(*main_, *anwendung_);
  window_ = std::make_unique<shell::MainWindow>(*main_);
  host_ = std::make_unique<shell::QtHost>(window_->mdiArea(), window_.get());
  host_->registerWindow("Main", [this](forms::Form&) -> QWidget* { return window_.get(); });
  forms_->setHost(host_.get());

  parts_->desktop = std::make_unique<shell::QtDesktop>(window_->mdiArea());
  services_.desktop = parts_->desktop.get();
  parts_->printer = std::make_unique<shell::QtPrinter>(window_.get(), &parts_->measurer);
  services_.printer = parts_->printer.get();
  parts_->messages = std::make_unique<shell::QtMessages>(window_.get());
  parts_->input = std::make_unique<shell::QtInput>(window_.get());
  parts_->files = std::make_unique<shell::QtFiles>(window_.get());
  services_.messages = parts_->messages.get();
  services_.input = parts_->input.get();
  services_.files = parts_->files.get();

  wireCore();
}

void Program::wireCore() {
  anwendung_->lvPruefen = [this](const std::string& projekt, bool anlegen) {
    LVPruefen(*anwendung_, projekt, anlegen);
  };
  anwendung_->hauptfensterAnwenden = [this](const core::Einstellungen& e) {
    if (e.WindowState == 2) {
      window_->setWindowState(Qt::WindowMaximized);
    } else if (e.Width > 100 && e.Height > 100) {
      window_->setGeometry(e.Left, e.Top, e.Width, e.Height);
    }
  };
  anwendung_->hauptfensterMerken = [this](core::Einstellungen& e) {
    e.WindowState = window_->isMaximized() ? 2 : window_->isMinimized() ? 1 : 0;
    if (e.WindowState == 0) {
      const QRect g = window_->geometry();
      e.Left = g.x();
      e.Top = g.y();
      e.Width = g.width();
      e.Height = g.height();
    }
  };
  core::IniFenster& fenster = *parts_->placements;
  fenster.setBildschirm([this]() -> std::optional<core::Fensterflaeche> {
    const QScreen* screen = window_->screen();
    if (!screen) return std::nullopt;
    const QRect r = screen->availableGeometry();
    return core::Fensterflaeche{r.x(), r.y(), r.width(), r.height()};
  });
  fenster.setHauptflaeche([]() -> std::optional<core::Fensterflaeche> {
    return core::Fensterflaeche{0, 0, 0, 0};  // children stand in the client area's own coordinates
  });
  fenster.setNachSchreiben([this] {
    // Looked up each time: at the end Main may be gone before the last dialog.
    if (forms::Form* main = forms_->find("Main")) main->control("TimerDropWait").setEnabled(true);
  });
}

Program::~Program() {
  if (forms_) {
    forms_->unloadAll();
    forms_->setHost(nullptr);
    forms_->collect();
  }
}

void Program::registerForms() {
  core::RegisterMainForms(*forms_, programmVerzeichnis_ + "hilfe");
  core::KernFormulareRegistrieren(*forms_, *anwendung_);
  points::PunkteFormulareRegistrieren(*forms_, *anwendung_);
  calc::RechnenRegistrieren(*forms_, *anwendung_);
  forms_->registerForm("Intro", [this](forms::Forms& f) {
    return std::make_unique<core::IntroForm>(f, nullptr);
  });
}

int Program::runInteractive() {
  core::Einzelinstanz instanz(core::EinzelinstanzDatei());
  if (!instanz.erhalten()) {
    services_.messages->show({core::kMeldungZweiteInstanz, core::kTitelZweiteInstanz,
                              forms::Buttons::OK, forms::Icon::Exclamation});
    return 1;
  }
  if (options_.bildschirmfoto.empty()) forms_->show("Intro", true);  // returns as it closes
  if (!anwendung_->Starten(options_.projekt, options_.demo)) return 1;
  forms_->show("Main");
  window_->show();
  if (!options_.bildschirmfoto.empty())
    writeScreenshotLater(options_.bildschirmfoto, options_.beendenNachBild);
  return QApplication::exec();
}

void Program::writeScreenshotLater(const std::string& path, bool thenQuit) {
  // Wait until the window has been laid out and painted once.
  QTimer::singleShot(1500, window_.get(), [this, path, thenQuit] {
    const bool ok = window_->grab().save(QString::fromStdString(path), "PNG");
    if (!ok) qWarning("Bildschirmfoto %s konnte nicht geschrieben werden", path.c_str());
    if (thenQuit) QApplication::exit(ok ? 0 : 1);
  });
}

int Program::runMacro(const std::string& given, std::ostream& out) {
  // Opening the project changes the working folder; the macro stays found.
  const std::string file = QFileInfo(QString::fromStdString(given)).absoluteFilePath().toStdString();
  host_->setTimersEnabled(false);
  forms::macro::MacroDialogs dialogs;
  ProgramMacroEnvironment environment(*forms_, *host_, *anwendung_);
  forms::macro::MacroRunner runner(*forms_, dialogs, environment, out);
  if (!anwendung_->Starten(options_.projekt, options_.demo)) {
    out << file << ": Fehler: das Projekt konnte nicht geöffnet werden" << std::endl;
    return forms::macro::kCannotRun;
  }
  forms_->show("Main");
  window_->show();
  QCoreApplication::processEvents();
  const int status = runner.runFile(file);
  forms_->unloadAll();
  forms_->collect();
  return status;
}

}  // namespace kolm::app
