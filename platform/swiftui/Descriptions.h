#pragma once

#include <string>
#include <string_view>

#include "platform/layout/Geometry.h"
#include "platform/render/Wording.h"
#include "platform/swiftui/Font.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/Text.h"

namespace quorix::swiftui {

// How a printed tree words the values in it.

using render::inQuotes;
using render::number;
std::string_view nameOf(layout::HorizontalAlignment alignment);
std::string_view nameOf(layout::VerticalAlignment alignment);
std::string nameOf(layout::Alignment alignment);
std::string_view nameOf(FontWeight weight);
std::string_view nameOf(bool value);
std::string describe(const Font& font);
std::string describe(const Text& text);
std::string describe(const PresentationDetents& detents);
std::string describe(const layout::EdgeInsets& insets);
std::string describe(layout::Edges edges);

}  // namespace quorix::swiftui
