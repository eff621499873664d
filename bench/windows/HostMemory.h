#pragma once

#include <string>

namespace bench {

/// The private memory of the process that runs this program, in MB, as the system under Wine tells
/// it: Wine itself tells 0. 0 when there is no such process or no such system.
double HostPrivateMegabytes(const std::wstring& program);

}  // namespace bench
