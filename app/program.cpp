#include "program.h"

#include <QApplication>
#include <QMdiArea>
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
#include "core/state/zustand.h"
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
  ProgramMacroEnvironment(forms::Forms& forms, shell::QtHost& host)
      : BasicMacroEnvironment(forms), host_(host) {}

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
};

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
  forms::MemoryPlacements placements;  // kept in the settings file once that exists
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
  services_.placements = &parts_->placements;
  services_.status = &parts_->status;
  services_.help = &parts_->help;

  registerForms();
  if (extraForms) extraForms(*forms_);
  main_ = static_cast<core::MainForm*>(forms_->load("Main"));
  anwendung_->setMain(main_);
  core::KernBefehleVerbinden(*main_, *anwendung_);
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

  const std::string project = options_.projekt.empty() ? "Demo Projekt" : QFileInfo(QString::fromStdString(options_.projekt)).fileName().toStdString();
  main_->setProjectName(project);
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

int Program::runMacro(const std::string& file, std::ostream& out) {
  host_->setTimersEnabled(false);
  forms_->show("Main");
  window_->show();
  QCoreApplication::processEvents();

  forms::macro::MacroDialogs dialogs;
  ProgramMacroEnvironment environment(*forms_, *host_);
  forms::macro::MacroRunner runner(*forms_, dialogs, environment, out);
  const int status = runner.runFile(file);
  forms_->unloadAll();
  forms_->collect();
  return status;
}

}  // namespace kolm::app
