#include "platform/foundation/URL.h"

#include "QuorixWidgets/overlay/OverlayAddress.h"
#include "Vectors.h"

using quorix::OverlayAddress;
using quorix::foundation::URLComponents;
using quorix::foundation::URLQueryItem;

namespace {

/// The vectors' services have hosts of their own.
std::string onOurHosts(std::string url) {
  const std::string theirs = ".example.com";
  return url.replace(url.find(theirs), theirs.size(), ".quorix.example");
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
    std::vector<URLQueryItem> items;
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
    EXPECT_EQ(url->absoluteString(), onOurHosts(text(row, "url")));
  });
}

}  // namespace
