#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "tools/quorix/Commands.h"

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

namespace {

bool asksForHelp(const std::string& word) { return word == "--help" || word == "-h"; }

Outcome run(const Command& command, std::span<const std::string> words) {
  if (std::any_of(words.begin(), std::ranges::find(words, "--"), asksForHelp)) {
    return helpText(command);
  }
  if (auto failure = parse(words, command)) return *std::move(failure);
  return command.run();
}

/// Adds the command's name to `failure` and, for a wrong command line, a reference to the help.
Failure placed(Failure failure, const std::string& command) {
  if (!command.empty()) failure.message = command + ": " + failure.message;
  if (failure.status == Failure::usageStatus) {
    failure.message += " (see \"quorix" + (command.empty() ? "" : ' ' + command) + " --help\")";
  }
  return failure;
}

Outcome run(std::span<const std::string> words) {
  if (words.empty()) return placed(Failure::usage("no command given"), {});
  const std::string& first = words.front();
  if (first == "--version") return "quorix " QUORIX_VERSION "\n";
  if (asksForHelp(first)) return helpText();
  // The shells' completion scripts run this.
  if (first == "--complete") {
    return completions({words.begin() + 1, words.end()});
  }
  const auto found = findCommand(words);
  if (const auto* failure = std::get_if<Failure>(&found)) return placed(*failure, {});
  const Command& command = *std::get<const Command*>(found);
  Outcome outcome = run(command, words.subspan(command.name == first ? 1 : 2));
  if (auto* failure = std::get_if<Failure>(&outcome)) {
    *failure = placed(*failure, std::string(command.name));
  }
  return outcome;
}

bool print(const std::string& output) {
  const bool written = std::fwrite(output.data(), 1, output.size(), stdout) == output.size();
  return std::fflush(stdout) == 0 && written;
}

int report(const Failure& failure) {
  print(failure.output);
  std::string line = "quorix: " + failure.message;
  // Removes line breaks, which a file or an argument may have put into the message.
  std::ranges::replace_if(
      line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
  std::fprintf(stderr, "%s\n", line.c_str());
  return failure.status;
}

}  // namespace
}  // namespace quorix::tool

int main(int argc, char** argv) {
  using namespace quorix::tool;
  const Outcome outcome = run(std::vector<std::string>(argv + 1, argv + argc));
  if (const auto* failure = std::get_if<Failure>(&outcome)) return report(*failure);
  if (print(std::get<std::string>(outcome))) return 0;
  return report(Failure::refused("can't write to the standard output"));
}
