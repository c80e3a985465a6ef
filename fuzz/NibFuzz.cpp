#include <cmath>
#include <cstdint>

#include "fuzz/Expect.h"
#include "platform/uikit/Nib.h"
#include "platform/uikit/ViewLayout.h"
#include "tests/core/FixedWidthText.h"

using namespace quorix;

namespace {

void expectFinite(const uikit::UIView& view) {
  const layout::Rect& frame = view.frame();
  expect(std::isfinite(frame.right()) && std::isfinite(frame.bottom()), "every frame is somewhere");
  for (const auto& subview : view.subviews()) expectFinite(*subview);
}

}  // namespace

/// Any bytes are either refused with a message, or give a view that can be laid out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  std::shared_ptr<uikit::UIView> content;
  std::weak_ptr<uikit::UILabel> title, link;
  const auto file = foundation::Bundle::of(
      {{"Fuzz.xib", foundation::Data({reinterpret_cast<const char*>(bytes), size})}});
  const auto read = uikit::Nib::load(
      "Fuzz", *file, "UIInfoWidget",
      {{{"contentView", &content}}, {{"titleLabel", &title}, {"linkLabel", &link}}});
  if (const auto* error = std::get_if<foundation::Error>(&read)) {
    expect(!error->description.empty(), "a refusal has its reason");
    expect(!content && title.expired() && link.expired(), "a refused file connects nothing");
    return 0;
  }
  testing::FixedWidthText text;
  const uikit::LayoutContext context{text, {}};
  const uikit::ViewLayout layout(context);
  for (const auto& view : std::get<uikit::Nib::Views>(read)) {
    const layout::Size size320 = layout.sizeThatFits(*view, {320, std::nullopt});
    layout.layOut(*view, {{}, size320});
    expectFinite(*view);
  }
  return 0;
}
