#pragma once

#include "QuorixWidgets/info/InfoWidgetView.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/foundation/URLSession.h"

namespace quorix::testing {

inline const ScoreWidgetStyle ownFaces{std::nullopt, std::nullopt};

/// Fees of €4.00, or €2.00 with a discount; return rates of 18 percent and of 95.
inline std::shared_ptr<ScoreWidgetViewModel> scoreModel(bool discount,
                                                        const std::string& language = "en",
                                                        const ScoreWidgetStyle& style = ownFaces) {
  return std::make_shared<ScoreWidgetViewModel>(
      "shop", TokenData{discount ? 0.82 : 0.05, "EUR", 499, 299}, language, style);
}

inline std::shared_ptr<InfoWidgetViewModel> infoModel(
    const std::string& locale = "en", SwiftUIStyleConfiguration style = {},
    std::optional<double> percentile = std::nullopt,
    std::optional<std::string> name = std::nullopt) {
  const auto model = std::make_shared<InfoWidgetViewModel>(name, locale, std::move(style));
  if (percentile) model->userDetails = UserDetails{0, 0, *percentile};
  return model;
}

/// Every request fails at once while the result exists.
inline std::shared_ptr<void> offline() {
  return foundation::URLSession::shared().registerProtocol([](const auto&) {
    return foundation::URLResponse{foundation::Error{"Test", 1, "offline"}, {}, 0};
  });
}

/// Replaces the network. Answers when the test calls it.
class HeldTransport final : public foundation::URLTransport {
 public:
  std::vector<Completion> held;
  void start(const foundation::URL&, Completion completion) override {
    held.push_back(std::move(completion));
  }

  static std::shared_ptr<HeldTransport> install() {
    auto transport = std::make_shared<HeldTransport>();
    foundation::URLSession::shared().install(transport);
    return transport;
  }
};

}  // namespace quorix::testing
