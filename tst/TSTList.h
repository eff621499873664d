#pragma once

#include <cstdint>
#include <string>

#include "hostlib/ScriptGlobal.h"

namespace tst {

/// The answer to a TST display: one TST, a list of them, or neither. The rows of the four arrays
/// count from 1.
struct TSTList {
  bool found = false;   ///< a TST is displayed
  bool isList = false;  ///< a list is displayed, not one TST
  std::int16_t count = 0;
  std::wstring tstNumber;  ///< of the TST displayed
  hostlib::TextArray segments{.items = {}, .lowerBound = 1};
  hostlib::TextArray persons{.items = {}, .lowerBound = 1};
  hostlib::TextArray tstNumbers{.items = {}, .lowerBound = 1};
  hostlib::TextArray fops{.items = {}, .lowerBound = 1};
};

TSTList ReadTSTListAnswer(hostlib::ScriptGlobal& global, const hostlib::ParameterBag& answer);

/// The array's element of that index; a RunTimeError when there is none.
const std::wstring& RowOf(const hostlib::TextArray& array, int index);

}  // namespace tst
