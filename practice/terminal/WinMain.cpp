#include <windows.h>

#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "practice/terminal/Registration.h"
#include "practice/terminal/Server.h"

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

int Serve() {
  Server server;
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0 && !server.life().IsEnd(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

/// The program's argument in lower case, without its "/" or "-"; "" when there is none.
std::wstring OptionIn(const std::wstring& line) {
  const std::wstring text = common::Trim(line);
  if (text.empty() || (text[0] != L'/' && text[0] != L'-')) return {};
  return common::UpperCase(text.substr(1));
}

int Run(const std::wstring& line) {
  const std::wstring option = OptionIn(line);
  if (option == L"REGSERVER") {
    const TypeLibrary types;
    return Registration(types).Register() ? 0 : 1;
  }
  if (option == L"UNREGSERVER") {
    const TypeLibrary types;
    Registration(types).Unregister();
    return 0;
  }
  return Serve();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR line, int) {
  const Apartment apartment;
  try {
    return Run(line);
  } catch (const common::RunTimeError& error) {
    MessageBoxW(nullptr, error.description().c_str(), L"Vantel practice terminal",
                MB_ICONERROR | MB_SETFOREGROUND);
    return 1;
  }
}
