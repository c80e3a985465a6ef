#pragma once

#include <stdexcept>

#include "platform/render/Scene.h"
#include "platform/webkit/WebContent.h"

namespace quorix::testing {

/// The page in `scene` as the surface would show it.
inline const render::EmbedItem& shownPage(const render::Scene& scene) {
  for (const render::Item& item : scene.items) {
    if (const auto* embed = std::get_if<render::EmbedItem>(&item)) return *embed;
  }
  throw std::out_of_range("no page");
}

inline const webkit::WebContent& shownContent(const render::Scene& scene) {
  return dynamic_cast<const webkit::WebContent&>(*shownPage(scene).content);
}

}  // namespace quorix::testing
