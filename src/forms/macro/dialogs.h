#pragma once
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/macro/parser.h"
#include "forms/services.h"

namespace kolm::forms::macro {

// Where a box appeared or an answer was queued: the macro line running then.
struct Origin {
  std::string file;
  int line = 0;
};

struct QueuedReply {
  Reply reply;
  Origin origin;
};

// The answers a macro queued. Message boxes and input boxes share one queue
// in macro order; file dialogs have their own.
class AnswerQueue {
 public:
  void push(const Reply& reply, const Origin& origin);
  // The front answer if it fits that kind of box, taken off the queue;
  // nothing when it does not fit (it then waits for a box it fits).
  std::optional<QueuedReply> takeForMessage();
  std::optional<QueuedReply> takeForInput();
  std::optional<QueuedReply> takeForFile();
  // Answers no box has taken, boxes first, then file dialogs.
  std::vector<QueuedReply> pending() const;
  void clear();

  // The macro line that runs now; boxes record it.
  void setOrigin(Origin origin) { origin_ = std::move(origin); }
  const Origin& origin() const { return origin_; }

 private:
  std::deque<QueuedReply> boxes_;
  std::deque<QueuedReply> files_;
  Origin origin_;
};

struct ShownBox {
  Message message;
  Answer answer = Answer::OK;
  bool queued = false;   // answered from the queue, not by default
  bool checked = false;  // pruefe-meldung has looked at it
  Origin origin;
};

// Message boxes during a macro run: answered from the queue and recorded.
// An answer the box does not offer, or none at all, gives its first button.
class MacroMessages final : public MessageService {
 public:
  explicit MacroMessages(AnswerQueue& queue) : queue_(queue) {}
  Answer show(const Message& message) override;
  std::vector<ShownBox>& shown() { return shown_; }
  const std::vector<ShownBox>& shown() const { return shown_; }
  // The first box pruefe-meldung has not looked at yet; nullptr if none.
  ShownBox* nextUnchecked();

 private:
  AnswerQueue& queue_;
  std::vector<ShownBox> shown_;
};

struct AskedInput {
  std::string prompt, title, defaultText;
  std::optional<std::string> answer;  // nothing: cancelled
  Origin origin;
};

// Input boxes: OK "TEXT" confirms TEXT, Abbrechen or no fitting answer cancels.
class MacroInput final : public InputService {
 public:
  explicit MacroInput(AnswerQueue& queue) : queue_(queue) {}
  std::optional<std::string> ask(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) override;
  const std::vector<AskedInput>& asked() const { return asked_; }

 private:
  AnswerQueue& queue_;
  std::vector<AskedInput> asked_;
};

struct AskedFile {
  FileRequest request;
  std::optional<std::string> answer;  // nothing: cancelled
  Origin origin;
};

// File dialogs: the queued path, cancelled by "" or when none is queued.
class MacroFiles final : public FileDialogService {
 public:
  explicit MacroFiles(AnswerQueue& queue) : queue_(queue) {}
  std::optional<std::string> choose(const FileRequest& request) override;
  const std::vector<AskedFile>& asked() const { return asked_; }

 private:
  AnswerQueue& queue_;
  std::vector<AskedFile> asked_;
};

// The three dialog services of a macro run over one answer queue. The
// runner puts them in place of the program's dialogs while it lives.
struct MacroDialogs {
  AnswerQueue queue;
  MacroMessages messages{queue};
  MacroInput input{queue};
  MacroFiles files{queue};
};

// Box texts compare with every CR LF or lone CR as one line break.
std::string NormalizeLineBreaks(std::string_view text);

}  // namespace kolm::forms::macro
