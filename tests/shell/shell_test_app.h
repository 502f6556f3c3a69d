#pragma once
#include <QApplication>
#include <QCoreApplication>
#include <QEvent>

namespace kolm::shell::test {

// One QApplication for the whole test program, made by whichever test needs it first.
inline QApplication& App() {
  if (auto* app = qobject_cast<QApplication*>(QCoreApplication::instance())) return *app;
  static int argc = 1;
  static char name[] = "shell_tests";
  static char* argv[] = {name, nullptr};
  // Never destroyed: Qt's own globals go first at exit, and an application
  // torn down after them crashes on the input devices the tests created.
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// Runs what deleteLater left for the event loop (windows, the collection of
// unloaded forms), as returning to the main loop would.
inline void RunDeferredDeletes() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace kolm::shell::test
