#pragma once

#include <gmock/gmock.h>

#include "practice/terminal/TerminalMenu.h"
#include "practice/terminal/TerminalWindow.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"

namespace terminal {

/// A practice terminal with its window before a person, and a script that sends entries.
class TerminalBench : public testing::Test {
 protected:
  using Command = practice::terminal::Command;

  HWND Entry() const { return driver::Item(window_, practice::terminal::kEntryId); }
  std::wstring Transcript() const {
    return driver::TextOf(driver::Item(window_, practice::terminal::kTranscriptId));
  }
  std::wstring Status() const {
    return driver::TextOf(driver::Item(window_, practice::terminal::kStatusId));
  }
  void Choose(Command command) const {
    SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
  }
  /// For a command that shows a window and waits for it.
  void Begin(Command command) const {
    PostMessageW(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
  }
  bool Shows(const std::wstring& text) const {
    return driver::Holds([&] { return Transcript().find(text) != std::wstring::npos; });
  }
  bool Says(const std::wstring& text) const {
    return driver::Holds([&] { return Status().find(text) != std::wstring::npos; });
  }
  void Enter(const std::wstring& entry) const {
    driver::Type(Entry(), entry);
    driver::Press(Entry(), VK_RETURN);
  }
  /// An entry of a script's; its answer.
  static std::wstring Send(const std::wstring& entry) {
    const auto session = client::Make(L"TerminalSession");
    std::vector<client::Variant> arguments;
    arguments.push_back(client::Text(entry));
    return client::TextIn(client::Call(*session.Get(), L"SendCommand", std::move(arguments)));
  }

  PracticeTerminal terminal_;
  HWND window_ = terminal_.window();
};

}  // namespace terminal
