#include "tools/quorix/Commands.h"

#include <algorithm>

#include "tools/quorix/Help.h"
#include "tools/quorix/Names.h"

namespace quorix::tool {

std::span<const Command* const> commands() {
  static constexpr const Command* all[] = {
      &mintCommand,         &decodeCommand,     &scoreCommand,      &infoCommand,
      &galleryCommand,      &previewCommand,    &overlayUrlCommand, &textsCommand,
      &stringsCheckCommand, &completionCommand, &manCommand,        &helpCommand,
  };
  return all;
}

std::vector<std::string_view> commandNames() {
  std::vector<std::string_view> names;
  for (const Command* command : commands()) names.push_back(command->name);
  return names;
}

std::variant<const Command*, Failure> findCommand(std::span<const std::string> words) {
  const std::string& first = words[0];
  const std::string both = words.size() > 1 ? first + ' ' + words[1] : first;
  for (const Command* command : commands()) {
    if (command->name == first || command->name == both) return command;
  }
  const auto names = commandNames();
  // For "strings chekc", compares both words with the commands of two words.
  const bool begun = std::ranges::any_of(
      names, [&](std::string_view name) { return name.starts_with(first + ' '); });
  return Failure::usage("unknown command \"" + (begun ? both : first) + '"' +
                        didYouMean(begun ? both : first, names));
}

}  // namespace quorix::tool
