// Counts the work from a builder call to the painted picture of a score row: always the same row
// ("same"), or each time the row of another shopper ("different"). Prints the allocations of a
// call. Under callgrind, the difference between two runs with different CALLS gives the
// instructions of a call.
//
//   counted_picture same|different [CALLS]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include "bench/Allocations.h"
#include "bench/BenchApplication.h"
#include "bench/Subjects.h"
#include "qt/Picture.h"

int main(int argc, char** argv) {
  using namespace quorix;
  const bench::BenchApplication application(argc, argv);
  const bool different = argc > 1 && std::string_view(argv[1]) == "different";
  const int calls = argc > 2 ? std::atoi(argv[2]) : 1000;

  // More shoppers than a cache of texts can hold.
  std::vector<std::unique_ptr<bench::Shopper>> shoppers;
  for (std::size_t i = 0; i < (different ? 997 : 1); ++i) {
    shoppers.push_back(std::make_unique<bench::Shopper>(i));
  }
  qt::PictureOptions options;
  options.width = 343;
  options.height = 17;
  options.background = graphics::RGBA{0, 0, 0, 0};  // like the library's surfaces
  const auto paint = [&](std::size_t turn) {
    const auto& shopper = shoppers[turn % shoppers.size()];
    if (qt::picture(shopper->ours(), options).isNull()) std::abort();
  };
  std::size_t turn = 0;
  while (turn < 20) paint(turn++);

  const std::size_t before = bench::allocations();
  for (int i = 0; i < calls; ++i) paint(turn++);
  std::printf("{\"allocations\": %.1f}\n",
              static_cast<double>(bench::allocations() - before) / std::max(1, calls));
}
