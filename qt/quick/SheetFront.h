#pragma once

#include <QQuickItem>

namespace quorix::qt {

class SheetItem;

/// What lies over the pages of a sheet and takes taps: as large as the sheet, but there only where
/// something acts. What comes to it goes to the sheet.
class SheetFront : public QQuickItem {
 public:
  explicit SheetFront(SheetItem& sheet);

  bool contains(const QPointF& point) const override;

 protected:
  bool event(QEvent* event) override;
  void mouseUngrabEvent() override;
  void touchUngrabEvent() override;

 private:
  SheetItem& sheet_;
};

}  // namespace quorix::qt
