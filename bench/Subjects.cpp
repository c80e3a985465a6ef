#include "bench/Subjects.h"

#include <QCoreApplication>
#include <QEvent>
#include <cstdlib>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "bench/Labels.h"
#include "examples/common/TokenMint.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::bench {
namespace {

QColor resolved(const swiftui::Color& color) {
  const auto rgba = color.resolve(graphics::Appearance::light);
  if (!rgba) std::abort();
  return QColor(rgba->red, rgba->green, rgba->blue, rgba->alpha);
}

}  // namespace

QColor inkColor() { return resolved(Color::defaultFontColor()); }
QColor fadedColor() { return resolved(ColorResource::grey2()); }
QColor groundColor() { return resolved(Color::widgetBackground()); }

namespace {

constexpr const char* kClient = "my-shop";
constexpr const char* kLanguage = "en";

}  // namespace

Shopper::Shopper(std::size_t number) {
  const auto fees = static_cast<std::int64_t>(number) * 100;
  const TokenData figures{0.82, "EUR", fees + 700, fees + 300};
  const ScoreWidgetViewModel model(kClient, figures, kLanguage, {std::nullopt, std::nullopt});
  const auto localization = LocalizationRepository::make(kLanguage);
  const ScoreWidgetTexts texts(model, *localization);
  token = examples::mintToken(figures);
  title = QString::fromUtf8(texts.text("returns", "title"));
  fee = QString::fromUtf8(model.reducedReturnFee.get());
  baseFee = QString::fromUtf8(model.baseReturnFee.get());
  label = QString::fromUtf8(texts.rowLabel().resolved());
  hint = QString::fromUtf8(texts.text("labels", "hint"));
}

swiftui::View Shopper::ours() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(kClient, kLanguage, token,
                                                         {std::nullopt, std::nullopt});
}

QVariantMap Shopper::properties() const {
  static const QColor ink = inkColor(), faded = fadedColor();
  return {{"title", title}, {"fee", fee}, {"baseFee", baseFee}, {"label", label},
          {"hint", hint},   {"ink", ink}, {"faded", faded}};
}

QWidget* Shopper::labels(QWidget* parent) const { return new LabelsRow(*this, parent); }

InfoSubject::InfoSubject(Form form)
    : link(QString::fromStdString(localized("widget-read-more", kLanguage))), form_(form) {
  for (const InfoTitlePart& part : infoTitle(kLanguage)) {
    const QString words = QString::fromStdString(part.text);
    title += words;
    styledTitle += part.isNumber ? "<b>" + words.toHtmlEscaped() + "</b>" : words.toHtmlEscaped();
  }
}

swiftui::View InfoSubject::ours() const {
  const InfoWidgetStyle style(std::nullopt, std::nullopt, std::nullopt, false);
  if (form_ == Form::declarative) {
    return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(kLanguage, style);
  }
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(kLanguage, style);
  // Runs the turn of the main queue that sets the title.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
  return swiftui::hosting(widget);
}

QVariantMap InfoSubject::properties() const {
  static const QColor ink = inkColor(), ground = groundColor();
  return {
      {"title", styledTitle}, {"link", link}, {"label", title}, {"ink", ink}, {"color", ground}};
}

QWidget* InfoSubject::labels(QWidget* parent) const { return new LabelsInfo(*this, parent); }

}  // namespace quorix::bench
