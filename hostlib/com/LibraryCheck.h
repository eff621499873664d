#pragma once

#include <span>

#include "hostlib/com/ComLibrary.h"

namespace hostlib::com {

/// Holds every operation that this program uses against the installed library, before the first is
/// used: throws one LibraryError (kLibraryDoesNotFit) that names each object, slot and operation
/// that is not there or takes another number of arguments. Quiet when no library is installed or
/// its terminal does not run: that is for the run itself to find.
void CheckUsedOperations(ComLibrary& library, std::span<const Operation> used = AllOperations());

}  // namespace hostlib::com
