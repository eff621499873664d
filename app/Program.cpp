#include "app/Program.h"

#include "app/MainModule.h"
#include "common/Text.h"

namespace app {
namespace {

void ReportUnexpected(common::MessageBoxes& boxes, const std::wstring& description) {
  boxes.ShowBox(L"The script ended because of an unexpected failure.\r\r" + description,
                common::kCritical, common::kTitle);
}

}  // namespace

void TellFailures(common::MessageBoxes& boxes, common::Body work) {
  try {
    work();
  } catch (const common::RunTimeError& error) {
    ReportUnexpected(boxes, error.description());
  } catch (const std::exception& error) {
    ReportUnexpected(boxes, common::FromUtf8(error.what()));
  }
}

int RunProgram(hostlib::Library& library, ui::Desktop& desktop,
               const platform::Platform& platform) {
  int exitCode = 1;
  TellFailures(desktop, [&] {
    try {
      MainModule run(library, desktop, platform);
      run.Main();
      desktop.Run();
      exitCode = 0;
    } catch (const common::EndOfRun&) {
      exitCode = 0;
    }
  });
  return exitCode;
}

}  // namespace app
