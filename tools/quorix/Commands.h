#pragma once

#include <span>
#include <string>
#include <vector>

#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// Every command, in the order of help.
const std::vector<Command>& commands();

/// The command at the start of `words`, or a failure that suggests the most similar one.
std::variant<const Command*, Failure> findCommand(std::span<const std::string> words);

/// "quorix completion": prints a shell's completion script for the tool.
Command completionCommand();

/// The words that can stand in place of the last of `words`, which follow "quorix": a line for each
/// with a tab and a description. A line "/" stands for the names of files.
std::string completions(std::vector<std::string> words);

/// "quorix decode": prints the figures in a token, or the step at which it is refused.
Command decodeCommand();

/// "quorix gallery": shows the widgets on every screen, on one page or in one picture.
Command galleryCommand();

/// "quorix help": prints the same as "quorix --help" or "quorix COMMAND --help".
Command helpCommand();

/// The text of "quorix --help", and of "quorix COMMAND --help".
std::string helpText();
std::string helpText(const Command& command);

/// The help for `option`, in one paragraph.
std::string described(const Option& option);

/// "quorix info": shows the info widget in one of its forms as a picture, a tree or words.
Command infoCommand();

/// "quorix man": prints the manual page.
Command manCommand();

/// "quorix mint": prints a demo token.
Command mintCommand();

/// "quorix overlay-url": prints the address of the page that a widget's overlay loads.
Command overlayUrlCommand();

/// "quorix preview": shows a widget in a window and updates it when files change.
Command previewCommand();

/// "quorix score": shows the score widget of a token as a picture, a tree or words.
Command scoreCommand();

/// "quorix strings check": finds a translator's mistakes in the "Localizable" tables.
Command stringsCheckCommand();

/// "quorix texts": prints a built-in table of the score widget as a translations server sends it.
Command textsCommand();

}  // namespace quorix::tool
