#pragma once

#include <windows.h>

#include <exception>
#include <utility>

namespace ui {

/// Keeps exceptions out of the window system: a callback's exception is kept here, whatever loop
/// is running is left, and the caller of that loop lets it go on from there.
class Guard {
 public:
  /// Runs the body of a callback; `fallback` is the answer when it throws.
  template <typename Body>
  LRESULT Run(LRESULT fallback, Body&& body) noexcept {
    ++depth_;
    LRESULT result = fallback;
    try {
      result = std::forward<Body>(body)();
    } catch (...) {
      Keep();
    }
    --depth_;
    return result;
  }

  /// To be called after everything that may have run callbacks.
  void Rethrow();

  /// Whether a callback is running.
  bool IsInside() const { return depth_ > 0; }

 private:
  void Keep() noexcept;

  std::exception_ptr kept_;
  int depth_ = 0;
};

}  // namespace ui
