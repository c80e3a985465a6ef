#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/foundation/Data.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/GraphicsFont.h"

namespace quorix::graphics {

/// The faces that the process has added to those of the system. A face stays for good. Any thread.
///
///     auto font = GraphicsFont::fromData(data);
///     bool added = font && FontManager::shared().registerGraphicsFont(*font);
class QUORIX_EXPORT FontManager {
 public:
  /// The one that text is drawn with. Others are for tests.
  static FontManager& shared();

  FontManager() = default;
  FontManager(const FontManager&) = delete;
  FontManager& operator=(const FontManager&) = delete;

  /// Adds `font` under its PostScript name. False, and no change, when that name is taken here or
  /// in the system.
  bool registerGraphicsFont(const GraphicsFont& font);

  /// Installs what tells whether the system has a face of a given name. It runs on the thread that
  /// asks. Without it the system has none.
  void setSystemLookup(std::function<bool(std::string_view)> lookup);

  /// Whether text in the face `name` would be drawn in that face.
  bool knows(std::string_view name) const;

  /// The font file registered under `name`; nothing for the system's own faces.
  std::optional<foundation::Data> data(std::string_view name) const;

  /// How many faces are registered. An engine that has loaded fewer loads `faces(loaded)`.
  std::size_t generation() const { return count_.load(std::memory_order_acquire); }
  /// The registered faces in order, without the `first` earliest.
  std::vector<GraphicsFont> faces(std::size_t first = 0) const;

 private:
  const GraphicsFont* find(std::string_view name) const;
  bool systemKnows(std::string_view name) const;

  mutable std::mutex mutex_;
  std::vector<GraphicsFont> faces_;
  std::atomic<std::size_t> count_ = 0;
  std::function<bool(std::string_view)> systemLookup_;
};

}  // namespace quorix::graphics
