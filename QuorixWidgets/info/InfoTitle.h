#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"

namespace quorix {

/// A part of the info widget's general title.
struct InfoTitlePart {
  std::string text;
  bool isNumber = false;  ///< the figure, which is set in semi-bold
  bool operator==(const InfoTitlePart&) const = default;
};

/// Splits `title` at `number`: the text before it, the number, and the text up to the next
/// occurrence. If only one piece of text remains, the number comes first. Empty if none remains.
/// Any thread.
///
///     splitInfoTitle("A 20% B", "20%")  // "A ", "20%" (the number), " B"
std::vector<InfoTitlePart> splitInfoTitle(std::string_view title, std::string_view number);

/// Whether the string table of `locale` has a general title. The library's own tables have one;
/// check tables that are being edited, as a preview shows. Any thread.
QUORIX_EXPORT bool hasInfoTitle(std::string_view locale);

/// The general title in the string table of `locale`. A table whose title is empty, or only the
/// number, stops the process: the widget cannot be shown. Any thread.
std::vector<InfoTitlePart> infoTitle(std::string_view locale);

}  // namespace quorix
