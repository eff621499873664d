#pragma once

#include "practice/host/Pnr.h"

namespace practice {

/// The association that a text ends in, taken off it with the blank before:
/// "CASH [INF P1-2,4 S3]" leaves "CASH". Nothing when the text ends in none. Throws Refused when it
/// is malformed or names a passenger or segment that is not there.
std::optional<Association> TakeAssociation(const Pnr& pnr, std::wstring& text);

/// " [INF P1-2,4 S3]" with the numbers that the lines have now; "" when it is for all.
std::wstring AssociationText(const Pnr& pnr, const Association& association);

/// "1-2,4"
std::wstring LineNumbersText(const Pnr& pnr, const std::vector<int>& ids);

}  // namespace practice
