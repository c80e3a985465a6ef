#pragma once

#include <QWidget>

#include "qt/widgets/ViewWidget.h"
#include "tools/quorix/preview/PreviewChoices.h"

namespace quorix::tool {

/// The screen of a shop's app with one widget on it. A sheet covers the screen and no more: the
/// controls stand in a window of their own.
class PreviewScreen : public QWidget {
  Q_OBJECT

 public:
  PreviewScreen();

  /// Makes the widget anew, with a sheet open where `choices` want one.
  void show(const PreviewChoices& choices);

  bool hasSheet() const;

  /// A picture of the screen as it is, in whole device pixels.
  QPixmap picture() { return grab(); }

 signals:
  void closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void openSheet();

  qt::ViewWidget* widget_;
};

}  // namespace quorix::tool
