#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/foundation/URLSession.h"
#include "platform/swiftui/View.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// The translation table in the file at `path`, found good: a document as the modules service sends
/// it.
std::variant<std::string, Failure> readTranslations(const std::string& path);

/// What a translator may have overlooked in a table, by its keys: "labels.hint".
struct Oversights {
  std::vector<std::string> missing;  ///< their labels stay empty
  std::vector<std::string> unused;   ///< no label asks for them

  /// The oversights in a good `document`.
  static Oversights in(const std::string& document);
  /// All of them in one line; nothing when there are none.
  std::optional<std::string> line() const;
};

/// What the modules service answers: `document`, or without one that it can't be reached. Nothing
/// the tool does ever goes to the network.
foundation::URLResponse serviceAnswer(const std::optional<std::string>& document);

/// Puts `view` on screen until it has fetched its translations and taken them over. `document` is
/// what the modules service answers with. Returns whether the view asked for translations. Needs
/// the engine; main thread.
bool fetchTranslations(const swiftui::View& view, const std::optional<std::string>& document);

}  // namespace quorix::tool
