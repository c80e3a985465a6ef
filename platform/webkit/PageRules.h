#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/foundation/URL.h"

namespace quorix::webkit {

/// Whether a page in the app may load an address of `scheme` (lower case): only web schemes, no
/// files of the device and no internal pages of the engine.
constexpr bool mayNavigateTo(std::string_view scheme) {
  return scheme == "https" || scheme == "http" || scheme == "about" || scheme == "blob" ||
         scheme == "data";
}

/// Whether a load that ended with this network error of the engine brought nothing. Errors from
/// -100 down are those of the connection, the server's certificate and HTTP.
constexpr bool broughtNothing(int error) { return error <= -100; }

/// Remembers the user's latest click, tap or key in a page, because the engine does not tell what
/// caused a link to another app. A gesture counts for one such link, for a second. One object for
/// each page; main thread.
class UserGesture {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::seconds lasts{1};

  void happened(Clock::time_point now) { latest_ = now; }
  void forget() { latest_.reset(); }
  /// Whether a request at `now` counts as the user's. The next one does not.
  bool take(Clock::time_point now) {
    const auto at = std::exchange(latest_, {});
    return at && now - *at < lasts;
  }

 private:
  std::optional<Clock::time_point> latest_;
};

/// Limits which of a page's requests for a new window may leave the app, so that a page cannot
/// flood the desktop. Requests by the user always leave. Requests without a user gesture leave only
/// if `pause` has passed since the latest opening. After the first of them, they leave only to a
/// web, mail or phone address. One object for each page; main thread.
///
///     bool mayLeaveUnasked(NewWindowLimit& limit, const foundation::URL& url) {
///       return limit.allows(url, false, NewWindowLimit::Clock::now());
///     }
class NewWindowLimit {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::seconds pause{10};

  /// `byUser`: a click, a tap or a key caused the request. A refused request does not extend the
  /// pause.
  bool allows(const foundation::URL& url, bool byUser, Clock::time_point now) {
    if (!byUser) {
      const bool pauses = latest_ && now - *latest_ < pause;
      if (pauses || (openedUnasked_ && !isOrdinary(url))) return false;
      openedUnasked_ = true;
    }
    latest_ = now;
    return true;
  }

 private:
  static bool isOrdinary(const foundation::URL& url) {
    const std::string scheme = url.scheme();
    return scheme == "https" || scheme == "http" || scheme == "mailto" || scheme == "tel";
  }

  std::optional<Clock::time_point> latest_;
  bool openedUnasked_ = false;
};

}  // namespace quorix::webkit
