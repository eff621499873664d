#include <windows.h>
// The order matters: windows.h first.
#include <ntsecapi.h>

#include <cstdint>

// Stands in for the compiler's own guard of the stack. To choose its secret that one opens Windows'
// old store of keys, which loads and unloads three libraries before the program's first step; and
// on a smashed stack it goes on to print, into a console that is not there.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" {

std::uintptr_t __stack_chk_guard = 0;

/// Ends the program at once and tells Windows why: nothing on the stack can be relied upon.
[[noreturn]] void __stack_chk_fail() {
  constexpr int kSmashedStack = 2;
  __asm__ volatile("int\t$0x29" : : "c"(kSmashedStack));
  __builtin_unreachable();
}

}  // extern "C"

namespace {

/// Before any of the program's own code, and itself not guarded by what it changes.
__attribute__((constructor, no_stack_protector)) void ChooseStackGuard() {
  std::uintptr_t secret = 0;
  if (RtlGenRandom(&secret, sizeof secret) == FALSE) {
    // Less than random: where the stack lies, which Windows chooses anew for each process, and
    // when.
    secret = reinterpret_cast<std::uintptr_t>(&secret) ^ GetTickCount();
  }
  __stack_chk_guard = secret;
}

}  // namespace
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
