#pragma once

#include "bench/Shopper.h"

namespace quorix::bench {

/// A score row with the sheet behind it, which the one in QML gets the texts of.
class SheetSubject final : public Subject {
 public:
  SheetSubject();

  swiftui::View ours() const override { return shopper_.ours(); }
  QVariantMap properties() const override { return properties_; }
  QWidget* labels(QWidget* parent) const override { return shopper_.labels(parent); }

 private:
  Shopper shopper_{0};
  QVariantMap properties_;
};

}  // namespace quorix::bench
