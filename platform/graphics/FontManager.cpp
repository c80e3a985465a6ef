#include "platform/graphics/FontManager.h"

#include <utility>

#include "platform/foundation/Runtime.h"

namespace quorix::graphics {

FontManager& FontManager::shared() { return foundation::Runtime::the<FontManager>(); }

const GraphicsFont* FontManager::find(std::string_view name) const {
  for (const GraphicsFont& face : faces_) {
    if (face.postScriptName() == name) return &face;
  }
  return nullptr;
}

/// Calls the look-up without the lock: the engine may call `faces` for those it has not loaded yet.
bool FontManager::systemKnows(std::string_view name) const {
  std::unique_lock lock(mutex_);
  const auto lookup = systemLookup_;
  lock.unlock();
  return lookup && lookup(name);
}

bool FontManager::registerGraphicsFont(const GraphicsFont& font) {
  std::unique_lock lock(mutex_);
  if (find(font.postScriptName()) != nullptr) return false;
  faces_.push_back(font);
  count_.store(faces_.size(), std::memory_order_release);
  const auto observer = observer_;
  lock.unlock();  // the toolkit may ask for the face's data
  if (observer) observer(font);
  return true;
}

void FontManager::setRegistrationObserver(std::function<void(const GraphicsFont&)> observer) {
  const std::scoped_lock lock(mutex_);
  observer_ = std::move(observer);
}

void FontManager::setSystemLookup(std::function<bool(std::string_view)> lookup) {
  const std::scoped_lock lock(mutex_);
  systemLookup_ = std::move(lookup);
}

bool FontManager::knows(std::string_view name) const {
  return data(name).has_value() || systemKnows(name);
}

std::optional<foundation::Data> FontManager::data(std::string_view name) const {
  const std::scoped_lock lock(mutex_);
  const GraphicsFont* face = find(name);
  if (face == nullptr) return std::nullopt;
  return face->data();
}

std::vector<GraphicsFont> FontManager::faces(std::size_t first) const {
  const std::scoped_lock lock(mutex_);
  if (first >= faces_.size()) return {};
  return {faces_.begin() + static_cast<std::ptrdiff_t>(first), faces_.end()};
}

}  // namespace quorix::graphics
