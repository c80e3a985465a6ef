#pragma once

#include <QWidget>

#include "qt/widgets/ViewWidget.h"
#include "tools/quorix/preview/PreviewChoices.h"

namespace quorix::tool {

/// The screen of a shop's app with one widget. The controls are in another window, so that a sheet
/// covers only the screen.
class PreviewScreen : public QWidget {
 public:
  PreviewScreen();

  /// Makes the widget again, with an open sheet if `choices` ask for it.
  void show(const PreviewChoices& choices);

  bool hasSheet() const;

 private:
  void openSheet();

  qt::ViewWidget* widget_;
};

}  // namespace quorix::tool
