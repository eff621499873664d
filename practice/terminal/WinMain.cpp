#include <windows.h>

#include <optional>

#include "common/Text.h"
#include "platform/win32/DllSearch.h"
#include "practice/terminal/Registration.h"
#include "practice/terminal/TerminalWindow.h"
#include "practice/terminal/Texts.h"

namespace {

using namespace practice::terminal;

/// COM on this thread, which is the one that shows the windows.
class Apartment {
 public:
  Apartment() : entered_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~Apartment() {
    if (SUCCEEDED(entered_)) CoUninitialize();
  }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

 private:
  HRESULT entered_;
};

/// A server until nobody needs it any more; with the terminal's window, until that is closed.
int Serve(const std::optional<std::wstring>& booking) {
  if (booking && TerminalWindow::ShowRunning(*booking)) return 0;
  Server server;
  TerminalWindow window(server);
  if (booking) window.Show(*booking);
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0 && !server.life().IsEnd(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

/// The program's argument: an option, or the booking to begin with.
std::wstring ArgumentIn(const std::wstring& line) {
  const std::wstring text = common::Trim(line);
  const bool quoted = text.size() > 1 && text.front() == L'"' && text.back() == L'"';
  return quoted ? text.substr(1, text.size() - 2) : text;
}

/// The option in capitals, without its "/" or "-"; "" when it is none.
std::wstring OptionIn(const std::wstring& text) {
  if (text.empty() || (text[0] != L'/' && text[0] != L'-')) return {};
  return common::UpperCase(text.substr(1));
}

int Run(const std::wstring& line) {
  const std::wstring argument = ArgumentIn(line);
  const std::wstring option = OptionIn(argument);
  if (option == L"REGSERVER") {
    const TypeLibrary types;
    return Registration(types).Register() ? 0 : 1;
  }
  if (option == L"UNREGSERVER") {
    const TypeLibrary types;
    Registration(types).Unregister();
    return 0;
  }
  if (option == L"EMBEDDING") return Serve(std::nullopt);
  return Serve(argument);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR line, int) {
  platform::LoadSystemLibrariesOnly();
  const Apartment apartment;
  try {
    return Run(line);
  } catch (const common::RunTimeError& error) {
    MessageBoxW(nullptr, error.description().c_str(), texts::kBoxTitle,
                MB_ICONERROR | MB_SETFOREGROUND);
    return 1;
  }
}
