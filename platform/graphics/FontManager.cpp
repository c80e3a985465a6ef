#include "platform/graphics/FontManager.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/foundation/Runtime.h"

namespace quorix::graphics {
namespace {

std::uint32_t number(std::string_view bytes, std::size_t at, std::size_t length) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < length; ++i) {
    value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  }
  return value;
}

/// Whether every table of the file's directory lies inside the file. The font library does not
/// check this and would draw from a truncated file.
bool isComplete(std::string_view font) {
  constexpr std::size_t header = 12, record = 16;
  if (font.size() < header) return false;
  const std::uint32_t kind = number(font, 0, 4);
  if (kind != 0x00010000 && kind != 0x4F54544F) return false;  // TrueType; "OTTO", OpenType
  const std::size_t tables = number(font, 4, 2);
  if (font.size() < header + tables * record) return false;
  for (std::size_t i = 0; i < tables; ++i) {
    const std::size_t offset = number(font, header + i * record + 8, 4);
    const std::size_t length = number(font, header + i * record + 12, 4);
    if (offset > font.size() || length > font.size() - offset) return false;
  }
  return true;
}

struct Closer {
  void operator()(FT_Library library) const { FT_Done_FreeType(library); }
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};

}  // namespace

std::optional<GraphicsFont> GraphicsFont::fromData(foundation::Data data) {
  const std::string_view bytes = data.text();
  if (!isComplete(bytes) || !std::in_range<FT_Long>(bytes.size())) return std::nullopt;
  // A library instance may be used by one thread only. Fonts are opened too rarely to cache one for
  // each thread.
  FT_Library library = nullptr;
  if (FT_Init_FreeType(&library) != 0) return std::nullopt;
  const std::unique_ptr<FT_LibraryRec_, Closer> libraryCloser(library);
  FT_Face face = nullptr;
  if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(bytes.data()),
                         static_cast<FT_Long>(bytes.size()), 0, &face) != 0) {
    return std::nullopt;
  }
  const std::unique_ptr<FT_FaceRec_, Closer> faceCloser(face);
  const char* name = FT_Get_Postscript_Name(face);
  if (name == nullptr || *name == 0 || !FT_IS_SCALABLE(face) || face->charmap == nullptr) {
    return std::nullopt;
  }
  GraphicsFont font;
  font.name_ = name;
  if (face->family_name) font.family_ = face->family_name;
  if (face->style_name) font.style_ = face->style_name;
  font.data_ = std::move(data);
  return font;
}

FontManager& FontManager::shared() { return foundation::Runtime::the<FontManager>(); }

const GraphicsFont* FontManager::find(std::string_view name) const {
  for (const GraphicsFont& face : faces_) {
    if (face.postScriptName() == name) return &face;
  }
  return nullptr;
}

bool FontManager::registerGraphicsFont(const GraphicsFont& font) {
  std::unique_lock lock(mutex_);
  if (find(font.postScriptName()) != nullptr) return false;
  faces_.push_back(font);
  count_.store(faces_.size(), std::memory_order_release);
  const auto observer = observer_;
  lock.unlock();  // the observer may ask for the face's data
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
  std::unique_lock lock(mutex_);
  if (find(name) != nullptr) return true;
  const auto lookup = systemLookup_;
  lock.unlock();  // the look-up may call `faces`
  return lookup && lookup(name);
}

std::optional<GraphicsFont> FontManager::face(std::string_view name) const {
  const std::scoped_lock lock(mutex_);
  const GraphicsFont* face = find(name);
  if (face == nullptr) return std::nullopt;
  return *face;
}

std::optional<foundation::Data> FontManager::data(std::string_view name) const {
  const auto found = face(name);
  if (!found) return std::nullopt;
  return found->data();
}

std::vector<GraphicsFont> FontManager::faces(std::size_t first) const {
  const std::scoped_lock lock(mutex_);
  if (first >= faces_.size()) return {};
  return {faces_.begin() + static_cast<std::ptrdiff_t>(first), faces_.end()};
}

}  // namespace quorix::graphics
