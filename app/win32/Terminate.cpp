#include <cstdlib>

// Stands in for the compiler's own last words on an exception that nobody caught, which would go to
// a console that is not there and bring the decoder of C++ names into every program.
namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

void __verbose_terminate_handler();  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx
