#include "platform/foundation/TransferRules.h"

#include <algorithm>
#include <utility>

namespace quorix::foundation {

std::optional<URLResponse> refuseRedirect(std::string_view from, std::string_view to, int count) {
  constexpr int most = 20;
  if (count > most) return failure(URLError::tooManyRedirects, "too many redirects");
  if (!isHTTP(to)) {
    return failure(URLError::unsupportedScheme, "the redirect leads to neither http nor https");
  }
  if (from == "https" && to != "https") {
    return failure(URLError::insecureRedirect, "the redirect leads from https to http");
  }
  return std::nullopt;
}

void TransferQueue::add(Task task, const Transfer& transfer) {
  auto& tasks = tasks_[transfer];
  if (tasks.empty()) waiting_.push_back(transfer);
  tasks.push_back(task);
}

std::optional<TransferQueue::Transfer> TransferQueue::start() {
  const auto next = std::ranges::find_if(waiting_, [this](const Transfer& transfer) {
    return running_.count(transfer.server) < mostPerServer;
  });
  if (next == waiting_.end()) return std::nullopt;
  running_.insert(next->server);
  std::optional<Transfer> started = *next;
  waiting_.erase(next);
  return started;
}

std::vector<TransferQueue::Task> TransferQueue::end(const Transfer& transfer) {
  running_.erase(running_.find(transfer.server));
  return std::move(tasks_.extract(transfer).mapped());
}

}  // namespace quorix::foundation
