#include "Vectors.h"
#include "platform/foundation/URL.h"

using quorix::foundation::URL;

namespace {

TEST(URL, EscapesWhatMayNotStandInAnAddress) {
  forEachRow("translation_urls", [](simdjson::dom::element row) {
    const auto url = URL::parse("https://modules.example.com/translations/score/overlay/" +
                                text(row, "locale") + ".json");
    ASSERT_TRUE(url);
    EXPECT_EQ(url->absoluteString(), text(row, "url"));
    EXPECT_EQ(URL::parse(url->absoluteString()), url) << "once escaped, an address is stable";
  });
}

TEST(URL, TakesAnAddressApart) {
  const struct {
    std::string_view text, address, origin, path;
  } rows[] = {
      {"HTTPS://User@Example.COM:8443/A/b?q=/x#f", "HTTPS://User@Example.COM:8443/A/b?q=/x#f",
       "https://example.com:8443", "/A/b"},
      {"https://example.com", "https://example.com", "https://example.com", ""},
      {"https://example.com?q", "https://example.com?q", "https://example.com", ""},
      {"http://[::1]:80/x", "http://[::1]:80/x", "http://[::1]:80", "/x"},
      {"https://a/%41%zz%4", "https://a/%41%25zz%254", "https://a", "/%41%25zz%254"},
      {"https://a/?[x]|#a#b", "https://a/?%5Bx%5D%7C#a%23b", "https://a", "/"},
      {"https://a b@c/", "https://a%20b@c/", "https://c", "/"},
      {"https://a/\xFF", "https://a/%FF", "https://a", "/%FF"},
      {"mailto:a@b", "mailto:a@b", "mailto://", "a@b"},
      {"about:blank", "about:blank", "about://", "blank"},
  };
  for (const auto& row : rows) {
    const auto url = URL::parse(row.text);
    ASSERT_TRUE(url) << row.text;
    EXPECT_EQ(url->absoluteString(), row.address);
    EXPECT_EQ(url->origin(), row.origin);
    EXPECT_EQ(url->path(), row.path);
  }
}

TEST(URL, RefusesWhatIsNoAddress) {
  for (const std::string_view text :
       {"", "x", "/path", "//host/path", "://host", "1http://host", "ht tp://host", "http://a b/",
        "http://a:b/", "http://a:-1/", "http://[::1", "http://[::1]x/", "http://[x]/", "http://[]/",
        "http://a]/", "http://é/", "http://a%/", "http://a\\b/"}) {
    EXPECT_EQ(URL::parse(text), std::nullopt) << text;
  }
}

}  // namespace
