#include "tools/quorix/preview/PreviewScreen.h"

#include <QVBoxLayout>
#include <algorithm>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "qt/HostedWindow.h"
#include "qt/Surface.h"

namespace quorix::tool {
namespace {

constexpr int kMargin = 16;
constexpr int kHeight = 720;

swiftui::View viewOf(const PreviewChoices& choices) {
  if (choices.widget == PreviewChoices::score) {
    return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
        "preview", choices.locale,
        choices.shoppers[static_cast<std::size_t>(*choices.shopper)].token,
        {choices.regularFont, choices.semiBoldFont});
  }
  if (!hasInfoTitle(choices.locale)) return {};  // the controls show the table's error
  const InfoWidgetStyle style(choices.regularFont, choices.semiBoldFont, std::nullopt, false);
  if (choices.widget == PreviewChoices::info) {
    return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(choices.locale, style);
  }
  return swiftui::hosting(InfoWidgetBuilder::buildUIKitInfoWidgetView(choices.locale, style));
}

QPalette paper(bool dark) {
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
  const swiftui::Environment settings = choices.environment();
  const bool rightToLeft = settings.direction == layout::LayoutDirection::rightToLeft;
  setPalette(paper(settings.appearance == graphics::Appearance::dark));
  setFixedSize(static_cast<int>(choices.width), kHeight);
  widget_->setAppearance(settings.appearance);
  widget_->setTextSize(settings.textSize);
  widget_->ViewSettings::setLayoutDirection(settings.direction);
  QWidget::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  widget_->setView(viewOf(choices));
  QWidget::show();
  if (choices.sheet)
    QMetaObject::invokeMethod(this, &PreviewScreen::openSheet, Qt::QueuedConnection);
}

bool PreviewScreen::hasSheet() const { return qt::HostedWindow::topmostOf(this) != nullptr; }

/// Performs the widget's first element with an action, like a screen reader.
void PreviewScreen::openSheet() {
  qt::Surface* surface = qt::Surface::of(widget_);
  const auto& elements = surface->responder().elements();
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  if (acting == elements.end()) return;
  surface->responder().activate(static_cast<int>(acting - elements.begin()));
}

}  // namespace quorix::tool
