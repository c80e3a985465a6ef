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
  forEachRow("urls", [](simdjson::dom::element row) {
    const auto url = URL::parse(text(row, "text"));
    ASSERT_TRUE(url);
    EXPECT_EQ(url->absoluteString(), text(row, "address"));
    EXPECT_EQ(url->origin(), text(row, "origin"));
    EXPECT_EQ(url->path(), text(row, "path"));
  });
  EXPECT_EQ(URL::parse("https://a/\xFF")->absoluteString(), "https://a/%FF");
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
