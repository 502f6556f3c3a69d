#pragma once
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/macro/keystrokes.h"

namespace kolm::forms::macro {

// One word of a macro line. A quoted word may be empty or hold blanks.
struct Word {
  std::string text;
  bool quoted = false;
};

// Splits one line into words: blanks separate them, double quotes hold
// blanks, and inside quotes \" \\ \n are escapes. False with a German
// message on an open quote or an unknown escape.
bool SplitWords(std::string_view line, std::vector<Word>& words, std::string& error);

// Form, Form.Control, Form.Control(i) or Form.Grid[r,c].
struct Address {
  std::string written;  // as the macro has it, for messages
  std::string form;
  std::string control;  // empty: the form itself
  int index = -1;       // member of a control array
  int row = -1, col = -1;

  bool isForm() const { return control.empty(); }
  bool isCell() const { return row >= 0; }
};

bool ParseAddress(std::string_view text, Address& address, std::string& error);

enum class Verb {
  Projekt, Menue, Oeffne, Schliesse, Setze, Tippe, Klicke, Doppelklicke, Waehle, Markiere,
  Fokus, Verlasse, Ziehe, Timer, Warte, Antworte, Zwischenablage, Pruefe, PruefeMeldung,
  PruefeKeineMeldung, PruefeStatus, PruefePunkt, PruefeZwischenablage, Bild,
};

// Properties that `pruefe ADDR EIGENSCHAFT "WERT"` reads.
enum class Prop {
  None, Enabled, Visible, Checked, Value, ListIndex, ListCount, List, Selected, Tag, Row, Col,
  Rows, Cols, Caption, Text, ToolTipText,
};

// A queued answer of `antworte`.
struct Reply {
  enum class Kind {
    Message,  // Ja, Nein, OK, Wiederholen, Ignorieren: a message box only
    Input,    // OK "TEXT": an input box only
    Either,   // Abbrechen: a message box or an input box
    File,     // Datei "PFAD": a file dialog; "" cancels
  };
  Kind kind = Kind::Message;
  std::string word;  // canonical spelling: "Ja", "Abbrechen", "Datei", ...
  std::string text;
};

// One line of a macro, checked and taken apart.
struct Command {
  Verb verb = Verb::Warte;
  std::string file;
  int line = 0;
  std::string source;  // the line as written, without leading blanks

  std::vector<Address> addresses;
  std::vector<int> numbers;        // waehle, markiere, timer, warte, pruefe-punkt N
  std::vector<std::string> texts;  // the quoted or plain texts
  std::vector<KeyStroke> keys;     // tippe

  Prop property = Prop::None;  // pruefe ADDR EIGENSCHAFT "WERT"
  int item = -1;               // List(i), Selected(i)
  std::string propertyWritten;

  Reply reply;  // antworte

  // pruefe-punkt N A B C [TOLERANZ] or N leer
  bool expectEmpty = false;
  std::array<double, 3> coords{};
  std::array<std::string, 3> coordsWritten;
  double tolerance = 0.0005;
};

struct SyntaxError {
  int line = 0;
  std::string message;
};

struct Script {
  std::string file;
  std::vector<Command> commands;
  std::vector<SyntaxError> errors;  // every faulty line, in order
  bool ok() const { return errors.empty(); }
};

// Parses a whole macro text (UTF-8, one command a line, # starts a comment
// line). Command words compare without regard to case and accept umlauts
// (`prüfe` is `pruefe`).
Script ParseMacro(std::string_view text, const std::string& file);

// Truth values as the macro writes them.
const char* TruthText(bool value);

}  // namespace kolm::forms::macro
