#pragma once

namespace platform {

/// From now on a library that is loaded by its name alone comes from the system folder or not at
/// all: not from the program's folder, the current folder or the path, where anybody may have put
/// one. A COM library still comes from where it is registered, and what it needs from its folder.
void LoadSystemLibrariesOnly();

}  // namespace platform
