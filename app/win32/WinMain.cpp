#include <windows.h>

#include "app/Program.h"
#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "hostlib/com/LibraryCheck.h"
#include "journal/RunJournal.h"
#include "journal/win32/WindowsClock.h"
#include "journal/win32/WindowsFolder.h"
#include "platform/win32/DllSearch.h"
#include "platform/win32/WindowsPlatform.h"
#include "ui/win32/WindowsDesktop.h"
#include "version.h"

namespace {

/// The program's run against the script library that is installed on this machine.
int RunOnInstalledLibrary(ui::Desktop& desktop) {
  const platform::WindowsPlatform machine;
  try {
    const hostlib::com::Apartment apartment(hostlib::com::AskToTryAgain);
    hostlib::com::InstalledObjects installed;
    hostlib::com::ComLibrary link(installed);
    hostlib::com::CheckedLibrary library(link);
    const journal::WindowsClock clock;
    journal::WindowsFolder folder(journal::UsersJournalFolder());
    journal::RunJournal journal(library, desktop,
                                {machine, folder, clock, common::FromUtf8(PTA_VERSION_TEXT)});
    return journal.Ended(app::RunProgram(journal.library(), journal.desktop(), machine));
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
