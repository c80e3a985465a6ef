#include "Faces.h"

#include <stdexcept>

#include "platform/graphics/FontManager.h"

namespace quorix::examples {

const Face& Faces::find(std::string_view name) {
  for (const auto& font : graphics::FontManager::shared().faces(loaded_.size())) {
    loaded_.push_back(std::make_unique<Face>(font));
  }
  for (const auto& face : loaded_) {
    if (face->name() == name) return *face;
  }
  if (loaded_.empty()) throw std::runtime_error("no face is registered");
  return *loaded_.front();
}

}  // namespace quorix::examples
