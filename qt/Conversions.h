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

/// Of a text that lives on.
inline std::u16string_view utf16(QStringView text) {
  return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// Strict, so that Qt's guesses cannot turn it into another address than the one let through. Not
/// valid when Qt does not understand it.
inline QUrl toQUrl(const foundation::URL& url) {
  return QUrl::fromEncoded(QByteArray::fromStdString(url.absoluteString()), QUrl::StrictMode);
}
inline std::string toText(const QUrl& address) { return address.toEncoded().toStdString(); }

}  // namespace quorix::qt
