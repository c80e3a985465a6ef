#pragma once

#include <QFocusFrame>
#include <QPainter>
#include <QProxyStyle>

#include "platform/hosting/FocusRing.h"
#include "qt/Conversions.h"
#include "qt/Picture.h"

namespace quorix::qt {

/// The focus ring of a view widget. It reaches beyond the widget, which cannot paint outside of
/// itself, and follows the widget. A child of one of the widget's ancestors; main thread.
class FocusFrame : public QFocusFrame {
 public:
  explicit FocusFrame(QWidget& widget) : QFocusFrame(&widget) {
    auto* style = new Style;
    style->setParent(this);
    setStyle(style);
    setWidget(&widget);
  }

  /// Goes around the element at `element` in the widget.
  void goAround(const layout::Rect& element, graphics::Appearance appearance) {
    if (element == element_ && appearance == appearance_) return;
    element_ = element;
    appearance_ = appearance;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const layout::Rect around = hosting::FocusRing::around(element_).translated({kMargin, kMargin});
    render::Scene ring;
    ring.size = {double(width()), double(height())};
    ring.items = {hosting::FocusRing::line(layout::intersection(around, toRect(QRectF(rect()))),
                                           appearance_)};
    paintAsPicture(painter, ring);
  }

 private:
  static constexpr int kMargin = int(hosting::FocusRing::outset);

  /// Makes room for the ring, above the other widgets in the parent.
  class Style : public QProxyStyle {
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

  layout::Rect element_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
};

}  // namespace quorix::qt
