#include "platform/uikit/URLOpener.h"

#include <gtest/gtest.h>

#include <vector>

using quorix::foundation::URL;
using quorix::uikit::URLOpener;

namespace {

class Recorder final : public URLOpener {
 public:
  void open(const URL& url) override { opened.push_back(url.absoluteString()); }
  std::vector<std::string> opened;
};

class URLOpenerTest : public testing::Test {
 protected:
  ~URLOpenerTest() override { URLOpener::install(before_); }
  std::shared_ptr<Recorder> recorder_ = std::make_shared<Recorder>();
  std::shared_ptr<URLOpener> before_ = URLOpener::install(recorder_);
};

TEST_F(URLOpenerTest, OpensPagesMailsCallsAndOtherApps) {
  const std::vector<std::string> addresses = {
      "https://shop.example/returns?x=javascript:1#file:",
      "HTTP://shop.example",
      "mailto:help@shop.example?Subject=Return%20&&body=a;b&cc=x@shop.example",
      "tel:+47-22-33-44",
      "sms:+4722?body=hi",
      "whatsapp://send?text=hi",
      "com.example.shop:/returns",
      "market://details?id=shop",
      "geo:59.9,10.7",
  };
  for (const auto& address : addresses) {
    EXPECT_TRUE(URLOpener::openOutside(*URL::parse(address))) << address;
  }
  EXPECT_EQ(recorder_->opened, addresses);

  URLOpener::install(nullptr);
  EXPECT_FALSE(URLOpener::openOutside(*URL::parse("https://shop.example")));
}

TEST_F(URLOpenerTest, RefusesWhatWouldReachThisMachineOrRunScript) {
  for (const std::string_view address : {"file:///etc/passwd",
                                         "FILE:/etc/passwd",
                                         "fIlE://host/share",
                                         "javascript:alert(1)",
                                         "JavaScript:%0Aalert(1)",
                                         "data:text/html,x",
                                         "blob:https://a/1",
                                         "about:blank",
                                         "view-source:https://a",
                                         "content://sms/inbox",
                                         "filesystem:https://a/t/x",
                                         "qrc:/x",
                                         "chrome://settings",
                                         "chrome-extension://x/y",
                                         "safari-web-extension://x",
                                         "devtools://x",
                                         "vbscript:x",
                                         "jar:file:///a!/b",
                                         "intent://x#Intent;scheme=file;end",
                                         "ms-msdt:/id",
                                         "search-ms:query=x",
                                         "smb://evil/share",
                                         "ssh://evil",
                                         "git+ssh://evil",
                                         "feed:file:/x",
                                         "c:/windows/calc.exe",
                                         "http:evil",
                                         "https:///etc/passwd",
                                         "http://:80/",
                                         "mailto:a@b?attach=/etc/passwd",
                                         "mailto:a@b?subject=x&Attachment=/x",
                                         "mailto:?%61ttach=/x",
                                         "tel:*21*123#",
                                         "tel:%2a%2306%23"}) {
    const auto url = URL::parse(address);
    ASSERT_TRUE(url) << address;
    EXPECT_FALSE(URLOpener::openOutside(*url)) << address;
  }
  // Disguises that readers of web pages see through make no address in the first place.
  for (const std::string_view disguise :
       {" file:///x", "\tjavascript:x", "java\nscript:x", "java\tscript:x",
        "\x01"
        "data:,x",
        "\u00A0file:/x", "file%3A/x", "//host/share", "\\\\host\\share", "/etc/passwd", ""}) {
    EXPECT_FALSE(URL::parse(disguise)) << disguise;
  }
  EXPECT_TRUE(recorder_->opened.empty());
}

}  // namespace
