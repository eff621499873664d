#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <new>
#include <string>
#include <vector>

// How what the standard's containers refuse reaches a handler in the product: as an exception that
// says what it was. Prints as the test framework would.
namespace {

/// What the handler of a procedure would get to see.
template <typename Body>
std::string ToldBy(Body body) {
  try {
    body();
  } catch (const std::bad_alloc&) {
    return "bad_alloc";
  } catch (const std::exception& error) {
    return error.what();
  }
  return "nothing";
}

struct Checks {
  int passed = 0;
  int failed = 0;

  void Expect(const char* name, const std::string& told, const char* wanted) {
    if (told == wanted) {
      ++passed;
      return;
    }
    ++failed;
    std::printf("%s: told \"%s\" instead of \"%s\"\n", name, told.c_str(), wanted);
  }
};

// Not known to the compiler, so that it cannot work them out before.
volatile std::size_t far = 9;
volatile std::size_t much = SIZE_MAX / 4;
volatile bool lost = true;

}  // namespace

int main() {
  Checks checks;
  checks.Expect("a place behind a text's end",
                ToldBy([] { static_cast<void>(std::wstring(L"text").substr(far)); }),
                "out_of_range");
  checks.Expect("a row behind the last one",
                ToldBy([] { static_cast<void>(std::vector<int>(3).at(far)); }), "out_of_range");
  checks.Expect("a text that is too long", ToldBy([] { std::wstring().reserve(much * 2); }),
                "basic_string::_M_create");
  checks.Expect("a text made of nothing", ToldBy([] {
                  const wchar_t* none = lost ? nullptr : L"";
                  static_cast<void>(std::wstring(none));
                }),
                "basic_string: construction from null is not valid");
  checks.Expect("a call of no function", ToldBy([] { std::function<void()>()(); }),
                "bad_function_call");
  checks.Expect("more memory than there is",
                ToldBy([] { static_cast<void>(std::vector<char>(much)); }), "bad_alloc");
  std::printf("[  PASSED  ] %d tests.\n", checks.passed);
  if (checks.failed != 0) std::printf("[  FAILED  ] %d tests.\n", checks.failed);
  return checks.failed == 0 ? 0 : 1;
}
