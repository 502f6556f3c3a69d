#pragma once
#include <string>
#include <vector>

#include "forms/forms.h"

namespace kolm::core {

// Program name, version and one line on what it is for the Info box.
extern const char* const kProgrammName;
extern const char* const kProgrammVersion;
extern const char* const kProgrammBeschreibung;

struct HelpTopic {
  std::string file;   // page <helpDir>/<file>.html
  std::string title;  // as the topic list shows it
};

// The topics of the list in the help window, contents first.
const std::vector<HelpTopic>& HelpTopics();

// The help window: the topics on the left, the page of the chosen topic on
// the right. Pages are UTF-8 HTML files of the program data.
class HilfeForm : public forms::Form {
 public:
  HilfeForm(forms::Forms& forms, std::string helpDir);

  // Shows a topic by its file name without ".html"; "" is the contents. A
  // topic without a page shows the page "Hilfethema nicht gefunden".
  void showTopic(const std::string& topic);
  const std::string& currentTopic() const { return current_; }

 private:
  std::string page(const std::string& topic) const;

  std::string dir_;
  std::string current_;
  bool choosing_ = false;
};

// The modal box of Hilfe > Info.
class InfoForm : public forms::Form {
 public:
  explicit InfoForm(forms::Forms& forms);
};

// Help service that shows the topics in the Hilfe form.
class FormHelp final : public forms::HelpService {
 public:
  explicit FormHelp(forms::Forms& forms) : forms_(forms) {}
  void showTopic(const std::string& topic) override;

 private:
  forms::Forms& forms_;
};

}  // namespace kolm::core
