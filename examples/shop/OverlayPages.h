#pragma once

#include <QByteArray>

#include "examples/common/StandInPages.h"

namespace quorix::examples {

class Shop;

/// Stands in for the services that the web overlay gets its pages from, as long as it lives, with
/// `pages/` compiled in. Make it after the application object and before the first page is shown.
/// Main thread.
///
/// The pages are light or dark as the shop is when they are asked for. By themselves they would
/// follow the reader's color scheme, which the engine learns once and for the whole process; this
/// shop changes its appearance while it runs.
class OverlayPages {
 public:
  /// `shop` lives longer.
  explicit OverlayPages(const Shop& shop);

 private:
  /// The page in the language that `query` asks for ("lang=de"), in English when it has none of
  /// that language. It greets whom the query names.
  QByteArray page(const QByteArray& query) const;

  const Shop& shop_;
  StandInPages pages_;
};

}  // namespace quorix::examples
