#include "tools/quorix/preview/PreviewScreen.h"

#include <QVBoxLayout>
#include <algorithm>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "qt/Surface.h"
#include "qt/WindowScene.h"

namespace quorix::tool {
namespace {

constexpr int kMargin = 16;
constexpr int kHeight = 720;

swiftui::View viewOf(const PreviewChoices& choices) {
  if (choices.widget == PreviewChoices::Widget::score) {
    return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
        "preview", choices.locale, choices.shoppers[choices.shopper].token,
        {choices.regularFont, choices.semiBoldFont});
  }
  if (!hasInfoTitle(choices.locale)) return {};  // the controls show the table's error
  const InfoWidgetStyle style(choices.regularFont, choices.semiBoldFont, std::nullopt, false);
  if (choices.widget == PreviewChoices::Widget::info) {
    return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(choices.locale, style);
  }
  return swiftui::hosting(InfoWidgetBuilder::buildUIKitInfoWidgetView(choices.locale, style));
}

QPalette paper(graphics::Appearance appearance) {
  const bool dark = appearance == graphics::Appearance::dark;
  QPalette palette;
  palette.setColor(QPalette::Window, dark ? QColor(0x12, 0x12, 0x14) : QColor(Qt::white));
  palette.setColor(QPalette::WindowText, dark ? QColor(Qt::white) : QColor(Qt::black));
  return palette;
}

}  // namespace

PreviewScreen::PreviewScreen() : widget_(new qt::ViewWidget(this)) {
  setWindowTitle(tr("Screen"));
  setAutoFillBackground(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(widget_);
  column->addStretch();
}

void PreviewScreen::show(const PreviewChoices& choices) {
  const bool rightToLeft = choices.readingDirection() == layout::LayoutDirection::rightToLeft;
  setPalette(paper(choices.appearance));
  setFixedSize(choices.width, kHeight);
  widget_->setAppearance(choices.appearance);
  widget_->setTextSize(choices.textSize);
  widget_->ViewSettings::setLayoutDirection(choices.readingDirection());
  QWidget::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  widget_->setView(viewOf(choices));
  QWidget::show();
  if (choices.sheet)
    QMetaObject::invokeMethod(this, &PreviewScreen::openSheet, Qt::QueuedConnection);
}

bool PreviewScreen::hasSheet() const { return qt::WindowScene::topmostOf(this) != nullptr; }

/// Performs the widget's first element with an action, like a screen reader.
void PreviewScreen::openSheet() {
  qt::Surface* surface = qt::Surface::of(widget_);
  const auto& elements = surface->responder().elements();
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  if (acting == elements.end()) return;
  surface->responder().activate(static_cast<int>(acting - elements.begin()));
}

void PreviewScreen::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  emit closed();
}

}  // namespace quorix::tool
