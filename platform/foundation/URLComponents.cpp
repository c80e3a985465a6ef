#include "platform/foundation/URLComponents.h"

#include <unicode/unistr.h>

#include <algorithm>

namespace quorix::foundation {
namespace {

bool staysInQueryItem(char c) {
  constexpr std::string_view signs = "-._~!$'()*+,;:@/?";
  return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z') || ('0' <= c && c <= '9') ||
         signs.find(c) != std::string_view::npos;
}

/// `text` with U+FFFD in place of what is not UTF-8: a strict server would refuse the whole
/// address.
std::string wellFormed(const std::string& text) {
  std::string result;
  return icu::UnicodeString::fromUTF8(text).toUTF8String(result);
}

void appendEncoded(std::string& out, const std::string& text) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  if (std::all_of(text.begin(), text.end(), staysInQueryItem)) {
    out += text;
    return;
  }
  for (const char c : wellFormed(text)) {
    if (staysInQueryItem(c)) {
      out += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      out += {'%', hex[byte >> 4], hex[byte & 15]};
    }
  }
}

}  // namespace

std::optional<URLComponents> URLComponents::parse(std::string_view text) {
  const auto url = URL::parse(text);
  if (!url) return std::nullopt;
  URLComponents components;
  std::string& address = components.address_ = url->absoluteString();
  if (const std::size_t hash = address.find('#'); hash != std::string::npos) {
    components.fragment_ = address.substr(hash);
    address.resize(hash);
  }
  if (const std::size_t mark = address.find('?'); mark != std::string::npos) {
    components.query_ = address.substr(mark + 1);
    address.resize(mark);
  }
  return components;
}

void URLComponents::setQueryItems(const std::vector<URLQueryItem>& items) {
  query_.reset();
  for (const URLQueryItem& item : items) appendQueryItem(item);
  if (!query_) query_.emplace();
}

void URLComponents::appendQueryItem(const URLQueryItem& item) {
  if (!query_) query_.emplace();
  if (!query_->empty()) *query_ += '&';
  appendEncoded(*query_, item.name);
  if (!item.value) return;
  *query_ += '=';
  appendEncoded(*query_, *item.value);
}

std::optional<URL> URLComponents::url() const {
  std::string text = address_;
  if (query_) text += '?' + *query_;
  return URL::parse(text + fragment_);
}

}  // namespace quorix::foundation
