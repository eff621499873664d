#pragma once

#include "common/Text.h"
#include "hostlib/Facade.h"

namespace hostlib {

/// The link to the running terminal session. Not connected until Connect, nor after Release: its
/// operations then throw LibraryError.
class TerminalSession : public Facade {
 public:
  /// Longer command texts go by SendCommand.
  static constexpr int kLongestEntry = 75;

  TerminalSession() = default;

  void Connect(Library& library) { object_ = library.Create(operations::terminal_session::kClass); }
  void Release() { object_ = nullptr; }
  bool IsConnected() const { return object_ != nullptr; }

  void LoadPNR() { Call(operations::terminal_session::kLoadPNR); }
  std::wstring SendCommand(std::wstring_view command) {
    return Call(operations::terminal_session::kSendCommand, command).Text();
  }
  std::wstring SendEntry(std::wstring_view command) {
    return Call(operations::terminal_session::kSendEntry, command).Text();
  }
  std::wstring SendDisplay(std::wstring_view command) {
    return Call(operations::terminal_session::kSendDisplay, command).Text();
  }
  std::wstring SessionText() { return Call(operations::terminal_session::kSessionText).Text(); }
  bool SendEntryChecked(std::wstring_view entry) {
    return Call(operations::terminal_session::kSendEntryChecked, entry).Flag();
  }

  /// A single command by the operation that its length asks for.
  std::wstring SendSingle(std::wstring_view command) {
    return common::Length(command) > kLongestEntry ? SendCommand(command) : SendEntry(command);
  }
};

}  // namespace hostlib
