#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <new>
#include <utility>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// Allocates memory in sequence, frees all of it at once, and is then used again. One lease at a
/// time; main thread.
///
///     const Arena::Lease lease = Arena::lease();
///     auto* names = lease->make<std::pmr::vector<int>>(lease->resource());
class QUORIX_EXPORT Arena {
 public:
  struct EndLease {
    void operator()(Arena* arena) const { arena->endLease(); }
  };
  using Lease = std::unique_ptr<Arena, EndLease>;

  /// Leases a free arena. The end of the lease destroys the objects in it, except shared objects
  /// (`SharedIn`) that still have owners: the arena becomes free when the last of those is
  /// destroyed.
  static Lease lease();

  /// The arena of the innermost `Scope`, or null.
  static Arena* current();
  /// The memory of `current`, or the heap. For members of a shared object in that arena.
  static std::pmr::memory_resource* currentResource() {
    Arena* arena = current();
    return arena ? arena->resource() : std::pmr::new_delete_resource();
  }
  class Scope;

  void* allocate(std::size_t size, std::size_t alignment) {
    return memory_.allocate(size, alignment);
  }
  std::pmr::memory_resource* resource() { return &memory_; }

  /// Makes an object that is destroyed with the lease.
  template <class T, class... Arguments>
  T* make(Arguments&&... arguments) {
    if constexpr (std::is_trivially_destructible_v<T>) {
      return new (allocate(sizeof(T), alignof(T))) T{std::forward<Arguments>(arguments)...};
    } else {
      struct Owned final : Ending {
        explicit Owned(Arguments&&... given) : value{std::forward<Arguments>(given)...} {}
        T value;
      };
      auto* owned = new (allocate(sizeof(Owned), alignof(Owned)))
          Owned(std::forward<Arguments>(arguments)...);
      owned->next = endings_;
      owned->end = [](Ending* self) { static_cast<Owned*>(self)->~Owned(); };
      endings_ = owned;
      return &owned->value;
    }
  }

  /// An array of default values, trivially destructible.
  template <class T>
  T* array(std::size_t count) {
    static_assert(std::is_trivially_destructible_v<T>);
    T* values = static_cast<T*>(allocate(sizeof(T) * count, alignof(T)));
    std::uninitialized_value_construct_n(values, count);
    return values;
  }

  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

 private:
  template <class T>
  friend class SharedIn;
  friend struct ArenaPool;
  /// A destructor to run at the end of the lease.
  struct Ending {
    Ending* next;
    void (*end)(Ending*);
  };

  Arena();
  ~Arena() = default;
  void endLease();
  void endShared();
  void reuse();

  static constexpr std::size_t capacity = 24 * 1024;  // bytes: a sheet's evaluation fits
  std::unique_ptr<std::byte[]> buffer_;
  std::pmr::monotonic_buffer_resource memory_;
  Ending* endings_ = nullptr;
  std::size_t shared_ = 0;  // live shared objects
  bool leased_ = false;
};

/// Makes `arena` the current one until the end of the block.
class QUORIX_EXPORT Arena::Scope {
 public:
  explicit Scope(Arena& arena);
  ~Scope();
  Scope(const Scope&) = delete;
  Scope& operator=(const Scope&) = delete;

 private:
  Arena* before_;
};

/// Allocates shared objects in an arena, or on the heap where it is null. For
/// `std::allocate_shared`.
template <class T>
class SharedIn {
 public:
  using value_type = T;

  explicit SharedIn(Arena* arena) : arena_(arena) {}
  template <class U>
  SharedIn(const SharedIn<U>& other)
      : arena_(other.arena()) {}  // NOLINT(google-explicit-constructor)

  T* allocate(std::size_t count) {
    if (!arena_) return std::allocator<T>().allocate(count);
    ++arena_->shared_;
    return static_cast<T*>(arena_->allocate(sizeof(T) * count, alignof(T)));
  }
  void deallocate(T* memory, std::size_t count) {
    arena_ ? arena_->endShared() : std::allocator<T>().deallocate(memory, count);
  }

  Arena* arena() const { return arena_; }
  bool operator==(const SharedIn& other) const { return arena_ == other.arena_; }

 private:
  Arena* arena_;
};

}  // namespace quorix::foundation
