#pragma once
#include <QMessageBox>
#include <QMdiArea>
#include <QPointer>
#include <QSerialPort>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/services.h"

class QMdiArea;
class QPrinter;
class QWidget;

namespace kolm::shell {

// Loads Qt's own German texts (buttons of its dialogs, the print preview);
// false when the translations are not installed.
bool InstallGermanQtTranslations();

// ---- message box --------------------------------------------------------------

QMessageBox::StandardButton StandardButtonOf(forms::Answer answer);
forms::Answer AnswerOf(QMessageBox::StandardButton button);
// The buttons of a box, in the order they stand.
std::vector<QMessageBox::StandardButton> StandardButtonsOf(forms::Buttons buttons);
QMessageBox::Icon MessageIconOf(forms::Icon icon);

class QtMessages final : public forms::MessageService {
 public:
  explicit QtMessages(QWidget* parent = nullptr) : parent_(parent) {}
  forms::Answer show(const forms::Message& message) override;

 private:
  QPointer<QWidget> parent_;
};

// ---- input box -------------------------------------------------------------------

class QtInput final : public forms::InputService {
 public:
  explicit QtInput(QWidget* parent = nullptr) : parent_(parent) {}
  std::optional<std::string> ask(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) override;

 private:
  QPointer<QWidget> parent_;
};

// ---- file dialogs ---------------------------------------------------------------

// "Tabellen (*.pkt)|*.pkt|Alle Dateien (*.*)|*.*" as Qt writes it:
// "Tabellen (*.pkt);;Alle Dateien (*)".
QString QtFileFilter(const std::string& filter);

class QtFiles final : public forms::FileDialogService {
 public:
  explicit QtFiles(QWidget* parent = nullptr) : parent_(parent) {}
  std::optional<std::string> choose(const forms::FileRequest& request) override;

 private:
  QPointer<QWidget> parent_;
};

// ---- clipboard and busy cursor -----------------------------------------------------

class QtClipboard final : public forms::ClipboardService {
 public:
  std::string text() const override;
  void setText(const std::string& text) override;
};

class QtBusyCursor final : public forms::BusyCursor {
 public:
  ~QtBusyCursor() override;
  void begin() override;
  void end() override;
  int depth() const { return depth_; }

 private:
  int depth_ = 0;
};

// ---- text measuring ----------------------------------------------------------------

class QtTextMeasurer final : public forms::TextMeasurer {
 public:
  forms::TextSize measure(const forms::Font& font, std::string_view utf8) const override;
};

// ---- printer -------------------------------------------------------------------------

class QtPrintJob final : public forms::PrintJob {
 public:
  QtPrintJob(QPrinter& printer, std::string name, QWidget* parent, const forms::TextMeasurer* measurer);
  double pageWidthMm() const override { return widthMm_; }
  double pageHeightMm() const override { return heightMm_; }
  forms::DrawingSurface& page() override;
  void newPage() override;
  // Shows the pages in the print preview, which prints them (or writes a PDF).
  bool finish() override;
  // Draws every page onto the printer, one sheet each.
  void render(QPrinter* printer) const;
  int pageCount() const { return static_cast<int>(pages_.size()); }

 private:
  QPrinter& printer_;
  std::string name_;
  QPointer<QWidget> parent_;
  const forms::TextMeasurer* measurer_;
  double widthMm_ = 0, heightMm_ = 0;
  std::vector<std::unique_ptr<forms::DisplayList>> pages_;
};

class QtPrinter final : public forms::PrinterService {
 public:
  explicit QtPrinter(QWidget* parent = nullptr, const forms::TextMeasurer* measurer = nullptr);
  ~QtPrinter() override;
  std::vector<std::string> printers() const override;
  std::string currentPrinter() const override;
  void selectPrinter(const std::string& name) override;
  void setOrientation(forms::Orientation orientation) override;
  forms::Orientation orientation() const override;
  bool setup() override;
  std::unique_ptr<forms::PrintJob> begin(const std::string& documentName) override;
  void ejectPage() override {}  // sheets leave the printer with their job
  QPrinter& printer() { return *printer_; }

 private:
  std::unique_ptr<QPrinter> printer_;
  QPointer<QWidget> parent_;
  const forms::TextMeasurer* measurer_;
};

// ---- serial ports ------------------------------------------------------------------------

struct SerialSettings {
  qint32 baud = 9600;
  QSerialPort::Parity parity = QSerialPort::NoParity;
  QSerialPort::DataBits dataBits = QSerialPort::Data8;
  QSerialPort::StopBits stopBits = QSerialPort::OneStop;
};
// "9600,n,8,1": baud, parity n/e/o/m/s, data bits, stop bits (1, 1.5, 2).
std::optional<SerialSettings> ParseSerialSettings(const std::string& settings);

class QtSerialPort final : public forms::SerialPort {
 public:
  QtSerialPort();
  ~QtSerialPort() override;
  bool open(int number, const std::string& settings) override;
  void close() override;
  bool isOpen() const override;
  void write(const std::string& bytes) override;
  std::string read() override;
  int inBufferCount() const override;
  int outBufferCount() const override;
  void onReceive(std::function<void()> callback) override;
  QString deviceName() const;

 private:
  std::unique_ptr<QSerialPort> port_;
  QString device_;
  std::function<void()> callback_;
};

class QtSerialPorts final : public forms::SerialPortFactory {
 public:
  std::unique_ptr<forms::SerialPort> create() override;
};

// ---- images --------------------------------------------------------------------------------

class QtImageCodec final : public forms::ImageCodec {
 public:
  std::optional<forms::Image> read(const std::string& path) override;
  bool writeJpeg(const std::string& path, const forms::Image& image, int quality) override;
  bool writeBmp(const std::string& path, const forms::Image& image) override;
};

// ---- the frame's window operations ------------------------------------------------------------

class QtDesktop final : public forms::DesktopService {
 public:
  explicit QtDesktop(QMdiArea* area) : area_(area) {}
  void cascade() override;
  void tileHorizontally() override;  // one above the other, each the full width
  void tileVertically() override;    // side by side, each the full height
  void arrangeIcons() override;      // minimised windows in a row along the bottom
  void quit() override;

 private:
  QPointer<QMdiArea> area_;
};

}  // namespace kolm::shell
