#include "forms/services.h"

namespace kolm::forms {

std::vector<Answer> AnswersOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OK: return {Answer::OK};
    case Buttons::OKCancel: return {Answer::OK, Answer::Cancel};
    case Buttons::AbortRetryIgnore: return {Answer::Abort, Answer::Retry, Answer::Ignore};
    case Buttons::YesNoCancel: return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::YesNo: return {Answer::Yes, Answer::No};
    case Buttons::RetryCancel: return {Answer::Retry, Answer::Cancel};
  }
  return {Answer::OK};
}

const char* AnswerCaption(Answer answer) {
  switch (answer) {
    case Answer::OK: return "OK";
    case Answer::Cancel: return "Abbrechen";
    case Answer::Abort: return "Abbrechen";
    case Answer::Retry: return "Wiederholen";
    case Answer::Ignore: return "Ignorieren";
    case Answer::Yes: return "Ja";
    case Answer::No: return "Nein";
  }
  return "OK";
}

std::string SerialDeviceName(int number, const std::function<const char*(const char*)>& getenv,
                             const std::function<bool(const std::string&)>& exists) {
  const std::string variable = "KOLM_COM" + std::to_string(number);
  if (const char* named = getenv(variable.c_str()); named && *named) return named;
  const std::string serial = "/dev/ttyS" + std::to_string(number - 1);
  if (exists(serial)) return serial;
  const std::string usb = "/dev/ttyUSB" + std::to_string(number - 1);
  if (exists(usb)) return usb;
  return serial;
}

}  // namespace kolm::forms
