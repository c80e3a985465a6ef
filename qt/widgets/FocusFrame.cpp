#include "qt/widgets/FocusFrame.h"

#include <QPainter>
#include <QProxyStyle>

#include "qt/FocusRing.h"

namespace quorix::qt {
namespace {

constexpr int kMargin = 4;  // what the ring takes beyond the widget

/// Room for the ring, above the other widgets in the parent.
class FrameStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const bool margin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
    return margin ? kMargin : QProxyStyle::pixelMetric(metric, option, widget);
  }
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_FocusFrame_AboveWidget) return 1;
    if (hint == SH_FocusFrame_Mask) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
};

}  // namespace

FocusFrame::FocusFrame(QWidget& widget) : QFocusFrame(&widget) {
  auto* style = new FrameStyle;
  style->setParent(this);
  setStyle(style);
  setWidget(&widget);
}

void FocusFrame::goAround(const layout::Rect& element, graphics::Appearance appearance) {
  element_ = element;
  appearance_ = appearance;
  update();
}

void FocusFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF around = FocusRing::frameAround(element_).translated(kMargin, kMargin);
  FocusRing::paint(painter, around.intersected(rect()), appearance_);
}

}  // namespace quorix::qt
