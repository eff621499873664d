#pragma once

#include <span>
#include <vector>

#include "hostlib/com/ComLibrary.h"

namespace hostlib::com {

/// The installed library does not fit, in words for the agent and those who help. Deliberately no
/// std::exception: whichever step asked for the object, its own words would name the wrong cause.
struct LibraryDoesNotFit {
  std::wstring words;
};

/// Holds every operation that this program uses against the installed library: throws
/// LibraryDoesNotFit, which names each object, slot and operation that is not there or takes
/// another number of arguments, and each object that no type library describes and that can't be
/// made. Makes no more objects than it needs to find the types. Quiet when none at all can be made,
/// and about a session that can't: no library is installed then or its terminal does not run, which
/// is for the run itself to find. Any other LibraryError says that the library can't be asked now.
/// Returns the objects that it made.
std::vector<ObjectPtr> CheckUsedOperations(ComLibrary& library,
                                           std::span<const Operation> used = AllOperations());

/// The installed library as a run gets it: held against what the program uses, once. What is used
/// of the first object is looked at before that is given, all the rest before the second: the run's
/// first window does not wait for it. When it does not fit, either step throws LibraryDoesNotFit,
/// and nothing has been sent to the host by then. When the library can't be asked, since its
/// terminal went away or stays busy, no object is made, for that reason, and the next time it is
/// asked anew. Since another process is long in making an object, the rest of the check gives its
/// own, if it made one of the class.
class CheckedLibrary : public Library {
 public:
  explicit CheckedLibrary(ComLibrary& library, std::span<const Operation> used = AllOperations())
      : library_(library), used_(used) {}
  ObjectPtr Create(std::wstring_view className) override;

 private:
  ObjectPtr First(std::wstring_view className);
  ObjectPtr AfterTheWholeCheck(std::wstring_view className);

  ComLibrary& library_;
  std::span<const Operation> used_;
  bool isChecked_ = false;
};

}  // namespace hostlib::com
