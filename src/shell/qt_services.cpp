#include "shell/qt_services.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImageReader>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScreen>
#include <QTranslator>
#include <algorithm>
#include <cstdlib>

#include "shell/painter_surface.h"

namespace kolm::shell {

using forms::Answer;

bool InstallGermanQtTranslations() {
  auto* app = QCoreApplication::instance();
  if (!app) return false;
  auto* translator = new QTranslator(app);
  if (!translator->load(QLocale(QLocale::German, QLocale::Germany), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    delete translator;
    return false;
  }
  return QCoreApplication::installTranslator(translator);
}

// ---- message box --------------------------------------------------------------

QMessageBox::StandardButton StandardButtonOf(Answer answer) {
  switch (answer) {
    case Answer::OK: return QMessageBox::Ok;
    case Answer::Cancel: return QMessageBox::Cancel;
    case Answer::Abort: return QMessageBox::Abort;
    case Answer::Retry: return QMessageBox::Retry;
    case Answer::Ignore: return QMessageBox::Ignore;
    case Answer::Yes: return QMessageBox::Yes;
    case Answer::No: return QMessageBox::No;
  }
  return QMessageBox::Ok;
}

Answer AnswerOf(QMessageBox::StandardButton button) {
  switch (button) {
    case QMessageBox::Cancel: return Answer::Cancel;
    case QMessageBox::Abort: return Answer::Abort;
    case QMessageBox::Retry: return Answer::Retry;
    case QMessageBox::Ignore: return Answer::Ignore;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::OK;
  }
}

std::vector<QMessageBox::StandardButton> StandardButtonsOf(forms::Buttons buttons) {
  std::vector<QMessageBox::StandardButton> out;
  for (Answer a : forms::AnswersOf(buttons)) out.push_back(StandardButtonOf(a));
  return out;
}

QMessageBox::Icon MessageIconOf(forms::Icon icon) {
  switch (icon) {
    case forms::Icon::Critical: return QMessageBox::Critical;
    case forms::Icon::Question: return QMessageBox::Question;
    case forms::Icon::Exclamation: return QMessageBox::Warning;
    case forms::Icon::Information: return QMessageBox::Information;
    case forms::Icon::None: break;
  }
  return QMessageBox::NoIcon;
}

namespace {
QWidget* ParentOr(QWidget* parent) { return parent ? parent : QApplication::activeWindow(); }

QString Lines(const std::string& text) {
  QString s = QString::fromStdString(text);
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return s;
}
}  // namespace

Answer QtMessages::show(const forms::Message& message) {
  QMessageBox box(ParentOr(parent_));
  box.setIcon(MessageIconOf(message.icon));
  box.setWindowTitle(message.title.empty() ? QString::fromUtf8(forms::ProgrammName) : QString::fromStdString(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(Lines(message.text));
  const std::vector<Answer> answers = forms::AnswersOf(message.buttons);
  for (Answer a : answers) box.addButton(StandardButtonOf(a))->setText(QString::fromUtf8(forms::AnswerCaption(a)));
  const size_t chosen = std::clamp<size_t>(static_cast<size_t>(std::max(0, message.defaultButton)), 0, answers.size() - 1);
  box.setDefaultButton(StandardButtonOf(answers[chosen]));
  box.exec();
  QAbstractButton* clicked = box.clickedButton();
  if (!clicked) return std::find(answers.begin(), answers.end(), Answer::Cancel) != answers.end() ? Answer::Cancel : answers.back();
  return AnswerOf(box.standardButton(clicked));
}

// ---- input box -------------------------------------------------------------------

std::optional<std::string> QtInput::ask(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) {
  QInputDialog dialog(ParentOr(parent_));
  dialog.setWindowTitle(title.empty() ? QString::fromUtf8(forms::ProgrammName) : QString::fromStdString(title));
  dialog.setLabelText(Lines(prompt));
  dialog.setTextValue(QString::fromStdString(defaultText));
  dialog.setOkButtonText(QStringLiteral("OK"));
  dialog.setCancelButtonText(QStringLiteral("Abbrechen"));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue().toStdString();
}

// ---- file dialogs ---------------------------------------------------------------

QString QtFileFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  static const QRegularExpression trailingPatterns(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
  QStringList out;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    QString description = parts[i].trimmed();
    QString patterns = i + 1 < parts.size() ? parts[i + 1].trimmed() : QString();
    if (description.isEmpty() && patterns.isEmpty()) continue;
    if (patterns.isEmpty()) {
      const QRegularExpressionMatch m = trailingPatterns.match(description);
      if (!m.hasMatch()) continue;
      patterns = m.captured(0).trimmed().mid(1).chopped(1);
    }
    QStringList list;
    for (QString p : patterns.split(QRegularExpression(QStringLiteral("[;,\\s]+")), Qt::SkipEmptyParts)) {
      // "*.*" means every file, with or without an extension.
      if (p == u"*.*") p = QStringLiteral("*");
      if (!list.contains(p)) list << p;
    }
    description.remove(trailingPatterns);
    if (description.isEmpty()) description = list.join(QLatin1Char(' '));
    out << description + QStringLiteral(" (") + list.join(QLatin1Char(' ')) + QLatin1Char(')');
  }
  return out.join(QStringLiteral(";;"));
}

std::optional<std::string> QtFiles::choose(const forms::FileRequest& request) {
  QString title = QString::fromStdString(request.title);
  if (title.isEmpty()) title = request.save ? QStringLiteral("Speichern unter") : QStringLiteral("Öffnen");
  QFileDialog dialog(ParentOr(parent_), title, QString::fromStdString(request.directory));
  // Qt's own dialog, so that every text in it is German.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // Form logic asks before it overwrites a file.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  const QString filter = QtFileFilter(request.filter);
  if (!filter.isEmpty()) dialog.setNameFilters(filter.split(QStringLiteral(";;")));
  if (!request.fileName.empty()) dialog.selectFile(QString::fromStdString(request.fileName));
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Suchen in:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Dateiname:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Dateityp:"));
  dialog.setLabelText(QFileDialog::Accept, request.save ? QStringLiteral("Speichern") : QStringLiteral("Öffnen"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Abbrechen"));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return std::nullopt;
  return QDir::toNativeSeparators(files.front()).toStdString();
}

// ---- clipboard and busy cursor -------------------------------------------------------

std::string QtClipboard::text() const { return QGuiApplication::clipboard()->text().toStdString(); }

void QtClipboard::setText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

QtBusyCursor::~QtBusyCursor() {
  while (depth_ > 0) end();
}

void QtBusyCursor::begin() {
  if (depth_++ == 0) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtBusyCursor::end() {
  if (depth_ == 0) return;
  if (--depth_ == 0) QGuiApplication::restoreOverrideCursor();
}

// ---- text measuring ----------------------------------------------------------------

forms::TextSize QtTextMeasurer::measure(const forms::Font& font, std::string_view utf8) const {
  const QFontMetricsF metrics(ToQFont(font));
  const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  return {metrics.horizontalAdvance(text), metrics.height()};
}

// ---- printer -------------------------------------------------------------------------

namespace {
// Pixels per inch that the text measurer works in.
double ScreenDpi() {
  if (QScreen* screen = QGuiApplication::primaryScreen()) return screen->logicalDotsPerInch();
  return 96.0;
}
}  // namespace

QtPrintJob::QtPrintJob(QPrinter& printer, std::string name, QWidget* parent,
                       const forms::TextMeasurer* measurer)
    : printer_(printer), name_(std::move(name)), parent_(parent), measurer_(measurer) {
  printer_.setDocName(QString::fromStdString(name_));
  const QRectF area = printer_.pageLayout().paintRect(QPageLayout::Millimeter);
  widthMm_ = area.width();
  heightMm_ = area.height();
  newPage();
}

forms::DrawingSurface& QtPrintJob::page() { return *pages_.back(); }

void QtPrintJob::newPage() {
  auto list = std::make_unique<forms::DisplayList>(measurer_);
  // Texts are measured in screen pixels; the page has as many as its size in
  // inches holds, so extents come out in millimetres.
  const double pxPerMm = ScreenDpi() / 25.4;
  list->setDeviceSize(static_cast<int>(widthMm_ * pxPerMm + 0.5), static_cast<int>(heightMm_ * pxPerMm + 0.5));
  list->setScale(0, 0, widthMm_, heightMm_);
  pages_.push_back(std::move(list));
}

void QtPrintJob::render(QPrinter* printer) const {
  QPainter painter;
  if (!painter.begin(printer)) return;
  const QRectF device(QPointF(0, 0), printer->pageLayout().paintRectPixels(printer->resolution()).size());
  const double penScale = printer->resolution() / 96.0;
  for (size_t i = 0; i < pages_.size(); ++i) {
    if (i > 0) printer->newPage();
    PainterSurface surface(painter, device, penScale);
    surface.setScale(0, 0, widthMm_, heightMm_);
    pages_[i]->replay(surface);
  }
  painter.end();
}

bool QtPrintJob::finish() {
  QPrintPreviewDialog preview(&printer_, ParentOr(parent_));
  preview.setWindowTitle(QStringLiteral("Druckvorschau – ") + QString::fromStdString(name_));
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                   [this](QPrinter* printer) { render(printer); });
  return preview.exec() == QDialog::Accepted;
}

QtPrinter::QtPrinter(QWidget* parent, const forms::TextMeasurer* measurer)
    : printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)), parent_(parent), measurer_(measurer) {
  printer_->setPageSize(QPageSize(QPageSize::A4));
}

QtPrinter::~QtPrinter() = default;

std::vector<std::string> QtPrinter::printers() const {
  std::vector<std::string> names;
  for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(name.toStdString());
  return names;
}

std::string QtPrinter::currentPrinter() const { return printer_->printerName().toStdString(); }

void QtPrinter::selectPrinter(const std::string& name) {
  printer_->setPrinterName(QString::fromStdString(name));
}

void QtPrinter::setOrientation(forms::Orientation orientation) {
  printer_->setPageOrientation(orientation == forms::Orientation::Landscape ? QPageLayout::Landscape
                                                                          : QPageLayout::Portrait);
}

forms::Orientation QtPrinter::orientation() const {
  return printer_->pageLayout().orientation() == QPageLayout::Landscape ? forms::Orientation::Landscape
                                                                        : forms::Orientation::Portrait;
}

bool QtPrinter::setup() {
  QPrintDialog dialog(printer_.get(), ParentOr(parent_));
  dialog.setWindowTitle(QStringLiteral("Druckereinrichtung"));
  return dialog.exec() == QDialog::Accepted;
}

std::unique_ptr<forms::PrintJob> QtPrinter::begin(const std::string& documentName) {
  return std::make_unique<QtPrintJob>(*printer_, documentName, parent_, measurer_);
}

// ---- serial ports ------------------------------------------------------------------------

std::optional<SerialSettings> ParseSerialSettings(const std::string& settings) {
  const QStringList parts = QString::fromStdString(settings).split(QLatin1Char(','));
  if (parts.size() != 4) return std::nullopt;
  SerialSettings s;
  bool ok = false;
  s.baud = parts[0].trimmed().toInt(&ok);
  if (!ok || s.baud <= 0) return std::nullopt;
  const QString parity = parts[1].trimmed().toLower();
  if (parity == u"n") s.parity = QSerialPort::NoParity;
  else if (parity == u"e") s.parity = QSerialPort::EvenParity;
  else if (parity == u"o") s.parity = QSerialPort::OddParity;
  else if (parity == u"m") s.parity = QSerialPort::MarkParity;
  else if (parity == u"s") s.parity = QSerialPort::SpaceParity;
  else return std::nullopt;
  const int bits = parts[2].trimmed().toInt(&ok);
  if (!ok || bits < 5 || bits > 8) return std::nullopt;
  s.dataBits = static_cast<QSerialPort::DataBits>(bits);
  const QString stop = parts[3].trimmed();
  if (stop == u"1") s.stopBits = QSerialPort::OneStop;
  else if (stop == u"1.5" || stop == u"1,5") s.stopBits = QSerialPort::OneAndHalfStop;
  else if (stop == u"2") s.stopBits = QSerialPort::TwoStop;
  else return std::nullopt;
  return s;
}

QtSerialPort::QtSerialPort() = default;
QtSerialPort::~QtSerialPort() { close(); }

bool QtSerialPort::open(int number, const std::string& settings) {
  close();
  const std::optional<SerialSettings> s = ParseSerialSettings(settings);
  if (!s || number < 1) return false;
  const std::string device = forms::SerialDeviceName(
      number, [](const char* name) { return std::getenv(name); },
      [](const std::string& path) { return QFileInfo::exists(QString::fromStdString(path)); });
  auto port = std::make_unique<QSerialPort>();
  port->setPortName(QString::fromStdString(device));
  if (!port->open(QIODevice::ReadWrite)) return false;
  if (!port->setBaudRate(s->baud) || !port->setParity(s->parity) || !port->setDataBits(s->dataBits) ||
      !port->setStopBits(s->stopBits) || !port->setFlowControl(QSerialPort::NoFlowControl)) {
    port->close();
    return false;
  }
  port_ = std::move(port);
  device_ = QString::fromStdString(device);
  QObject::connect(port_.get(), &QSerialPort::readyRead, port_.get(), [this] {
    if (callback_) callback_();
  });
  return true;
}

void QtSerialPort::close() {
  if (!port_) return;
  port_->close();
  port_.reset();
}

bool QtSerialPort::isOpen() const { return port_ && port_->isOpen(); }

void QtSerialPort::write(const std::string& bytes) {
  if (!isOpen()) return;
  port_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  port_->flush();
}

std::string QtSerialPort::read() {
  if (!isOpen()) return {};
  return port_->readAll().toStdString();
}

int QtSerialPort::inBufferCount() const { return isOpen() ? static_cast<int>(port_->bytesAvailable()) : 0; }
int QtSerialPort::outBufferCount() const { return isOpen() ? static_cast<int>(port_->bytesToWrite()) : 0; }

void QtSerialPort::onReceive(std::function<void()> callback) { callback_ = std::move(callback); }

QString QtSerialPort::deviceName() const { return port_ ? device_ : QString(); }

std::unique_ptr<forms::SerialPort> QtSerialPorts::create() { return std::make_unique<QtSerialPort>(); }

// ---- images --------------------------------------------------------------------------------

std::optional<forms::Image> QtImageCodec::read(const std::string& path) {
  QImageReader reader(QString::fromStdString(path));
  reader.setDecideFormatFromContent(true);
  const QImage image = reader.read();
  if (image.isNull()) return std::nullopt;
  return FromQImage(image);
}

namespace {
bool SaveImage(const std::string& path, const QImage& image, const char* format, int quality) {
  if (image.isNull()) return false;
  QSaveFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (!image.save(&file, format, quality)) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}
}  // namespace

bool QtImageCodec::writeJpeg(const std::string& path, const forms::Image& image, int quality) {
  return SaveImage(path, ToQImage(image).convertToFormat(QImage::Format_RGB32), "JPG",
                   std::clamp(quality, 0, 100));
}

bool QtImageCodec::writeBmp(const std::string& path, const forms::Image& image) {
  return SaveImage(path, ToQImage(image).convertToFormat(QImage::Format_RGB888), "BMP", -1);
}

// ---- the frame's window operations ------------------------------------------------------------

namespace {
std::vector<QMdiSubWindow*> Windows(QMdiArea* area, bool minimized) {
  std::vector<QMdiSubWindow*> out;
  if (!area) return out;
  for (QMdiSubWindow* w : area->subWindowList(QMdiArea::CreationOrder))
    if (w->isVisible() && w->isMinimized() == minimized) out.push_back(w);
  return out;
}
// The windows side by side in the whole room: one above the other when
// horizontally, one beside the other otherwise; a maximized one comes back.
void Tile(QMdiArea* area, bool horizontally) {
  const std::vector<QMdiSubWindow*> windows = Windows(area, false);
  if (windows.empty()) return;
  const QRect room = area->viewport()->rect();
  const int n = static_cast<int>(windows.size());
  for (int i = 0; i < n; ++i) {
    if (windows[i]->isMaximized()) windows[i]->showNormal();
    if (horizontally) {
      const int top = room.height() * i / n, bottom = room.height() * (i + 1) / n;
      windows[i]->setGeometry(0, top, room.width(), bottom - top);
    } else {
      const int left = room.width() * i / n, right = room.width() * (i + 1) / n;
      windows[i]->setGeometry(left, 0, right - left, room.height());
    }
  }
}
}  // namespace

void QtDesktop::cascade() {
  if (area_) area_->cascadeSubWindows();
}

void QtDesktop::tileHorizontally() { Tile(area_, true); }

void QtDesktop::tileVertically() { Tile(area_, false); }

void QtDesktop::arrangeIcons() {
  const std::vector<QMdiSubWindow*> icons = Windows(area_, true);
  if (icons.empty()) return;
  const QRect room = area_->viewport()->rect();
  int x = 0, y = room.height();
  int rowHeight = 0;
  for (QMdiSubWindow* w : icons) {
    const QSize size = w->size();
    if (x > 0 && x + size.width() > room.width()) {
      x = 0;
      y -= rowHeight;
      rowHeight = 0;
    }
    rowHeight = std::max(rowHeight, size.height());
    w->move(x, y - size.height());
    x += size.width();
  }
}

void QtDesktop::quit() {
  QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace kolm::shell
