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

int CannotRun(ui::Desktop& desktop, const std::wstring& reason) {
  desktop.ShowBox(reason, common::kCritical, common::kTitle);
  return 1;
}

/// The program's run against the script library that is installed on this machine, or the box that
/// says why there is none.
int Run(journal::RunJournal& journal, const platform::Platform& machine) {
  ui::Desktop& desktop = journal.desktop();
  try {
    const hostlib::com::Apartment apartment(
        [&desktop] { return hostlib::com::AskToTryAgain(desktop); });
    hostlib::com::InstalledObjects installed;
    hostlib::com::ComLibrary link(installed);
    hostlib::com::CheckedLibrary library(link);
    return app::RunProgram(journal.Before(library), desktop, machine);
  } catch (const hostlib::com::LibraryDoesNotFit& misfit) {
    return CannotRun(desktop, misfit.words);
  } catch (const hostlib::LibraryError& error) {
    return CannotRun(desktop, error.description());
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  platform::LoadSystemLibrariesOnly();
  ui::WindowsDesktop desktop(instance, L"PTA_QX");
  int exitCode = 1;
  app::TellFailures(desktop, [&] {
    const platform::WindowsPlatform machine;
    const journal::WindowsClock clock;
    journal::WindowsFolder folder(journal::UsersJournalFolder());
    journal::RunJournal journal(desktop,
                                {machine, folder, clock, common::FromUtf8(PTA_VERSION_TEXT)});
    // Once more inside, so that the journal has that box, too, as long as there is one.
    app::TellFailures(journal.desktop(), [&] { exitCode = Run(journal, machine); });
    journal.Ended(exitCode);
  });
  return exitCode;
}
