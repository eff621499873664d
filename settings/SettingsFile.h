#pragma once

#include <array>

#include "common/Literal.h"
#include "errors/ErrorHandler.h"
#include "settings/OfficeProfile.h"
#include "settings/Settings.h"
#include "settings/SettingsControls.h"

namespace settings {

/// Carries the settings between the INI file, the record and the dialog's controls.
class SettingsFile {
 public:
  SettingsFile(const OfficeProfile& profile, errors::ErrorHandler& errors, const IniFile& file,
               const SettingsControls& controls, Settings& settings);

  /// From the file into the record and the controls.
  void ReadSettings();

  /// What the agent changed, into the agent's office section and the record. Without an office
  /// nothing is written. Whatever fails, the record is afterwards what the screen shows.
  void WriteSettings();

 private:
  /// One key of the file: a text or a Yes/No field, with the control that shows it. A key without
  /// a control is only ever read.
  struct Entry {
    common::Literal key;
    std::wstring Settings::*text = nullptr;
    ui::TextBox* box = nullptr;
    bool Settings::*flag = nullptr;
    ui::CheckBox* check = nullptr;
  };
  static constexpr std::size_t kKeys = 12;
  using Entries = std::array<Entry, kKeys>;

  static Entries EntriesOf(const SettingsControls& controls);
  void Read(const Entry& entry);
  /// Whether the screen shows something else than the record holds.
  bool Differs(const Entry& entry) const;
  void Write(const Entry& entry) const;
  void FollowScreen(const Entry& entry);

  const OfficeProfile& profile_;
  errors::ErrorHandler& errors_;
  const IniFile& file_;
  Settings& settings_;
  Entries entries_;
};

}  // namespace settings
