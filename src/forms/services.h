#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/drawing.h"

namespace kolm::forms {

// ---- Message box -----------------------------------------------------------

enum class Buttons { OK, OKCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
// Values as the classic message box returns them.
enum class Answer { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

// The title of a box that has none of its own, and of the main window.
inline constexpr char ProgrammName[] = "Kolm";

struct Message {
  std::string text;
  std::string title;
  Buttons buttons = Buttons::OK;
  Icon icon = Icon::None;
  int defaultButton = 0;  // 0 first, 1 second, 2 third
};

// The buttons of a box in the order they stand, first to last.
std::vector<Answer> AnswersOf(Buttons buttons);
// German caption of an answer button: "OK", "Abbrechen", "Ja", "Nein", ...
const char* AnswerCaption(Answer answer);

class MessageService {
 public:
  virtual ~MessageService() = default;
  virtual Answer show(const Message& message) = 0;
};

// ---- Input box -------------------------------------------------------------

class InputService {
 public:
  virtual ~InputService() = default;
  // The text the user confirmed, or nothing when cancelled.
  virtual std::optional<std::string> ask(const std::string& prompt, const std::string& title,
                                         const std::string& defaultText) = 0;
};

// ---- File dialogs ----------------------------------------------------------

struct FileRequest {
  bool save = false;
  std::string title;
  std::string filter;  // "Tabellen (*.pkt)|*.pkt|Alle Dateien (*.*)|*.*"
  std::string directory;
  std::string fileName;
};

class FileDialogService {
 public:
  virtual ~FileDialogService() = default;
  // The chosen path, or nothing when cancelled.
  virtual std::optional<std::string> choose(const FileRequest& request) = 0;
};

// ---- Clipboard -------------------------------------------------------------

class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual std::string text() const = 0;
  virtual void setText(const std::string& text) = 0;
};

// ---- Status line and busy cursor -------------------------------------------

class StatusLine {
 public:
  virtual ~StatusLine() = default;
  virtual void show(const std::string& text) = 0;
  virtual std::string text() const = 0;
};

class BusyCursor {
 public:
  virtual ~BusyCursor() = default;
  virtual void begin() = 0;  // nests: the cursor returns after as many end()
  virtual void end() = 0;
};

// Shows the busy cursor for the life of the guard.
class BusyGuard {
 public:
  explicit BusyGuard(BusyCursor* cursor) : cursor_(cursor) { if (cursor_) cursor_->begin(); }
  ~BusyGuard() { if (cursor_) cursor_->end(); }
  BusyGuard(const BusyGuard&) = delete;
  BusyGuard& operator=(const BusyGuard&) = delete;
 private:
  BusyCursor* cursor_;
};

// ---- Printer ---------------------------------------------------------------

enum class Orientation { Portrait, Landscape };

// A print job: pages drawn in millimetres from the top left corner of the
// printable area.
class PrintJob {
 public:
  virtual ~PrintJob() = default;
  virtual double pageWidthMm() const = 0;
  virtual double pageHeightMm() const = 0;
  // The surface of the current page, scaled in millimetres.
  virtual DrawingSurface& page() = 0;
  virtual void newPage() = 0;
  // Hands the job to the printer (with preview where the platform has one);
  // false when the user cancelled or printing failed.
  virtual bool finish() = 0;
};

class PrinterService {
 public:
  virtual ~PrinterService() = default;
  virtual std::vector<std::string> printers() const = 0;
  virtual std::string currentPrinter() const = 0;
  virtual void selectPrinter(const std::string& name) = 0;
  virtual void setOrientation(Orientation orientation) = 0;
  virtual Orientation orientation() const = 0;
  // Opens the platform's printer settings; false when cancelled.
  virtual bool setup() = 0;
  virtual std::unique_ptr<PrintJob> begin(const std::string& documentName) = 0;
  // Ejects the page that is in the printer.
  virtual void ejectPage() = 0;
};

// ---- Serial port -----------------------------------------------------------

class SerialPort {
 public:
  virtual ~SerialPort() = default;
  // number 1..4; settings as "9600,n,8,1". False when the port cannot be opened.
  virtual bool open(int number, const std::string& settings) = 0;
  virtual void close() = 0;
  virtual bool isOpen() const = 0;
  virtual void write(const std::string& bytes) = 0;
  // Takes every byte received so far.
  virtual std::string read() = 0;
  virtual int inBufferCount() const = 0;
  virtual int outBufferCount() const = 0;
  // Called on the program's thread when bytes arrive.
  virtual void onReceive(std::function<void()> callback) = 0;
};

class SerialPortFactory {
 public:
  virtual ~SerialPortFactory() = default;
  virtual std::unique_ptr<SerialPort> create() = 0;
};

// Device of port number n (1..4): the environment variable KOLM_COMn when it
// is set, else /dev/ttyS<n-1>, else /dev/ttyUSB<n-1> where the first is
// missing. getenv and exists are passed in so the rule can be tested.
std::string SerialDeviceName(int number, const std::function<const char*(const char*)>& getenv,
                             const std::function<bool(const std::string&)>& exists);

// ---- Images ----------------------------------------------------------------

class ImageCodec {
 public:
  virtual ~ImageCodec() = default;
  // JPEG or BMP by content; nothing when the file cannot be read.
  virtual std::optional<Image> read(const std::string& path) = 0;
  virtual bool writeJpeg(const std::string& path, const Image& image, int quality) = 0;
  virtual bool writeBmp(const std::string& path, const Image& image) = 0;
};

// ---- Help ------------------------------------------------------------------

class HelpService {
 public:
  virtual ~HelpService() = default;
  // Shows a topic of the help, the contents when topic is empty.
  virtual void showTopic(const std::string& topic) = 0;
};

// ---- Window positions ------------------------------------------------------

struct WindowPlacement {
  int left = -1, top = -1, width = -1, height = -1;  // -1: not stored
  bool maximized = false;
};

// Where each form keeps its position between sessions.
class WindowPlacementStore {
 public:
  virtual ~WindowPlacementStore() = default;
  virtual std::optional<WindowPlacement> read(const std::string& formName) = 0;
  virtual void write(const std::string& formName, const WindowPlacement& placement) = 0;
};

// ---- Desktop ---------------------------------------------------------------

// The frame's own operations on its child windows and the process.
class DesktopService {
 public:
  virtual ~DesktopService() = default;
  virtual void cascade() = 0;
  virtual void tileHorizontally() = 0;
  virtual void tileVertically() = 0;
  virtual void arrangeIcons() = 0;
  // Ends the program once the current handler has returned.
  virtual void quit() = 0;
};

// ---- All services ----------------------------------------------------------

// The services a form reaches. Each pointer is set by whoever builds the
// program (shell, macro run, test) and outlives the forms.
struct Services {
  MessageService* messages = nullptr;
  InputService* input = nullptr;
  FileDialogService* files = nullptr;
  ClipboardService* clipboard = nullptr;
  StatusLine* status = nullptr;
  BusyCursor* busy = nullptr;
  PrinterService* printer = nullptr;
  SerialPortFactory* serial = nullptr;
  ImageCodec* images = nullptr;
  HelpService* help = nullptr;
  WindowPlacementStore* placements = nullptr;
  const TextMeasurer* measurer = nullptr;
  DesktopService* desktop = nullptr;
};

}  // namespace kolm::forms
