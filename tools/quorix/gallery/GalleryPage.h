#pragma once

#include <QImage>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/quorix/gallery/Matrix.h"

namespace quorix::gallery {

/// One HTML page with everything in it: pictures, style and script. A picture that several cells
/// share is in it once. It works without the script, which only adds filters.
class GalleryPage {
 public:
  /// Adds a cell's picture, its view tree and what is spoken. Cells of one language and widget are
  /// to be added one after the other.
  void add(const Cell& cell, const QImage& picture, const std::string& tree,
           const std::string& spoken);

  std::string html() const;

 private:
  /// Cells of one widget in one language, which have one view tree.
  struct Section {
    const Choice<Language>* language;
    const Choice<Widget>* widget;
    std::string tree;
    std::string figures;
    std::string id() const;
  };

  /// The number of the style rule that shows `picture`.
  std::size_t ruleFor(const QImage& picture);
  std::string contents() const;

  std::map<std::string, std::size_t> rules_;
  std::string style_;
  std::vector<Section> sections_;
  std::size_t cells_ = 0;
};

}  // namespace quorix::gallery
