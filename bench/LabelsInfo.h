#pragma once

#include "bench/LabelsWidget.h"

namespace quorix::bench {

class InfoSubject;

/// The info widget.
class LabelsInfo final : public LabelsWidget {
 public:
  LabelsInfo(const InfoSubject& info, QWidget* parent);
};

}  // namespace quorix::bench
