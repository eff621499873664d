#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

// The product's own guard of the stack, in a program without the test framework: with that one's
// libraries the compiler's guard would come, too. Starts itself to see how it ends. Prints as the
// test framework would.
extern "C" std::uintptr_t __stack_chk_guard;  // NOLINT(bugprone-reserved-identifier)

namespace {

// Not known to the compiler, so that it cannot see what is written where.
volatile std::size_t tooMuch = 64;

[[gnu::noinline]] void Smash() {
  char room[16];
  std::memset(room, 'x', tooMuch);
  // Used, or it would not be written.
  std::printf("%c", room[0]);
}

DWORD ExitCodeWith(const wchar_t* argument) {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(program) + L"\" " + argument;
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    return 0;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code;
}

struct Checks {
  int passed = 0;
  int failed = 0;

  void Expect(const char* name, bool holds, DWORD told) {
    if (holds) {
      ++passed;
      return;
    }
    ++failed;
    std::printf("%s: told 0x%08lX\n", name, told);
  }
};

}  // namespace

int main(int count, char** arguments) {
  const std::string wanted = count > 1 ? arguments[1] : "";
  if (wanted == "secret") return static_cast<int>(__stack_chk_guard >> 3);
  if (wanted == "smash") {
    Smash();
    return 0;
  }
  Checks checks;
  const DWORD smashed = ExitCodeWith(L"smash");
  checks.Expect("a smashed stack ends the program as such", smashed == STATUS_STACK_BUFFER_OVERRUN,
                smashed);
  const DWORD secret = ExitCodeWith(L"secret");
  checks.Expect("the guard is something", secret != 0, secret);
  checks.Expect("the guard is another one each time", ExitCodeWith(L"secret") != secret, secret);
  std::printf("[  PASSED  ] %d tests.\n", checks.passed);
  if (checks.failed != 0) std::printf("[  FAILED  ] %d tests.\n", checks.failed);
  return checks.failed == 0 ? 0 : 1;
}
