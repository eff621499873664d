#pragma once

#include "errors/ErrorHandler.h"
#include "platform/Platform.h"
#include "settings/IniFile.h"
#include "settings/OfficeIdentification.h"

namespace settings {

/// Finds the agency's file, and which of its sections is the agent's.
class FileHandeling {
 public:
  FileHandeling(const platform::Platform& platform, errors::ErrorHandler& errors, IniFile& file,
                OfficeIdentification& office);

  /// A missing file is reported, and the office identified all the same.
  void LocateIniFile();

 private:
  const platform::Platform& platform_;
  errors::ErrorHandler& errors_;
  IniFile& file_;
  OfficeIdentification& office_;
};

}  // namespace settings
