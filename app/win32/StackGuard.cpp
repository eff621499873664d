#include <windows.h>

#include <cstdint>

// Stands in for the compiler's own guard of the stack. To choose its secret that one opens Windows'
// old store of keys, for which Wine loads and unloads three libraries before the program's first
// step; and on a smashed stack it goes on to print, into a console that is not there.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" {

std::uintptr_t __stack_chk_guard = 0;

/// Ends the program at once and tells Windows why: nothing on the stack can be relied upon.
[[noreturn]] void __stack_chk_fail() {
  constexpr int kSmashedStack = 2;
  __asm__ volatile("int $0x29" : : "c"(kSmashedStack));
  __builtin_unreachable();
}

}  // extern "C"

namespace {

__attribute__((always_inline)) inline std::uint64_t Mixed(std::uint64_t secret,
                                                          std::uint64_t with) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
  secret = (secret ^ with) * kOdd;
  return secret ^ (secret >> 32);
}

/// Before any of the program's own code, and itself not guarded by what it changes. From what
/// kernel32 knows and nobody foresees: where Windows has put the stack, the processor's clock, the
/// time and who runs. Windows' own random numbers come out of a further library, which would be
/// looked for before the program can say where.
__attribute__((constructor(101), no_stack_protector)) void ChooseStackGuard() {
  FILETIME time = {};
  GetSystemTimeAsFileTime(&time);
  LARGE_INTEGER clock = {};
  QueryPerformanceCounter(&clock);
  std::uint64_t secret = reinterpret_cast<std::uintptr_t>(&secret);
  secret = Mixed(secret, static_cast<std::uint64_t>(clock.QuadPart));
  secret = Mixed(secret, (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime);
  secret = Mixed(secret, (std::uint64_t{GetCurrentProcessId()} << 32) | GetCurrentThreadId());
  __stack_chk_guard = static_cast<std::uintptr_t>(secret);
}

}  // namespace
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
