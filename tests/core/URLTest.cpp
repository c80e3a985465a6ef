#include "platform/foundation/URL.h"

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/Vectors.h"

using quorix::OverlayAddress;
using quorix::foundation::URL;
using quorix::foundation::URLComponents;
using quorix::testing::OpenedAddresses;
using quorix::uikit::URLOpener;

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

TEST(URLComponents, EncodesQueryItemsAsPhonesDo) {
  forEachRow("query", [](simdjson::dom::element row) {
    auto components = URLComponents::parse("https://widget.example.com/users/details/");
    ASSERT_TRUE(components);
    components->setQueryItems({{"lang", "en"}, {"name", text(row, "value")}, {"token", "abc"}});
    const auto url = components->url();
    ASSERT_TRUE(url);
    EXPECT_EQ(url->absoluteString(), text(row, "url"));
  });
}

TEST(URLComponents, WritesTheQueryBetweenPathAndFragment) {
  const struct {
    std::string_view base;
    std::vector<quorix::foundation::URLQueryItem> items;
    std::string_view replaced, appended;  // the latter with "x y" after what the base holds
  } rows[] = {
      {"https://a", {}, "https://a?", "https://a?x%20y"},
      {"https://a/?", {{"n", ""}}, "https://a/?n=", "https://a/?x%20y"},
      {"https://a/p?q=1&%41#f?g",
       {{"n&m=", std::nullopt}, {"", "v"}},
       "https://a/p?n%26m%3D&=v#f?g",
       "https://a/p?q=1&%41&x%20y#f?g"},
      {"mailto:a@b",
       {{"subject", "\xFFé\xC3"}},
       "mailto:a@b?subject=%EF%BF%BD%C3%A9%EF%BF%BD",
       "mailto:a@b?x%20y"},
  };
  for (const auto& row : rows) {
    auto components = URLComponents::parse(row.base);
    ASSERT_TRUE(components) << row.base;
    EXPECT_EQ(components->url()->absoluteString(), row.base);
    components->appendQueryItem({"x y", std::nullopt});
    EXPECT_EQ(components->url()->absoluteString(), row.appended);
    components->setQueryItems(row.items);
    EXPECT_EQ(components->url()->absoluteString(), row.replaced);
  }
  EXPECT_FALSE(URLComponents::parse("/path?q"));
}

TEST(OverlayAddress, IsThePageOfEachShopper) {
  forEachRow("overlay", [](simdjson::dom::element row) {
    const auto given = [&](std::string_view key) -> std::optional<std::string> {
      if (row[key].is_null()) return std::nullopt;
      return text(row, key);
    };
    const auto url = OverlayAddress{given("token"), given("name"), given("locale")}.url();
    ASSERT_TRUE(url);
    std::string expected = text(row, "url");
    const std::string theirs = ".example.com";  // the test vectors use other hosts
    expected.replace(expected.find(theirs), theirs.size(), ".quorix.example");
    EXPECT_EQ(url->absoluteString(), expected);
  });
}

TEST(URLOpener, OpensOnlyWhatLeavesTheMachineAndRunsNoScript) {
  const OpenedAddresses asked;
  std::vector<std::string> opened;
  for (const std::string& line : readLines("outside_addresses")) {
    SCOPED_TRACE(line);
    const std::string outcome = line.substr(0, line.find(' '));
    const std::string address = line.substr(outcome.size() + 1);
    const auto url = URL::parse(address);
    ASSERT_EQ(url.has_value(), outcome != "unreadable");
    if (!url) continue;
    EXPECT_EQ(URLOpener::openOutside(*url), outcome == "opens");
    if (outcome == "opens") opened.push_back(address);
  }
  EXPECT_FALSE(opened.empty());
  EXPECT_EQ(asked.list(), opened);
  URLOpener::install(nullptr);
  EXPECT_FALSE(URLOpener::openOutside(*URL::parse("https://shop.example")));
}

}  // namespace
