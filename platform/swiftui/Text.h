#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quorix::swiftui {

/// A text element: shown as it is, or a key that is looked up in the host application's main string
/// table and formatted with its arguments. A key with no entry is its own format.
///
///     Text::localized("%@ %@", {title, fee})  // reads "Your return fee €4.00"
class Text {
 public:
  static Text verbatim(std::string_view text) { return Text(std::string(text), {}, false); }
  static Text localized(std::string_view key, std::vector<std::string> arguments) {
    return Text(std::string(key), std::move(arguments), true);
  }

  /// What the user reads.
  std::string resolved() const;

  const std::string& key() const { return text_; }
  const std::vector<std::string>& arguments() const { return arguments_; }
  bool isLocalized() const { return localized_; }

 private:
  Text(std::string text, std::vector<std::string> arguments, bool localized)
      : text_(std::move(text)), arguments_(std::move(arguments)), localized_(localized) {}

  std::string text_;
  std::vector<std::string> arguments_;
  bool localized_ = false;
};

}  // namespace quorix::swiftui
