#include "platform/foundation/TransferRules.h"

#include <algorithm>
#include <cstddef>
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

std::vector<std::string> connectionOrder(const std::vector<std::string>& addresses) {
  constexpr std::size_t most = 10;
  const auto isIPv6 = [](const std::string& address) { return address.find(':') != address.npos; };
  std::vector<std::string> order, rest;
  for (const std::string& address : addresses) {
    (isIPv6(address) == isIPv6(addresses.front()) ? order : rest).push_back(address);
  }
  for (std::size_t i = 0; i < rest.size(); ++i) {
    const auto place = std::min(2 * i + 1, order.size());
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), rest[i]);
  }
  order.resize(std::min(order.size(), most));
  return order;
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
