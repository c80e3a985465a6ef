#include "platform/foundation/URL.h"

#include <unicode/unistr.h>

#include <algorithm>

namespace quorix::foundation {
namespace {

bool isAlpha(char c) { return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z'); }
bool isDigit(char c) { return '0' <= c && c <= '9'; }
bool isHexDigit(char c) { return isDigit(c) || ('a' <= c && c <= 'f') || ('A' <= c && c <= 'F'); }
bool isOneOf(std::string_view set, char c) { return set.find(c) != std::string_view::npos; }

/// Allowed unescaped in every part after the scheme.
bool isPlain(char c) { return isAlpha(c) || isDigit(c) || isOneOf("-._~!$&'()*+,;=", c); }

/// Allowed unescaped in the name and value of a query item.
bool isPlainInQueryItem(char c) { return (isPlain(c) && !isOneOf("&=", c)) || isOneOf(":@/?", c); }

bool isEscape(std::string_view text, std::size_t i) {
  return i + 2 < text.size() && text[i] == '%' && isHexDigit(text[i + 1]) &&
         isHexDigit(text[i + 2]);
}

/// An address taken apart; each part with the delimiter that introduces it ("//", "?", "#").
struct Parts {
  std::string_view scheme, authority, path, query, fragment;
};

std::string_view takeUntil(std::string_view& text, std::string_view delimiters) {
  const std::string_view taken = text.substr(0, text.find_first_of(delimiters));
  text.remove_prefix(taken.size());
  return taken;
}

Parts split(std::string_view text) {
  Parts parts;
  parts.scheme = takeUntil(text, ":/?#");
  if (text.starts_with("://")) {
    text.remove_prefix(1);
    parts.authority = text.substr(0, text.find_first_of("/?#", 2));
    text.remove_prefix(parts.authority.size());
  } else if (text.starts_with(':')) {
    text.remove_prefix(1);
  } else {
    parts.scheme = {};
  }
  parts.path = takeUntil(text, "?#");
  parts.query = takeUntil(text, "#");
  parts.fragment = text;
  return parts;
}

struct Authority {
  std::string_view user, host, port;  // "user@", "host", ":port"
};

Authority splitAuthority(std::string_view authority) {
  Authority result;
  if (!authority.empty()) authority.remove_prefix(2);
  const std::size_t at = authority.rfind('@');
  result.user = authority.substr(0, at == std::string_view::npos ? 0 : at + 1);
  authority.remove_prefix(result.user.size());
  const std::size_t bracket = authority.starts_with('[') ? authority.find(']') : 0;
  const std::size_t colon =
      bracket == std::string_view::npos ? bracket : authority.find(':', bracket);
  result.host = authority.substr(0, colon);
  result.port = authority.substr(result.host.size());
  return result;
}

bool isScheme(std::string_view scheme) {
  return !scheme.empty() && isAlpha(scheme[0]) &&
         std::all_of(scheme.begin(), scheme.end(),
                     [](char c) { return isAlpha(c) || isDigit(c) || isOneOf("+-.", c); });
}

bool isHost(std::string_view host) {
  if (host.starts_with('[')) {
    const std::string_view inside = host.substr(1, host.size() - 2);
    return host.size() > 2 && host.ends_with(']') &&
           std::all_of(inside.begin(), inside.end(),
                       [](char c) { return isHexDigit(c) || isOneOf(":.", c); });
  }
  for (std::size_t i = 0; i < host.size(); ++i) {
    if (!isPlain(host[i]) && !isEscape(host, i)) return false;
  }
  return true;
}

bool isPort(std::string_view port) {
  return port.empty() || std::all_of(port.begin() + 1, port.end(), isDigit);
}

std::string inLowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](char c) { return 'A' <= c && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return result;
}

void appendByteEscaped(std::string& out, char c) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  out += {'%', hex[byte >> 4], hex[byte & 15]};
}

/// Appends `part`. Escapes each byte that is neither plain, nor in `allowed`, nor part of an
/// escape. Copies the first `delimiter` characters, which introduce the part, unchanged.
void appendEscaped(std::string& out, std::string_view part, std::string_view allowed,
                   std::size_t delimiter = 0) {
  for (std::size_t i = 0; i < part.size(); ++i) {
    if (i < delimiter || isPlain(part[i]) || isOneOf(allowed, part[i]) || isEscape(part, i)) {
      out += part[i];
    } else {
      appendByteEscaped(out, part[i]);
    }
  }
}

/// Appends a query item's `text` and also escapes percent signs. Bytes that are not UTF-8 become
/// U+FFFD: a strict server would refuse the whole address.
void appendQueryText(std::string& out, const std::string& text) {
  if (std::ranges::all_of(text, isPlainInQueryItem)) {
    out += text;
    return;
  }
  std::string wellFormed;
  for (const char c : icu::UnicodeString::fromUTF8(text).toUTF8String(wellFormed)) {
    isPlainInQueryItem(c) ? out.push_back(c) : appendByteEscaped(out, c);
  }
}

}  // namespace

std::optional<URL> URL::parse(std::string_view text) {
  const Parts parts = split(text);
  const Authority authority = splitAuthority(parts.authority);
  if (!isScheme(parts.scheme) || !isHost(authority.host) || !isPort(authority.port)) {
    return std::nullopt;
  }
  std::string address(parts.scheme);
  address += ':';
  if (!parts.authority.empty()) address += "//";
  appendEscaped(address, authority.user, ":@");
  address += authority.host;
  address += authority.port;
  appendEscaped(address, parts.path, ":@/");
  appendEscaped(address, parts.query, ":@/?");
  appendEscaped(address, parts.fragment, ":@/?", 1);
  return URL(std::move(address));
}

std::string URL::scheme() const { return inLowerCase(split(text_).scheme); }

std::string URL::host() const { return inLowerCase(splitAuthority(split(text_).authority).host); }

std::string URL::origin() const {
  const Authority authority = splitAuthority(split(text_).authority);
  return scheme() + "://" + inLowerCase(authority.host) + std::string(authority.port);
}

std::string URL::path() const { return std::string(split(text_).path); }

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
  appendQueryText(*query_, item.name);
  if (!item.value) return;
  *query_ += '=';
  appendQueryText(*query_, *item.value);
}

std::optional<URL> URLComponents::url() const {
  std::string text = address_;
  if (query_) text += '?' + *query_;
  return URL::parse(text + fragment_);
}

}  // namespace quorix::foundation
