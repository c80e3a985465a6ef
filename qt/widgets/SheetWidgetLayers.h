#pragma once

#include <QImage>
#include <QWidget>

#include "platform/render/Scene.h"

namespace quorix::qt {

/// Shows a picture at its place, through which the pointer reaches what lies below. Main thread.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(QWidget& parent);
  void setPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

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
