#pragma once

#include <QByteArray>

#include "examples/common/StandInPages.h"

namespace quorix::examples {

/// Stands in for the services that the web overlay gets its pages from, as long as it lives, with
/// `pages/` compiled in. Make it after the application object and before the first page is shown.
/// Main thread.
class OverlayPages {
 public:
  OverlayPages();

  /// The page in the language that `query` asks for ("lang=de"), in English when it has none of
  /// that language. It greets whom the query names.
  static QByteArray page(const QByteArray& query);

 private:
  StandInPages pages_;
};

}  // namespace quorix::examples
