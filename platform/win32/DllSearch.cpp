#include "platform/win32/DllSearch.h"

#include <windows.h>

namespace platform {

void LoadSystemLibrariesOnly() {
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  // A COM library is loaded with another search, its own folder first, which Windows would
  // otherwise go on with in the current folder.
  SetDllDirectoryW(L"");
}

}  // namespace platform
