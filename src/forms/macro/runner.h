#pragma once
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "forms/forms.h"
#include "forms/macro/dialogs.h"
#include "forms/macro/environment.h"
#include "forms/macro/parser.h"

namespace kolm::forms::macro {

// Exit status of a macro run.
constexpr int kAllChecksHeld = 0;
constexpr int kCheckFailed = 1;
constexpr int kCannotRun = 2;

// Runs macros against the loaded forms. While it lives it is the host of
// the forms (it wraps the host that was there, see setInner) and its dialog
// services stand in for the program's message boxes, input boxes and file
// dialogs; the destructor puts the old ones back.
//
// A modal form shown during a command runs the following macro lines until
// it is hidden or unloaded, so those lines address the modal form.
class MacroRunner final : public FormHost {
 public:
  MacroRunner(Forms& forms, MacroDialogs& dialogs, MacroEnvironment& environment, std::ostream& out);
  ~MacroRunner() override;
  MacroRunner(const MacroRunner&) = delete;
  MacroRunner& operator=(const MacroRunner&) = delete;

  // The host that shows forms; the runner passes load, show, hide and unload
  // on to it. The host installed when the runner was made is the default.
  void setInner(FormHost* inner) { inner_ = inner; }
  FormHost* inner() const { return inner_; }

  // Writes each command before it runs.
  void setEcho(bool on) { echo_ = on; }

  // 0 when every check held, 1 when one failed, 2 when the macro could not
  // run (syntax, unknown form or control, ...). Reports go to out.
  int run(const Script& script);
  int runText(std::string_view text, const std::string& fileName);
  int runFile(const std::string& path);

  int checks() const { return checks_; }
  int failedChecks() const { return failed_; }

  // FormHost
  void formLoaded(Form& form) override;
  void formShown(Form& form) override;
  void formHidden(Form& form) override;
  void formUnloaded(Form& form) override;
  void runModal(Form& form) override;

 private:
  struct Modal {
    Form* form;
    std::vector<const Form*> before;  // loaded when it opened: out of reach now
    const Command* opener;
  };
  struct CommandError {
    std::string message;
  };

  void execute(const Command& c);
  void perform(const Command& c);

  // Actions
  void menu(const Command& c);
  void openForm(const Command& c);
  void closeForm(const Command& c);
  void setText(const Command& c);
  void type(const Command& c);
  void click(const Command& c, bool twice);
  void choose(const Command& c);
  void mark(const Command& c);
  void focus(const Command& c, bool enter);
  void drag(const Command& c);
  void timer(const Command& c);
  void picture(const Command& c);

  // Checks
  void checkText(const Command& c);
  void checkProperty(const Command& c);
  void checkMessage(const Command& c);
  void checkNoMessage(const Command& c);
  void checkPoint(const Command& c);
  void compare(const Command& c, const std::string& subject, const std::string& expected,
               const std::string& found);
  void failCheck(const Command& c, const std::string& subject, const std::string& expected,
                 const std::string& found);

  // Looking up what an address names; each throws CommandError.
  Form& loadedForm(const std::string& name) const;
  Control& control(const Address& a) const;
  Control& cellGrid(const Address& a) const;
  void requireReachable(Form& form) const;
  void requireUsable(Control& c, const Address& a) const;
  void focusFor(Control& c) const;
  std::string propertyValue(const Command& c, const Address& a) const;

  void error(const Command* c, const std::string& message);

  Forms& forms_;
  MacroDialogs& dialogs_;
  MacroEnvironment& env_;
  std::ostream& out_;
  FormHost* inner_ = nullptr;
  MessageService* oldMessages_;
  InputService* oldInput_;
  FileDialogService* oldFiles_;

  const Script* script_ = nullptr;
  size_t next_ = 0;
  std::vector<const Command*> running_;  // commands under way, outermost first
  std::vector<Modal> modals_;
  bool stopped_ = false;
  int abandonedModals_ = 0;
  int checks_ = 0, failed_ = 0;
  bool echo_ = false;
};

}  // namespace kolm::forms::macro
