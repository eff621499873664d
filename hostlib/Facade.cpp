#include "hostlib/Facade.h"

namespace hostlib {
namespace {

constexpr std::int32_t kNoObject = 91;

}  // namespace

Value Facade::Call(const Operation& operation, const Arguments& arguments) const {
  try {
    if (object_ == nullptr) {
      throw LibraryError(kNoObject, L"hostlib", L"The object is not there (any more)",
                         LibraryError::Outcome::kNotSent);
    }
    const ObjectPtr target =
        operation.interfaceNumber == 1 ? object_ : object_->Interface(operation.interfaceNumber);
    return target->Call(operation.slot, arguments);
  } catch (LibraryError& error) {
    error.Locate(operation.object, operation.name);
    throw;
  }
}

}  // namespace hostlib
