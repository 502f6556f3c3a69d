#pragma once
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "forms/forms.h"

namespace kolm::core {

// The frame of the program: menu bar, button bars, settings strip, BlueBox
// and status line, as a form model. It holds no calculation of its own; later
// parts bind their dialogs to its entries with setCommand. The Qt main window
// only renders this model and forwards what the user does.
class MainForm : public forms::Form {
 public:
  // The four bars of the Ansicht menu.
  enum class Bar { Funktionen, Geradenschnitte, Kreisberechnungen, Informationen };

  explicit MainForm(forms::Forms& forms);

  // Title "Kolm: " + project name.
  void setProjectName(const std::string& name);

  // Binds a menu entry to its command and enables it and the buttons that
  // stand for it; an empty command disables them again. An unknown entry or
  // a menu that only opens a submenu is a programming error and throws.
  void setCommand(std::string_view entry, std::function<void()> command);
  bool hasCommand(std::string_view entry) const;

  // Gives a button of a bar a command of its own instead of its entry's.
  void setButtonCommand(std::string_view bar, int index, std::function<void()> command);

  // Name of the menu entry a bar button stands for; empty when it has none.
  std::string buttonEntry(std::string_view bar, int index) const;

  bool barVisible(Bar bar) const;
  void setBarVisible(Bar bar, bool on);
  forms::Control& barFrame(Bar bar) const;
  forms::Control& barEntry(Bar bar) const;

  // Menu controls that open a submenu rather than run a command.
  bool opensSubmenu(const forms::Control& menu) const;
  // Entries that show a check mark (when checked).
  bool checkable(const forms::Control& entry) const;
  // Menu controls in declaration order.
  std::vector<forms::Control*> menuControls() const;

  // Called after the user or the program changed Check3D, CheckPolar,
  // KoordinatenSystem or ComboWinkelEinheit; the frame has already updated
  // its own entries then.
  void onSettingChanged(std::function<void(forms::Control&)> listener);

  // Asked before the program closes: false keeps it open. Runs once the
  // question was answered: writes what must survive the session.
  void onClosing(std::function<bool()> question, std::function<void()> closing);

  // Third-coordinate flags as the settings strip shows them.
  bool dritte() const;
  bool m31() const;

 protected:
  bool QueryUnload() override;
  void Unload() override;
  bool storesPlacement() const override { return false; }

 private:
  void declareMenus();
  void declareBars();
  void declareStrip();
  void runEntry(const std::string& key);
  void pressButton(const std::string& bar, int index);
  void refreshButtons(const std::string& entryKey);
  void settingChanged(forms::Control& control);
  void showHelp(const std::string& topic);

  struct ButtonBinding {
    std::string entry;                // name of the entry, empty if none
    std::function<void()> own;        // command of the button itself
  };

  std::map<std::string, std::function<void()>> commands_;          // by name key
  std::map<std::string, std::vector<ButtonBinding>> buttons_;      // by bar name key
  std::vector<std::string> submenus_;                               // name keys
  std::vector<std::string> checkable_;                              // name keys
  std::function<void(forms::Control&)> settingListener_;
  std::function<bool()> closeQuestion_;
  std::function<void()> closing_;
};

// Writes the status line into LabelInfo of the loaded Main. Before Main is
// loaded (start-up) it only keeps the last text.
class MainStatusLine final : public forms::StatusLine {
 public:
  explicit MainStatusLine(forms::Forms& forms) : forms_(forms) {}
  void show(const std::string& text) override;
  std::string text() const override;

 private:
  forms::Forms& forms_;
  std::string pending_;
};

// Registers the forms of the frame: "Main", "Hilfe" (reading its pages from
// helpDir) and "Info".
void RegisterMainForms(forms::Forms& forms, std::string helpDir);

}  // namespace kolm::core
