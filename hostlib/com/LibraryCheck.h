#pragma once

#include <span>

#include "hostlib/com/ComLibrary.h"

namespace hostlib::com {

/// Holds every operation that this program uses against the installed library, before the first is
/// used: throws one LibraryError (kLibraryDoesNotFit) that names each object, slot and operation
/// that is not there or takes another number of arguments, and each object that can't be made.
/// Quiet when none at all can be made, and about a session that can't: no library is installed then
/// or its terminal does not run, which is for the run itself to find.
void CheckUsedOperations(ComLibrary& library, std::span<const Operation> used = AllOperations());

}  // namespace hostlib::com
