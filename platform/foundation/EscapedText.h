#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// A text in the making: plain stretches and the escapes of a property list between them.
class EscapedText {
 public:
  void append(std::string_view plain);

  /// Appends what the escape at the start of `rest` stands for; `rest` begins behind the backslash
  /// and is not empty. Returns how many bytes the escape takes. `\n \t \r \a \b \f \v` are control
  /// characters, `\Uxxxx` a UTF-16 unit in up to four hexadecimal digits (two make a pair; one of a
  /// pair alone becomes U+FFFD), `\ooo` a NeXTSTEP character in up to three octal digits; of any
  /// other character only the backslash goes.
  std::size_t appendEscape(std::string_view rest);

  std::string take() &&;

 private:
  void appendUnit(char16_t unit);
  void flush();

  std::string text_;
  char16_t high_ = 0;  // the first of a pair, waiting for its second
};

}  // namespace quorix::foundation
