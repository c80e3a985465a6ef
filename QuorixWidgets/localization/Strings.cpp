#include "QuorixWidgets/localization/Strings.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/StringTable.h"

namespace quorix {

using foundation::Bundle;
using foundation::FormatConversion;
using foundation::StringTable;

namespace {

constexpr std::string_view fallbackLocale = "en";

/// The folder with the string tables of `locale`; null if the library has none.
Bundle::Ref getBundle(std::string_view locale) {
  const Bundle::Ref library = libraryBundle();
  if (!library) return nullptr;
  const auto path = library->pathForResource(locale, "lproj");
  return path ? library->folder(*path) : nullptr;
}

/// Absent if there is no bundle, and therefore no text to format.
std::optional<std::string> lookUp(std::string_view key, std::string_view locale) {
  Bundle::Ref bundle = getBundle(locale);
  if (!bundle) bundle = getBundle(fallbackLocale);
  if (!bundle) return std::nullopt;
  return foundation::localizedString(*bundle, key);
}

}  // namespace

std::string localized(std::string_view key, std::string_view locale) {
  return lookUp(key, locale).value_or(std::string());
}

std::string localized(std::string_view key, std::string_view locale,
                      const std::vector<foundation::FormatArgument>& arguments) {
  const auto format = lookUp(key, locale);
  return format ? foundation::formatted(*format, arguments) : std::string();
}

// Checking a table.

namespace {

using Problems = std::vector<StringTableProblem>;

constexpr std::string_view titleKey = "info-widget-title";
constexpr std::string_view figureKey = "info-widget-title-number";

/// The use of a text.
enum class Use : std::uint8_t { plain, mayBeEmpty, takesNumber, takesText };

struct Entry {
  std::string_view key;
  Use use;
};

constexpr Entry usedEntries[] = {
    {titleKey, Use::plain},
    {figureKey, Use::plain},
    {"widget-title-start", Use::mayBeEmpty},
    {"widget-title-end", Use::mayBeEmpty},
    {"widget-title-return-rate-high", Use::takesNumber},
    {"widget-title-return-rate-medium", Use::takesNumber},
    {"widget-title-return-rate-low", Use::takesNumber},
    {"widget-read-more", Use::plain},
    {"webview-overlay-title", Use::takesText},
    {"webview-page-stopped", Use::plain},
    {"webview-try-again", Use::plain},
    {"close", Use::plain},  // spoken for the image of this name
};

/// The mistake in one conversion of a format that gets one argument; empty for none.
std::string mistake(const FormatConversion& conversion, FormatConversion::Kind wanted) {
  const std::string source = '"' + std::string(conversion.source) + '"';
  if (conversion.kind == FormatConversion::Kind::percent) return {};
  if (conversion.kind == FormatConversion::Kind::unknown) {
    return "has the unknown conversion " + source + "; a percent sign is written %%";
  }
  if (conversion.kind != wanted) {
    const bool number = wanted == FormatConversion::Kind::number;
    return "has " + source + ", which does not match its argument, a " +
           (number ? "number (%.0f)" : "text (%@)") +
           (conversion.flags.find(' ') != std::string_view::npos ? "; a percent sign is written %%"
                                                                 : "");
  }
  if (conversion.argument > 0 || conversion.width.argument || conversion.precision.argument) {
    return "has " + source + ", which asks for a second argument";
  }
  return {};
}

void checkFormat(const std::string& key, const std::string& format, FormatConversion::Kind wanted,
                 Problems& found) {
  bool settled = false;  // the argument is shown, or there is a mistake
  for (const FormatConversion& conversion : foundation::conversions(format)) {
    const std::string what = mistake(conversion, wanted);
    if (!what.empty()) found.push_back({key, what});
    settled = settled || !what.empty() || conversion.kind == wanted;
  }
  if (!settled) found.push_back({key, "does not show its argument"});
}

/// The widget shows the text before the title's figure, the figure, and the text behind it.
void checkTitle(const std::string& title, const std::string& figure, Problems& found) {
  if (figure.empty() || title.empty()) return;
  std::size_t pieces = 0, start = 0;
  for (std::size_t end = 0; end != title.npos; start = end + figure.size()) {
    end = title.find(figure, start);
    if (std::min(end, title.size()) > start) ++pieces;
  }
  const auto add = [&](const char* what) { found.push_back({std::string(titleKey), what}); };
  if (title.find(figure) == title.npos) add("does not contain its figure");
  if (pieces == 0) add("consists of nothing but its figure, and the widget can't be shown");
  if (pieces > 2) add("contains its figure twice, and what stands behind the second is not shown");
}

void checkEntry(const Entry& entry, const StringTable& table, Problems& found) {
  const std::string key(entry.key);
  const auto text = table.find(entry.key);
  if (text == table.end()) {
    found.push_back({key, "is missing"});
  } else if (entry.use == Use::takesNumber) {
    checkFormat(key, text->second, FormatConversion::Kind::number, found);
  } else if (entry.use == Use::takesText) {
    checkFormat(key, text->second, FormatConversion::Kind::text, found);
  } else if (entry.use == Use::plain && text->second.empty()) {
    found.push_back({key, "is empty"});
  }
}

}  // namespace

std::vector<StringTableProblem> problems(const StringTable& table) {
  Problems found;
  for (const Entry& entry : usedEntries) checkEntry(entry, table, found);
  const auto title = table.find(titleKey), figure = table.find(figureKey);
  if (title != table.end() && figure != table.end()) {
    checkTitle(title->second, figure->second, found);
  }
  for (const auto& [key, text] : table) {
    if (std::ranges::find(usedEntries, key, &Entry::key) == std::end(usedEntries)) {
      found.push_back({key, "is never used"});
    }
  }
  return found;
}

}  // namespace quorix
