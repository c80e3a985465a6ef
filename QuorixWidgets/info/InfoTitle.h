#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// A stretch of the info widget's general title.
struct InfoTitlePart {
  std::string text;
  bool isNumber = false;  ///< the figure, which is set in semi-bold
  bool operator==(const InfoTitlePart&) const = default;
};

/// `title` around `number`: what stands before it, the number, and what follows up to the next
/// occurrence; the number first where only one piece of the title is left. Empty when none is. Any
/// thread.
///
///     splitInfoTitle("A 20% B", "20%")  // "A ", "20%" (the number), " B"
std::vector<InfoTitlePart> splitInfoTitle(std::string_view title, std::string_view number);

/// The general title in the string table of `locale`. A table whose title is empty or nothing but
/// the number stops the process: the widget cannot be shown. Any thread.
std::vector<InfoTitlePart> infoTitle(std::string_view locale);

}  // namespace quorix
