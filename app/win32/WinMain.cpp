#include <windows.h>

#include "app/Program.h"
#include "common/ConstDefintions.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "hostlib/com/LibraryCheck.h"
#include "platform/win32/DllSearch.h"
#include "platform/win32/WindowsPlatform.h"
#include "ui/win32/WindowsDesktop.h"

namespace {

/// The program's run against the script library that is installed on this machine.
int RunOnInstalledLibrary(ui::Desktop& desktop) {
  const platform::WindowsPlatform machine;
  try {
    const hostlib::com::Apartment apartment(hostlib::com::AskToTryAgain);
    hostlib::com::InstalledObjects installed;
    hostlib::com::ComLibrary library(installed);
    hostlib::com::CheckUsedOperations(library);
    return app::RunProgram(library, desktop, machine);
  } catch (const hostlib::LibraryError& error) {
    desktop.ShowBox(error.description(), common::kCritical, common::kTitle);
    return 1;
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  platform::LoadSystemLibrariesOnly();
  ui::WindowsDesktop desktop(instance, L"PTA_QX");
  return RunOnInstalledLibrary(desktop);
}
