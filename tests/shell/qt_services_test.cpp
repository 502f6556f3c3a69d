#include "shell/qt_services.h"

#include <gtest/gtest.h>
#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>
#include <string>

#include "forms/services.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using forms::Answer;
using forms::Buttons;

// ---- file filters -------------------------------------------------------------------------

TEST(FileFilter, PairsBecomeQtFilters) {
  EXPECT_EQ(QtFileFilter("Tabellen (*.pkt)|*.pkt|Alle Dateien (*.*)|*.*"),
            "Tabellen (*.pkt);;Alle Dateien (*)");
  EXPECT_EQ(QtFileFilter("Texte|*.txt;*.asc"), "Texte (*.txt *.asc)");
  EXPECT_EQ(QtFileFilter("Bilder (*.jpg;*.bmp)|*.jpg;*.bmp"), "Bilder (*.jpg *.bmp)");
  EXPECT_EQ(QtFileFilter(""), "");
  // A description without its pattern takes the pattern in its brackets.
  EXPECT_EQ(QtFileFilter("Berechnungen (*.ber)"), "Berechnungen (*.ber)");
}

// ---- message box -------------------------------------------------------------------------

TEST(MessageBox, ButtonsMapToStandardButtonsInOrder) {
  using SB = QMessageBox::StandardButton;
  EXPECT_EQ(StandardButtonsOf(Buttons::OK), std::vector<SB>{QMessageBox::Ok});
  EXPECT_EQ(StandardButtonsOf(Buttons::OKCancel), (std::vector<SB>{QMessageBox::Ok, QMessageBox::Cancel}));
  EXPECT_EQ(StandardButtonsOf(Buttons::AbortRetryIgnore),
            (std::vector<SB>{QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore}));
  EXPECT_EQ(StandardButtonsOf(Buttons::YesNoCancel),
            (std::vector<SB>{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}));
  EXPECT_EQ(StandardButtonsOf(Buttons::YesNo), (std::vector<SB>{QMessageBox::Yes, QMessageBox::No}));
  EXPECT_EQ(StandardButtonsOf(Buttons::RetryCancel), (std::vector<SB>{QMessageBox::Retry, QMessageBox::Cancel}));
}

TEST(MessageBox, EveryAnswerComesBackFromItsButton) {
  for (Answer a : {Answer::OK, Answer::Cancel, Answer::Abort, Answer::Retry, Answer::Ignore, Answer::Yes, Answer::No})
    EXPECT_EQ(AnswerOf(StandardButtonOf(a)), a) << static_cast<int>(a);
  EXPECT_EQ(StandardButtonOf(Answer::Abort), QMessageBox::Abort);
  EXPECT_NE(StandardButtonOf(Answer::Abort), StandardButtonOf(Answer::Cancel));
}

TEST(MessageBox, Icons) {
  EXPECT_EQ(MessageIconOf(forms::Icon::Critical), QMessageBox::Critical);
  EXPECT_EQ(MessageIconOf(forms::Icon::Question), QMessageBox::Question);
  EXPECT_EQ(MessageIconOf(forms::Icon::Exclamation), QMessageBox::Warning);
  EXPECT_EQ(MessageIconOf(forms::Icon::Information), QMessageBox::Information);
  EXPECT_EQ(MessageIconOf(forms::Icon::None), QMessageBox::NoIcon);
}

// ---- images ----------------------------------------------------------------------------------

forms::Image Blocks() {
  // Four 8 x 8 blocks of plain colour survive JPEG well enough to recognise.
  forms::Image img;
  img.width = 16;
  img.height = 16;
  img.pixels.resize(256);
  const std::uint32_t colours[4] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) img.pixels[y * 16 + x] = colours[(y / 8) * 2 + x / 8];
  return img;
}

int Channel(std::uint32_t p, int shift) { return static_cast<int>((p >> shift) & 0xFF); }

TEST(ImageCodec, BmpRoundTripKeepsEveryPixel) {
  test::App();
  QTemporaryDir dir;
  QtImageCodec codec;
  const forms::Image img = Blocks();
  const std::string path = dir.filePath("blocks.bmp").toStdString();
  ASSERT_TRUE(codec.writeBmp(path, img));
  const auto back = codec.read(path);
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(back->width, 16);
  EXPECT_EQ(back->height, 16);
  EXPECT_EQ(back->pixels, img.pixels);
}

TEST(ImageCodec, JpegRoundTripKeepsTheColours) {
  test::App();
  QTemporaryDir dir;
  QtImageCodec codec;
  const forms::Image img = Blocks();
  const std::string path = dir.filePath("blocks.jpg").toStdString();
  ASSERT_TRUE(codec.writeJpeg(path, img, 95));
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.read(2) == QByteArray("\xFF\xD8"));  // a JPEG file
  const auto back = codec.read(path);
  ASSERT_TRUE(back.has_value());
  ASSERT_EQ(back->pixels.size(), img.pixels.size());
  for (int y : {3, 12})
    for (int x : {3, 12}) {
      const std::uint32_t want = img.pixels[y * 16 + x], got = back->pixels[y * 16 + x];
      for (int shift : {0, 8, 16}) EXPECT_NEAR(Channel(got, shift), Channel(want, shift), 24) << x << "," << y;
    }
}

TEST(ImageCodec, FormatIsTakenFromTheContent) {
  test::App();
  QTemporaryDir dir;
  QtImageCodec codec;
  const std::string misnamed = dir.filePath("eigentlich_bmp.jpg").toStdString();
  ASSERT_TRUE(codec.writeBmp(misnamed, Blocks()));
  EXPECT_TRUE(codec.read(misnamed).has_value());
  const QString junk = dir.filePath("kaputt.bmp");
  QFile f(junk);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("BM kein Bild");
  f.close();
  EXPECT_FALSE(codec.read(junk.toStdString()).has_value());
  EXPECT_FALSE(codec.read(dir.filePath("fehlt.jpg").toStdString()).has_value());
}

// ---- serial ports ---------------------------------------------------------------------------------

TEST(SerialSettings, ParsesBaudParityDataAndStopBits) {
  const auto s = ParseSerialSettings("9600,n,8,1");
  ASSERT_TRUE(s.has_value());
  EXPECT_EQ(s->baud, 9600);
  EXPECT_EQ(s->parity, QSerialPort::NoParity);
  EXPECT_EQ(s->dataBits, QSerialPort::Data8);
  EXPECT_EQ(s->stopBits, QSerialPort::OneStop);
  const auto e = ParseSerialSettings("2400,E,7,2");
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->baud, 2400);
  EXPECT_EQ(e->parity, QSerialPort::EvenParity);
  EXPECT_EQ(e->dataBits, QSerialPort::Data7);
  EXPECT_EQ(e->stopBits, QSerialPort::TwoStop);
  EXPECT_EQ(ParseSerialSettings("4800,o,8,1.5")->stopBits, QSerialPort::OneAndHalfStop);
  EXPECT_EQ(ParseSerialSettings("4800,m,8,1")->parity, QSerialPort::MarkParity);
  EXPECT_EQ(ParseSerialSettings("4800,s,8,1")->parity, QSerialPort::SpaceParity);
  EXPECT_FALSE(ParseSerialSettings("9600,x,8,1").has_value());
  EXPECT_FALSE(ParseSerialSettings("9600,n,9,1").has_value());
  EXPECT_FALSE(ParseSerialSettings("schnell,n,8,1").has_value());
  EXPECT_FALSE(ParseSerialSettings("9600,n,8").has_value());
}

// Port 3 is a pseudo-terminal whose far end the test holds.
struct PtyPort : ::testing::Test {
  int master = -1, slave = -1;
  std::string device;
  void SetUp() override {
    test::App();
    char name[256] = {};
    ASSERT_EQ(openpty(&master, &slave, name, nullptr, nullptr), 0);
    device = name;
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
    setenv("KOLM_COM3", name, 1);
  }
  void TearDown() override {
    unsetenv("KOLM_COM3");
    if (master >= 0) ::close(master);
    if (slave >= 0) ::close(slave);
  }
};

TEST_F(PtyPort, BytesTravelBothWays) {
  QtSerialPorts ports;
  auto port = ports.create();
  EXPECT_FALSE(port->open(3, "9600,q,8,1"));
  ASSERT_TRUE(port->open(3, "9600,n,8,1"));
  EXPECT_TRUE(port->isOpen());
  EXPECT_EQ(static_cast<QtSerialPort&>(*port).deviceName(), QString::fromStdString(device));
  int told = 0;
  port->onReceive([&] { ++told; });
  const std::string from = "P 1 100.000 200.000\r\n";
  ASSERT_EQ(::write(master, from.data(), from.size()), static_cast<ssize_t>(from.size()));
  std::string received;
  EXPECT_TRUE(QTest::qWaitFor([&] {
    received += port->read();
    return received.size() >= from.size();
  }, 5000));
  EXPECT_EQ(received, from);
  EXPECT_GT(told, 0);

  port->write("?\r");
  std::string echoed;
  char buffer[64];
  EXPECT_TRUE(QTest::qWaitFor([&] {
    const ssize_t n = ::read(master, buffer, sizeof buffer);
    if (n > 0) echoed.append(buffer, static_cast<size_t>(n));
    return echoed.size() >= 2;
  }, 5000));
  EXPECT_EQ(echoed, "?\r");
  port->close();
  EXPECT_FALSE(port->isOpen());
}

TEST(SerialPort, MissingDeviceDoesNotOpen) {
  test::App();
  setenv("KOLM_COM4", "/dev/gibt-es-nicht", 1);
  QtSerialPort port;
  EXPECT_FALSE(port.open(4, "9600,n,8,1"));
  EXPECT_FALSE(port.isOpen());
  EXPECT_EQ(port.read(), "");
  unsetenv("KOLM_COM4");
}

// ---- printing ----------------------------------------------------------------------------------------

TEST(Printing, PagesInMillimetresGoOneSheetEach) {
  test::App();
  QTemporaryDir dir;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Portrait);
  const QString pdf = dir.filePath("liste.pdf");
  printer.setOutputFileName(pdf);
  QtTextMeasurer measurer;
  QtPrintJob job(printer, "Punktliste", nullptr, &measurer);
  // The printable part of an A4 sheet.
  EXPECT_GT(job.pageWidthMm(), 150);
  EXPECT_LE(job.pageWidthMm(), 210);
  EXPECT_GT(job.pageHeightMm(), job.pageWidthMm());
  job.page().setPen(0, 1, forms::LineStyle::Solid);
  job.page().line(10, 10, 100, 10);
  forms::Font font;
  font.sizePt = 10;
  job.page().setFont(font);
  job.page().text(10, 20, "Punkt 1");
  // A 10 pt text is some millimetres long and about 4 mm high.
  const forms::TextSize size = job.page().textExtent("Punkt 1");
  EXPECT_GT(size.width, 8);
  EXPECT_LT(size.width, 30);
  EXPECT_GT(size.height, 3);
  EXPECT_LT(size.height, 7);
  job.newPage();
  job.page().text(10, 20, "Seite 2");
  EXPECT_EQ(job.pageCount(), 2);
  job.render(&printer);
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF"));
  EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") + bytes.count("/Type /Page "), 2);
}

TEST(Printing, OrientationFollowsTheService) {
  test::App();
  QtPrinter printer;
  printer.setOrientation(forms::Orientation::Landscape);
  EXPECT_EQ(printer.orientation(), forms::Orientation::Landscape);
  auto job = printer.begin("Quer");
  EXPECT_GT(job->pageWidthMm(), job->pageHeightMm());
  printer.setOrientation(forms::Orientation::Portrait);
  EXPECT_EQ(printer.orientation(), forms::Orientation::Portrait);
}

// ---- clipboard, busy cursor, measuring ------------------------------------------------------------------

TEST(Clipboard, TextGoesInAndComesOutAsUtf8) {
  test::App();
  QtClipboard clipboard;
  clipboard.setText("Höhe\t12,5");
  EXPECT_EQ(clipboard.text(), "Höhe\t12,5");
}

TEST(BusyCursor, NestsAndComesBack) {
  test::App();
  QtBusyCursor busy;
  busy.begin();
  busy.begin();
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  busy.end();
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
  busy.end();
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  busy.end();  // one too many does no harm
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(TextMeasurer, LongerAndLargerTextsMeasureMore) {
  test::App();
  QtTextMeasurer measurer;
  forms::Font small;
  small.sizePt = 8;
  forms::Font large = small;
  large.sizePt = 16;
  const forms::TextSize a = measurer.measure(small, "Punkt");
  EXPECT_GT(a.width, 0);
  EXPECT_GT(measurer.measure(small, "Punktnummer").width, a.width);
  EXPECT_GT(measurer.measure(large, "Punkt").height, a.height);
}

// ---- desktop ----------------------------------------------------------------------------------------------

TEST(Desktop, TilesAndArrangesTheChildWindows) {
  test::App();
  QMdiArea area;
  area.resize(900, 600);
  area.show();
  std::vector<QMdiSubWindow*> windows;
  for (int i = 0; i < 3; ++i) {
    QMdiSubWindow* w = area.addSubWindow(new QLabel("Fenster"));
    w->resize(200, 150);
    w->show();
    windows.push_back(w);
  }
  const QRect room = area.viewport()->rect();
  QtDesktop desktop(&area);

  desktop.tileHorizontally();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(windows[i]->width(), room.width());
    EXPECT_EQ(windows[i]->x(), 0);
  }
  EXPECT_EQ(windows[0]->y(), 0);
  EXPECT_GE(windows[1]->y(), windows[0]->geometry().bottom());
  EXPECT_GE(windows[2]->y(), windows[1]->geometry().bottom());

  desktop.tileVertically();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(windows[i]->height(), room.height());
    EXPECT_EQ(windows[i]->y(), 0);
  }
  EXPECT_GE(windows[1]->x(), windows[0]->geometry().right());
  EXPECT_GE(windows[2]->x(), windows[1]->geometry().right());

  windows[0]->showMinimized();
  windows[2]->showMinimized();
  windows[0]->move(300, 10);
  desktop.arrangeIcons();
  EXPECT_EQ(windows[0]->geometry().bottom(), room.bottom());
  EXPECT_EQ(windows[0]->x(), 0);
  EXPECT_EQ(windows[2]->geometry().bottom(), room.bottom());
  EXPECT_EQ(windows[2]->x(), windows[0]->width());
}

}  // namespace
}  // namespace kolm::shell
