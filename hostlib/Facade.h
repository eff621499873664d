#pragma once

#include <array>

#include "hostlib/Object.h"
#include "hostlib/Operations.h"

namespace hostlib {

/// One library object, called by its operations. What every facade is built on: it knows how an
/// operation is called and named when it fails, and nothing else.
class Facade {
 public:
  const ObjectPtr& object() const { return object_; }

 protected:
  Facade() = default;
  explicit Facade(ObjectPtr object) : object_(std::move(object)) {}

  /// Calls the operation on its interface. Throws LibraryError, located; also when the object has
  /// been released.
  template <typename... Values>
  Value Call(const Operation& operation, const Values&... values) const {
    const std::array<ValueView, sizeof...(values)> arguments{ValueView(values)...};
    return CallWith(operation, arguments);
  }

  ObjectPtr object_;

 private:
  Value CallWith(const Operation& operation, const Arguments& arguments) const;
};

}  // namespace hostlib
