#pragma once

#include <cstdint>

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "pnr/MCOInfo.h"
#include "settings/OfficeProfile.h"

namespace pnr {

/// Reads the chosen MCO segment and applies the agency's airline rules.
class MCOSegmentReader {
 public:
  MCOSegmentReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                   errors::ErrorHandler& errors, const settings::OfficeProfile& profile,
                   MCOInfo& mco);

  /// `index` is 0-based among the PNR's MCO segments.
  void GetMCOInformation(std::int16_t index);

 private:
  void ReadAirline(const hostlib::ParameterBag& bag);
  void CheckAirline();

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const settings::OfficeProfile& profile_;
  MCOInfo& mco_;
};

}  // namespace pnr
