#include "forms/scripted.h"

#include <algorithm>

namespace kolm::forms {

Answer ScriptedMessages::show(const Message& message) {
  const std::vector<Answer> offered = AnswersOf(message.buttons);
  Answer answer = offered.front();
  if (!answers_.empty()) {
    const Answer wanted = answers_.front();
    answers_.pop_front();
    if (std::find(offered.begin(), offered.end(), wanted) != offered.end()) answer = wanted;
  }
  shown_.push_back({message, answer, false});
  return answer;
}

std::optional<std::string> ScriptedInput::ask(const std::string& prompt, const std::string&,
                                              const std::string&) {
  prompts_.push_back(prompt);
  if (answers_.empty()) return std::nullopt;
  auto answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::optional<std::string> ScriptedFiles::choose(const FileRequest& request) {
  requests_.push_back(request);
  if (answers_.empty()) return std::nullopt;
  std::string path = std::move(answers_.front());
  answers_.pop_front();
  if (path.empty()) return std::nullopt;
  return path;
}

std::optional<WindowPlacement> MemoryPlacements::read(const std::string& formName) {
  auto it = stored_.find(formName);
  if (it == stored_.end()) return std::nullopt;
  return it->second;
}

void MemoryPlacements::write(const std::string& formName, const WindowPlacement& placement) {
  stored_[formName] = placement;
}

RecordedPrintJob::RecordedPrintJob(std::string name, Orientation orientation,
                                   std::vector<std::vector<DisplayList>>* done)
    : name_(std::move(name)), orientation_(orientation), done_(done) {
  pages_.emplace_back();
  pages_.back().setScale(0, 0, pageWidthMm(), pageHeightMm());
}

double RecordedPrintJob::pageWidthMm() const { return orientation_ == Orientation::Portrait ? 200.0 : 287.0; }
double RecordedPrintJob::pageHeightMm() const { return orientation_ == Orientation::Portrait ? 287.0 : 200.0; }
DrawingSurface& RecordedPrintJob::page() { return pages_.back(); }

void RecordedPrintJob::newPage() {
  pages_.emplace_back();
  pages_.back().setScale(0, 0, pageWidthMm(), pageHeightMm());
}

bool RecordedPrintJob::finish() {
  if (done_) done_->push_back(std::move(pages_));
  done_ = nullptr;
  return true;
}

std::unique_ptr<PrintJob> RecordingPrinter::begin(const std::string& documentName) {
  return std::make_unique<RecordedPrintJob>(documentName, orientation_, &jobs_);
}

bool LoopbackPort::open(int number, const std::string& settings) {
  if (number < 1 || number > 4) return false;
  number_ = number;
  settings_ = settings;
  open_ = true;
  return true;
}

std::string LoopbackPort::read() {
  std::string bytes;
  bytes.swap(incoming_);
  return bytes;
}

void LoopbackPort::feed(const std::string& bytes) {
  incoming_ += bytes;
  if (callback_ && open_) callback_();
}

std::unique_ptr<SerialPort> LoopbackPorts::create() {
  auto port = std::make_unique<LoopbackPort>();
  created_.push_back(port.get());
  return port;
}

void HeadlessHost::runModal(Form& form) {
  if (actions_.empty()) return;
  ModalAction action = std::move(actions_.front());
  actions_.pop_front();
  action(form);
}

ScriptedServices::ScriptedServices() {
  services.messages = &messages;
  services.input = &input;
  services.files = &files;
  services.clipboard = &clipboard;
  services.status = &status;
  services.busy = &busy;
  services.printer = &printer;
  services.serial = &serial;
  services.help = &help;
  services.placements = &placements;
  services.measurer = &measurer;
  services.desktop = &desktop;
}

}  // namespace kolm::forms
