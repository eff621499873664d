#pragma once

#include <string>

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "platform/Platform.h"
#include "settings/IniFile.h"
#include "ui/controls/Desktop.h"

namespace settings {

/// Finds the office ID of the agent's terminal session. The host is asked at most once a day: the
/// answer is kept in the user's settings together with its date.
class OfficeIdentification {
 public:
  OfficeIdentification(hostlib::Library& library, hostlib::ScriptGlobal& global,
                       hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                       const platform::Platform& platform, ui::Desktop& desktop, IniFile& file);

  /// Makes the agent's office the section of the INI file. When the host does not tell it, the
  /// office found last stays the section.
  void IdentifyOffice();

  /// Whether the host was asked in this run, also when it did not answer.
  bool WasHostAsked() const { return hostAsked_; }
  /// What the session said before the host was asked; blanks trimmed.
  const std::wstring& SessionText() const { return sessionText_; }

 private:
  /// True when the stored office is today's.
  bool TakeStoredOffice();
  void AskHost();
  void WaitForSessionText();
  void Store(std::wstring_view office);
  std::wstring Today() const;

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  const platform::Platform& platform_;
  ui::Desktop& desktop_;
  IniFile& file_;
  bool hostAsked_ = false;
  std::wstring sessionText_;
};

}  // namespace settings
