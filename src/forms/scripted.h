#pragma once
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/services.h"

namespace kolm::forms {

// Services that answer from a queue and record what was asked, for unit
// tests and macro runs. Nothing here shows a window.

struct ShownMessage {
  Message message;
  Answer answer;
  bool checked = false;
};

class ScriptedMessages final : public MessageService {
 public:
  // The next box takes this answer; an answer its buttons do not offer, or no
  // queued answer at all, gives the box's first button.
  void queue(Answer answer) { answers_.push_back(answer); }
  Answer show(const Message& message) override;
  std::vector<ShownMessage>& shown() { return shown_; }
  size_t pending() const { return answers_.size(); }

 private:
  std::deque<Answer> answers_;
  std::vector<ShownMessage> shown_;
};

class ScriptedInput final : public InputService {
 public:
  void queue(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }
  std::optional<std::string> ask(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) override;
  const std::vector<std::string>& prompts() const { return prompts_; }

 private:
  std::deque<std::optional<std::string>> answers_;
  std::vector<std::string> prompts_;
};

class ScriptedFiles final : public FileDialogService {
 public:
  // An empty path cancels.
  void queue(std::string path) { answers_.push_back(std::move(path)); }
  std::optional<std::string> choose(const FileRequest& request) override;
  const std::vector<FileRequest>& requests() const { return requests_; }

 private:
  std::deque<std::string> answers_;
  std::vector<FileRequest> requests_;
};

class MemoryClipboard final : public ClipboardService {
 public:
  std::string text() const override { return text_; }
  void setText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

class RecordingStatus final : public StatusLine {
 public:
  void show(const std::string& text) override { history_.push_back(text); }
  std::string text() const override { return history_.empty() ? std::string() : history_.back(); }
  const std::vector<std::string>& history() const { return history_; }

 private:
  std::vector<std::string> history_;
};

class CountingBusy final : public BusyCursor {
 public:
  void begin() override { ++depth_; ++times_; }
  void end() override { if (depth_ > 0) --depth_; }
  int depth() const { return depth_; }
  int times() const { return times_; }

 private:
  int depth_ = 0, times_ = 0;
};

class RecordingHelp final : public HelpService {
 public:
  void showTopic(const std::string& topic) override { topics_.push_back(topic); }
  const std::vector<std::string>& topics() const { return topics_; }

 private:
  std::vector<std::string> topics_;
};

class MemoryPlacements final : public WindowPlacementStore {
 public:
  std::optional<WindowPlacement> read(const std::string& formName) override;
  void write(const std::string& formName, const WindowPlacement& placement) override;

 private:
  std::map<std::string, WindowPlacement> stored_;
};

// A print job kept in memory: one display list per page, A4 portrait.
class RecordedPrintJob final : public PrintJob {
 public:
  RecordedPrintJob(std::string name, Orientation orientation, std::vector<std::vector<DisplayList>>* done);
  double pageWidthMm() const override;
  double pageHeightMm() const override;
  DrawingSurface& page() override;
  void newPage() override;
  bool finish() override;

 private:
  std::string name_;
  Orientation orientation_;
  std::vector<DisplayList> pages_;
  std::vector<std::vector<DisplayList>>* done_;
};

class RecordingPrinter final : public PrinterService {
 public:
  std::vector<std::string> printers() const override { return {"Kolm Testdrucker"}; }
  std::string currentPrinter() const override { return "Kolm Testdrucker"; }
  void selectPrinter(const std::string&) override {}
  void setOrientation(Orientation o) override { orientation_ = o; }
  Orientation orientation() const override { return orientation_; }
  bool setup() override { return true; }
  std::unique_ptr<PrintJob> begin(const std::string& documentName) override;
  void ejectPage() override { ++ejected_; }
  // Finished jobs, each a list of pages.
  const std::vector<std::vector<DisplayList>>& jobs() const { return jobs_; }
  int ejected() const { return ejected_; }

 private:
  Orientation orientation_ = Orientation::Portrait;
  std::vector<std::vector<DisplayList>> jobs_;
  int ejected_ = 0;
};

// A serial port whose far end is the test: bytes the program writes are kept
// in written(), bytes the test feeds arrive as if received.
class LoopbackPort final : public SerialPort {
 public:
  bool open(int number, const std::string& settings) override;
  void close() override { open_ = false; }
  bool isOpen() const override { return open_; }
  void write(const std::string& bytes) override { written_ += bytes; }
  std::string read() override;
  int inBufferCount() const override { return static_cast<int>(incoming_.size()); }
  int outBufferCount() const override { return 0; }
  void onReceive(std::function<void()> callback) override { callback_ = std::move(callback); }

  void feed(const std::string& bytes);
  const std::string& written() const { return written_; }
  int number() const { return number_; }
  const std::string& settings() const { return settings_; }

 private:
  bool open_ = false;
  int number_ = 0;
  std::string settings_, incoming_, written_;
  std::function<void()> callback_;
};

class LoopbackPorts final : public SerialPortFactory {
 public:
  std::unique_ptr<SerialPort> create() override;
  // The ports created so far, in order; they live as long as their owner.
  const std::vector<LoopbackPort*>& created() const { return created_; }

 private:
  std::vector<LoopbackPort*> created_;
};

class RecordingDesktop final : public DesktopService {
 public:
  void cascade() override { calls_.push_back("cascade"); }
  void tileHorizontally() override { calls_.push_back("horizontal"); }
  void tileVertically() override { calls_.push_back("vertical"); }
  void arrangeIcons() override { calls_.push_back("icons"); }
  void quit() override { calls_.push_back("quit"); }
  const std::vector<std::string>& calls() const { return calls_; }

 private:
  std::vector<std::string> calls_;
};

// A form host without windows: modal forms are handed to a callback that
// fills them and presses their buttons.
class HeadlessHost final : public FormHost {
 public:
  using ModalAction = std::function<void(Form&)>;
  void onModal(ModalAction action) { actions_.push_back(std::move(action)); }
  void formLoaded(Form&) override {}
  void formShown(Form&) override {}
  void formHidden(Form&) override {}
  void formUnloaded(Form&) override {}
  void runModal(Form& form) override;

 private:
  std::deque<ModalAction> actions_;
};

// All scripted services in one place, wired into a Services record.
struct ScriptedServices {
  ScriptedMessages messages;
  ScriptedInput input;
  ScriptedFiles files;
  MemoryClipboard clipboard;
  RecordingStatus status;
  CountingBusy busy;
  RecordingPrinter printer;
  LoopbackPorts serial;
  RecordingHelp help;
  MemoryPlacements placements;
  ApproximateMeasurer measurer;
  RecordingDesktop desktop;
  Services services;

  ScriptedServices();
};

}  // namespace kolm::forms
