#pragma once

#include "hostlib/com/TypeOwners.h"

namespace hostlib::com {

/// The type library that is registered with the class, read in this process: to ask an object of
/// another process for it costs several round trips. Null when none is registered, or more than one
/// version of it, of which only an object can tell its own.
TypeLibrary RegisteredTypesOf(const CLSID& classId);

}  // namespace hostlib::com
