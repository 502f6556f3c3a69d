#pragma once
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// Options > Automatisch speichern: whether and every how many minutes the
// active table is saved by itself.
class AutoSpeichernForm : public forms::Form {
 public:
  AutoSpeichernForm(forms::Forms& forms, Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  int minuten() const;
  Anwendung& anwendung_;
};

}  // namespace kolm::core
