// The widgets without Qt: shapes its fonts itself, lays the widgets out, and writes their display
// lists as SVG files.
//
//   quorix-svg FOLDER [LANGUAGE] [TOKEN]
//
// Writes row.svg, info.svg and imperative.svg into FOLDER, which must exist.

#include <cstdio>
#include <exception>
#include <fstream>
#include <string>

#include "OutlineTextEngine.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "SvgPainter.h"
#include "platform/foundation/MainQueue.h"
#include "platform/hosting/ViewHost.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace {

using namespace quorix;

constexpr double kWidth = 343;  // points
// A return rate of 18 percent, a fee of 6 euros and a discounted fee of 3.
constexpr std::string_view kToken =
    "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9."
    "eyJkYXRhIjp7ImJhc2VfZmVlX2Ftb3VudCI6NjAwLCJkaXNjb3VudGVkX2ZlZV9hbW91bnQiOjMwMCwiZmVlX2N1cnJlbm"
    "N5IjoiRVVSIiwic2NvcmUiOjAuODJ9fQ."
    "_CgKMvOVq5BAg43l_78kN7nb0vBMVh5Z2jyzaAXW2cQ";
constexpr graphics::RGBA kPaper{255, 255, 255, 255};

/// Writes `view` to `path`. False on failure.
bool write(const swiftui::View& view, const std::string& path) {
  examples::OutlineTextEngine fonts;
  hosting::ViewHost::Client surface;
  hosting::ViewHost host(fonts, surface);
  host.setRoot(view);
  foundation::MainQueue::drain();  // sets the title of an imperative widget
  const layout::Size size = {kWidth, host.sizeThatFits({kWidth, std::nullopt}).height};
  std::ofstream file(path);
  file << examples::SvgPainter(fonts).paint(host.scene(size), kPaper);
  return file.good();
}

int run(int argc, char** argv) {
  if (argc < 2 || argc > 4) {
    std::fputs("usage: quorix-svg FOLDER [LANGUAGE] [TOKEN]\n", stderr);
    return 2;
  }
  const std::string folder = std::string(argv[1]) + '/';
  const std::string language = argc > 2 ? argv[2] : "en";
  const std::string token = argc > 3 ? argv[3] : std::string(kToken);
  const InfoWidgetStyle style(std::nullopt, std::nullopt, std::nullopt, true);
  const auto imperative = InfoWidgetBuilder::buildUIKitInfoWidgetView(language, style);
  const std::pair<const char*, swiftui::View> widgets[] = {
      {"row.svg", ScoreWidgetBuilder::buildSwiftUIScoreWidgetView("quorix-svg", language, token,
                                                                  {std::nullopt, std::nullopt})},
      {"info.svg", InfoWidgetBuilder::buildSwiftUIInfoWidgetView(language, style)},
      {"imperative.svg", swiftui::hosting(imperative)},
  };
  for (const auto& [name, view] : widgets) {
    if (write(view, folder + name)) continue;
    std::fprintf(stderr, "quorix-svg: cannot write %s%s\n", folder.c_str(), name);
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quorix-svg: %s\n", error.what());
    return 1;
  }
}
