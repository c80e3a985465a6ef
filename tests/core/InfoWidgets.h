#pragma once

#include <memory>
#include <optional>
#include <string>

#include "QuorixWidgets/info/InfoWidgetView.h"

namespace quorix::testing {

inline std::shared_ptr<InfoWidgetViewModel> infoModel(
    const std::string& locale = "en", SwiftUIStyleConfiguration style = {},
    std::optional<double> percentile = std::nullopt,
    std::optional<std::string> name = std::nullopt) {
  const auto model = std::make_shared<InfoWidgetViewModel>(name, locale, std::move(style));
  if (percentile) model->userDetails = UserDetails{0, 0, *percentile};
  return model;
}

}  // namespace quorix::testing
