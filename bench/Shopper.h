#pragma once

#include <QColor>
#include <QString>
#include <cstddef>
#include <string>

#include "platform/swiftui/View.h"

namespace quorix::bench {

/// One row's content: the token for our row and, for the peers, the texts that it comes to. The
/// peers get theirs ready made; our row decodes and formats its own.
struct Shopper {
  std::string token;
  QString title;
  QString fee;
  QString baseFee;
  QString label;
  QString hint;

  /// The `number`th of as many different shoppers as are wanted, all with a discount.
  static Shopper make(std::size_t number);

  swiftui::View row() const;
};

/// The colours of the row's texts in the light appearance.
QColor inkColor();
QColor fadedColor();

/// Makes the row's faces known to Qt, as the first of our rows would, so that the peers draw with
/// the same ones. Needs an application object.
void loadFaces();

}  // namespace quorix::bench
