#include "forms/macro/dialogs.h"

#include <algorithm>

namespace kolm::forms::macro {

namespace {

// The buttons an answer word stands for: "Abbrechen" is the caption of both
// Cancel and Abort.
std::vector<Answer> AnswersOfWord(const std::string& word) {
  std::vector<Answer> answers;
  for (Answer a : {Answer::OK, Answer::Cancel, Answer::Abort, Answer::Retry, Answer::Ignore, Answer::Yes,
                   Answer::No})
    if (word == AnswerCaption(a)) answers.push_back(a);
  return answers;
}

}  // namespace

std::string NormalizeLineBreaks(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r') {
      out += '\n';
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      out += text[i];
    }
  }
  return out;
}

void AnswerQueue::push(const Reply& reply, const Origin& origin) {
  (reply.kind == Reply::Kind::File ? files_ : boxes_).push_back({reply, origin});
}

std::optional<QueuedReply> AnswerQueue::takeForMessage() {
  if (boxes_.empty() || boxes_.front().reply.kind == Reply::Kind::Input) return std::nullopt;
  QueuedReply r = std::move(boxes_.front());
  boxes_.pop_front();
  return r;
}

std::optional<QueuedReply> AnswerQueue::takeForInput() {
  if (boxes_.empty() || boxes_.front().reply.kind == Reply::Kind::Message) return std::nullopt;
  QueuedReply r = std::move(boxes_.front());
  boxes_.pop_front();
  return r;
}

std::optional<QueuedReply> AnswerQueue::takeForFile() {
  if (files_.empty()) return std::nullopt;
  QueuedReply r = std::move(files_.front());
  files_.pop_front();
  return r;
}

std::vector<QueuedReply> AnswerQueue::pending() const {
  std::vector<QueuedReply> all(boxes_.begin(), boxes_.end());
  all.insert(all.end(), files_.begin(), files_.end());
  return all;
}

void AnswerQueue::clear() {
  boxes_.clear();
  files_.clear();
}

Answer MacroMessages::show(const Message& message) {
  const std::vector<Answer> offered = AnswersOf(message.buttons);
  ShownBox box{message, offered.front(), false, false, queue_.origin()};
  if (auto reply = queue_.takeForMessage()) {
    box.queued = true;
    for (Answer a : AnswersOfWord(reply->reply.word))
      if (std::find(offered.begin(), offered.end(), a) != offered.end()) {
        box.answer = a;
        break;
      }
  }
  shown_.push_back(box);
  return box.answer;
}

ShownBox* MacroMessages::nextUnchecked() {
  for (ShownBox& box : shown_)
    if (!box.checked) return &box;
  return nullptr;
}

std::optional<std::string> MacroInput::ask(const std::string& prompt, const std::string& title,
                                           const std::string& defaultText) {
  AskedInput asked{prompt, title, defaultText, std::nullopt, queue_.origin()};
  if (auto reply = queue_.takeForInput())
    if (reply->reply.kind == Reply::Kind::Input) asked.answer = reply->reply.text;
  asked_.push_back(asked);
  return asked.answer;
}

std::optional<std::string> MacroFiles::choose(const FileRequest& request) {
  AskedFile asked{request, std::nullopt, queue_.origin()};
  if (auto reply = queue_.takeForFile())
    if (!reply->reply.text.empty()) asked.answer = reply->reply.text;
  asked_.push_back(asked);
  return asked.answer;
}

}  // namespace kolm::forms::macro
