#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "tools/quorix/Commands.h"

namespace {

using quorix::tool::Command;
using quorix::tool::Failure;
using quorix::tool::Outcome;

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
  if (asksForHelp(first)) return quorix::tool::helpText();
  // The shells' completion scripts run this.
  if (first == "--complete") {
    return quorix::tool::completions({words.begin() + 1, words.end()});
  }
  const auto found = quorix::tool::findCommand(words);
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

int main(int argc, char** argv) {
  const Outcome outcome = run(std::vector<std::string>(argv + 1, argv + argc));
  if (const auto* failure = std::get_if<Failure>(&outcome)) return report(*failure);
  if (print(std::get<std::string>(outcome))) return 0;
  return report(Failure::refused("can't write to the standard output"));
}
