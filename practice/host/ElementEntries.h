#pragma once

#include "practice/host/Pnr.h"

namespace practice {

/// Applies one element entry ("RM TEXT [P1]", "CH 7 CASH", "DEL 7", "TS ...", "TM ...") to the PNR.
/// Throws Refused, and may then have changed the PNR: give it a copy.
void ApplyElementEntry(Pnr& pnr, std::wstring_view entry);

/// The entry begins with a code of an element entry.
bool IsElementEntry(std::wstring_view entry);

}  // namespace practice
