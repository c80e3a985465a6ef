#include "tools/quorix/Commands.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "QuorixWidgets/localization/Strings.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/StringTable.h"
#include "tools/quorix/Translations.h"

namespace quorix::tool {
namespace {

using foundation::Bundle;

/// `line` without characters that break it or color a terminal.
std::string oneLine(std::string line) {
  const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
  std::ranges::replace_if(line, isControl, ' ');
  return line + '\n';
}

/// One line for each problem in the table at `path`.
std::vector<std::string> findings(const Bundle& bundle, const std::string& path) {
  const auto file = bundle.data(path);
  if (!file) return {oneLine(path + ": is missing")};
  const auto reading = foundation::readStringsFile(*file);
  if (const auto* error = std::get_if<foundation::Error>(&reading)) {
    return {oneLine(path + ": " + error->description)};
  }
  std::vector<std::string> lines;
  for (const auto& problem : problems(std::get<foundation::StringTable>(reading))) {
    lines.push_back(oneLine(path + ": \"" + problem.key + "\" " + problem.what));
  }
  return lines;
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

/// The result of checking `count` tables.
Outcome outcome(const std::vector<std::string>& lines, std::size_t count) {
  const std::string tables = counted(count, "table");
  if (lines.empty()) return tables + " checked, nothing found\n";
  Failure failure = Failure::refused(counted(lines.size(), "finding") + " in " + tables);
  for (const std::string& line : lines) failure.output += line;
  return failure;
}

/// Checks the file at `path`, a table in the service's format.
Outcome checkTranslations(const std::string& path) {
  const auto document = readTranslations(path);
  if (const auto* failure = std::get_if<Failure>(&document)) return *failure;
  const auto oversights = Oversights::in(std::get<std::string>(document));
  std::vector<std::string> lines;
  for (const std::string& key : oversights.missing) {
    lines.push_back(oneLine(path + ": \"" + key + "\" is missing, and its label stays empty"));
  }
  for (const std::string& key : oversights.unused) {
    lines.push_back(oneLine(path + ": \"" + key + "\" is never used"));
  }
  return outcome(lines, 1);
}

Outcome check(const Arguments& arguments) {
  const std::string path = arguments.operand().value_or("");
  if (path.ends_with(".json")) return checkTranslations(path);
  const Bundle::Ref bundle = path.empty() ? Bundle::embedded() : Bundle::open(path);
  if (!bundle) return Failure::refused("can't read the folder " + path);
  std::vector<std::string> languages = bundle->folders("");
  std::erase_if(languages, [](const std::string& name) { return !name.ends_with(".lproj"); });
  if (languages.empty()) return Failure::refused("there is no *.lproj folder in " + path);
  if (std::ranges::find(languages, "en.lproj") == languages.end()) {
    languages.insert(languages.begin(), "en.lproj");  // all other locales fall back to it
  }
  std::vector<std::string> lines;
  for (const std::string& language : languages) {
    std::ranges::move(findings(*bundle, language + "/Localizable.strings"),
                      std::back_inserter(lines));
  }
  return outcome(lines, languages.size());
}

}  // namespace

const Command stringsCheckCommand{
    .name = "strings check",
    .purpose =
        "Checks the string tables of every language, or a translations file.\n"
        "Prints a line for each finding: a mistake in a file and its line, an entry that is "
        "missing or never used, a format that does not show its argument, a title that its figure "
        "does not part. Ends with status 1 when it finds anything.",
    .options = {},
    .operand = {"[FOLDER|FILE.json]", "",
                "FOLDER holds en.lproj/Localizable.strings and so on (default the built-in "
                "tables); FILE.json is what \"quorix texts\" prints and \"quorix score "
                "--translations\" takes. A label whose key it lacks stays empty."},
    .details = {},
    .example = "quorix strings check",
    .run = check,
};

}  // namespace quorix::tool
