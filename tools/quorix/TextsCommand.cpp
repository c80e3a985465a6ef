#include "tools/quorix/Commands.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "QuorixWidgets/localization/Translations.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/WidgetOptions.h"

namespace quorix::tool {
namespace {

constexpr Option options[] = {localeOption};

QString qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

Outcome texts(const Arguments& arguments) {
  const std::string locale = OptionReader(arguments).text("--locale", "en");
  const auto table = builtInTranslations(locale);
  if (locale != "en" && table == builtInTranslations("en")) {
    return Failure::refused("no texts in \"" + locale + "\" are built in; those of en are a start");
  }
  QJsonObject sections;
  for (const auto& entry : table->entries()) {
    QJsonObject section = sections[qt(entry.section)].toObject();
    section[qt(entry.key)] = qt(entry.text);
    sections[qt(entry.section)] = section;
  }
  return QJsonDocument(sections).toJson(QJsonDocument::Indented).toStdString();
}

}  // namespace

const Command textsCommand{
    .name = "texts",
    .purpose =
        "Prints the score widget's built-in texts as the JSON that a server must send.\n"
        "Translate the texts and keep the keys; \"quorix score --translations FILE.json\" shows "
        "the result, \"quorix strings check FILE.json\" finds what is missing.",
    .options = options,
    .operand = {},
    .details = "The info widget's texts are not fetched: they are string tables of the library.",
    .example = "quorix texts --locale en > nb.json && quorix strings check nb.json",
    .run = texts,
};

}  // namespace quorix::tool
