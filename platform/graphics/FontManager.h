#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Data.h"
#include "platform/foundation/Export.h"

namespace quorix::graphics {

/// A font file that is complete and readable. Immutable; any thread.
class QUORIX_EXPORT GraphicsFont {
 public:
  /// The font in `data`: one face in TrueType or OpenType form with outlines and a PostScript name.
  /// Absent for any other data.
  static std::optional<GraphicsFont> fromData(foundation::Data data);

  const std::string& postScriptName() const { return name_; }
  /// The family and style as font menus show them: "Saans" and "Medium". May be empty.
  const std::string& familyName() const { return family_; }
  const std::string& styleName() const { return style_; }
  const foundation::Data& data() const { return data_; }

 private:
  GraphicsFont() = default;

  std::string name_;
  std::string family_;
  std::string style_;
  foundation::Data data_;
};

/// The faces that the process has added to the system's, until the process ends. Any thread.
///
///     auto font = GraphicsFont::fromData(foundation::Data(fontFile));
///     bool added = font && FontManager::shared().registerGraphicsFont(*font);
class QUORIX_EXPORT FontManager {
 public:
  /// The manager that all text uses. Other instances are for tests.
  static FontManager& shared();

  FontManager() = default;
  FontManager(const FontManager&) = delete;
  FontManager& operator=(const FontManager&) = delete;

  /// Adds `font` under its PostScript name. It replaces a system face with that name. Returns false
  /// without a change if a face is already registered under the name.
  bool registerGraphicsFont(const GraphicsFont& font);

  /// Installs the function that looks up the system's faces by name. It runs on the thread that
  /// calls `knows`. Without it, no system face is known.
  void setSystemLookup(std::function<bool(std::string_view)> lookup);

  /// Installs a function that is called with each newly registered face, on the thread of
  /// `registerGraphicsFont` and before that returns; null removes it. The toolkit uses it to make
  /// the face available to the host's own texts. It must not run code of the host: a face may be
  /// registered during the initialization of a constant.
  void setRegistrationObserver(std::function<void(const GraphicsFont&)> observer);

  /// Whether text in the face `name` would be drawn in that face.
  bool knows(std::string_view name) const;

  /// The face registered under `name`; absent for the system's own faces.
  std::optional<GraphicsFont> face(std::string_view name) const;
  /// The font file of a registered face.
  std::optional<foundation::Data> data(std::string_view name) const;

  /// The number of registered faces. An engine that has loaded fewer loads `faces(loaded)`.
  std::size_t generation() const { return count_.load(std::memory_order_acquire); }
  /// The registered faces in order, starting at index `first`.
  std::vector<GraphicsFont> faces(std::size_t first = 0) const;

 private:
  const GraphicsFont* find(std::string_view name) const;

  mutable std::mutex mutex_;
  std::vector<GraphicsFont> faces_;
  std::atomic<std::size_t> count_ = 0;
  std::function<bool(std::string_view)> systemLookup_;
  std::function<void(const GraphicsFont&)> observer_;
};

}  // namespace quorix::graphics
