#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <memory>

#include "QuorixWidgets/localization/Translations.h"
#include "platform/foundation/Bundle.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Texts.h"

namespace quorix::tool {
namespace {

using foundation::Bundle;

Outcome texts(const std::string& locale) {
  const auto table = builtInTranslations(locale);
  if (locale != "en" && table == builtInTranslations("en")) {
    return Failure::refused("no texts in \"" + locale + "\" are built in; those of en are a start");
  }
  QJsonObject sections;
  for (const auto& entry : table->entries()) {
    const QString name = QString::fromUtf8(entry.section);
    QJsonObject section = sections[name].toObject();
    section[QString::fromUtf8(entry.key)] = QString::fromUtf8(entry.text);
    sections[name] = section;
  }
  return QJsonDocument(sections).toJson(QJsonDocument::Indented).toStdString();
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

/// The findings in some tables, one line each.
struct Report {
  std::size_t tables = 0, findings = 0;
  std::string lines = {};

  void add(const std::string& path, const std::string& finding) {
    std::string line = path + ": " + finding;
    // Removes characters that break the line or color a terminal.
    const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
    std::ranges::replace_if(line, isControl, ' ');
    lines += line + '\n';
    ++findings;
  }

  Outcome outcome() const {
    const std::string checked = counted(tables, "table");
    if (findings == 0) return checked + " checked, nothing found\n";
    Failure failure = Failure::refused(counted(findings, "finding") + " in " + checked);
    failure.output = lines;
    return failure;
  }
};

/// Checks the file at `path`, a table in the service's format.
Outcome checkTranslations(const std::string& path) {
  const auto read = Translations::read(path);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  const auto& table = std::get<Translations>(read);
  Report report{.tables = 1};
  for (const std::string& key : table.missing) {
    report.add(path, '"' + key + "\" is missing, and its label stays empty");
  }
  for (const std::string& key : table.unused) {
    report.add(path, '"' + key + "\" is never used");
  }
  return report.outcome();
}

Outcome check(const std::string& path) {
  if (path.ends_with(".json")) return checkTranslations(path);
  const Bundle::Ref bundle = path.empty() ? Bundle::embedded() : Bundle::open(path);
  if (!bundle) return Failure::refused("can't read the folder " + path);
  std::vector<std::string> languages = bundle->folders("");
  std::erase_if(languages, [](const std::string& name) { return !name.ends_with(".lproj"); });
  if (languages.empty()) return Failure::refused("there is no *.lproj folder in " + path);
  if (std::ranges::find(languages, "en.lproj") == languages.end()) {
    languages.insert(languages.begin(), "en.lproj");  // all other locales fall back to it
  }
  Report report{.tables = languages.size()};
  for (const std::string& language : languages) {
    const std::string table = language + "/Localizable.strings";
    const auto bytes = bundle->data(table);
    const auto found = bytes ? mistakesInTable(*bytes) : std::vector<std::string>{"is missing"};
    for (const std::string& mistake : found) report.add(table, mistake);
  }
  return report.outcome();
}

}  // namespace

Command textsCommand() {
  const auto locale = std::make_shared<std::string>("en");
  return {
      .name = "texts",
      .purpose =
          "Prints the score widget's built-in texts as the JSON that a server must send.\n"
          "Translate the texts and keep the keys; \"quorix score --translations FILE.json\" shows "
          "the result, \"quorix strings check FILE.json\" finds what is missing.",
      .options = {{"--locale", "CODE", "Language code of the texts (default en).", locale.get()}},
      .details = "The info widget's texts are not fetched: they are string tables of the library.",
      .example = "quorix texts --locale en > nb.json && quorix strings check nb.json",
      .run = [locale] { return texts(*locale); },
  };
}

Command stringsCheckCommand() {
  const auto path = std::make_shared<std::string>();
  return {
      .name = "strings check",
      .purpose =
          "Checks the string tables of every language, or a translations file.\n"
          "Prints a line for each finding: a mistake in a file and its line, an entry that is "
          "missing or never used, a format that does not show its argument, a title that its "
          "figure does not part. Ends with status 1 when it finds anything.",
      .operand = {"[FOLDER|FILE.json]", "",
                  "FOLDER holds en.lproj/Localizable.strings and so on (default the built-in "
                  "tables); FILE.json is what \"quorix texts\" prints and \"quorix score "
                  "--translations\" takes. A label whose key it lacks stays empty.",
                  path.get()},
      .example = "quorix strings check",
      .run = [path] { return check(*path); },
  };
}

}  // namespace quorix::tool
