#pragma once

#include <functional>

#include "hostlib/Object.h"
#include "hostlib/Operations.h"

namespace hostlib {

/// One call on its way to the library.
struct CallInfo {
  std::wstring_view object;
  int interfaceNumber;
  int slot;
  const Operation* operation;  ///< null for an operation that this program does not use
  Arguments arguments;
};

/// What stands between the program and a library: sees every object come and go and every call,
/// and may answer in its place.
class CallHook {
 public:
  virtual ~CallHook() = default;
  virtual void ObjectCreated(std::wstring_view /*className*/) {}
  virtual void ObjectReleased(std::wstring_view /*className*/) {}
  /// `proceed` makes the call itself and gives its answer, or throws what it throws.
  virtual Value OnCall(const CallInfo& call, const std::function<Value()>& proceed) = 0;
};

/// Any library with a hook before it. Objects that the library gives are hooked too; an interface
/// that an object has not fails in the first call to it. Both must outlive every object that was
/// made. Several can be stacked.
class InterposedLibrary : public Library {
 public:
  InterposedLibrary(Library& inner, CallHook& hook) : inner_(inner), hook_(hook) {}
  ObjectPtr Create(std::wstring_view className) override;

 private:
  Library& inner_;
  CallHook& hook_;
};

}  // namespace hostlib
