// A program without Qt: the figures of a token, the row with its spoken text in the host's own
// words, and fonts for texts beside it.
#include <QuorixWidgets/data/TokenData.h>
#include <QuorixWidgets/data/UserDetails.h>
#include <QuorixWidgets/localization/Font.h>
#include <QuorixWidgets/localization/ResourceBundle.h>
#include <QuorixWidgets/localization/UIFont.h>
#include <QuorixWidgets/score/ScoreWidgetBuilder.h>
#include <platform/foundation/Bundle.h>
#include <platform/foundation/URL.h>
#include <platform/hosting/ViewHost.h>
#include <platform/swiftui/TreePrinter.h>
#include <platform/swiftui/UIViewRepresentable.h>

#include <iostream>

#include "../Token.h"

namespace {

bool hasFonts() {
  using namespace quorix;
  const auto fee = Font::Quorix::fixed(QuorixFont::regular(), 14);
  const auto title = Font::Tova::relative(TovaFont::regular(), 16, swiftui::TextStyle::headline);
  const auto label = UIFont::Quorix::fixed(QuorixFont::medium(), 13);
  const auto link = UIFont::Tova::fixed(TovaFont::regular(), 13);
  return fee.name() == "Saans-Regular" && !fee.scales() && title.size() == 16 && title.scales() &&
         label->name() == "Saans-Medium" && link->pointSize() == 13;
}

/// A text engine: each byte of a text is ten points wide.
struct PlainText final : quorix::text::TextEngine {
  quorix::text::TextMetrics measure(const quorix::text::AttributedText& text, double) override {
    return {{leastWidth(text), 20}};
  }
  double leastWidth(const quorix::text::AttributedText& text) override {
    double width = 0;
    for (const auto& run : text.runs) width += 10 * static_cast<double>(run.text.size());
    return width;
  }
};

/// The spoken text of `view`.
std::string spoken(const quorix::swiftui::View& view) {
  PlainText text;
  quorix::hosting::ViewHost::Client surface;
  quorix::hosting::ViewHost host(text, surface);
  host.setRoot(view);
  const auto& elements = host.scene({390, 80}).accessibility;
  return elements.empty() ? "nothing" : elements.front().label;
}

struct Page {
  static constexpr std::string_view typeName = "Page";
  auto makeUIViewController() const { return std::make_shared<quorix::uikit::UIViewController>(); }
  void updateUIViewController(quorix::uikit::UIViewController&) const {}
};

/// A host's own address, joined text and screen.
bool hasOwnViews() {
  using namespace quorix::swiftui;
  auto address = quorix::foundation::URLComponents::parse("https://shop.example/returns");
  address->setQueryItems({{"lang", "en"}});
  const Text joined = Text::verbatim("Free for ") + Text::verbatim("30 days");
  return address->url()->absoluteString() == "https://shop.example/returns?lang=en" &&
         joined.parts().size() == 2 && printTree(represent(Page())) == "Page\n";
}

}  // namespace

int main() {
  using quorix::foundation::Bundle;
  using quorix::foundation::Data;
  quorix::setTheme(Bundle::of({}));
  Bundle::setMain(Bundle::of(
      {{"en.lproj/Localizable.strings", Data("\"%@ %@ %@, %@ %@\" = \"%3$@ instead of %5$@\";")}}));
  const auto figures = quorix::parseTokenData(shopperToken);
  const auto row = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
  const std::string tree = quorix::swiftui::printTree(row), words = spoken(row);
  std::cout << tree << '\n' << words << '\n';
  quorix::foundation::JSONDocument document;
  const auto answer = document.parse(R"([{"item_return_rate": 0.5}])");
  const auto& shoppers = std::get<quorix::foundation::JSONValue>(answer);
  const auto details = quorix::UserDetails::decode(shoppers.elements().front());
  const auto* error = std::get_if<quorix::foundation::DecodingError>(&details);
  const bool right = figures && figures->currency == "EUR" && figures->returnsFee == 600 &&
                     tree.find("3.00") != std::string::npos && hasFonts() && hasOwnViews() &&
                     words == "€3.00 instead of €6.00" && error != nullptr &&
                     error->key == "item_return_percentile";
  return right ? 0 : 1;
}
