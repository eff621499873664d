#pragma once

#include <memory>
#include <type_traits>

namespace common {

/// The body of a procedure, to be called before the function that takes it returns: it refers to a
/// callable and keeps nothing alive. Costs next to nothing where std::function, which can be kept,
/// brings code to copy and to name every single body.
class Body {
 public:
  template <typename Callable>
  requires(!std::is_same_v<std::remove_cvref_t<Callable>, Body>) Body(const Callable& callable)
      : callable_(std::addressof(callable)),
        call_([](const void* it) { (*static_cast<const Callable*>(it))(); }) {}

  void operator()() const { call_(callable_); }

 private:
  const void* callable_;
  void (*call_)(const void*);
};

}  // namespace common
