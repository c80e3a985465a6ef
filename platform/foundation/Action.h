#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace quorix::foundation {

/// A callable that its copies share: copying allocates no memory. Runs on the thread that calls
/// it.
///
///     auto open = std::make_shared<bool>(true);
///     const Action close = [open] { *open = false; };
///     if (close) close();
class Action {
 public:
  /// An absent action: must not be called.
  Action() = default;
  Action(std::nullptr_t) {}  // NOLINT(google-explicit-constructor)

  template <class F>
  requires(std::invocable<F&> && !std::same_as<std::remove_cvref_t<F>, Action>)
      Action(F&& callable) {  // NOLINT(google-explicit-constructor): any callable is an action
    using Callable = std::remove_cvref_t<F>;
    if constexpr (std::same_as<Callable, std::function<void()>>) {
      if (!callable) return;
    }
    call_ = std::make_shared<CallOf<Callable>>(std::forward<F>(callable));
  }

  explicit operator bool() const { return call_ != nullptr; }
  bool operator==(std::nullptr_t) const { return call_ == nullptr; }
  /// Whether both are copies of the same action.
  bool operator==(const Action& other) const { return call_ == other.call_; }

  /// Runs it. The action lives until the call returns, also when the call drops its last owner.
  void operator()() const {
    const auto kept = call_;
    kept->run();
  }

 private:
  struct Call {
    virtual ~Call() = default;
    virtual void run() = 0;
  };
  template <class F>
  struct CallOf final : Call {
    explicit CallOf(F f) : callable(std::move(f)) {}
    void run() override { callable(); }
    F callable;
  };

  std::shared_ptr<Call> call_;
};

}  // namespace quorix::foundation
