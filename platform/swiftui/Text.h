#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Look.h"

namespace quorix::swiftui {

/// A text element. Shows a text unchanged, or looks up a key in the "Localizable" string table of
/// the host's main bundle (`Bundle::setMain`), in the user's language, and formats the result with
/// its arguments. A key with no entry is its own format.
///
///     Text row = Text::localized("%@ %@", {"Your return fee", "€4.00"});
///
/// Looks of the text itself win over those of enclosing modifiers. If it has several of one kind,
/// the first one written wins. Texts can be joined with "+"; each part keeps its looks:
///
///     Text terms = Text::verbatim("Return within ") +
///                  Text::verbatim("30 days").fontWeight(FontWeight::semibold);
class QUORIX_EXPORT Text {
 public:
  static Text verbatim(std::string_view text) { return Text(std::string(text), {}, false); }
  static Text localized(std::string_view key, std::vector<std::string> arguments) {
    return Text(std::string(key), std::move(arguments), true);
  }

  Text font(Font font) const;
  Text fontWeight(FontWeight weight) const;
  Text bold() const;
  Text underline(bool active = true) const;
  Text foregroundColor(Color color) const;

  /// Joins two texts to one paragraph.
  QUORIX_EXPORT friend Text operator+(Text first, Text second);

  /// The text that is shown to a user who reads `language`.
  std::string resolved(std::string_view language = {}) const;

  /// The parts of a joined text. Empty for a single text; only such a text has a key and arguments.
  const std::vector<Text>& parts() const { return parts_; }
  const std::string& key() const { return text_; }
  const std::vector<std::string>& arguments() const { return arguments_; }
  bool isLocalized() const { return localized_; }

  /// The text's own looks in the order in which they were written.
  const std::vector<TextLook>& looks() const { return looks_; }

 private:
  Text(std::string text, std::vector<std::string> arguments, bool localized)
      : text_(std::move(text)), arguments_(std::move(arguments)), localized_(localized) {}
  Text with(TextLook look) const;

  std::string text_;
  std::vector<std::string> arguments_;
  bool localized_ = false;
  std::vector<Text> parts_;
  std::vector<TextLook> looks_;
};

}  // namespace quorix::swiftui
