#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "qt/EmbeddedPage.h"

namespace quorix::qt {

/// The live pages of one scene: as many as it makes room for, each where it stands. Main thread.
class QUORIX_EXPORT EmbeddedPages {
 public:
  /// `component` names the toolkit's web component; views are made children of `place`.
  EmbeddedPages(QString component, QObject& place, EmbeddedPage::Owner& owner)
      : component_(std::move(component)), place_(place), owner_(owner) {}

  /// Whether each page of `scene` can be expected to show. Cheap: loads nothing.
  bool canShow(const render::Scene& scene) const;
  /// Opens what is new in `scene` and closes what is no longer there. False when a page did not
  /// come up: the scene is not as it should be.
  bool follow(const render::Scene& scene);
  /// Tells each view where it stands in `scene`, from the bottom up.
  void place(const render::Scene& scene,
             const std::function<void(QObject&, const layout::Rect&)>& at) const;
  /// Opens the addresses of the pages in `scene` outside the app.
  static void sendOutside(const render::Scene& scene);

  bool takes(const QKeyEvent& event, bool tries = false);

  /// From the bottom up, which is also the order of the keyboard focus.
  std::vector<QObject*> views() const;

 private:
  QString component_;
  QObject& place_;
  EmbeddedPage::Owner& owner_;
  std::vector<std::unique_ptr<EmbeddedPage>> pages_;
};

}  // namespace quorix::qt
