#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "QuorixWidgets/localization/Translations.h"
#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix {

/// The texts of one widget in its language. Starts with the prefetched texts, or else the built-in
/// ones. Each successful fetch replaces all of them. Main thread.
///
///     const auto repository = LocalizationRepository::make("es");
///     repository->strings.get()->text("actions", "close");  // "Cerrar"
class LocalizationRepository final : public combine::ObservableObject,
                                     public std::enable_shared_from_this<LocalizationRepository> {
  struct MakeOnly {};

 public:
  QUORIX_EXPORT static std::shared_ptr<LocalizationRepository> make(std::string locale);
  LocalizationRepository(MakeOnly, std::string locale);

  /// Never null.
  combine::Published<std::shared_ptr<const TranslationTable>> strings;
  const std::string& locale() const { return locale_; }

  /// Uses prefetched texts. Without them, starts one fetch and returns at once. A failed fetch
  /// changes nothing. Of several fetches, the last one to complete counts. A fetch does not keep
  /// the repository alive.
  void update();

  /// Fetches the texts for `locale` and keeps them for five minutes. Any thread.
  static void prefetch(std::string_view locale);

  /// The address of the texts for `locale`; absent if it is not a URL. Any thread.
  static std::optional<foundation::URL> address(std::string_view locale);

 private:
  static void fetchLocalization(const foundation::URL& url,
                                std::function<void(TranslationTableResult)> completion);
  std::string locale_;
};

}  // namespace quorix
