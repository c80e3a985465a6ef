#pragma once

#include <QWidget>

#include "platform/render/Scene.h"

namespace quorix::qt {

class SheetWidget;

/// What lies over the pages of a sheet and takes taps: as large as the sheet, but there only where
/// something acts. What comes to it goes to the sheet.
class SheetWidgetFront : public QWidget {
 public:
  explicit SheetWidgetFront(SheetWidget& sheet);

  /// The sheet's whole scene.
  void follow(const render::Scene& scene);

 protected:
  bool event(QEvent* event) override;

 private:
  SheetWidget& sheet_;
};

}  // namespace quorix::qt
