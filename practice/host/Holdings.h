#pragma once

#include <string>

#include "practice/host/Host.h"

namespace practice {

// What a host holds besides the PNR, for people to read. Lines are joined with "\r\n".

/// The printed copies, in the order in which they came.
std::wstring PrintedText(const Host& host);
/// What was sent to back office, a line each.
std::wstring BackOfficeText(const Host& host);
/// The queues that hold PNRs or are not on, a line each.
std::wstring QueuesText(const Host& host);

}  // namespace practice
