#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/swiftui/View.h"
#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// Checks the translation table in the file at `path` and returns its text: a document in the
/// modules service's format.
std::variant<std::string, Failure> readTranslations(const std::string& path);

/// Possible mistakes of a translator in a translation table, by key: "labels.hint".
struct Oversights {
  std::vector<std::string> missing;  ///< their labels stay empty
  std::vector<std::string> unused;   ///< not used by any label

  /// The mistakes in a valid `document`.
  static Oversights in(const std::string& document);
  /// All mistakes in one line; empty without any.
  std::string line() const;
};

/// The mistakes in a "Localizable" table, each in one line.
std::vector<std::string> mistakesInTable(std::string_view bytes);

/// Puts `view` on screen until it has fetched its translations and shows them. `document` is the
/// answer of the modules service. Returns whether the view requested translations. Needs the
/// engine; main thread.
bool fetchTranslations(const swiftui::View& view, const std::string& document);

}  // namespace quorix::tool
