#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <list>
#include <string>

#include "platform/foundation/Bundle.h"
#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// Pictures of the images in bundles' asset catalogues, at the size they are drawn at. Main thread.
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

  /// The picture, stretched to `pixels`. Null when the catalogue has no such image or the size is
  /// empty.
  QImage picture(const Request& request);

 private:
  struct Entry {
    Request request;
    QImage picture;
  };

  static QImage render(const Request& request);
  void trim();

  std::list<Entry> entries_;  ///< the latest used first
  std::size_t bytes_ = 0;
};

}  // namespace quorix::qt
