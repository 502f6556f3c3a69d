#include "shell/picture_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <variant>

#include "forms/control.h"
#include "forms/form.h"
#include "shell/key_mapping.h"
#include "shell/painter_surface.h"

namespace kolm::shell {

PictureWidget::PictureWidget(forms::Control& control, QWidget* parent)
    : QWidget(parent), control_(&control) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  // Texts drawn here are measured with the real fonts.
  if (const forms::TextMeasurer* measurer = control.form().services().measurer)
    control.picture().setMeasurer(measurer);
  // Form logic draws into the list without telling anyone; a cheap look at
  // its counters while shown keeps the screen current.
  watch_.setInterval(100);
  connect(&watch_, &QTimer::timeout, this, &PictureWidget::refresh);
}

void PictureWidget::detach() {
  control_ = nullptr;
  watch_.stop();
  update();
}

bool PictureWidget::drawingChanged() const {
  if (!control_) return false;
  const forms::DisplayList& list = control_->picture();
  return list.generation() != paintedGeneration_ || list.commands().size() != paintedCommands_;
}

void PictureWidget::refresh() {
  if (drawingChanged()) update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (!control_) return;
  const forms::DisplayList& list = control_->picture();
  PainterSurface surface(painter, QRectF(rect()));
  list.replay(surface);
  paintedGeneration_ = list.generation();
  paintedCommands_ = list.commands().size();
}

void PictureWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (control_) control_->picture().setDeviceSize(width(), height());
}

void PictureWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (control_) {
    control_->picture().setDeviceSize(width(), height());
    watch_.start();
  }
}

void PictureWidget::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  watch_.stop();
}

namespace {
int ButtonBits(Qt::MouseButtons buttons) {
  int bits = 0;
  if (buttons & Qt::LeftButton) bits |= 1;
  if (buttons & Qt::RightButton) bits |= 2;
  if (buttons & Qt::MiddleButton) bits |= 4;
  return bits;
}

}  // namespace

UserScale PictureWidget::userScale() {
  const forms::DisplayList& list = control_->picture();
  const QRectF device(rect());
  if (list.generation() != scaleGeneration_ || list.commands().size() != scaleCommands_ ||
      scale_.device != device) {
    // The scale in force is the list's last Scale command.
    UserScale s;
    s.device = device;
    s.right = device.width();
    s.bottom = device.height();
    const auto& commands = list.commands();
    for (auto it = commands.rbegin(); it != commands.rend(); ++it)
      if (const auto* sc = std::get_if<forms::DisplayList::Scale>(&*it)) {
        s.left = sc->left;
        s.top = sc->top;
        s.right = sc->right;
        s.bottom = sc->bottom;
        break;
      }
    scale_ = s;
    scaleGeneration_ = list.generation();
    scaleCommands_ = commands.size();
  }
  return scale_;
}

void PictureWidget::raiseMouse(int event, QMouseEvent* e, int button) {
  if (!control_ || !control_->enabled()) return;
  forms::EventArgs args;
  args.button = button;
  args.shift = ShiftBits(e->modifiers());
  const QPointF user = userScale().toUser(e->position());
  args.x = user.x();
  args.y = user.y();
  control_->raise(static_cast<forms::Event>(event), args);
}

void PictureWidget::mousePressEvent(QMouseEvent* e) {
  pressed_ = true;
  raiseMouse(static_cast<int>(forms::Event::MouseDown), e, ButtonBits(e->button()));
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* e) {
  QPointer<PictureWidget> self(this);
  raiseMouse(static_cast<int>(forms::Event::MouseUp), e, ButtonBits(e->button()));
  if (!self) return;
  if (pressed_ && rect().contains(e->position().toPoint()) && control_) control_->click();
  pressed_ = false;
}

void PictureWidget::mouseMoveEvent(QMouseEvent* e) {
  raiseMouse(static_cast<int>(forms::Event::MouseMove), e, ButtonBits(e->buttons()));
}

void PictureWidget::mouseDoubleClickEvent(QMouseEvent* e) {
  pressed_ = false;
  if (control_) control_->doubleClick();
}

}  // namespace kolm::shell
