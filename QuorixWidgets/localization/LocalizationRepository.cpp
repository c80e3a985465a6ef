#include "QuorixWidgets/localization/LocalizationRepository.h"

#include <utility>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"

namespace quorix {

std::shared_ptr<LocalizationRepository> LocalizationRepository::make(std::string locale) {
  return std::make_shared<LocalizationRepository>(MakeOnly{}, std::move(locale));
}

LocalizationRepository::LocalizationRepository(MakeOnly, std::string locale)
    : strings(*this, builtInTranslations(locale)), locale_(std::move(locale)) {}

std::optional<foundation::URL> LocalizationRepository::address(std::string_view locale) {
  std::string address(modulesServiceBaseURL());
  address += "/translations/score/overlay/";
  address += locale;
  address += ".json";
  return foundation::URL::parse(address);
}

void LocalizationRepository::update() {
  const auto url = address(locale_);
  if (!url) return;
  fetchLocalization(*url, [weak = weak_from_this()](TranslationTableResult result) {
    const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
    if (!table) return;
    // Locked on the main thread only: the last reference, released here, would destroy the
    // repository off the main thread.
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
