#pragma once

#include <string>
#include <string_view>

/// Scripts that an engine runs in a page.
namespace quorix::webkit::PageScripts {

/// Refuses passkeys. Runs before the page's own scripts, in their world and in every frame: some
/// engines wait for a key without asking the app, and without an end.
constexpr char refusals[] = R"(
    if (window.CredentialsContainer) {
      delete window.PublicKeyCredential;
      for (const asked of ['create', 'get']) {
        CredentialsContainer.prototype[asked] =
            () => Promise.reject(new DOMException('', 'NotAllowedError'));
      }
    })";

/// Notes which sideways scrolling the page uses, for `scrollSince`. Runs before the page's own
/// scripts, in a world of its own, and only in a page that may run scripts.
constexpr char scrollNotes[] = R"(
    (() => {
      let seen = 0, used = 0;
      const scrolls = (element, x) => {
        const style = getComputedStyle(element);
        const whole = element === document.scrollingElement;
        if (whole ? style.overflowX === 'hidden' : !/auto|scroll/.test(style.overflowX)) return false;
        if (style.overscrollBehaviorX !== 'auto') return true;
        const room = element.scrollWidth - element.clientWidth;
        const left = element.scrollLeft + (style.direction === 'rtl' ? room : 0);
        return x < 0 ? left >= 1 : left <= room - 1;
      };
      addEventListener('wheel', event => {
        if (!event.deltaX) return;
        seen = Date.now();
        const uses = event.defaultPrevented || event.composedPath().some(
            element => element instanceof Element && scrolls(element, event.deltaX));
        if (uses) used = seen;
      }, {passive: true});
      globalThis.quorixScrollSince =
          since => seen >= since && used < since ? 'unused' : 'used or not seen';
    })())";

/// Asks whether the page's process is alive. It answers `alive`.
constexpr std::string_view isAlive = "'alive'", alive = "alive";

/// Asks about the sideways scrolling since `time`, in milliseconds since 1970. The answer is
/// `unused` if the page saw some and used none of it.
inline std::string scrollSince(double time) {
  return "quorixScrollSince(" + std::to_string(static_cast<long long>(time)) + ")";
}
constexpr std::string_view unused = "unused";

}  // namespace quorix::webkit::PageScripts
