#pragma once

namespace quorix::webkit {

/// Whoever wants to follow a web view's navigation. Nothing is told yet that the library needs.
class WKNavigationDelegate {
 public:
  virtual ~WKNavigationDelegate() = default;
};

}  // namespace quorix::webkit
