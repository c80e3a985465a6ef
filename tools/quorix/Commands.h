#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// Every command, in the order of help.
std::span<const Command* const> commands();

/// Their names.
std::vector<std::string_view> commandNames();

/// The command that `words` begin with; or the failure that names the nearest one.
std::variant<const Command*, Failure> findCommand(std::span<const std::string> words);

/// "quorix completion": prints what makes a shell complete the tool's command lines.
extern const Command completionCommand;

/// "quorix decode": prints the figures in a token, or the step at which it is refused.
extern const Command decodeCommand;

/// "quorix gallery": shows the widgets on every screen, on one page or in one picture.
extern const Command galleryCommand;

/// "quorix info": shows the info widget in either form as a picture, a tree or words.
extern const Command infoCommand;

/// "quorix man": prints the manual page.
extern const Command manCommand;

/// "quorix mint": prints a demo token.
extern const Command mintCommand;

/// "quorix overlay-url": prints the address of the page that a widget's overlay would load.
extern const Command overlayUrlCommand;

/// "quorix score": shows the score widget of a token as a picture, a tree or words.
extern const Command scoreCommand;

/// "quorix strings check": finds what a translator overlooked in the "Localizable" tables.
extern const Command stringsCheckCommand;

/// "quorix texts": prints a built-in table of the score widget as a translations server sends it.
extern const Command textsCommand;

/// "quorix preview": a widget in a window that follows files.
extern const Command previewCommand;

}  // namespace quorix::tool
