#include "bench/InfoSubject.h"

#include <QCoreApplication>
#include <QEvent>

#include "QuorixWidgets/info/InfoTitle.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/localization/Strings.h"
#include "bench/LabelsInfo.h"
#include "bench/Palette.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::bench {
namespace {

constexpr const char* kLanguage = "en";

}  // namespace

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
  // The turn of the main queue that brings the title.
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
