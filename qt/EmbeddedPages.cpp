#include "qt/EmbeddedPages.h"

#include <algorithm>

#include "platform/uikit/URLOpener.h"
#include "qt/WebComponentLoader.h"

namespace quorix::qt {
namespace {

const webkit::WebContent* pageOf(const render::Item& item) {
  const auto* embed = std::get_if<render::EmbedItem>(&item);
  return embed ? dynamic_cast<const webkit::WebContent*>(embed->content.get()) : nullptr;
}

}  // namespace

bool EmbeddedPages::canShow(const render::Scene& scene) const {
  const auto& items = scene.items;
  const bool any = std::any_of(items.begin(), items.end(), pageOf);
  return !any || WebComponentLoader::isThere(component_);
}

bool EmbeddedPages::follow(const render::Scene& scene) {
  std::vector<std::unique_ptr<EmbeddedPage>> now;
  bool all = true;
  for (const render::Item& item : scene.items) {
    const webkit::WebContent* content = pageOf(item);
    if (!content) continue;
    const auto known = std::find_if(pages_.begin(), pages_.end(), [&](const auto& page) {
      return page && page->content() == content;
    });
    auto page =
        known != pages_.end()
            ? std::move(*known)
            : EmbeddedPage::open(component_, std::get<render::EmbedItem>(item), place_, owner_);
    all = all && page;
    if (page) now.push_back(std::move(page));
  }
  pages_ = std::move(now);
  return all;
}

void EmbeddedPages::place(const render::Scene& scene,
                          const std::function<void(QObject&, const layout::Rect&)>& at) const {
  for (const auto& page : pages_) {
    QObject* view = page->view();
    if (!view) continue;
    for (const render::Item& item : scene.items) {
      if (pageOf(item) != page->content()) continue;
      at(*view, std::get<render::EmbedItem>(item).room());
      break;
    }
  }
}

void EmbeddedPages::sendOutside(const render::Scene& scene) {
  for (const render::Item& item : scene.items) {
    const webkit::WebContent* content = pageOf(item);
    if (content && content->url()) uikit::URLOpener::openOutside(*content->url());
  }
}

bool EmbeddedPages::takes(const QKeyEvent& event, bool tries) {
  return std::any_of(pages_.begin(), pages_.end(),
                     [&](const auto& page) { return page->takes(event, tries); });
}

std::vector<QObject*> EmbeddedPages::views() const {
  std::vector<QObject*> all;
  for (const auto& page : pages_) {
    if (page->view()) all.push_back(page->view());
  }
  return all;
}

}  // namespace quorix::qt
