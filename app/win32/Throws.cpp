#include <exception>
#include <new>
#include <string>

// Stand in for the compiler's own functions that its library throws through. Those bring the
// standard's kinds of failure with every operation of two kinds of narrow strings, into a program
// that asks a failure for its text and never for its kind. A function that is used and missing here
// brings the compiler's own back, and then the linker refuses both.
namespace {

class Failure final : public std::exception {
 public:
  explicit Failure(const char* text) : text_(text) {}
  const char* what() const noexcept override { return text_; }

 private:
  const char* text_;  // always a literal of the library
};

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
namespace std {

void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_array_new_length(); }
void __throw_bad_function_call() { throw Failure("bad_function_call"); }
void __throw_length_error(const char* text) { throw Failure(text); }
void __throw_logic_error(const char* text) { throw Failure(text); }
void __throw_out_of_range_fmt(const char*, ...) { throw Failure("out_of_range"); }

}  // namespace std
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
