#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <tuple>
#include <type_traits>
#include <utility>

namespace quorix::graphics {
struct AssetCatalogs;
class FontManager;
}  // namespace quorix::graphics
namespace quorix::uikit {
class UIApplication;
struct InterfaceFiles;
struct SharedTexts;
}  // namespace quorix::uikit
namespace quorix::hosting {
class RecentEvaluations;
struct WindowSessions;
}  // namespace quorix::hosting

namespace quorix::foundation {

struct ArenaPool;
struct BundleRegistry;
struct CurrencyFormatters;
struct MainQueueState;
struct StringTables;
class URLSession;

/// The process-wide state of the library. Each piece is made on its first use, in the file that
/// defines its type, and is never destroyed: other threads and static views may outlive `main`. No
/// piece needs another to be made. An engine then installs its own parts in `MainQueueState`,
/// `FontManager`, `URLSession` and `UIApplication`, in that order.
///
/// Not listed: constants (named colors, the library's faces), thread-local caches, and an engine's
/// own objects. Any thread.
///
///     return Runtime::the<BundleRegistry>();
class Runtime {
 public:
  using Pieces = std::tuple<MainQueueState*,               // its work, and the engine's executor
                            BundleRegistry*,               // by identifier, and the main bundle
                            StringTables*,                 // parsed, the latest few
                            CurrencyFormatters*,           // the latest few
                            ArenaPool*,                    // free arenas
                            graphics::AssetCatalogs*,      // of the latest few bundles
                            graphics::FontManager*,        // added faces, and the engine's look-up
                            URLSession*,                   // protocols, and the engine's transport
                            uikit::InterfaceFiles*,        // parsed, the latest few
                            uikit::SharedTexts*,           // attributed, the latest few
                            uikit::UIApplication*,         // scenes, and the engine's opener
                            hosting::WindowSessions*,      // of all windows
                            hosting::RecentEvaluations*>;  // of views during their layout

  /// The process's piece of type `T`.
  template <class T>
  static T& the() {
    Slot& slot = slotOf<T>();
    void* piece = slot.piece.load(std::memory_order_acquire);
    return *static_cast<T*>(piece ? piece : make<T>(slot));
  }

  /// For tests: removes the piece, so that a new one is made, and restores it at the end of the
  /// block. No other thread may use the piece at either moment.
  template <class T>
  class Fresh {
   public:
    Fresh() : before_(slotOf<T>().piece.exchange(nullptr)) {}
    ~Fresh() {
      void* const fresh = slotOf<T>().piece.exchange(before_);
      if (fresh) slotOf<T>().destroy(fresh);
    }
    Fresh(const Fresh&) = delete;
    Fresh& operator=(const Fresh&) = delete;

   private:
    void* before_;
  };

 private:
  struct Slot {
    std::atomic<void*> piece;
    void (*destroy)(void*);
  };

  template <class T, std::size_t... at>
  static constexpr std::size_t placeOf(std::index_sequence<at...>) {
    static_assert((std::is_same_v<T*, std::tuple_element_t<at, Pieces>> + ...) == 1);
    return ((std::is_same_v<T*, std::tuple_element_t<at, Pieces>> ? at : 0) + ...);
  }

  template <class T>
  static Slot& slotOf() {
    return slots_[placeOf<T>(std::make_index_sequence<std::tuple_size_v<Pieces>>())];
  }

  template <class T>
  static void* make(Slot& slot) {
    const std::scoped_lock lock(making_);
    if (void* const piece = slot.piece.load(std::memory_order_relaxed)) return piece;
    T* const piece = new T;
    slot.destroy = [](void* made) { delete static_cast<T*>(made); };
    slot.piece.store(piece, std::memory_order_release);
    return piece;
  }

  inline static std::array<Slot, std::tuple_size_v<Pieces>> slots_;
  inline static std::mutex making_;
};

}  // namespace quorix::foundation
