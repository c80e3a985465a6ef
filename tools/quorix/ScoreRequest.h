#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>

#include "qt/PictureOptions.h"
#include "tools/quorix/Arguments.h"

namespace quorix::tool {

/// What "quorix score" was asked for.
struct ScoreRequest {
  std::string clientId;
  std::string locale;
  std::string token;
  std::optional<std::string> regularFont;   ///< a name or a font file
  std::optional<std::string> semiBoldFont;  ///< likewise
  std::optional<std::string> translations;  ///< a file
  qt::PictureOptions picture;

  std::optional<std::string> out;  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  static const std::span<const Option> options;

  /// The request that `arguments` make, with "-" for the token read from the standard input; or
  /// what is wrong with them.
  static std::variant<ScoreRequest, Failure> read(const Arguments& arguments);
};

}  // namespace quorix::tool
