#pragma once

#include "practice/host/Pnr.h"

// The host's displays, as they are sent: lines joined with kLineEnd.
namespace practice::displays {

inline constexpr std::wstring_view kLineEnd = L"\r\n";

std::wstring PnrDisplay(const Pnr& pnr);

/// The one TST when there is just one and no list is asked for, else the list; a text that says so
/// when there is none.
std::wstring TstOverview(const Pnr& pnr, bool alwaysList);
std::wstring TstDisplay(const Pnr& pnr, const Tst& tst);

/// The one TSM when there is just one and no list is asked for, else the list.
std::wstring TsmOverview(const Pnr& pnr, bool alwaysList);
std::wstring TsmDisplay(const Pnr& pnr, const Tsm& tsm);

std::wstring OfficeDisplay(std::wstring_view office);

/// All of a PNR: its display and those of every TST and TSM.
std::wstring WholePnr(const Pnr& pnr);

}  // namespace practice::displays
