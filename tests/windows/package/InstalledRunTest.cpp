#include "practice/terminal/TerminalWindow.h"
#include "tests/windows/driver/WindowAgent.h"
#include "tests/windows/package/Installation.h"

// The two installed programs with each other.

namespace package {
namespace {

constexpr auto kStartOfWindows = std::chrono::seconds(60);

HWND Window() { return FindWindowW(practice::terminal::kTerminalClass, nullptr); }

/// The installed practice terminal, from the time that programs can use it.
class OpenTerminal {
 public:
  OpenTerminal(const std::wstring& program, const std::wstring& booking)
      : process_(program, booking) {
    // It is shown when sessions can be made. The first program in a new Wine session waits for
    // Wine's own services.
    if (!driver::Holds([] { return IsWindowVisible(Window()) != 0; }, kStartOfWindows)) {
      throw driver::DriverError(L"The terminal's window is not shown");
    }
  }
  /// Not killed while it can be helped: the system may go on offering a dead process's classes.
  ~OpenTerminal() {
    PressCloseBox();
    driver::Holds([this] { return !process_.IsRunning(); });
  }
  OpenTerminal(const OpenTerminal&) = delete;
  OpenTerminal& operator=(const OpenTerminal&) = delete;

  DWORD Close() const {
    PressCloseBox();
    return process_.ExitCode();
  }

 private:
  static void PressCloseBox() {
    if (const HWND window = Window()) PostMessageW(window, WM_CLOSE, 0, 0);
  }

  driver::Process process_;
};

TEST_F(Installation, TheProgramReadsABookingOfThePracticeTerminalWithTheSettingsOfTheLessons) {
  ASSERT_EQ(Install(L"/PRACTICE=yes"), 0U);
  WriteBytes(settings_, ReadBytes(folder_ + L"\\pnrs\\ordinary.ini"));
  const OpenTerminal terminal(folder_ + L"\\VantelPractice.exe", L"ordinary");
  driver::Program program(folder_ + L"\\PTA_QX.exe");
  driver::WindowAgent(program, practice::ReadAgentScript(L"form frmPTA\n"
                                                         L"see txtMCONumber \"4012345678\"\n"
                                                         L"see txtIATANumber \"80246878\"\n"
                                                         L"click cmdCancel\n"))
      .Work([](HWND, const std::wstring&) {});
  EXPECT_EQ(program.ExitCode(), 0U);
  EXPECT_EQ(terminal.Close(), 0U);
}

}  // namespace
}  // namespace package
