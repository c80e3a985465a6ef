#pragma once

#include <QImage>
#include <QSize>
#include <string>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Cache.h"
#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// Draws the images of asset catalogs at a size in pixels, and caches the pictures. Main thread.
class QtImages {
 public:
  /// What one picture depends on.
  struct Request {
    foundation::Bundle::Ref bundle;
    std::string name;
    QSize pixels;
    graphics::Appearance appearance = graphics::Appearance::light;
    graphics::RGBA tint;  ///< of template images; others keep their colors
    bool operator==(const Request&) const = default;
  };

  static QtImages& shared();

  /// The picture, stretched to `pixels`. Null when the catalog has no such image or the size is
  /// empty.
  QImage picture(const Request& request);

 private:
  static constexpr qsizetype largestKept = 512 * 1024;  // bytes: 360 pixels square

  foundation::Cache<Request, QImage> pictures_{32};
};

}  // namespace quorix::qt
