#include "platform/uikit/URLOpener.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "platform/uikit/UIApplication.h"

namespace quorix::uikit {
namespace {

/// Schemes, separated by blanks.
constexpr std::string_view refusedSchemes =
    // Files and data of this machine or of the calling process.
    " file content filesystem blob data cid mid mhtml jar zip archive disk mtp gphoto2 afc recent"
    " trash computer network burn admin qrc res resource asset assets android.resource app"
    " applewebdata"
    // Scripts, and addresses that contain another one.
    " javascript jscript livescript vbscript mocha view-source wyciwyg feed read intent android-app"
    // Internal pages of browsers.
    " about chrome devtools edge brave opera vivaldi safari webkit microsoft-edge"
    // Disks, shells and desktops of other machines. The connection alone may send a password.
    " ftp ftps sftp fish smb cifs nfs afp dav davs webdav webdavs ssh telnet rlogin tn3270 rdp vnc"
    " ldap ldaps gopher rsync git svn nntp news"
    // The system's installers, settings, launchers and help.
    " apt snap appstream flatpak package itms-services jnlp jnlps prefs app-prefs app-settings"
    " settings search search-ms shell hcp its mk onenote-cmd help ghelp info man x-man-page"
    " applescript shortcuts workflow vnd.ms.radio ";

/// Every scheme with such a prefix is refused.
constexpr std::string_view refusedPrefixes[] = {"ms-", "chrome-", "moz-", "x-apple.", "webkit-"};

bool isRefused(std::string_view scheme) {
  // A single letter may be a drive. The part after a plus sign is another scheme: "git+ssh".
  if (scheme.size() == 1 || scheme.find('+') != std::string_view::npos) return true;
  return refusedSchemes.find(' ' + std::string(scheme) + ' ') != std::string_view::npos ||
         std::ranges::any_of(refusedPrefixes,
                             [&](auto family) { return scheme.starts_with(family); }) ||
         scheme.ends_with("-extension");
}

/// Whether a mail has only safe items. Some mail programs attach a file that another item names.
bool hasHarmlessItems(std::string_view mail) {
  constexpr std::string_view harmless[] = {"to", "cc", "bcc", "subject", "body"};
  const std::size_t mark = mail.find('?');
  std::string_view query = mark == std::string_view::npos ? "" : mail.substr(mark + 1);
  while (!query.empty()) {
    const std::string_view item = query.substr(0, query.find('&'));
    query.remove_prefix(std::min(query.size(), item.size() + 1));
    if (item.empty()) continue;
    std::string name(item.substr(0, item.find('=')));
    std::ranges::transform(name, name.begin(), [](char c) {
      return 'A' <= c && c <= 'Z' ? static_cast<char>(c + 32) : c;
    });
    if (std::ranges::find(harmless, name) == std::end(harmless)) return false;
  }
  return true;
}

/// Whether `call` has no stars or hashes. Such codes can forward calls or erase a phone.
bool isPlainNumber(std::string_view call) {
  return call.find_first_of("*#") == std::string_view::npos &&
         call.find("%2A") == std::string_view::npos && call.find("%2a") == std::string_view::npos &&
         call.find("%23") == std::string_view::npos;
}

/// Whether `url` may leave the app; see `URLOpener::openOutside`.
bool opensOutside(const foundation::URL& url) {
  const std::string scheme = url.scheme();
  if (scheme == "http" || scheme == "https") return !url.host().empty();
  if (scheme == "mailto") return hasHarmlessItems(url.absoluteString());
  if (scheme == "tel") return isPlainNumber(url.absoluteString());
  return !isRefused(scheme);
}

}  // namespace

std::shared_ptr<URLOpener> URLOpener::install(std::shared_ptr<URLOpener> opener) {
  return std::exchange(UIApplication::shared().opener_, std::move(opener));
}

bool URLOpener::openOutside(const foundation::URL& url) {
  const auto opener = UIApplication::shared().opener_;  // keeps it alive: opening may replace it
  if (!opener || !opensOutside(url)) return false;
  opener->open(url);
  return true;
}

}  // namespace quorix::uikit
