#pragma once
#include <QTimer>
#include <QWidget>

#include "shell/painter_surface.h"

namespace kolm::forms {
class Control;
}

namespace kolm::shell {

// A picture box: replays the control's display list and reports the mouse
// in the control's own scale.
class PictureWidget final : public QWidget {
  Q_OBJECT
 public:
  explicit PictureWidget(forms::Control& control, QWidget* parent = nullptr);

  forms::Control* control() const { return control_; }
  void detach();
  // Repaints when the drawing changed since the last paint.
  void refresh();

  QSize sizeHint() const override { return {240, 180}; }
  QSize minimumSizeHint() const override { return {40, 30}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void raiseMouse(int event, QMouseEvent* e, int button);
  bool drawingChanged() const;
  UserScale userScale();

  forms::Control* control_;
  QTimer watch_;
  unsigned paintedGeneration_ = 0;
  size_t paintedCommands_ = 0;
  bool pressed_ = false;
  UserScale scale_;
  unsigned scaleGeneration_ = ~0u;
  size_t scaleCommands_ = 0;
};

}  // namespace kolm::shell
