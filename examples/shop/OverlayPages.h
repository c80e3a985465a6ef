#pragma once

#include <QByteArray>

#include "examples/common/StandInPages.h"

namespace quorix::examples {

class Shop;

/// Replaces the services with the web overlay's pages while it exists; `pages/` is compiled in.
/// Make it after the application object and before the first page is shown. Main thread.
///
/// The pages are light or dark like the shop at the time of the request. They cannot follow the
/// color scheme themselves: the engine reads it once for the whole process, and this shop changes
/// its appearance while it runs.
class OverlayPages {
 public:
  /// `shop` must outlive this.
  explicit OverlayPages(const Shop& shop);

 private:
  /// The page in the language of `query` ("lang=de"), or in English. It greets the user whom the
  /// query names.
  QByteArray page(const QByteArray& query) const;

  const Shop& shop_;
  StandInPages pages_;
};

}  // namespace quorix::examples
