#include "app/Program.h"

#include "app/MainModule.h"
#include "common/Text.h"

namespace app {
namespace {

void ReportUnexpected(ui::Desktop& desktop, const std::wstring& description) {
  desktop.ShowBox(L"The script ended because of an unexpected failure.\r\r" + description,
                  common::kCritical, common::kTitle);
}

}  // namespace

int RunProgram(hostlib::Library& library, ui::Desktop& desktop,
               const platform::Platform& platform) {
  try {
    MainModule run(library, desktop, platform);
    run.Main();
    desktop.Run();
    return 0;
  } catch (const common::EndOfRun&) {
    return 0;
  } catch (const common::RunTimeError& error) {
    ReportUnexpected(desktop, error.description());
  } catch (const std::exception& error) {
    ReportUnexpected(desktop, common::FromUtf8(error.what()));
  }
  return 1;
}

}  // namespace app
