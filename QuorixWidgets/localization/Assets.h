#pragma once

#include "platform/swiftui/Color.h"
#include "platform/swiftui/Resource.h"
#include "platform/uikit/UIColor.h"

namespace quorix {

/// The library's named colors for the declarative toolkit, each made on first read. Any thread.
namespace Color {

/// The background of the info widgets.
const swiftui::Color& widgetBackground();
/// Text and borders.
const swiftui::Color& defaultFontColor();
/// The background of the web overlay.
const swiftui::Color& overlayBackgrounColor();

}  // namespace Color

/// The same colors for the imperative toolkit, cached at the first read. Never null: a missing
/// color stops the process. Any thread.
namespace UIColor {

const uikit::UIColor::Ref& widgetBackground();
const uikit::UIColor::Ref& defaultFontColor();
const uikit::UIColor::Ref& overlayBackgrounColor();

}  // namespace UIColor

/// The library's color assets by symbol, each made on first read. Any thread.
namespace ColorResource {

/// Secondary text: the sheet's disclaimer and logo.
const swiftui::ColorResource& grey1();
/// The base fee, struck through, when there is a discount.
const swiftui::ColorResource& grey2();

}  // namespace ColorResource

/// The library's image assets by symbol, each made on first read. Any thread.
namespace ImageResource {

/// The cross of the close buttons, with different pictures for light and dark.
const swiftui::ImageResource& close();

}  // namespace ImageResource

}  // namespace quorix
