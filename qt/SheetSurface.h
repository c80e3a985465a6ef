#pragma once

#include <QAbstractAnimation>
#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/SheetSession.h"

class QEvent;
class QObject;

namespace quorix::qt {

/// Shows a picture over a sheet and takes no input. Main thread.
class SheetPicture {
 public:
  virtual ~SheetPicture() = default;
  virtual void setPicture(const QImage& picture) = 0;
  virtual void moveTo(QPointF corner) = 0;
};

/// A sheet over a window of either toolkit: events, pictures and pages. Its pictures are, from the
/// bottom up, the panel, what lies above each page, and the focus ring. Motion moves them without
/// painting. Main thread.
class QUORIX_EXPORT SheetSurface : public hosting::SheetSession {
 public:
  using SheetSession::handle;
  /// Handles an event of the pointer or the keyboard. False for other events.
  bool handle(QEvent& event);
  Qt::CursorShape cursorAt(QPointF point);
  /// The views of the pages on show, from the bottom up.
  std::vector<QObject*> pageViews() const;

 protected:
  /// `self` is the derived object, `webComponent` the name of its toolkit's web component.
  SheetSurface(QObject& self, hosting::WindowSession& window, QString webComponent);

  /// Brings pictures and pages up to date before a frame. False if the sheet has closed.
  bool followFrame();
  /// What the sheet itself paints, below its pictures.
  struct Ground {
    QColor shade = Qt::transparent;  ///< over the whole window
    QRectF below;                    ///< from where the panel's picture ends to the window's bottom
    QColor color = Qt::transparent;  ///< of that
  };
  const Ground& ground() const { return ground_; }
  /// The pictures were lost: paints them again.
  void paintAgain();
  /// Leaves out the uppermost `points` of the panel, which a page covers: the panel's color would
  /// show at the page's edge.
  void hideTop(double points);

  SheetPicture& picture(int index) const { return *layers_[std::size_t(index)].shown; }
  /// The view of a page on show.
  static QObject& viewOf(const hosting::PageEngine& page);
  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override;

 private:
  /// Makes a picture above those before it; `index` counts from the panel, the ring included.
  virtual std::unique_ptr<SheetPicture> newPicture(int index) = 0;

  void startClock() override { clock_->start(); }
  void stopClock() override { clock_->stop(); }
  void vanish() override;
  void focusMoved(bool later) override;
  void coverChanged() override;
  bool canShowPages() const override;
  bool opensPagesAtOnce() const override;
  void paintLayers();
  void paintRing();

  struct Layer {
    std::unique_ptr<SheetPicture> shown;
    QPointF origin;  ///< in the panel
  };
  /// What the layers show.
  struct Painted {
    unsigned revision;
    double scale;
    bool operator==(const Painted&) const = default;
  };

  QObject& self_;
  QString webComponent_;
  std::unique_ptr<QAbstractAnimation> clock_;
  std::vector<Layer> layers_;
  Layer ring_;
  std::optional<layout::Rect> ringFrame_;  ///< that the ring is painted for, in the panel
  std::optional<Painted> painted_;
  double panelHeight_ = 0;  ///< of the panel's picture
  double hiddenTop_ = 0;
  Ground ground_;
};

}  // namespace quorix::qt
