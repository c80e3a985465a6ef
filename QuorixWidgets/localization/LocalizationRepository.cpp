#include "QuorixWidgets/localization/LocalizationRepository.h"

#include <chrono>
#include <utility>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"

namespace quorix {

namespace {

std::string addressText(std::string_view locale) {
  std::string address(modulesServiceBaseURL());
  address += "/translations/score/overlay/";
  address += locale;
  address += ".json";
  return address;
}

/// Null if none are kept.
std::shared_ptr<const TranslationTable> prefetchedTexts(std::string_view locale) {
  const auto address = [&] { return addressText(locale); };
  auto table = foundation::URLSession::shared().prefetched(address);
  return std::static_pointer_cast<const TranslationTable>(std::move(table));
}

std::shared_ptr<const TranslationTable> firstTexts(std::string_view locale) {
  auto table = prefetchedTexts(locale);
  return table ? table : builtInTranslations(locale);
}

}  // namespace

std::shared_ptr<LocalizationRepository> LocalizationRepository::make(std::string locale) {
  return std::make_shared<LocalizationRepository>(MakeOnly{}, std::move(locale));
}

LocalizationRepository::LocalizationRepository(MakeOnly, std::string locale)
    : strings(*this, firstTexts(locale)), locale_(std::move(locale)) {}

std::optional<foundation::URL> LocalizationRepository::address(std::string_view locale) {
  return foundation::URL::parse(addressText(locale));
}

void LocalizationRepository::prefetch(std::string_view locale) {
  const auto url = address(locale);
  if (!url) return;
  const auto read = [](const foundation::URLResponse& response) -> std::shared_ptr<const void> {
    const auto result = readTranslationTable(response);
    const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
    return table ? *table : nullptr;
  };
  foundation::URLSession::shared().prefetch(*url, std::chrono::minutes(5), read);
}

void LocalizationRepository::update() {
  if (auto table = prefetchedTexts(locale_)) {
    if (table != strings.get()) strings = std::move(table);
    return;
  }
  const auto url = address(locale_);
  if (!url) return;
  fetchLocalization(*url, [weak = weak_from_this()](TranslationTableResult result) {
    const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
    if (!table) return;
    // Lock the weak reference on the main thread only. Otherwise the repository could be destroyed
    // on this thread, with the last reference.
    foundation::MainQueue::async([weak, table = *table] {
      if (const auto repository = weak.lock()) repository->strings = table;
    });
  });
}

void LocalizationRepository::fetchLocalization(
    const foundation::URL& url, std::function<void(TranslationTableResult)> completion) {
  foundation::URLSession::shared().get(
      url, [completion = std::move(completion)](const foundation::URLResponse& response) {
        completion(readTranslationTable(response));
      });
}

}  // namespace quorix
