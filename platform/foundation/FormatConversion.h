#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quorix::foundation {

/// One "%..." of a format text.
struct FormatConversion {
  /// What the conversion shows. `none` is "%n", `percent` is "%%", `unknown` is invalid or cut off.
  enum class Kind : std::uint8_t { number, integer, text, character, none, percent, unknown };

  /// A width or precision: a number, or the index of an argument, or neither.
  struct Size {
    std::optional<int> value;             ///< from 0 to `largestSize`
    std::optional<std::size_t> argument;  ///< counted from 0
  };
  static constexpr int largestSize = 512;

  std::string_view source;  ///< the part of the format from "%" to its letter
  Kind kind = Kind::unknown;
  char letter = '\0';
  std::size_t argument = 0;  ///< index of the argument, counted from 0; unused without one

  Size width;
  Size precision;
  bool left = false;       ///< "-"
  bool plus = false;       ///< "+"
  bool blank = false;      ///< " "
  bool alternate = false;  ///< "#"
  bool zeros = false;      ///< "0"

  bool takesArgument() const { return kind != Kind::percent && kind != Kind::unknown; }
};

/// Reads the conversions of a format one after the other and counts the arguments that they take.
/// Views the format.
class FormatReader {
 public:
  explicit FormatReader(std::string_view format) : format_(format) {}

  /// The next conversion, "%%" and unknown ones included; absent at the end.
  std::optional<FormatConversion> next();

 private:
  bool take(char c);
  std::optional<int> readNumber();
  /// The index of the argument that "2$" names, counted from 0. Without a position, reads nothing
  /// and is absent.
  std::optional<std::size_t> readPosition();
  void readFlags(FormatConversion& conversion);
  FormatConversion::Size readSize();

  std::string_view format_;
  std::size_t at_ = 0;
  std::size_t next_ = 0;
};

/// The conversions of `format` in order, "%%" and unknown ones included. They view `format`.
///
///     conversions("%.0f%% of %@")  // "%.0f" shows argument 0, "%%", "%@" shows argument 1
std::vector<FormatConversion> conversions(std::string_view format);

}  // namespace quorix::foundation
