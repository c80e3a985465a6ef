#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/swiftui/View.h"
#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// A translation table: a document in the modules service's format, with the possible mistakes of
/// its translator by key: "labels.hint".
struct Translations {
  std::string document;
  std::vector<std::string> missing;  ///< their labels stay empty
  std::vector<std::string> unused;   ///< not used by any label

  /// The table in the file at `path`, or the reason why it cannot be used.
  static std::variant<Translations, Failure> read(const std::string& path);

  /// All mistakes in one line; empty without any.
  std::string mistakes() const;
};

/// The mistakes in a "Localizable" table, each in one line.
std::vector<std::string> mistakesInTable(std::string_view bytes);

/// Puts `view` on screen until it has fetched its translations and shows them. `document` is the
/// answer of the modules service. Returns whether the view requested translations. Needs the
/// engine; main thread.
bool fetchTranslations(const swiftui::View& view, const std::string& document);

}  // namespace quorix::tool
