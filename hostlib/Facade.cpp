#include "hostlib/Facade.h"

namespace hostlib {
namespace {

constexpr std::int32_t kNoObject = 91;

}  // namespace

Value Facade::CallWith(const Operation& operation, const Arguments& arguments) const {
  try {
    if (object_ == nullptr) {
      throw LibraryError(kNoObject, L"hostlib", L"The object is not there (any more)",
                         LibraryError::Outcome::kNotSent);
    }
    if (operation.interfaceNumber == 1) return object_->Call(operation.slot, arguments);
    return object_->Interface(operation.interfaceNumber)->Call(operation.slot, arguments);
  } catch (LibraryError& error) {
    error.Locate(operation.object, operation.name);
    throw;
  }
}

}  // namespace hostlib
