#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Look.h"

namespace quorix::swiftui {

/// A text element: shown as it is, or a key that is looked up in the "Localizable" string table of
/// the host's main bundle (`Bundle::setMain`), in the user's language, and formatted with its
/// arguments. A key with no entry is its own format.
///
///     Text row = Text::localized("%@ %@", {"Your return fee", "€4.00"});
///
/// A text carries looks of its own, which win over those that reach down to it, and of several for
/// the same thing the first one written wins. Texts add up to one, whose parts keep their looks:
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

  /// One paragraph that reads `first` and then `second`.
  friend Text operator+(Text first, Text second);

  /// What a user who reads `language` reads.
  std::string resolved(std::string_view language = {}) const;

  /// What it was added up from; empty for a text of one part, which alone has what follows.
  const std::vector<Text>& parts() const { return parts_; }
  const std::string& key() const { return text_; }
  const std::vector<std::string>& arguments() const { return arguments_; }
  bool isLocalized() const { return localized_; }

  /// Its own looks as they were written.
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
