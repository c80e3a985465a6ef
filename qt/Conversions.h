#pragma once

#include <QColor>
#include <QRectF>
#include <QStringView>
#include <QUrl>
#include <string>
#include <string_view>

#include "platform/foundation/URL.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::qt {

inline QColor toQColor(graphics::RGBA color) {
  return {color.red, color.green, color.blue, color.alpha};
}

inline layout::Point toPoint(QPointF point) { return {point.x(), point.y()}; }
inline QPointF toPoint(layout::Point point) { return {point.x, point.y}; }
inline QRectF toRect(const layout::Rect& rect) {
  return {rect.left(), rect.top(), rect.size.width, rect.size.height};
}
inline layout::Rect toRect(const QRectF& rect) {
  return {toPoint(rect.topLeft()), {rect.width(), rect.height()}};
}

/// Valid as long as the text that `text` is a view of.
inline std::u16string_view utf16(QStringView text) {
  return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// Parses strictly: Qt must not correct a checked address into another one. The result is invalid
/// if Qt does not understand the address.
inline QUrl toQUrl(const foundation::URL& url) {
  return QUrl::fromEncoded(QByteArray::fromStdString(url.absoluteString()), QUrl::StrictMode);
}
inline std::string toText(const QUrl& address) { return address.toEncoded().toStdString(); }

}  // namespace quorix::qt
