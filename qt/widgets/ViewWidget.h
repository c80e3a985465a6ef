#pragma once

#include <QWidget>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"
#include "qt/SheetCloseReason.h"
#include "qt/ViewSettings.h"

namespace quorix::qt {

class WidgetSurface;

/// Shows a view among Qt Widgets. A size in points is a size in widgets' pixels.
///
/// Layouts place it like a label with word wrap: its size hint is the view's ideal size, and its
/// height follows its width. Settings that the host does not choose follow the widget: its palette
/// decides light or dark, its layout direction is the view's. Both are the desktop's unless the
/// host sets them. The widget has no background, and is painted only when something changed. Sheets
/// of the view open over the whole window. Main thread.
///
///     #include <QuorixWidgets/score/ScoreWidgetBuilder.h>
///     auto view = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
///         "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
///     page->layout()->addWidget(new quorix::qt::ViewWidget(view));
class QUORIX_EXPORT ViewWidget : public QWidget, public ViewSettings {
  Q_OBJECT

 public:
  explicit ViewWidget(QWidget* parent = nullptr);
  explicit ViewWidget(swiftui::View view, QWidget* parent = nullptr);
  ~ViewWidget() override;

  /// Shows another view, with new state. Closes a sheet of the former view.
  void setView(swiftui::View view);

  // The widget's own direction, which the view follows, and the view's.
  using QWidget::setLayoutDirection;
  using ViewSettings::setLayoutDirection;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 signals:
  // What the user did, for analytics. A slot may delete the widget, except where noted.

  /// A row or a link of the view was tapped, by pointer, key or assistive technology.
  void activated();
  /// A sheet of the view opened, also one with a web page.
  void sheetOpened();
  /// It closed: emitted once for each `sheetOpened`. If the widget is deleted while its sheet is
  /// open, its destructor emits this with `Host`, so a slot deletes it only for another reason.
  void sheetClosed(quorix::qt::SheetCloseReason reason);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  friend class WidgetSurface;
  void settingsChanged() override;

  std::unique_ptr<WidgetSurface> surface_;
};

}  // namespace quorix::qt
