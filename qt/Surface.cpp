#include "qt/Surface.h"

#include <QAccessible>
#include <QHash>

#include "qt/ApplicationLifetime.h"
#include "qt/Desktop.h"

namespace quorix::qt {
namespace {

QHash<const QObject*, Surface*>& surfaces() {
  static auto& all = *new QHash<const QObject*, Surface*>;  // views may outlive statics
  return all;
}

/// Makes the surfaces known to assistive technology.
class Bridge : private QAccessible::ActivationObserver {
 public:
  Bridge() {
    QAccessible::installFactory(Surface::makeAccessible);
    QAccessible::installActivationObserver(this);
  }
  ~Bridge() override {
    QAccessible::removeActivationObserver(this);
    QAccessible::removeFactory(Surface::makeAccessible);
  }
  bool isActive() const { return active_ || QAccessible::isActive(); }

 private:
  void accessibilityActiveChanged(bool active) override {
    active_ = active;
    if (active) Surface::forEach([](Surface& surface) { surface.accessibilityBegan(); });
  }

  bool active_ = false;  ///< not every platform keeps what it tells observers
};

}  // namespace

Surface::Surface(QObject& object, hosting::Responder& responder)
    : object_(object), responder_(responder) {
  surfaces().insert(&object, this);
  Desktop::follow();
  areRead();
}

Surface::~Surface() { surfaces().remove(&object_); }

Surface* Surface::of(const QObject* object) { return surfaces().value(object); }

void Surface::forEach(const std::function<void(Surface&)>& call) {
  for (const QObject* object : surfaces().keys()) {
    if (Surface* surface = of(object)) call(*surface);
  }
}

void Surface::tellWindowState(const QWindow* window) {
  if (!window) return;
  forEach([window](Surface& surface) {
    if (surface.accessibleWindow() == window) surface.windowStateChanged();
  });
}

bool Surface::areRead() { return applicationLifetime<Bridge>().isActive(); }

}  // namespace quorix::qt
