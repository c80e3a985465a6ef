#pragma once

#include <QColor>
#include <QString>
#include <QVariantMap>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/swiftui/View.h"

class QWidget;

namespace quorix::bench {

/// A subject of the comparison: one of our widgets, and its equivalents in QML and in Qt Widgets.
/// The equivalents get finished texts; ours decodes, looks up and formats its own. Needs an
/// application object; main thread.
class Subject {
 public:
  virtual ~Subject() = default;

  /// Calls the builder and everything else that must run before painting.
  virtual swiftui::View ours() const = 0;
  /// The initial properties of the QML equivalent.
  virtual QVariantMap properties() const = 0;
  /// The equivalent in Qt Widgets, in `parent`, which owns it unless it is deleted before.
  virtual QWidget* labels(QWidget* parent) const = 0;
};

// The colors of our widgets in the light appearance; the peers use them.

QColor inkColor();
QColor fadedColor();
QColor groundColor();

/// The content of a score row: the token for our row, and the resulting texts for the peers.
class Shopper final : public Subject {
 public:
  /// Shopper `number` of any number of different shoppers, all with a discount.
  explicit Shopper(std::size_t number);

  swiftui::View ours() const override;
  QVariantMap properties() const override;
  QWidget* labels(QWidget* parent) const override;

  std::string token;
  QString title;
  QString fee;
  QString baseFee;
  QString label;
  QString hint;
};

/// The info widget in one of its forms. Its texts are always the same.
class InfoSubject final : public Subject {
 public:
  enum class Form : std::uint8_t { declarative, imperative };

  explicit InfoSubject(Form form);

  swiftui::View ours() const override;
  QVariantMap properties() const override;
  QWidget* labels(QWidget* parent) const override;

  QString title;        ///< without markup
  QString styledTitle;  ///< the figure in bold, in the markup of both toolkits
  QString link;

 private:
  Form form_;
};

}  // namespace quorix::bench
