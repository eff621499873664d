#pragma once

#include <optional>
#include <span>
#include <vector>

#include "hostlib/com/ComLibrary.h"

namespace hostlib::com {

/// Holds every operation that this program uses against the installed library, before the first is
/// used: throws one LibraryError (kLibraryDoesNotFit) that names each object, slot and operation
/// that is not there or takes another number of arguments, and each object that no type library
/// describes and that can't be made. Makes no more objects than it needs to find the types. Quiet
/// when none at all can be made, and about a session that can't: no library is installed then or
/// its terminal does not run, which is for the run itself to find. Any other LibraryError says that
/// the library can't be asked now. Returns the objects that it made.
std::vector<ObjectPtr> CheckUsedOperations(ComLibrary& library,
                                           std::span<const Operation> used = AllOperations());

/// The installed library as a run gets it: held against what the program uses, once, which throws
/// as above when it does not fit. When it could not be asked, since its terminal went away or
/// stayed busy, it makes no object, for that reason, and nothing is sent. Since another process is
/// long in making an object, the first one that the run asks for is that of the check, if it made
/// one of the class.
class CheckedLibrary : public Library {
 public:
  explicit CheckedLibrary(ComLibrary& library, std::span<const Operation> used = AllOperations());
  ObjectPtr Create(std::wstring_view className) override;

 private:
  ComLibrary& library_;
  std::vector<ObjectPtr> ofTheCheck_;
  std::optional<LibraryError> failure_;
};

}  // namespace hostlib::com
