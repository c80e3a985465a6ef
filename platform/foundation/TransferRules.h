#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/foundation/URLError.h"

namespace quorix::foundation {

// Where a transfer over the network may lead, which requests share a transfer, and how many run at
// a time.

/// `scheme` is in lower case.
inline bool isHTTP(std::string_view scheme) { return scheme == "http" || scheme == "https"; }

/// Why a transfer does not follow its `count`th redirect, from an address with the scheme `from` to
/// one with the scheme `to`; absent if it does. It follows 20, to http and https only, and from
/// https only to https.
QUORIX_EXPORT std::optional<URLResponse> refuseRedirect(std::string_view from, std::string_view to,
                                                        int count);

/// The transfers that run or wait, and the tasks that each of them serves.
class QUORIX_EXPORT TransferQueue {
 public:
  using Task = std::uint64_t;

  /// Tasks for which all of this is equal share a transfer.
  struct Transfer {
    std::string address;
    std::string server;  ///< host and port
    std::chrono::milliseconds timeLimit;

    auto operator<=>(const Transfer&) const = default;
  };

  static constexpr int mostPerServer = 6;

  /// Adds `task` to `transfer`, which may be running already.
  void add(Task task, const Transfer& transfer);

  /// Starts the transfer that has waited longest, of those for whose server fewer than
  /// `mostPerServer` run. Absent if there is none.
  std::optional<Transfer> start();

  /// Ends a running transfer and returns its tasks, the oldest first.
  std::vector<Task> end(const Transfer& transfer);

 private:
  std::map<Transfer, std::vector<Task>> tasks_;
  std::vector<Transfer> waiting_;       // the oldest first
  std::multiset<std::string> running_;  // their servers
};

}  // namespace quorix::foundation
