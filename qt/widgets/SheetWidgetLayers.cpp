#include "qt/widgets/SheetWidgetLayers.h"

#include <QEvent>
#include <QPainter>
#include <QRegion>

#include "qt/Conversions.h"
#include "qt/widgets/SheetWidget.h"

namespace quorix::qt {

PictureWidget::PictureWidget(QWidget& parent) : QWidget(&parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void PictureWidget::setPicture(const QImage& picture) {
  picture_ = picture;
  resize(picture.deviceIndependentSize().toSize());
  setVisible(!picture.isNull());
  update();
}

void PictureWidget::paintEvent(QPaintEvent*) { QPainter(this).drawImage(0, 0, picture_); }

SheetWidgetFront::SheetWidgetFront(SheetWidget& sheet) : QWidget(&sheet), sheet_(sheet) {
  setAttribute(Qt::WA_AcceptTouchEvents);
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
}

void SheetWidgetFront::follow(const render::Scene& scene) {
  QRegion acting;
  for (std::size_t i = 0; i < scene.hitAreas.size(); ++i) {
    QRegion area = toRect(scene.hitAreas[i].frame).toAlignedRect();
    for (const render::Item& item : scene.items) {
      const auto* embed = std::get_if<render::EmbedItem>(&item);
      if (embed && i < embed->hitAreasBelow) area -= toRect(embed->room()).toAlignedRect();
    }
    acting += area;
  }
  // Qt reads an empty mask as none.
  setVisible(!acting.isEmpty());
  if (!acting.isEmpty() && acting != mask()) setMask(acting);
}

bool SheetWidgetFront::event(QEvent* event) {
  return (isEnabled() && sheet_.handle(*event)) || QWidget::event(event);
}

}  // namespace quorix::qt
