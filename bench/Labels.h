#pragma once

#include <QWidget>

class QLabel;

namespace quorix::bench {

/// One button with labels in a layout: the usual way with Qt Widgets.
class LabelsWidget : public QWidget {
  Q_OBJECT

 public:
  explicit LabelsWidget(QWidget* parent);

 signals:
  void activated();

 protected:
  static QFont font(int pixels);
  /// A palette with the text color `color`.
  static QPalette ink(const QColor& color);
  QLabel* label(const QString& text, const QFont& font, const QPalette& palette);

  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

class Shopper;

/// The score row.
class LabelsRow final : public LabelsWidget {
 public:
  LabelsRow(const Shopper& shopper, QWidget* parent);
};

class InfoSubject;

/// The info widget.
class LabelsInfo final : public LabelsWidget {
 public:
  LabelsInfo(const InfoSubject& info, QWidget* parent);
};

}  // namespace quorix::bench
