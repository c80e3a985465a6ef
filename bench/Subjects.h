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

/// What is compared: a widget of ours, and what the same is made of in QML and in Qt Widgets. The
/// peers get their texts ready made; ours decodes, looks up and formats its own. Needs an
/// application object; main thread.
class Subject {
 public:
  virtual ~Subject() = default;

  /// A builder call, and all that it takes until there is something to paint.
  virtual swiftui::View ours() const = 0;
  /// The initial properties of the one in QML.
  virtual QVariantMap properties() const = 0;
  /// The one in Qt Widgets, in `parent`, which owns it unless it is deleted before.
  virtual QWidget* labels(QWidget* parent) const = 0;
};

// The colors of our widgets in the light appearance, for the peers.

QColor inkColor();
QColor fadedColor();
QColor groundColor();

/// A score row's content: the token for our row and, for the peers, the texts that it comes to.
class Shopper final : public Subject {
 public:
  /// The `number`th of as many different shoppers as are wanted, all with a discount.
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

  QString title;        ///< the words alone
  QString styledTitle;  ///< with the figure in bold, as both toolkits' marked-up text
  QString link;

 private:
  Form form_;
};

}  // namespace quorix::bench
