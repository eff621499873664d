#include "platform/win32/DllSearch.h"

#include <windows.h>

namespace platform {

void LoadSystemLibrariesOnly() { SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32); }

}  // namespace platform
