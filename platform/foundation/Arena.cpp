#include "platform/foundation/Arena.h"

#include <vector>

#include "platform/foundation/Runtime.h"

namespace quorix::foundation {
namespace {

constexpr std::size_t mostIdle = 4;
thread_local Arena* currentArena = nullptr;

}  // namespace

/// Keeps free arenas for the next lease.
struct ArenaPool {
  std::vector<Arena*> idle;

  ~ArenaPool() {
    for (const Arena* arena : idle) delete arena;
  }
};

Arena::Arena()
    : buffer_(std::make_unique<std::byte[]>(capacity)), memory_(buffer_.get(), capacity) {}

Arena::Lease Arena::lease() {
  auto& idle = Runtime::the<ArenaPool>().idle;
  Arena* arena = nullptr;
  if (idle.empty()) {
    arena = new Arena;
  } else {
    arena = idle.back();
    idle.pop_back();
  }
  arena->leased_ = true;
  return Lease(arena);
}

void Arena::endLease() {
  while (endings_) {
    Ending* ending = std::exchange(endings_, endings_->next);
    ending->end(ending);
  }
  leased_ = false;
  if (shared_ == 0) reuse();
}

void Arena::endShared() {
  if (--shared_ == 0 && !leased_) reuse();
}

void Arena::reuse() {
  auto& idle = Runtime::the<ArenaPool>().idle;
  if (idle.size() >= mostIdle) {
    delete this;
    return;
  }
  memory_.release();
  idle.push_back(this);
}

Arena* Arena::current() { return currentArena; }

Arena::Scope::Scope(Arena& arena) : before_(std::exchange(currentArena, &arena)) {}
Arena::Scope::~Scope() { currentArena = before_; }

}  // namespace quorix::foundation
