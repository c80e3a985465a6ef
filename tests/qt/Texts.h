#pragma once

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/text/AttributedText.h"

namespace quorix::testing {

/// A text of one run in the library's own face, which looks the same on every machine.
inline text::AttributedText plainText(
    const std::string& characters, double points = 14,
    layout::LayoutDirection direction = layout::LayoutDirection::leftToRight) {
  return {{{characters, {QuorixFont::regular().name(), points}, {}}}, direction};
}

/// Two runs. The second has another size and face and is underlined.
inline text::AttributedText linkedText(const std::string& lead, const std::string& link) {
  text::AttributedText text = plainText(lead);
  text.runs.push_back({link, {QuorixFont::medium().name(), 17.5}, {0, 0, 255}, true});
  return text;
}

}  // namespace quorix::testing
