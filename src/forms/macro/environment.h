#pragma once
#include <array>
#include <optional>
#include <string>

namespace kolm::forms {
class Form;
class Forms;
}  // namespace kolm::forms

namespace kolm::forms::macro {

// What a macro reaches outside the form model. The real program implements
// it with its project, its event loop, its point table and its renderer.
class MacroEnvironment {
 public:
  virtual ~MacroEnvironment() = default;
  // Opens DIR as the project, as ProjektÖffnen does; false with a German
  // reason in error.
  virtual bool openProject(const std::string& dir, std::string& error) = 0;
  // Lets ms milliseconds of real time pass while the program handles its
  // events.
  virtual void processEvents(int ms) = 0;
  // Writes a picture of the form as it is shown now; false when it fails.
  virtual bool writePicture(Form& form, const std::string& path) = 0;
  // Point n of the active table; empty is set for an unused slot. Without a
  // table (or on a bad number) nothing comes back and error says why.
  virtual std::optional<std::array<double, 3>> point(int n, bool& empty, std::string& error) = 0;
  // Loads and shows a form as its menu entry would; nullptr when it did not
  // stay loaded.
  virtual Form* openForm(const std::string& name) = 0;
};

// An environment with only the form model: no projects, no point table, no
// pictures; waiting sleeps; a form opens with Forms::show. Programs and
// tests override what they have.
class BasicMacroEnvironment : public MacroEnvironment {
 public:
  explicit BasicMacroEnvironment(Forms& forms) : forms_(forms) {}
  bool openProject(const std::string& dir, std::string& error) override;
  void processEvents(int ms) override;
  bool writePicture(Form& form, const std::string& path) override;
  std::optional<std::array<double, 3>> point(int n, bool& empty, std::string& error) override;
  Form* openForm(const std::string& name) override;

 protected:
  Forms& forms() const { return forms_; }

 private:
  Forms& forms_;
};

}  // namespace kolm::forms::macro
