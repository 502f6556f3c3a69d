#pragma once
#include <functional>

#include "forms/forms.h"

namespace kolm::core {

// The splash window: the name of the program first, after a second its
// version and purpose, and after five and a half seconds more it closes by
// itself. A click or Enter or Esc closes it early. Closing stops both timers
// and runs the callback that shows the main window.
class IntroForm : public forms::Form {
 public:
  IntroForm(forms::Forms& forms, std::function<void()> geschlossen);
  int ticks() const { return ticks_; }

 protected:
  void Unload() override;
  bool storesPlacement() const override { return false; }

 private:
  void schliessen();
  std::function<void()> geschlossen_;
  int ticks_ = 0;
  bool zu_ = false;
};

}  // namespace kolm::core
