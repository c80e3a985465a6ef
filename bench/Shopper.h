#pragma once

#include <QString>
#include <cstddef>
#include <string>

#include "bench/Subject.h"

namespace quorix::bench {

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

}  // namespace quorix::bench
