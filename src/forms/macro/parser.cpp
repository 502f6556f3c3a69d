#include "forms/macro/parser.h"

#include <cctype>
#include <charconv>
#include <string>

#include "forms/names.h"

namespace kolm::forms::macro {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trim(std::string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

bool ParseInt(std::string_view s, int& value) {
  s = Trim(s);
  if (s.empty()) return false;
  if (s.front() == '+') return false;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  return ec == std::errc() && end == s.data() + s.size();
}

// A decimal number with a point or, as Germans write it, a comma.
bool ParseDouble(std::string_view s, double& value) {
  std::string text(Trim(s));
  if (text.empty() || text.front() == '+') return false;
  for (char& c : text)
    if (c == ',') c = '.';
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  return ec == std::errc() && end == text.data() + text.size();
}

bool ParseTruth(std::string_view s, bool& value) {
  const std::string key = NameKey(s);
  if (key != "wahr" && key != "falsch") return false;
  value = key == "wahr";
  return true;
}

struct VerbInfo {
  const char* name;
  Verb verb;
  int minArgs, maxArgs;  // maxArgs -1: any number
  const char* usage;
};

constexpr VerbInfo kVerbs[] = {
    {"projekt", Verb::Projekt, 1, 1, "projekt \"VERZEICHNIS\""},
    {"menue", Verb::Menue, 1, 1, "menue NAME"},
    {"oeffne", Verb::Oeffne, 1, 1, "oeffne FORMULAR"},
    {"schliesse", Verb::Schliesse, 1, 1, "schliesse FORMULAR"},
    {"setze", Verb::Setze, 2, 2, "setze FORMULAR.FELD \"TEXT\""},
    {"tippe", Verb::Tippe, 2, 2, "tippe FORMULAR.FELD \"TASTEN\""},
    {"klicke", Verb::Klicke, 1, 1, "klicke FORMULAR.STEUERELEMENT"},
    {"doppelklicke", Verb::Doppelklicke, 1, 1, "doppelklicke FORMULAR.STEUERELEMENT"},
    {"waehle", Verb::Waehle, 2, 2, "waehle FORMULAR.LISTE N"},
    {"markiere", Verb::Markiere, 1, -1, "markiere FORMULAR.LISTE N... oder markiere FORMULAR.GRID Z1 S1 Z2 S2"},
    {"fokus", Verb::Fokus, 1, 1, "fokus FORMULAR.STEUERELEMENT"},
    {"verlasse", Verb::Verlasse, 1, 1, "verlasse FORMULAR.STEUERELEMENT"},
    {"ziehe", Verb::Ziehe, 2, 2, "ziehe FORMULAR.QUELLE FORMULAR.ZIEL"},
    {"timer", Verb::Timer, 1, 2, "timer FORMULAR.ZEITGEBER [ANZAHL]"},
    {"warte", Verb::Warte, 1, 1, "warte MILLISEKUNDEN"},
    {"antworte", Verb::Antworte, 1, 2,
     "antworte Ja|Nein|OK|Abbrechen|Wiederholen|Ignorieren, antworte OK \"TEXT\" oder antworte Datei \"PFAD\""},
    {"zwischenablage", Verb::Zwischenablage, 1, 1, "zwischenablage \"TEXT\""},
    {"pruefe", Verb::Pruefe, 2, 3, "pruefe ADRESSE \"TEXT\" oder pruefe ADRESSE EIGENSCHAFT \"WERT\""},
    {"pruefe-meldung", Verb::PruefeMeldung, 1, 2, "pruefe-meldung \"TEXT\" [\"TITEL\"]"},
    {"pruefe-keine-meldung", Verb::PruefeKeineMeldung, 0, 0, "pruefe-keine-meldung"},
    {"pruefe-status", Verb::PruefeStatus, 1, 1, "pruefe-status \"TEXT\""},
    {"pruefe-punkt", Verb::PruefePunkt, 2, 5, "pruefe-punkt N A B C [TOLERANZ] oder pruefe-punkt N leer"},
    {"pruefe-zwischenablage", Verb::PruefeZwischenablage, 1, 1, "pruefe-zwischenablage \"TEXT\""},
    {"bild", Verb::Bild, 2, 2, "bild FORMULAR \"DATEI.png\""},
};

struct PropInfo {
  const char* key;
  Prop prop;
  bool indexed;
};

constexpr PropInfo kProps[] = {
    {"enabled", Prop::Enabled, false},     {"visible", Prop::Visible, false},
    {"checked", Prop::Checked, false},     {"value", Prop::Value, false},
    {"listindex", Prop::ListIndex, false}, {"listcount", Prop::ListCount, false},
    {"list", Prop::List, true},            {"selected", Prop::Selected, true},
    {"tag", Prop::Tag, false},             {"row", Prop::Row, false},
    {"col", Prop::Col, false},             {"rows", Prop::Rows, false},
    {"cols", Prop::Cols, false},           {"caption", Prop::Caption, false},
    {"text", Prop::Text, false},           {"tooltiptext", Prop::ToolTipText, false},
};

bool IsTruthProp(Prop p) {
  return p == Prop::Enabled || p == Prop::Visible || p == Prop::Checked || p == Prop::Selected;
}

bool IsNumberProp(Prop p) {
  return p == Prop::ListIndex || p == Prop::ListCount || p == Prop::Row || p == Prop::Col ||
         p == Prop::Rows || p == Prop::Cols;
}

// Checks the words of one line and fills the command.
class LineParser {
 public:
  LineParser(Command& cmd, const std::vector<Word>& words, const VerbInfo& info)
      : cmd_(cmd), args_(words.begin() + 1, words.end()), info_(info) {}

  bool parse(std::string& error);

 private:
  enum AddressUse { FormOnly, ControlOnly, ControlOrCell, Any };
  bool address(size_t i, AddressUse use);
  bool number(size_t i, int min, const char* what);
  bool fail(std::string message) {
    error_ = std::move(message);
    return false;
  }
  bool property();
  bool reply();
  bool point();

  Command& cmd_;
  std::vector<Word> args_;
  const VerbInfo& info_;
  std::string error_;
};

bool LineParser::parse(std::string& error) {
  const int n = static_cast<int>(args_.size());
  if (n < info_.minArgs || (info_.maxArgs >= 0 && n > info_.maxArgs)) {
    error = std::string(n < info_.minArgs ? "Zu wenige" : "Zu viele") + " Angaben; so heißt es: " + info_.usage;
    return false;
  }
  bool ok = true;
  switch (cmd_.verb) {
    case Verb::Projekt:
    case Verb::Zwischenablage:
    case Verb::PruefeStatus:
    case Verb::PruefeZwischenablage:
    case Verb::PruefeMeldung:
      for (const Word& w : args_) cmd_.texts.push_back(w.text);
      break;
    case Verb::PruefeKeineMeldung:
      break;
    case Verb::Menue: {
      // The entry of Main; "Main." in front is allowed.
      std::string text = args_[0].text;
      Address a;
      std::string why;
      if (text.find('.') == std::string::npos) text = "Main." + text;
      ok = ParseAddress(text, a, why);
      if (!ok) break;
      if (NameKey(a.form) != "main") {
        ok = fail("menue nimmt Einträge des Hauptfensters Main, nicht von " + a.form);
        break;
      }
      if (a.isCell()) {
        ok = fail("Ein Menüeintrag hat keine Zellen");
        break;
      }
      a.written = args_[0].text;
      cmd_.addresses.push_back(a);
      break;
    }
    case Verb::Oeffne:
    case Verb::Schliesse:
      ok = address(0, FormOnly);
      break;
    case Verb::Bild:
      ok = address(0, FormOnly);
      cmd_.texts.push_back(args_[1].text);
      break;
    case Verb::Setze:
      ok = address(0, ControlOrCell);
      cmd_.texts.push_back(args_[1].text);
      break;
    case Verb::Tippe: {
      ok = address(0, ControlOrCell);
      if (!ok) break;
      cmd_.texts.push_back(args_[1].text);
      std::string why;
      if (!ParseKeys(args_[1].text, cmd_.keys, why)) ok = fail(why);
      break;
    }
    case Verb::Klicke:
    case Verb::Doppelklicke:
    case Verb::Fokus:
    case Verb::Verlasse:
      ok = address(0, ControlOrCell);
      break;
    case Verb::Ziehe:
      ok = address(0, ControlOrCell) && address(1, ControlOrCell);
      break;
    case Verb::Waehle:
      ok = address(0, ControlOnly) && number(1, 0, "Der Listenindex");
      break;
    case Verb::Markiere:
      ok = address(0, ControlOnly);
      for (size_t i = 1; ok && i < args_.size(); ++i) ok = number(i, 0, "Ein Eintrag");
      break;
    case Verb::Timer:
      ok = address(0, ControlOnly) && (args_.size() < 2 || number(1, 0, "Die Anzahl"));
      if (ok && args_.size() < 2) cmd_.numbers.push_back(1);
      break;
    case Verb::Warte:
      ok = number(0, 0, "Die Wartezeit");
      break;
    case Verb::Antworte:
      ok = reply();
      break;
    case Verb::Pruefe:
      ok = address(0, Any);
      if (!ok) break;
      if (args_.size() == 3) ok = property();
      else cmd_.texts.push_back(args_[1].text);
      break;
    case Verb::PruefePunkt:
      ok = point();
      break;
  }
  if (!ok) error = error_;
  return ok;
}

bool LineParser::address(size_t i, AddressUse use) {
  Address a;
  std::string why;
  if (!ParseAddress(args_[i].text, a, why)) return fail(why);
  if (use == FormOnly && !a.isForm())
    return fail("Hier steht ein Formularname, keine Adresse eines Steuerelements: " + a.written);
  if (use != FormOnly && use != Any && a.isForm())
    return fail("Die Adresse " + a.written + " nennt kein Steuerelement (so: FORMULAR.STEUERELEMENT)");
  if (use == ControlOnly && a.isCell())
    return fail("Hier ist eine Zelle [Z,S] nicht möglich: " + a.written);
  cmd_.addresses.push_back(std::move(a));
  return true;
}

bool LineParser::number(size_t i, int min, const char* what) {
  int value = 0;
  if (!ParseInt(args_[i].text, value) || value < min)
    return fail(std::string(what) + " muss eine ganze Zahl ab " + std::to_string(min) +
                " sein, nicht \"" + args_[i].text + "\"");
  cmd_.numbers.push_back(value);
  return true;
}

bool LineParser::property() {
  const std::string& written = args_[1].text;
  cmd_.propertyWritten = written;
  std::string name = written;
  int item = -1;
  const size_t open = written.find('(');
  if (open != std::string::npos) {
    if (written.back() != ')' || !ParseInt(std::string_view(written).substr(open + 1, written.size() - open - 2), item) || item < 0)
      return fail("In " + written + " muss in Klammern eine Zahl ab 0 stehen");
    name = written.substr(0, open);
  }
  const std::string key = NameKey(name);
  const PropInfo* info = nullptr;
  for (const PropInfo& p : kProps)
    if (key == p.key) info = &p;
  if (!info)
    return fail("Unbekannte Eigenschaft " + written +
                "; bekannt sind Enabled, Visible, Checked, Value, ListIndex, ListCount, List(i), "
                "Selected(i), Tag, Row, Col, Rows, Cols, Caption, Text, ToolTipText");
  if (info->indexed && item < 0) return fail("Die Eigenschaft " + name + " braucht einen Index: " + name + "(0)");
  if (!info->indexed && item >= 0) return fail("Die Eigenschaft " + name + " hat keinen Index");
  cmd_.property = info->prop;
  cmd_.item = item;

  // Truth values and numbers are written one way only, so a typo in them is
  // found before the run.
  const std::string& value = args_[2].text;
  bool truth = false;
  int number = 0;
  if (IsTruthProp(info->prop)) {
    if (!ParseTruth(value, truth)) return fail(name + " ist Wahr oder Falsch, nicht \"" + value + "\"");
    cmd_.texts.push_back(TruthText(truth));
  } else if (IsNumberProp(info->prop)) {
    if (!ParseInt(value, number)) return fail(name + " ist eine ganze Zahl, nicht \"" + value + "\"");
    cmd_.texts.push_back(std::to_string(number));
  } else if (info->prop == Prop::Value) {
    if (ParseTruth(value, truth)) cmd_.texts.push_back(TruthText(truth));
    else if (ParseInt(value, number)) cmd_.texts.push_back(std::to_string(number));
    else return fail("Value ist eine Zahl oder Wahr/Falsch, nicht \"" + value + "\"");
  } else {
    cmd_.texts.push_back(value);
  }
  return true;
}

bool LineParser::reply() {
  static constexpr const char* kWords[] = {"Ja", "Nein", "OK", "Abbrechen", "Wiederholen", "Ignorieren", "Datei"};
  const std::string key = NameKey(args_[0].text);
  std::string word;
  for (const char* w : kWords)
    if (key == NameKey(w)) word = w;
  if (word.empty())
    return fail("Unbekannte Antwort \"" + args_[0].text + "\"; so heißt es: " + info_.usage);
  Reply& r = cmd_.reply;
  r.word = word;
  const bool hasText = args_.size() == 2;
  if (word == "Datei") {
    if (!hasText) return fail("Zu antworte Datei gehört der Pfad: antworte Datei \"PFAD\" (\"\" bricht ab)");
    r.kind = Reply::Kind::File;
    r.text = args_[1].text;
  } else if (word == "OK" && hasText) {
    r.kind = Reply::Kind::Input;
    r.text = args_[1].text;
  } else if (hasText) {
    return fail("Einen Text nimmt nur antworte OK \"TEXT\" (für eine Eingabe) oder antworte Datei \"PFAD\"");
  } else {
    r.kind = word == "Abbrechen" ? Reply::Kind::Either : Reply::Kind::Message;
  }
  return true;
}

bool LineParser::point() {
  if (!number(0, 0, "Die Punktnummer")) return false;
  if (args_.size() == 2) {
    if (NameKey(args_[1].text) != "leer")
      return fail("Nach der Punktnummer stehen A B C [TOLERANZ] oder leer; so heißt es: " + std::string(info_.usage));
    cmd_.expectEmpty = true;
    return true;
  }
  if (args_.size() < 4) return fail("Zu wenige Angaben; so heißt es: " + std::string(info_.usage));
  for (int k = 0; k < 3; ++k) {
    const std::string& w = args_[1 + k].text;
    if (!ParseDouble(w, cmd_.coords[k])) return fail("\"" + w + "\" ist keine Zahl");
    cmd_.coordsWritten[k] = w;
  }
  if (args_.size() == 5) {
    if (!ParseDouble(args_[4].text, cmd_.tolerance) || cmd_.tolerance < 0)
      return fail("Die Toleranz \"" + args_[4].text + "\" ist keine Zahl ab 0");
  }
  return true;
}

}  // namespace

const char* TruthText(bool value) { return value ? "Wahr" : "Falsch"; }

bool SplitWords(std::string_view line, std::vector<Word>& words, std::string& error) {
  words.clear();
  size_t i = 0;
  const size_t n = line.size();
  while (true) {
    while (i < n && IsBlank(line[i])) ++i;
    if (i >= n) return true;
    Word w;
    if (line[i] == '"') {
      w.quoted = true;
      ++i;
      while (true) {
        if (i >= n) {
          error = "Das Anführungszeichen wird nicht geschlossen";
          return false;
        }
        const char c = line[i];
        if (c == '"') {
          ++i;
          break;
        }
        if (c == '\\') {
          const char e = i + 1 < n ? line[i + 1] : '\0';
          if (e == '"' || e == '\\') w.text += e;
          else if (e == 'n') w.text += '\n';
          else {
            error = i + 1 < n ? "Unbekannte Escape-Folge \\" + std::string(1, e) + " (möglich sind \\\" \\\\ \\n)"
                              : "Das Anführungszeichen wird nicht geschlossen";
            return false;
          }
          i += 2;
          continue;
        }
        w.text += c;
        ++i;
      }
      if (i < n && !IsBlank(line[i])) {
        error = "Nach dem schließenden Anführungszeichen fehlt ein Leerzeichen";
        return false;
      }
    } else {
      // Blanks inside (...) or [...] stay in the word: Form.Grid[1, 2].
      int depth = 0;
      while (i < n && (depth > 0 || !IsBlank(line[i]))) {
        const char c = line[i];
        if (c == '"') {
          error = "Ein Anführungszeichen mitten im Wort \"" + w.text + "\"; Text mit Leerzeichen steht ganz in Anführungszeichen";
          return false;
        }
        if (c == '(' || c == '[') ++depth;
        if ((c == ')' || c == ']') && depth > 0) --depth;
        w.text += c;
        ++i;
      }
    }
    words.push_back(std::move(w));
  }
}

bool ParseAddress(std::string_view text, Address& a, std::string& error) {
  a = Address();
  a.written = std::string(text);
  if (text.empty()) {
    error = "Die Adresse fehlt";
    return false;
  }
  const size_t dot = text.find('.');
  a.form = std::string(text.substr(0, dot));
  if (a.form.empty() || a.form.find_first_of("()[], ") != std::string::npos) {
    error = "\"" + a.written + "\" ist keine Adresse; so heißt es: FORMULAR, FORMULAR.STEUERELEMENT, "
            "FORMULAR.STEUERELEMENT(I) oder FORMULAR.GRID[Z,S]";
    return false;
  }
  if (dot == std::string_view::npos) return true;
  std::string_view rest = text.substr(dot + 1);
  const size_t open = rest.find_first_of("([");
  a.control = std::string(rest.substr(0, open));
  if (a.control.empty() || a.control.find_first_of(".)], ") != std::string::npos) {
    error = "\"" + a.written + "\" ist keine Adresse; nach dem Punkt steht der Name eines Steuerelements";
    return false;
  }
  if (open == std::string_view::npos) return true;
  const char closer = rest[open] == '(' ? ')' : ']';
  if (rest.back() != closer || rest.find(closer) != rest.size() - 1) {
    error = "In \"" + a.written + "\" fehlt die schließende Klammer " + std::string(1, closer) + " am Ende";
    return false;
  }
  const std::string_view inner = rest.substr(open + 1, rest.size() - open - 2);
  if (closer == ')') {
    if (!ParseInt(inner, a.index) || a.index < 0) {
      error = "In \"" + a.written + "\" muss der Index in Klammern eine ganze Zahl ab 0 sein";
      return false;
    }
    return true;
  }
  const size_t comma = inner.find(',');
  if (comma == std::string_view::npos || !ParseInt(inner.substr(0, comma), a.row) ||
      !ParseInt(inner.substr(comma + 1), a.col) || a.row < 0 || a.col < 0) {
    a.row = a.col = -1;
    error = "In \"" + a.written + "\" gehören in die eckigen Klammern Zeile und Spalte: [Z,S]";
    return false;
  }
  return true;
}

Script ParseMacro(std::string_view text, const std::string& file) {
  Script script;
  script.file = file;
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  int lineNo = 0;
  size_t pos = 0;
  while (pos <= text.size()) {
    size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(pos, end - pos);
    pos = end + 1;
    ++lineNo;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
    if (line.empty() || line.front() == '#') continue;

    std::vector<Word> words;
    std::string error;
    if (!SplitWords(line, words, error)) {
      script.errors.push_back({lineNo, error});
      continue;
    }
    const std::string key = NameKey(words[0].text);
    const VerbInfo* info = nullptr;
    for (const VerbInfo& v : kVerbs)
      if (key == v.name) info = &v;
    if (!info || words[0].quoted) {
      script.errors.push_back({lineNo, "Unbekannter Befehl \"" + words[0].text + "\""});
      continue;
    }
    Command cmd;
    cmd.verb = info->verb;
    cmd.file = file;
    cmd.line = lineNo;
    cmd.source = std::string(Trim(line));
    LineParser parser(cmd, words, *info);
    if (!parser.parse(error)) {
      script.errors.push_back({lineNo, info->name + std::string(": ") + error});
      continue;
    }
    script.commands.push_back(std::move(cmd));
  }
  return script;
}

}  // namespace kolm::forms::macro
