#pragma once

#include <QFont>
#include <QStringList>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

#include "platform/graphics/FontManager.h"

namespace quorix::qt {

/// Adds the font manager's faces to Qt: each when it is registered, and those registered before the
/// application object when that is made. Main thread.
class RegisteredFaces {
 public:
  static RegisteredFaces& shared();

  RegisteredFaces() = default;
  RegisteredFaces(const RegisteredFaces&) = delete;
  RegisteredFaces& operator=(const RegisteredFaces&) = delete;

  /// The registered face `name`, added to Qt on the first call; null when there is none, or Qt
  /// cannot read it.
  const QFont* find(const std::string& name);

  /// Adds every registered face to Qt.
  void loadAll();

  /// Whether the `fontDatabaseChanged` being emitted is about these faces alone.
  bool isAnnouncing() const { return announcing_; }

 private:
  std::optional<QFont> load(const graphics::GraphicsFont& face);
  bool isOfHost(const QString& family, const QString& style) const;
  void announce();

  std::unordered_map<std::string, QFont> faces_;
  std::set<int> ids_;        ///< of our faces among Qt's application fonts
  QStringList ownFamilies_;  ///< of which all faces are ours
  bool announced_ = true;
  bool announcing_ = false;
};

}  // namespace quorix::qt
