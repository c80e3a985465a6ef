#include "examples/shop/widgets/Art.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace quorix::examples {
namespace {

/// Makes screen readers announce a drawing with a name as an image, and skip one without.
QAccessibleInterface* describe(const QString&, QObject* object) {
  auto* art = qobject_cast<Art*>(object);
  if (!art || art->accessibleName().isEmpty()) return nullptr;
  return new QAccessibleWidget(art, QAccessible::Graphic);
}

}  // namespace

Art::Art(const QString& name, int margin, int radius, QWidget* parent)
    : QWidget(parent),
      drawing_(QStringLiteral(":/shop/art/%1.svg").arg(name)),
      margin_(margin),
      radius_(radius) {
  drawing_.setAspectRatioMode(Qt::KeepAspectRatio);
  QAccessible::installFactory(describe);  // later calls have no effect
}

void Art::followWidth(double share, int most) {
  share_ = share;
  most_ = most;
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void Art::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().alternateBase());
  painter.drawRoundedRect(rect(), radius_, radius_);
  painter.setBrush(Qt::NoBrush);  // the default at the start of a drawing
  drawing_.render(&painter, QRectF(rect()).adjusted(margin_, margin_, -margin_, -margin_));
}

}  // namespace quorix::examples
