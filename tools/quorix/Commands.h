#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// Every command, in the order of help.
std::span<const Command* const> commands();

/// The names of all commands.
std::vector<std::string_view> commandNames();

/// The command at the start of `words`, or a failure that suggests the most similar one.
std::variant<const Command*, Failure> findCommand(std::span<const std::string> words);

/// "quorix completion": prints a shell's completion script for the tool.
extern const Command completionCommand;

/// "quorix decode": prints the figures in a token, or the step at which it is refused.
extern const Command decodeCommand;

/// "quorix gallery": shows the widgets on every screen, on one page or in one picture.
extern const Command galleryCommand;

/// "quorix info": shows the info widget in one of its forms as a picture, a tree or words.
extern const Command infoCommand;

/// "quorix man": prints the manual page.
extern const Command manCommand;

/// "quorix mint": prints a demo token.
extern const Command mintCommand;

/// "quorix overlay-url": prints the address of the page that a widget's overlay loads.
extern const Command overlayUrlCommand;

/// "quorix score": shows the score widget of a token as a picture, a tree or words.
extern const Command scoreCommand;

/// "quorix strings check": finds a translator's mistakes in the "Localizable" tables.
extern const Command stringsCheckCommand;

/// "quorix texts": prints a built-in table of the score widget as a translations server sends it.
extern const Command textsCommand;

/// "quorix preview": shows a widget in a window and updates it when files change.
extern const Command previewCommand;

}  // namespace quorix::tool
