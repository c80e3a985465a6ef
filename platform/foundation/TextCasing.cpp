#include "platform/foundation/TextCasing.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace quorix::foundation {
namespace {

icu::UnicodeString decoded(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
}

icu::Locale localeOf(std::string_view language) {
  return language.empty() ? icu::Locale::getRoot() : icu::Locale(std::string(language).c_str());
}

}  // namespace

std::string uppercased(std::string_view text, std::string_view language) {
  std::string result;
  return decoded(text).toUpper(localeOf(language)).toUTF8String(result);
}

std::string lowercased(std::string_view text, std::string_view language) {
  std::string result;
  return decoded(text).toLower(localeOf(language)).toUTF8String(result);
}

}  // namespace quorix::foundation
