#include "tests/windows/terminal/PracticeTerminal.h"

#include "practice/terminal/TerminalWindow.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/NotClosed.h"

namespace terminal {
namespace {

client::Variant AskDesk(const wchar_t* operation) {
  return client::Call(*client::Make(L"PracticeDesk").Get(), operation);
}

void TellDesk(const wchar_t* operation, client::Variant argument) {
  std::vector<client::Variant> arguments;
  arguments.push_back(std::move(argument));
  client::Call(*client::Make(L"PracticeDesk").Get(), operation, std::move(arguments));
}

bool SessionCanBeMade() {
  client::ComPtr<IDispatch> session;
  return SUCCEEDED(client::Make(L"TerminalSession", session));
}

HWND OpenWindow(const std::wstring& booking) {
  driver::Launch(Program(), booking.empty() ? booking : L"\"" + booking + L"\"");
  return WaitUntilOpen();
}

void Register(const std::wstring& program) {
  if (driver::Process(program, L"/regserver").ExitCode() == 0) return;
  throw driver::DriverError(program + L" can not be registered");
}

void Unregister(const std::wstring& program) {
  driver::Process(program, L"/unregserver").ExitCode();
}

}  // namespace

HWND WaitUntilOpen() {
  HWND window = nullptr;
  const auto isOpen = [&window] {
    window = FindWindowW(practice::terminal::kTerminalClass, nullptr);
    return window != nullptr && IsWindowVisible(window) && SessionCanBeMade();
  };
  // The first one in a new Wine session waits for Wine's own services.
  if (driver::Holds(isOpen, std::chrono::seconds(60))) return window;
  throw driver::DriverError(window == nullptr          ? L"The terminal has no window"
                            : !IsWindowVisible(window) ? L"The terminal's window is not shown"
                                                       : L"The terminal makes no session");
}

PracticeTerminal::PracticeTerminal(const std::wstring& booking)
    : window_(OpenWindow(booking)), process_(window_) {}

PracticeTerminal::~PracticeTerminal() {
  try {
    Close();
  } catch (const std::exception& failure) {
    // The process is ended with its owner.
    TellNotClosed(failure.what());
  }
}

void PracticeTerminal::Close() {
  if (!process_.IsRunning()) return;
  PostMessageW(window_, WM_CLOSE, 0, 0);
  process_.ExitCode();
}

void PracticeTerminal::Kill() {
  process_.Kill();
  // Wine keeps the list of the classes on offer in this process, and would go on naming the dead
  // terminal. It is started anew when it is needed.
  KillAll(L"rpcss.exe");
}

void PracticeTerminal::Load(const std::wstring& booking) {
  TellDesk(L"LoadBooking", client::Text(booking));
}

std::wstring PracticeTerminal::PnrText() const { return client::TextIn(AskDesk(L"PnrText")); }

std::wstring PracticeTerminal::Transcript() const {
  return client::TextIn(AskDesk(L"TranscriptText"));
}

void PracticeTerminal::ForgetTranscript() { AskDesk(L"ForgetTranscript"); }

long PracticeTerminal::UsedHeap() const { return AskDesk(L"UsedHeap").get().lVal; }

std::vector<std::wstring> PracticeTerminal::Entries() const {
  std::wstring text = Transcript();
  text.erase(0, text.rfind(L"--- Practice booking"));
  std::vector<std::wstring> entries;
  for (std::size_t at = text.find(L"\n> "); at != text.npos; at = text.find(L"\n> ", at + 1)) {
    entries.push_back(text.substr(at + 3, text.find(L'\r', at + 1) - at - 3));
  }
  return entries;
}

std::wstring PracticeTerminal::Attached() const { return client::TextIn(AskDesk(L"AttachedText")); }

int PracticeTerminal::EntryCount() const {
  return static_cast<int>(AskDesk(L"EntryCount").get().lVal);
}

void PracticeTerminal::SlowDown(int milliseconds) {
  TellDesk(L"SlowDown", client::Number(milliseconds));
}

void PracticeTerminal::RefuseEntry(int number, const std::wstring& reason) {
  std::vector<client::Variant> arguments;
  arguments.push_back(client::Number(number));
  arguments.push_back(client::Text(reason));
  client::Call(*client::Make(L"PracticeDesk").Get(), L"RefuseEntry", std::move(arguments));
}

void PracticeTerminal::HoldEntry(int number, std::chrono::milliseconds time) {
  std::vector<client::Variant> arguments;
  arguments.push_back(client::Number(number));
  arguments.push_back(client::Number(static_cast<long>(time.count())));
  client::Call(*client::Make(L"PracticeDesk").Get(), L"HoldEntry", std::move(arguments));
}

void PracticeTerminal::BehaveWell() { AskDesk(L"BehaveWell"); }

void PracticeTerminal::DropSession(bool answerOnly) {
  TellDesk(L"DropSession", client::Flag(answerOnly));
}

void PracticeTerminal::DieInEntry(int number) { TellDesk(L"DieInEntry", client::Number(number)); }

Registered::Registered(std::wstring program) : program_(std::move(program)) { Register(program_); }

Registered::~Registered() { Unregister(program_); }

Unregistered::Unregistered() { Unregister(Program()); }

Unregistered::~Unregistered() { Register(Program()); }

}  // namespace terminal
