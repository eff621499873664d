#include <windows.h>

#include "app/Program.h"
#include "app/win32/PracticeComposition.h"
#include "common/ConstDefintions.h"
#include "platform/win32/WindowsPlatform.h"
#include "ui/win32/WindowsDesktop.h"

namespace {

int RunOn(HINSTANCE instance, ui::Desktop& desktop) {
  const platform::WindowsPlatform machine;
  try {
    app::PracticeComposition practice(instance, machine, desktop);
    return app::RunProgram(practice.library(), desktop, machine);
  } catch (const practice::BookingError& error) {
    desktop.ShowBox(L"The practice booking can not be used.\r\r" + error.description(),
                    common::kCritical, common::kTitle);
    return 1;
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  ui::WindowsDesktop desktop(instance, L"PTA_QX");
  return RunOn(instance, desktop);
}
