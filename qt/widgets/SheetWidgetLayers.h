#pragma once

#include <QImage>
#include <QWidget>

#include "platform/render/Scene.h"

namespace quorix::qt {

/// Shows a picture at its place. The pointer reaches what lies below. Main thread.
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

/// Takes taps over the pages of a sheet. It is as large as the sheet, but its mask holds only the
/// areas where something acts. Passes its events to the sheet.
class SheetWidgetFront : public QWidget {
 public:
  explicit SheetWidgetFront(SheetWidget& sheet);

  /// Takes its mask from the sheet's whole scene.
  void follow(const render::Scene& scene);

 protected:
  bool event(QEvent* event) override;

 private:
  SheetWidget& sheet_;
};

}  // namespace quorix::qt
