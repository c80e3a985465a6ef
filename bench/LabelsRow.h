#pragma once

#include "bench/LabelsWidget.h"

namespace quorix::bench {

class Shopper;

/// The score row.
class LabelsRow final : public LabelsWidget {
 public:
  LabelsRow(const Shopper& shopper, QWidget* parent);
};

}  // namespace quorix::bench
