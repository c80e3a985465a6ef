#pragma once

#include <QImage>
#include <map>
#include <string>
#include <string_view>

#include "tools/quorix/gallery/Matrix.h"

namespace quorix::gallery {

/// One HTML page that contains everything: pictures, styles and a script. Cells with the same
/// picture share one copy. The page works without the script, which only adds filters.
class GalleryPage {
 public:
  /// Adds a cell's picture, its view tree and its spoken texts. Add cells with the same language
  /// and widget one after the other.
  void add(const Cell& cell, const QImage& picture, const std::string& tree,
           const std::string& spoken);

  std::string html() const;

 private:
  /// Begins the section for one widget in one language. Its cells have the same view tree.
  void beginSection(const Cell& cell, const std::string& tree);
  /// The number of the style rule with `picture`.
  std::size_t ruleFor(const QImage& picture);

  std::map<std::string, std::size_t> rules_;
  std::string style_, contents_, body_;
  // Of the latest section.
  const Choice<Language>* language_ = nullptr;
  const Choice<Widget>* widget_ = nullptr;
  std::string tree_;
  std::size_t cells_ = 0;
};

}  // namespace quorix::gallery
