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

TEST(URL, TakesAnAddressApartAndRefusesWhatIsNone) {
  forEachRow("urls", [](simdjson::dom::element row) {
    const auto url = URL::parse(text(row, "text"));
    ASSERT_EQ(url.has_value(), !row["address"].is_null());
    if (!url) return;
    EXPECT_EQ(url->absoluteString(), text(row, "address"));
    EXPECT_EQ(url->origin(), text(row, "origin"));
    EXPECT_EQ(url->path(), text(row, "path"));
  });
  EXPECT_EQ(URL::parse("https://a/\xFF")->absoluteString(), "https://a/%FF");
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
  forEachRow("url_queries", [](simdjson::dom::element row) {
    auto components = URLComponents::parse(text(row, "base"));
    ASSERT_TRUE(components);
    EXPECT_EQ(components->url()->absoluteString(), text(row, "base"));
    components->appendQueryItem({"x y", std::nullopt});
    EXPECT_EQ(components->url()->absoluteString(), text(row, "appended"));
    std::vector<quorix::foundation::URLQueryItem> items;
    for (const simdjson::dom::element item : row["items"]) {
      const std::string name(std::string_view(item.at(0)));
      items.push_back({name, std::nullopt});
      if (!item.at(1).is_null())
        items.back().value = withBytes(std::string(std::string_view(item.at(1))));
    }
    components->setQueryItems(items);
    EXPECT_EQ(components->url()->absoluteString(), text(row, "replaced"));
  });
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
