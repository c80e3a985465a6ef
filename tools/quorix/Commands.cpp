#include "tools/quorix/Commands.h"

#include <algorithm>

namespace quorix::tool {

const std::vector<Command>& commands() {
  static const std::vector<Command> all{
      mintCommand(),         decodeCommand(),     scoreCommand(),      infoCommand(),
      galleryCommand(),      previewCommand(),    overlayUrlCommand(), textsCommand(),
      stringsCheckCommand(), completionCommand(), manCommand(),        helpCommand(),
  };
  return all;
}

std::variant<const Command*, Failure> findCommand(std::span<const std::string> words) {
  const std::string& first = words[0];
  const std::string both = words.size() > 1 ? first + ' ' + words[1] : first;
  std::vector<std::string_view> names;
  for (const Command& command : commands()) {
    if (command.name == first || command.name == both) return &command;
    names.push_back(command.name);
  }
  // For "strings chekc", compares both words with the commands of two words.
  const bool begun = std::ranges::any_of(
      names, [&](std::string_view name) { return name.starts_with(first + ' '); });
  const std::string& unknown = begun ? both : first;
  return Failure::usage("unknown command \"" + unknown + '"' + didYouMean(unknown, names));
}

}  // namespace quorix::tool
